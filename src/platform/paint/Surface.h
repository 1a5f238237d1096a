#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "platform/paint/Geometry.h"

namespace kinalyx {

/// An off-screen picture of 32-bit pixels, bytes blue, green, red, 255; top row first, no gap
/// between rows. A value: copying copies the pixels.
class Surface {
 public:
  Surface() = default;
  /// Black. A side below 1 or above 32767, or more than 2^28 pixels, give an empty surface.
  Surface(int width, int height);

  int Width() const { return width_; }
  int Height() const { return height_; }
  bool Empty() const { return width_ == 0; }
  /// Bytes from one row to the next.
  int Stride() const { return width_ * 4; }
  std::uint8_t* Row(int y) { return pixels_.data() + static_cast<std::size_t>(y) * Stride(); }
  const std::uint8_t* Row(int y) const { return pixels_.data() + static_cast<std::size_t>(y) * Stride(); }
  /// Black outside the surface.
  Colour Pixel(int x, int y) const;
  void Clear(Colour colour);

 private:
  int width_ = 0;
  int height_ = 0;
  std::vector<std::uint8_t> pixels_;
};

}  // namespace kinalyx
