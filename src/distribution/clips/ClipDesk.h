#pragma once

#include <deque>
#include <memory>
#include <string>
#include <vector>

#include "core/Settings.h"
#include "distribution/clips/ClipJob.h"
#include "library/JobRunner.h"

namespace kinalyx {

class AnalysisWorkspace;

/// A moment of the lead video at which a clip may begin or end.
struct ClipMoment {
  int Position = 0;
  std::string Words;  ///< "Beginning", "impact, 1.20 s"
};

/// What the user wants of a clip.
struct ClipWish {
  enum class File { Mp4, Mp4Old, Gif, Row };

  bool AllWindows = false;
  int First = 0;  ///< positions of the lead
  int Last = 0;
  int Slower = 1;
  double PauseSeconds = 0;
  ClipSize Size = ClipSize::Lines1080;
  File Makes = File::Mp4;
  SceneWords Words;
  bool Sound = true;
  bool Card = false;
  int RowPictures = 5;
  std::string Name;    ///< without its ending
  std::string Folder;  ///< is made where it is missing
  std::vector<std::int16_t> Voice;
};

/// What becomes of the clips; told on the user-interface thread.
class IClipEvents {
 public:
  virtual ~IClipEvents() = default;
  /// One is being written; `waiting` others come after it.
  virtual void ClipProgress(const std::string& name, double part, int waiting) = 0;
  virtual void ClipSaved(const std::string& path) = 0;
  virtual void ClipCancelled() = 0;
  virtual void ClipFailed(const std::string& words) = 0;
};

/// Where clips are ordered. They are written one after the other, beside the user's own work, also when the videos
/// have been closed meanwhile.
class ClipDesk final {
 public:
  /// All outlives the desk. Clips that are not finished when it goes are given up.
  ClipDesk(IHost& host, const Settings& settings, IClipEvents& events, JobRunner::On on = JobRunner::On::Worker);

  // --- what can be chosen, of the current window's video
  /// All that stands on the stage is more than the current window's video.
  static bool SeveralShown(AnalysisWorkspace& analysis);
  /// Beginning, marks, the picture that is shown, end; in their order.
  static std::vector<ClipMoment> Moments(AnalysisWorkspace& analysis);
  /// What was wanted last, for the videos that stand there now: their range, name and folder.
  ClipWish Proposal(AnalysisWorkspace& analysis) const;
  /// The lines and the logo of the printed page.
  ClosingCard Card() const;
  /// What a wish comes to. Its path ends as its kind does.
  ClipOrder OrderOf(AnalysisWorkspace& analysis, const ClipWish& wish) const;
  static std::string EndingOf(ClipWish::File file);

  // --- orders
  /// Orders a clip, and keeps the wish for the next proposal. A name that cannot be, and a folder that cannot be made,
  /// are refused; of a file that is there already the user is asked.
  Outcome Save(AnalysisWorkspace& analysis, const ClipWish& wish);
  bool Busy() const { return runner_.Busy(); }
  /// Gives up the one under way; the others go on.
  void Cancel() { runner_.Cancel(); }

 private:
  class Told;

  void Next();
  void Over(const ClipJob* job);

  IHost& host_;
  const Settings& settings_;
  IClipEvents& events_;
  JobRunner runner_;
  std::deque<ClipOrder> waiting_;
  std::string current_;  ///< name of the one under way
  ClipWish last_;
};

}  // namespace kinalyx
