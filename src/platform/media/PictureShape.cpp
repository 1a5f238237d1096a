#include "platform/media/PictureShape.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace kinalyx {
namespace {

/// Pixels that differ less from a square are taken for one: the number was rounded somewhere.
constexpr double kAlmostSquare = 0.004;
constexpr double kWidestPixel = 4;

}  // namespace

void PictureShape::Obey(const std::int32_t* matrix) {
  const double right[] = {static_cast<double>(matrix[0]), static_cast<double>(matrix[1])};  // where x leads to
  const double down[] = {static_cast<double>(matrix[3]), static_cast<double>(matrix[4])};   // where y leads to
  const double area = right[0] * down[1] - right[1] * down[0];
  if (area == 0) return;
  mirrored = area < 0;
  const double side = mirrored ? -1 : 1;
  const double quarters = std::atan2(side * right[1], side * right[0]) / (std::numbers::pi / 2);
  turns = (static_cast<int>(std::lround(quarters)) + 4) % 4;
}

void PictureShape::TakePixel(int width, int height) {
  pixelWidth = 1;
  if (width <= 0 || height <= 0) return;
  const double ratio = static_cast<double>(width) / height;
  if (ratio > kWidestPixel || ratio < 1 / kWidestPixel || std::abs(ratio - 1) < kAlmostSquare) return;
  pixelWidth = ratio;
}

int PictureShape::StretchedWidth(int width) const {
  return std::max(1, static_cast<int>(std::lround(width * pixelWidth)));
}

PictureSize PictureShape::SizeOf(int width, int height) const {
  const int wide = StretchedWidth(width);
  return turns % 2 == 0 ? PictureSize{wide, height} : PictureSize{height, wide};
}

}  // namespace kinalyx
