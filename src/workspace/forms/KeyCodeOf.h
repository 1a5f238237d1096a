#pragma once

class QKeyEvent;

namespace kinalyx {

/// The system's code of a key, see KeyCodes.h; 0 for a key without one. Digits of the keypad have codes of
/// their own; with the keypad's digits switched off its keys are the arrows and the others printed there.
int KeyCodeOf(const QKeyEvent& event);

/// The character of a key press, 0 for none and while Ctrl or Alt is held.
int KeyAsciiOf(const QKeyEvent& event);

/// True for keys that go on while they are held: steps, pan and zoom. All others act once.
bool RepeatsWhileHeld(const QKeyEvent& event);

}  // namespace kinalyx
