#pragma once

#include <string>

namespace kinalyx {

/// The speeds that are chosen from, percent of the video's own, slowest first: an eighth to twice.
inline constexpr int kPlaySpeeds[] = {12, 25, 50, 75, 100, 150, 200};

/// "1/4", "1", "1.5"; of any other speed its figure, "0.3".
std::string SpeedText(int percent);
/// The next one that is faster than a speed, or slower; the last of them stays.
int NextSpeed(int percent, bool faster);

}  // namespace kinalyx
