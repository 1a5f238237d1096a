#pragma once

#include <array>
#include <string>

#include "core/Settings.h"
#include "platform/paint/ImageFiles.h"
#include "workspace/compare/LockedVideos.h"
#include "workspace/stage/Stage.h"

namespace kinalyx {

/// What the three buttons of the strobe window say.
enum class StrobeCaption { StartHere, StartAt, EndHere, EndAt, Strobe, Stop };

/// The buttons of `SSCommand1`, by index.
enum class StrobeButton { Start = 0, End = 1, Strobe = 2 };

/// What the strobe asks of its window; all calls are harmless while that is closed.
class IStrobeView {
 public:
  virtual ~IStrobeView() = default;
  virtual void SetCaption(StrobeButton button, const std::string& caption) = 0;
  /// `ESlider`: its ends and where it stands. Must not come back as a change.
  virtual void SetSlider(int lowest, int highest, int value) = 0;
  /// Why the current video cannot be strobed now, empty when it can.
  virtual void SetObstacle(const std::string& why) = 0;
  /// A finished or stopped strobe stands on the current video and can be saved.
  virtual void SetResult(bool there) = 0;
};

/// Strobing: the poses of a movement laid into one picture. Starts, bounds and stops it; the picture
/// itself is made by the player.
class StrobeControl {
 public:
  /// Choices of the step list, "1" upward.
  static constexpr int kSteps = 30;

  StrobeControl(Settings& settings, Stage& stage, LockedVideos& locks);

  /// The open strobe window, or null when it closes. Opening resets the choices.
  void SetWindow(IStrobeView* view);
  bool StrobeWindowOpen() const { return view_ != nullptr; }

  /// What stands in the way of strobing the current video, as the user is told; empty when nothing does. A
  /// strobe runs through one video alone, which would break a lock and fill a film strip with its layers.
  std::string Obstacle() const;
  /// Quick strobe of the current video from its current frame to its end; while a strobe is running,
  /// stops that instead. Nothing happens where there is an obstacle.
  void ToggleStrobe();
  bool StrobeRunning() const { return running_ != 0; }
  /// Forgets start and end and stops a running strobe.
  void ResetStrobe();
  /// Seeks the current video, and those locked with it.
  void SeekTo(int value);
  /// Takes the current frame as the start or as the end; or strobes from start to end, or stops. An end
  /// before the start is refused, and what has an obstacle; without an end it strobes to the last frame.
  void PressButton(StrobeButton button);
  /// Chooses the step by its place in the list, and keeps it as a setting.
  void ChooseStep(int ListIndex);

  /// Frames between two layers, at least 1.
  int StrobeStep() const;

  /// A strobe stands on the current video: nothing else has been drawn since.
  bool HasResult() const { return result_ != 0 && result_ == stage_.CurrentWindow; }
  /// Writes it as a picture, with what is drawn on it: JPEG for a name in .jpg or .jpeg, else PNG.
  Outcome SavePicture(const std::string& path) const;

  // --- from the players and the stage
  void Signal(int slot);
  void StrobeEnded(int slot);
  void VideoOpened(int slot);
  void VideoClosing(int slot);
  /// The current window may be another one.
  void FocusChanged();
  /// A video has gone or counts in another way, or the stage has another layout.
  void StateChanged();
  /// A lock was made or ended: its videos are not strobed.
  void LocksChanged();

 private:
  AVIControl* Player();
  void Run(int start, int end);
  void Stop();
  void Caption(StrobeButton button, StrobeCaption caption, int frame = 0);
  void ShowSlider();
  void ShowResult();

  Settings& settings_;
  Stage& stage_;
  LockedVideos& locks_;
  IStrobeView* view_ = nullptr;
  int running_ = 0;     ///< slot whose video is strobed; 0 none
  int result_ = 0;      ///< slot on which a strobe stands; 0 none
  int window_ = 0;      ///< where start and end were chosen
  int StartFrame_ = 0;  ///< raw frames, 0 when none is chosen
  int EndFrame_ = 0;
};

}  // namespace kinalyx
