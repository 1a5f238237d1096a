#pragma once

#include <algorithm>
#include <cstdlib>
#include <random>

#include "platform/paint/Surface.h"

namespace kinalyx::test {

/// Random pixels, the same for the same seed.
inline Surface Noise(int width, int height, unsigned seed) {
  Surface surface(width, height);
  std::mt19937 random(seed);
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x)
      for (int c = 0; c < 3; ++c) surface.Row(y)[x * 4 + c] = static_cast<std::uint8_t>(random());
  return surface;
}

/// The largest difference between two bytes of surfaces of one size; 256 for different sizes.
inline int LargestDifference(const Surface& a, const Surface& b) {
  if (a.Width() != b.Width() || a.Height() != b.Height()) return 256;
  int largest = 0;
  for (int y = 0; y < a.Height(); ++y)
    for (int x = 0; x < a.Width() * 4; ++x) largest = std::max(largest, std::abs(a.Row(y)[x] - b.Row(y)[x]));
  return largest;
}

/// True when every pixel's fourth byte is 255.
inline bool IsOpaque(const Surface& surface) {
  for (int y = 0; y < surface.Height(); ++y)
    for (int x = 0; x < surface.Width(); ++x)
      if (surface.Row(y)[x * 4 + 3] != 255) return false;
  return true;
}

}  // namespace kinalyx::test
