#pragma once

#include <functional>

#include "platform/host/Host.h"
#include "workspace/Workspace.h"

namespace kinalyx {

/// Zoom and pan beyond the keys: the buttons, which press the same keys and repeat while they are held,
/// the wheel that zooms at the pointer, and the drag that takes the picture along.
class ZoomPan {
 public:
  /// `keyDown` and `keyPress` are the key handlers of the workspace.
  ZoomPan(IHost& host, Workspace& workspace, std::function<void(int KeyCode)> keyDown,
          std::function<void(int KeyAscii)> keyPress);

  /// 0 out, 1 in, 2 pan 0 and zoom 1.
  void ZoomBtn_Click(int Index);
  /// 0 up, 1 right, 2 down, 3 left, 4 centre. A press acts at once, and but for the last again and again
  /// until the button comes up.
  void PanBtn_MouseDown(int Index);
  void PanBtn_MouseUp() { pantimer_.Stop(); }

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
  void pantimer_Timer();

  IHost& host_;
  Workspace& workspace_;
  std::function<void(int)> keyDown_;
  std::function<void(int)> keyPress_;
  HostTimer pantimer_;
  int held_ = 0;      ///< index of the pan button that is down
  int dragSlot_ = 0;  ///< 0 while nothing is dragged
  float dragX_ = 0;
  float dragY_ = 0;
};

}  // namespace kinalyx
