#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "platform/paint/Surface.h"

namespace kinalyx {

/// A view of rows of pixels that somebody else owns: 24 bits (blue, green, red) or 32 bits (blue,
/// green, red, unused). With `bottomUp` the first row in memory is the bottom row of the picture.
struct PixelRows {
  const std::uint8_t* bits = nullptr;
  int width = 0;
  int height = 0;
  int rowBytes = 0;
  int bitCount = 24;
  bool bottomUp = true;
};

/// Scratch memory that scaling keeps between calls, so that a frame allocates nothing.
class ScaleScratch {
 public:
  std::uint8_t* Take(std::size_t bytes) {
    if (bytes_.size() < bytes) bytes_.resize(bytes);
    return bytes_.data();
  }

 private:
  std::vector<std::uint8_t> bytes_;
};

/// A surface's own pixels as rows, good until the surface changes its size or goes.
PixelRows RowsOf(const Surface& surface);

/// Stretches `rows` over the whole of `target`, bilinear. `rows` must not be the target's own. Other bit
/// counts than 24 and 32 and empty pictures leave the target alone and return false.
bool StretchRows(const PixelRows& rows, Surface& target, ScaleScratch& scratch);

/// Mirrors a surface left to right. `scratch` is given the surface's size when it has another, and the
/// two exchange their memory.
void MirrorHorizontal(Surface& surface, Surface& scratch);

}  // namespace kinalyx
