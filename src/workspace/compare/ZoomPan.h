#pragma once

#include "platform/host/Host.h"
#include "workspace/stage/Stage.h"

namespace kinalyx {

/// One press of a key or button: zoom, and pan in twips before zoom.
inline constexpr double kZoomStep = 0.1;
inline constexpr double kPanStep = 50;

/// The buttons, by the index in `ZoomBtn` and `PanBtn`.
enum class ZoomMove { Out = 0, In = 1, Whole = 2 };
enum class PanMove { Up = 0, Right = 1, Down = 2, Left = 3, Centre = 4 };

/// Zoom and pan beyond the keys: the buttons, which do what the keys do and repeat while they are held, the
/// wheel that zooms at the pointer, and the drag that takes the picture along. The left button and the fingers on a
/// touchpad take along only what is larger than its cell, and never leave a gap.
class ZoomPan {
 public:
  ZoomPan(IHost& host, Stage& stage) : host_(host), stage_(stage) {}

  /// A step of the current video's zoom, or back to zoom 1 in the middle.
  void Zoom(ZoomMove move);
  /// A button goes down: it acts at once, and but for the centre again and again until it comes up.
  void BeginPan(PanMove move);
  void EndPan() { pantimer_.Stop(); }

  /// The wheel at a point of the slot's picture, in pixels: `notches` upward zoom in by a tenth each. The
  /// point of the video under the pointer stays under it.
  void Wheel(int slot, float x, float y, int notches);
  /// The middle button goes down on a slot's picture, moves, and comes up; points are pixels of the
  /// picture as it stands at that moment.
  void DragBegin(int slot, float x, float y);
  void DragMove(float x, float y);
  void DragEnd() { dragSlot_ = 0; }
  bool Dragging() const { return dragSlot_ != 0; }
  /// The same with the left button, and no tool in hand. A press that hardly moves is a click.
  void HandDown(int slot, float x, float y);
  /// The left button comes up; true when it has moved the picture.
  bool HandUp();
  /// Two fingers move by so many pixels of the screen.
  void PanBy(int slot, double dx, double dy);
  /// The current picture fits its cell, or fills it.
  void ToggleFit() { stage_.SetFits(stage_.CurrentWindow, !stage_.Current().Fits); }

 private:
  void PanOnce();
  void Move(int slot, double twipsX, double twipsY);

  IHost& host_;
  Stage& stage_;
  HostTimer pantimer_;
  PanMove held_ = PanMove::Centre;  ///< the pan button that is down
  int dragSlot_ = 0;                ///< 0 while nothing is dragged
  bool byHand_ = false;             ///< with the left button
  bool moved_ = false;              ///< far enough to be no click
  float dragX_ = 0;
  float dragY_ = 0;
};

}  // namespace kinalyx
