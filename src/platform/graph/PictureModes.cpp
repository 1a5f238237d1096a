#include "platform/graph/PictureModes.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace kinalyx {
namespace {

constexpr int kRawWidth = 640;  // up to which raw pictures are kept as they are
constexpr int kRawHeight = 480;
constexpr int kUnaskedWidth = 1280;
constexpr int kUnaskedHeight = 720;

/// How far a mode is from what is wanted; the smaller, the better.
auto Distance(const PictureMode& mode, const PictureMode& wanted) {
  const int size = std::abs(mode.width - wanted.width) + std::abs(mode.height - wanted.height);
  // What is slower than wanted is worse than what is faster.
  const double slow = wanted.rate > 0 ? std::max(0.0, wanted.rate - mode.rate) : -mode.rate;
  const double fast = wanted.rate > 0 ? std::max(0.0, mode.rate - wanted.rate) : 0;
  const bool asked = wanted.format.empty() || mode.format == wanted.format;
  const bool raw = mode.format != "MJPG" && mode.format != "H264";
  const bool large = mode.width > kRawWidth || mode.height > kRawHeight;
  return std::tuple(size, !asked, slow, fast, raw == large, mode.format == "H264");
}

}  // namespace

std::optional<PictureMode> NearestMode(const std::vector<PictureMode>& modes, const PictureMode* wanted) {
  const PictureMode any{kUnaskedWidth, kUnaskedHeight, 0, ""};
  const PictureMode& aim = wanted ? *wanted : any;
  const auto nearest = std::min_element(modes.begin(), modes.end(), [&](const PictureMode& a, const PictureMode& b) {
    return Distance(a, aim) < Distance(b, aim);
  });
  return nearest == modes.end() ? std::nullopt : std::optional(*nearest);
}

}  // namespace kinalyx
