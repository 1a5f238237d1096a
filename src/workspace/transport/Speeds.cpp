#include "workspace/transport/Speeds.h"

#include <fmt/format.h>

#include <algorithm>
#include <iterator>
#include <ranges>

namespace kinalyx {

std::string SpeedText(int percent) {
  switch (percent) {
    case 12: return "1/8";
    case 25: return "1/4";
    case 50: return "1/2";
    case 75: return "3/4";
    default: return fmt::format("{}", percent / 100.0);
  }
}

int NextSpeed(int percent, bool faster) {
  if (faster) {
    const auto next = std::ranges::upper_bound(kPlaySpeeds, percent);
    return next == std::end(kPlaySpeeds) ? std::max(percent, kPlaySpeeds[std::size(kPlaySpeeds) - 1]) : *next;
  }
  const auto slower = std::ranges::lower_bound(kPlaySpeeds, percent);
  return slower == std::begin(kPlaySpeeds) ? std::min(percent, kPlaySpeeds[0]) : *std::prev(slower);
}

}  // namespace kinalyx
