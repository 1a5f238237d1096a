#include "core/ResizeControls.h"

#include <algorithm>
#include <cmath>

namespace kinalyx {

namespace {

constexpr float kFontsFollowBelow = 1.6F;
constexpr float kMostFontRatio = 1.5F;
constexpr double kDesignText = 10;  // pixels on the design size
constexpr int kLeastText = 13;

}  // namespace

float FontRatioOf(float heightRatio) { return heightRatio < kFontsFollowBelow ? heightRatio : kMostFontRatio; }

void ResizeControls::Resize(int width, int height) {
  if (width <= 0 || height <= 0) return;
  HeightRatio = static_cast<float>(height) / static_cast<float>(height_);
  height_ = height;
  WidthRatio = static_cast<float>(width) / static_cast<float>(width_);
  width_ = width;
  FontRatio = FontRatioOf(HeightRatio);
}

int ResizeControls::TextPixels() const {
  const int height = std::min(height_, width_ * kDesignHeight / kDesignWidth);
  const float ratio = FontRatioOf(static_cast<float>(height) / kDesignHeight);
  return std::max(kLeastText, static_cast<int>(std::nearbyint(kDesignText * ratio)));
}

}  // namespace kinalyx
