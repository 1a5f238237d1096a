#pragma once

#include <span>
#include <vector>

namespace kinalyx {

/// A constant rate for pictures that are shown at times of their own.
struct SteadyRate {
  int rate = 30;  ///< places per `scale` seconds
  int scale = 1;
  int frames = 0;           ///< places in all
  std::vector<int> places;  ///< of each picture, ever higher from 0; empty when they simply follow one another
};

/// The lowest usual rate, or mean rate, at which every picture has a place of its own and is shown within one place of
/// its time. What is shown for long leaves places empty.
/// @param timesMs  at which the pictures begin to be shown, growing, and the end of the last
SteadyRate SteadyRateFor(std::span<const double> timesMs);

}  // namespace kinalyx
