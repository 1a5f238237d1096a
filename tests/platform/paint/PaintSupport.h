#pragma once

#include "platform/paint/Surface.h"

namespace kinalyx {

/// True when every pixel's fourth byte is 255.
inline bool IsOpaque(const Surface& surface) {
  for (int y = 0; y < surface.Height(); ++y)
    for (int x = 0; x < surface.Width(); ++x)
      if (surface.Row(y)[x * 4 + 3] != 255) return false;
  return true;
}

/// Random pixels, the same for the same seed.
Surface Noise(int width, int height, unsigned seed);

/// The largest difference between two bytes of surfaces of one size; 256 for different sizes.
int LargestDifference(const Surface& a, const Surface& b);

}  // namespace kinalyx
