#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/Settings.h"
#include "drawing/DrawingTools.h"
#include "library/Sidecar.h"
#include "printing/report/MomentPictures.h"
#include "printing/report/ReportPrintout.h"
#include "workspace/pictures/StagePictures.h"
#include "workspace/stage/Stage.h"

namespace kinalyx {

/// One thing that can go into a report.
struct ReportItem {
  enum class Kind {
    AllWindows,  ///< the stage as it stands
    Window,      ///< a window of it
    Moment,      ///< a picture of any video of the student
    ThenAndNow,  ///< a picture of another day beside that of the current window
    Measures,    ///< the figures of what is drawn on the stage
    Notes,
  };
  Kind kind = Kind::AllWindows;
  std::string caption;  ///< in words for the user
  int slot = 0;         ///< of Window
  std::string path{};   ///< the video of Moment and of the "then"
  VideoMoment moment{};
  bool wanted = true;
};

/// A video in the student's folder.
struct StudentVideo {
  std::string path;
  std::string name;  ///< as lists show it
  std::string date;  ///< on which its file was written
  std::int64_t written = 0;
};

/// Makes a report of what the student has: what stands on the stage, and pictures of other days from the folder.
class ReportMaker {
 public:
  /// All outlives it.
  struct Parts {
    PlayerServices& services;
    const Settings& settings;
    Stage& stage;
    DrawingTools& tools;
    StagePictures& pictures;
  };
  explicit ReportMaker(const Parts& parts);

  /// Whose report it is: the folder of the current video, or of the first in sight.
  std::string Student() const;
  /// What the stage and the folder have to offer, in the order in which it is usually wanted.
  std::vector<ReportItem> Offer() const;
  /// The videos in the student's folder, the oldest first; none where its drive does not answer.
  std::vector<StudentVideo> Videos() const;
  /// Those of which the current window's could be a progress: without itself.
  std::vector<StudentVideo> OtherVideos() const;
  std::vector<VideoMark> MarksOf(const std::string& path) const;
  /// The notes of the videos in sight, each under its video's name where there are several.
  RichText NotesOnStage() const;

  /// The pages; items that are not wanted are left out.
  ReportPrintout Make(const std::vector<ReportItem>& items, const RichText& notes);

 private:
  /// The window of whose student the report is; 0 without a video.
  int Subject() const;
  std::vector<ReportMeasures::Row> Measures() const;
  std::string CaptionOf(int slot) const;
  ReportSection SectionOf(const ReportItem& item, const RichText& notes);
  ReportPair ThenAndNow(const ReportItem& item);

  Parts parts_;
  MomentPictures moments_;
};

}  // namespace kinalyx
