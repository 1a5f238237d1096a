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
/// wheel that zooms at the pointer, and the drag that takes the picture along.
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

 private:
  void PanOnce();

  IHost& host_;
  Stage& stage_;
  HostTimer pantimer_;
  PanMove held_ = PanMove::Centre;  ///< the pan button that is down
  int dragSlot_ = 0;                ///< 0 while nothing is dragged
  float dragX_ = 0;
  float dragY_ = 0;
};

}  // namespace kinalyx
