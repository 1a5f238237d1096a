#pragma once

#include <optional>
#include <string>

#include "platform/host/Host.h"
#include "workspace/compare/LockedVideos.h"
#include "workspace/keeping/Keeping.h"
#include "workspace/stage/Stage.h"
#include "workspace/transport/AllVideos.h"
#include "workspace/transport/ITransportView.h"

namespace kinalyx {

/// Everything that moves the current video: play, pause, rewind, step, seek, slow motion, loop, marks,
/// and the line of the play bar.
class Transport {
 public:
  /// Locked videos refuse the transport's own commands and move together.
  Transport(IHost& host, Settings& settings, Stage& stage, Keeping& keeping, LockedVideos& locks, ITransportView& view);

  /// Play or pause. At the last position or the one before, it plays from the start.
  void TogglePlay();
  /// The same, whatever is in force: locked videos play together.
  void PlayPause();
  void Rewind();
  void StepForward() { Step(true); }  ///< one position on
  void StepBack() { Step(false); }    ///< one position back
  /// Shows a position of the current video; the position that is shown already is left alone.
  void Seek(int position);
  /// The same of any slot's video, whose place in its bounds it may not leave.
  void Seek(int slot, int position);
  /// Ten pictures on or back, or as far as there are.
  void Leap(bool forward);
  void ToFirst();
  void ToLast();

  // --- as an editor of films has it: locked videos move together
  /// Plays that way; what plays that way already plays faster.
  void PlayForward();
  void PlayBackward();
  void Pause();
  /// The part of the video that is played begins, or ends, with the position that is shown; once more, and it
  /// does not any more. Only of a video that moves by itself.
  void ToggleRangeStart();
  void ToggleRangeEnd();
  void PlayWholeVideo();
  bool HasRange() const;

  // --- all videos in sight
  /// While true, play, pause, rewind, step, loop and speed are for all of them.
  bool MovesAll() const { return movesAll_ && all_.Several(); }
  void ToggleMovesAll();
  AllVideos& All() { return all_; }
  const AllVideos& All() const { return all_; }

  /// A step button goes down (`forward` or back) at pointer position `x` in twips, moves, and comes up.
  /// The first step is taken at once, the others while it is held: one position each, and one more for
  /// every 100 twips that the pointer is dragged away.
  void StepPressed(bool forward, float x);
  void StepDragged(float x) { HeldX_ = x; }
  void StepReleased();

  void ToggleSlomo();
  /// Percent of the video's own speed; of locked videos that of their common play.
  void SetSpeed(int percent);
  int Speed() const;
  void ToggleLoop();
  /// Loops every video of the layout; when all of them loop already, stops them.
  void ToggleLoopAll();
  bool AllLooping() const { return all_.Looping(); }

  /// Keeps the present position as a mark of the current video; the eleventh is refused.
  void AddMark();
  /// Goes to mark `n`, from 0.
  void GoToMark(int n);
  void NameMark(int n, const std::string& name);
  /// What marks are called in the other open videos, each name once.
  std::vector<std::string> NamesElsewhere() const;
  void RemoveMark(int n);
  void ClearMarks();

  /// Writes `text` over the picture, or with "" clears it and writes the transport's line.
  void DisplayData(const std::string& text);
  /// The same for a moment.
  void Announce(const std::string& text);
  /// The line of a slot without its effect on the window.
  std::string DisplayLine(int slot) const;
  /// The time of any position of a slot's video, and its number: "1.23 s | 37".
  std::string TimeText(int slot, int position) const;
  /// Positions per second that times are computed with: what the user has set, or what the file knows of how it
  /// was taken, or its own.
  double DisplayRate(int slot) const;
  /// Pictures per second at which the current video was taken, as the user knows it (0: as its file says), and
  /// as its file says.
  double TrueRate() const { return stage_.Current().data.Study.TrueRate; }
  double RateOfFile() const;
  /// Pictures per second of a slot's video where neither the user nor the file tells how it was taken.
  std::optional<double> UntoldRate(int slot) const;
  /// Values beyond kFastestRate, and what is no rate, count as 0.
  void SetTrueRate(double rate);
  static constexpr double kFastestRate = 100000;
  /// Its pictures are shown for unequal times, and nobody has set another rate.
  bool GoesByOwnTimes(int slot) const;
  /// Seconds from the start of a slot's video to where it stands, or to any position.
  double SecondsAt(int slot) const { return SecondsAt(slot, stage_.MP(slot).Position()); }
  double SecondsAt(int slot, int position) const;
  /// Sets the range and place of the seek bar from the current video.
  void ScrollBarSetup();
  /// Locked videos refuse the commands for one video, but with the keys of an editor, where they move together.
  bool Refused() const { return Locked() && !Editor() && !MovesAll(); }
  /// Brings bar, buttons, marks and line up to the current window.
  void ShowCurrent();
  /// The same, and the line under each picture.
  void ShowAll();

  // --- from the player
  void Signal(int slot);
  void Notify(int slot);

  /// The frame number stands in the play bar; true while the video timer is open.
  bool ShowFrameCounter = false;

 private:
  AVIControl* Player() const;
  bool Locked() const { return locks_.IsLocked(stage_.CurrentWindow); }
  bool Editor() const { return settings_.KeysAndTools == kEditorKeys; }
  bool Playing() const;
  void Step(bool forward);
  void Play(bool forward);
  void SetRange(int first, int last);
  void HeldStep();
  void ShowPosition();
  void ShowCell(int slot);
  void MarksChanged();
  void ShowMarks();

  IHost& host_;
  Settings& settings_;
  Stage& stage_;
  Keeping& keeping_;
  LockedVideos& locks_;
  ITransportView& view_;
  AllVideos all_;
  bool movesAll_ = false;
  HostTimer FRtimer_;
  HostTimer announced_;
  bool ForwardHeld_ = false;
  bool BackHeld_ = false;
  float HeldStartX_ = 0;
  float HeldX_ = 0;
};

}  // namespace kinalyx
