#pragma once

#include <cstdint>

namespace kinalyx {

/// A point in pixels, y downward. The layout is that of the drawing files.
struct POINTAPI {
  std::int32_t x = 0;
  std::int32_t y = 0;

  friend bool operator==(const POINTAPI&, const POINTAPI&) = default;
};

/// A colour as red + 256 * green + 65536 * blue.
using Colour = std::int32_t;

constexpr int Red(Colour colour) { return colour & 0xFF; }
constexpr int Green(Colour colour) { return (colour >> 8) & 0xFF; }
constexpr int Blue(Colour colour) { return (colour >> 16) & 0xFF; }
constexpr Colour Rgb(int red, int green, int blue) { return red | (green << 8) | (blue << 16); }

}  // namespace kinalyx
