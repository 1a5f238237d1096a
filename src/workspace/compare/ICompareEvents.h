#pragma once

namespace kinalyx {

/// What comparing asks of those who own the mouse and the drawing tools.
class ICompareEvents {
 public:
  virtual ~ICompareEvents() = default;
  /// A mode is about to take the stage or, to mark an area, the mouse: what is in hand is put down.
  virtual void GiveWay() = 0;
  /// A square is waited for: the tool for it comes into the user's hand.
  virtual void TakeSquareTool() = 0;
};

}  // namespace kinalyx
