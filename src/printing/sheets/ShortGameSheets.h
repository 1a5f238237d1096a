#pragma once

#include <string>

#include "core/Settings.h"
#include "platform/files/Result.h"
#include "platform/host/Host.h"
#include "platform/paint/Surface.h"
#include "printing/sheets/SheetPrintout.h"
#include "workspace/commands/IHandouts.h"
#include "workspace/pictures/StagePictures.h"
#include "workspace/stage/Stage.h"

namespace kinalyx {

/// The pictures of the short-game school: takes them from the stage, keeps them in the student's folder, and puts them
/// on sheets beside the model swing.
///
/// A sheet has a row for each of two days, or views. Of a stage with videos in two rows of windows the upper row is the
/// first and the lower row the second; of any other the windows with the video of window 1 are the first, and those
/// with the next video the second.
class ShortGameSheets {
 public:
  /// All outlives it.
  ShortGameSheets(IHost& host, const Settings& settings, Stage& stage, StagePictures& pictures)
      : host_(host), settings_(settings), stage_(stage), pictures_(pictures) {}

  /// Takes the rows into `School Pics` of the student's folder, in bitmaps with fixed names, and tells so, or why not.
  void BriskoSaveScreen(ShortGame Kind);
  /// The sheet of what stands on the stage. A second day that does not stand there is taken from `School Pics`, where
  /// there is one. Fails where no window has a video, or the model picture cannot be loaded.
  Result<SheetPrintout> MakeSheet(ShortGame Kind, bool LeftyPrint);
  /// "Create Model": keeps the picture of the stage in a bitmap of the user's choice.
  void BriskoModel();

 private:
  struct Rows {
    Surface first;
    Surface second;  ///< empty: only one is there
  };
  Rows TakeRows();

  const std::string& FirstVideo() const;
  std::string SchoolPics() const;
  std::string ModelPath(ShortGame Kind, bool LeftyPrint) const;
  Outcome SaveRow(const Surface& row, const std::string& name);

  IHost& host_;
  const Settings& settings_;
  Stage& stage_;
  StagePictures& pictures_;
};

}  // namespace kinalyx
