#pragma once

namespace kinalyx {

struct Slot;

/// Positions per second as they were taken, where they are told otherwise than by the times of the pictures: by the
/// user or by the file; else 0.
double KnownRate(const Slot& at);

/// Milliseconds of the movement from one position of a slot's video to the next, on the average; 0 without a video.
double TakenMs(const Slot& at);

}  // namespace kinalyx
