#pragma once

#include <string>

#include "platform/host/Host.h"
#include "platform/paint/ImageFiles.h"
#include "platform/paint/Surface.h"
#include "workspace/compare/ICompareEvents.h"
#include "workspace/stage/Stage.h"

namespace kinalyx {

/// What multi-picture mode asks of the window that shows it.
class IMultiPictureView {
 public:
  virtual ~IMultiPictureView() = default;
  /// Shows or hides `MFPanel`, the strip over the current video, and the panel of its buttons.
  virtual void ShowMultiPicture(bool shown) = 0;
  /// Pixels that the strip has for its pictures, side by side.
  virtual int StripWidth() = 0;
  /// The strip as it stands, `pictures` side by side; good for the call only.
  virtual void PresentStrip(const Surface& strip, int pictures) = 0;
};

/// Multi-picture mode: lays a row of pictures of one video out as a film strip that runs with it.
/// A picture of the strip is a part of what the video's cell shows, at the cell's own size: zoom and pan
/// choose what is in it. The strip is kept at that full size; the window shows it scaled to its place.
class MultiPicture final : private ITakesStage {
 public:
  static constexpr int kMostPictures = 9;
  /// Pixels of the strip's height on the stage that its pictures fill.
  static constexpr int kStripPixels = 165;

  MultiPicture(IHost& host, Stage& stage, IMultiPictureView& view, ICompareEvents& events);

  /// Enters or leaves the mode. An empty current window is refused.
  void ToggleStrip();
  bool Shown() const { return shown_; }
  bool CanShow() const;

  /// Size of one picture of the strip, in pixels.
  int PictureWidth() const { return PictureWidth_; }
  int PictureHeight() const { return PictureHeight_; }
  /// Corner of the pictures' part in the video's surface, in pixels; may lie outside it.
  int SourceLeft() const;
  int SourceTop() const;
  /// Pictures in the strip, 1 to 9.
  int PictureCount() const { return PictureCount_; }
  /// Frames between two pictures where the strip is filled at once, as its box has it; below 1 counts as 1.
  /// The strip is made anew.
  void setSkipBox(const std::string& text);
  int Skip() const { return skip_; }

  /// "Carve new MultiPicture": waits for a square on the video.
  void CarveNew();
  /// "Close MultiPicture". Nothing while the mode is not up.
  void LeaveStrip();
  bool WaitingForSquare() const { return waiting_; }
  /// The tool for the square was put down, or the mouse is wanted for something else.
  void StopWaiting() { waiting_ = false; }
  /// Offers a finished square, two opposite corners in pixels of the slot's picture. True when it was
  /// waited for: its area is what the strip now holds.
  bool TakeSquare(int slot, POINTAPI corner, POINTAPI opposite);

  /// Fills the strip up to the position of the current video. With too few frames before it the strip
  /// begins at the first frame or, near the end of the video, ends at the last one. The video is left on
  /// the last picture of the strip.
  void InitialMF();
  /// Moves the strip on by one picture and takes the current frame as its last.
  void MFNextFrame();

  const Surface& Strip() const { return strip_; }
  /// Writes the strip as a picture; the name's ending chooses JPEG (.jpg, .jpeg) or else PNG.
  Outcome SavePicture(const std::string& path) const;

  // --- from the players and the stage
  /// A picture of a slot was shown: the strip runs with it, picture by picture.
  void Signal(int slot);
  /// Pictures have another size, are mirrored, or have other drawings on them: the strip is made anew.
  void PicturesChanged();
  void VideoClosing(int slot);

 private:
  /// The part that the pictures show, seen from the middle of the cell and in heights of the cell, so
  /// that it stays on its subject when the window has another size.
  struct Part {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
  };

  void Enter();
  void StageLost() override;
  void ChooseMiddle();
  /// Works out the pictures' size from the part and the cell, and makes an empty strip for them.
  void MakeStrip();
  void TakeFrame();
  void Show(int position);
  void Rebuild();

  IHost& host_;
  Stage& stage_;
  IMultiPictureView& view_;
  ICompareEvents& events_;
  bool shown_ = false;
  bool waiting_ = false;
  bool MultiFrameMode_ = false;  ///< the strip is being filled: what the video shows meanwhile is not the user's doing
  int slot_ = 0;                 ///< whose video the strip shows
  Part part_;
  int PictureWidth_ = 0;
  int PictureHeight_ = 0;
  int PictureCount_ = kMostPictures;
  int skip_ = 5;
  int from_ = -1;    ///< where the video stood when the strip was filled; -1 once it has moved on
  int last_ = -1;    ///< position of the last picture in the strip
  POINTAPI source_;  ///< corner of the source when the strip was made
  Surface strip_;
  HostTimer rebuild_;
};

}  // namespace kinalyx
