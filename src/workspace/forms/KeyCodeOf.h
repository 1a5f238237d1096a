#pragma once

class QKeyEvent;

namespace kinalyx {

/// The system's code of a key, see KeyCodes.h; 0 for a key without one. Letters have one with Ctrl only. Digits of the
/// keypad have codes of their own; with the keypad's digits switched off its keys are the arrows and the others printed
/// there.
int KeyCodeOf(const QKeyEvent& event);

/// True for a letter held with Ctrl, and Shift or not: a shortcut, which has the letter's own code.
bool IsLetterWithCtrl(const QKeyEvent& event);

/// The character of a key press, 0 for none and while Ctrl or Alt is held.
int KeyAsciiOf(const QKeyEvent& event);

/// True for keys that go on while they are held: steps, pan and zoom. All others act once.
bool RepeatsWhileHeld(const QKeyEvent& event);

}  // namespace kinalyx
