#pragma once

#include "core/Settings.h"
#include "platform/files/Result.h"
#include "platform/host/Host.h"
#include "printing/AnalysisPrintout.h"
#include "workspace/pictures/StagePictures.h"
#include "workspace/stage/Stage.h"

namespace kinalyx {

/// Makes the printed pages of what stands on the stage now.
class AnalysisPrintouts {
 public:
  /// All outlives it.
  AnalysisPrintouts(IHost& host, const Settings& settings, Stage& stage, StagePictures& pictures)
      : host_(host), settings_(settings), stage_(stage), pictures_(pictures) {}

  /// All windows, as the grid stands.
  AnalysisPrintout PrintAll(RichText notes);
  /// The current window alone; refused, in words for the user, where it has no video.
  Result<AnalysisPrintout> PrintHigh(RichText notes);

 private:
  IHost& host_;
  const Settings& settings_;
  Stage& stage_;
  StagePictures& pictures_;
};

}  // namespace kinalyx
