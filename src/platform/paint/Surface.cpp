#include "platform/paint/Surface.h"

#include <algorithm>
#include <cstring>

namespace kinalyx {
namespace {

constexpr int kLongestSide = 32767;
constexpr std::int64_t kMostPixels = std::int64_t{1} << 28;

}  // namespace

Surface::Surface(int width, int height) {
  if (width < 1 || height < 1 || width > kLongestSide || height > kLongestSide) return;
  if (std::int64_t{width} * height > kMostPixels) return;
  width_ = width;
  height_ = height;
  pixels_.resize(static_cast<std::size_t>(width) * height * 4);
  Clear(0);
}

Colour Surface::Pixel(int x, int y) const {
  if (x < 0 || y < 0 || x >= width_ || y >= height_) return 0;
  const std::uint8_t* pixel = Row(y) + x * 4;
  return Rgb(pixel[2], pixel[1], pixel[0]);
}

void Surface::Clear(Colour colour) {
  const std::uint8_t pixel[4] = {static_cast<std::uint8_t>(Blue(colour)), static_cast<std::uint8_t>(Green(colour)),
                                 static_cast<std::uint8_t>(Red(colour)), 255};
  std::uint32_t word;
  std::memcpy(&word, pixel, sizeof word);
  std::uint8_t* bytes = pixels_.data();
  const std::size_t count = pixels_.size() / 4;
  for (std::size_t i = 0; i < count; ++i) std::memcpy(bytes + i * 4, &word, sizeof word);
}

}  // namespace kinalyx
