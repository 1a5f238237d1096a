#pragma once

#include "video/AVIControl.h"

namespace kinalyx {

// What the buttons of one video do to its player, wherever they stand. Each but the speed ends a running
// play first: one press, and the film stands where it is wanted.

/// The nearest position that the video has.
void GoTo(AVIControl& player, int position);
/// One or more positions on or back; at the end of the video nothing moves.
void StepBy(AVIControl& player, int positions);
/// Plays to the end, or stops. At the last position or the one before, it plays from the start. Where the user
/// wants a part of the video, the part is played.
void TogglePlay(AVIControl& player);
/// Plays on to the end and then again and again, or stops.
void SetLoop(AVIControl& player, bool on);
/// The speed of slow motion, percent, or back to full speed; a running play goes on.
void ToggleSlow(AVIControl& player, int slow);

}  // namespace kinalyx
