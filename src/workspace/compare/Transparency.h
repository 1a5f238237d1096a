#pragma once

#include "platform/host/Host.h"
#include "platform/paint/Blend.h"
#include "platform/paint/Surface.h"
#include "workspace/compare/ICompareEvents.h"
#include "workspace/compare/LockedVideos.h"
#include "workspace/stage/Stage.h"

namespace kinalyx {

/// The presets of the mix, by the index of their option buttons.
enum class ShowOption { Transparency = 0, SplitScreen = 1, VideoWindow1 = 2, VideoWindow2 = 3 };

/// The buttons of one video in transparency mode, by their index in `VidCtlBtn` and `VidCtlBtn2`.
enum class VideoControl { Rewind = 0, Back = 1, Play = 2, Forward = 3, Loop = 4, Slow = 5 };

/// What transparency mode asks of the window that shows it. Windows here are 1 and 2.
class ITransparencyView {
 public:
  virtual ~ITransparencyView() = default;
  /// Shows or hides `TransPanel` over the stage, and `TransFrame`.
  virtual void ShowTransparency(bool shown) = 0;
  /// The picture of `TransPanel`; good for the call only.
  virtual void PresentMix(const Surface& picture) = 0;
  virtual void SetTransScroll(int value, bool enabled) = 0;
  virtual void SelectOptShow(ShowOption option) = 0;
  /// `HScroll1` or `HScroll2`: its ends and where it stands; equal ends for an empty window.
  virtual void SetVideoScroll(int window, int lowest, int highest, int value) = 0;
  virtual void SetVideoButtons(int window, bool playing, bool looping, bool slow) = 0;
};

/// Transparency mode: lays the video of window 2 over that of window 1, mixed as the slider says, or
/// shows half of each side by side. What is drawn on the videos is in their pictures, and so in the mix.
/// Each video stands in the mix as its own zoom and pan place it, so that two players can be brought to
/// lie on each other.
class Transparency final : private ITakesStage {
 public:
  Transparency(IHost& host, Settings& settings, Stage& stage, LockedVideos& locks, ITransparencyView& view,
               ICompareEvents& events);

  /// Enters or leaves the mode, which has windows 1 and 2 side by side underneath.
  void ToggleTransparency();
  void LeaveTransparency();
  bool TransparencyOn() const { return on_; }
  /// There is something to mix: both windows hold a video, or the mode is up.
  bool CanShow() const;

  /// `TransPanel` has this size, in pixels.
  void Resize(int width, int height);
  /// Makes the mix anew and shows it, at once. Nothing while the mode is not up.
  void CMDDISAct();
  /// The picture of `TransPanel` as it was made last.
  const Surface& Mix() const { return TransPanel_; }
  /// A video was moved without a word from its player.
  void MPManualSignal() { Refresh(); }

  /// Where the picture of window 1 or 2 begins in the mix, in pixels; the window must hold a video.
  POINTAPI PictureCorner(int window) const;
  /// The window whose video the mouse means at a point of the panel: on the split screen that of the side,
  /// of two videos over each other that of the current window; 0 when it is empty.
  int WindowAt(POINTAPI point) const;
  /// A point of the panel in pixels of a window's picture; the window must hold a video.
  POINTAPI InPicture(int window, POINTAPI point) const;

  // --- the mix
  /// 0 all of video 1 to 255 all of video 2.
  int TransScroll() const { return mix_; }
  /// The user moves the slider: a slide ends, and the option buttons follow.
  void SlideMix(int value);
  /// The slider has another value; what it set itself is no news.
  void SetMix(int value);
  /// Slides to a preset, or dissolves into the split screen and back.
  void Show(ShowOption option);
  ShowOption Shown() const { return option_; }

  // --- each video by itself
  void ControlVideo(int window, VideoControl control);
  /// Seeks a window's video; locked videos come along.
  void SeekVideo(int window, int value);

  // --- from the players and the stage
  /// A picture of a slot was shown. The mix follows at the next turn of the event loop, once for both
  /// videos of a pair that moves together.
  void Signal(int slot);
  void Notify(int slot);
  /// Pictures have another size.
  void PicturesChanged() { Refresh(); }
  /// A video came or went, or counts in another way; a lock was made or ended.
  void StateChanged();

 private:
  AVIControl* Player(int window);
  PlacedPicture Placed(int window) const;
  void ComposeMix();
  void ComposeSplit();
  void Refresh();
  void Walk();
  void BeginDissolve();
  void SetOption(ShowOption option);
  void ShowControls();
  void Enter();
  void StageLost() override;
  /// Pixels of a window's picture that lie left of what the split screen shows of it, and where in the
  /// panel that begins and ends.
  struct SplitHalf {
    int fromX = 0;
    int toX = 0;
    int width = 0;
  };
  SplitHalf HalfOf(int window) const;

  IHost& host_;
  Settings& settings_;
  Stage& stage_;
  LockedVideos& locks_;
  ITransparencyView& view_;
  ICompareEvents& events_;
  bool on_ = false;
  Surface TransPanel_;
  Surface before_;      ///< what dissolves
  const Surface none_;  ///< stands for the picture of an empty window
  int dissolve_ = 0;    ///< level of the pattern that `before_` still has
  ShowOption option_ = ShowOption::Transparency;
  int mix_ = 128;
  int TransTarget_ = 128;  ///< of the slide
  bool guard_ = false;     ///< the controls are being set; what they say is no command
  HostTimer refresh_;
  HostTimer walk_;
  HostTimer dissolveTimer_;
};

}  // namespace kinalyx
