#pragma once

namespace kinalyx {

class Canvas;

/// The frame cycle of a player, told to the window that owns it. `ID` names the player, so that one
/// object can serve many. All calls come on the user-interface thread.
class IFrameInterface {
 public:
  virtual ~IFrameInterface() = default;
  /// The frame stands on the off-screen surface and has not been shown; what is drawn on `hDC` now
  /// becomes part of the picture. `hDC` is good for the call only. The player is in the middle of its work:
  /// none of its operations may be called.
  virtual void PreDrawFrame(Canvas& hDC, int ID) = 0;
  // The rest is told when the player has done what it was asked for; an implementer may call any of its
  // operations.

  /// The picture of position `Frame` has been handed to the screen.
  virtual void Signal(int Frame, int ID) = 0;
  /// A play has run out or was stopped; `Frame` is the raw frame on which it ended.
  virtual void Notify(int Frame, int ID) = 0;
  /// A strobe has ended, however it did; once for each.
  virtual void StrobeEnded(int /*ID*/) {}
};

/// Mouse and keys on a player's picture, passed on unchanged with the player's `ID`.
/// `Button`: 1 left, 2 right, 4 middle. `Shift`: sum of 1 shift, 2 control, 4 alt. `X`, `Y`: pixels
/// of the picture, y downward. `KeyCode`: see KeyCodes.h.
class IMouseAndKeyBoardEvents {
 public:
  virtual ~IMouseAndKeyBoardEvents() = default;
  virtual void MouseDown(int Button, int Shift, float X, float Y, int ID) = 0;
  virtual void MouseMove(int Button, int Shift, float X, float Y, int ID) = 0;
  virtual void MouseUp(int Button, int Shift, float X, float Y, int ID) = 0;
  virtual void Click(int ID) = 0;
  virtual void DblClick(int ID) = 0;
  virtual void KeyDown(int KeyCode, int Shift, int ID) = 0;
  virtual void KeyPress(int KeyAscii, int ID) = 0;
  virtual void KeyUp(int KeyCode, int Shift, int ID) = 0;
};

}  // namespace kinalyx
