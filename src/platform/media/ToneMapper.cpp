#include "platform/media/ToneMapper.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstring>

#include "platform/media/Colours.h"

namespace kinalyx {
namespace {

constexpr int kSignals = 1024;
constexpr int kLights = 65536;
/// A colour that the screen does not have comes out darker than black or brighter than all; it finds its place
/// without being asked, for the table begins so far below black and ends so far above.
constexpr int kBelow = kLights * 7 / 10;
constexpr int kAbove = kLights * 7 / 10;
/// White paper in a picture of high dynamic range, and the brightest light that is told from brighter ones.
constexpr double kPaperNits = 203;
constexpr double kBrightestNits = 1000;
/// Up to this part of the screen's white, light is shown as it is.
constexpr double kKnee = 0.5;

/// Light of a PQ signal in nits (SMPTE ST 2084).
double NitsOfPq(double signal) {
  constexpr double kM1 = 2610.0 / 16384;
  constexpr double kM2 = 2523.0 / 4096 * 128;
  constexpr double kC1 = 3424.0 / 4096;
  constexpr double kC2 = 2413.0 / 4096 * 32;
  constexpr double kC3 = 2392.0 / 4096 * 32;
  const double power = std::pow(signal, 1 / kM2);
  return 10000 * std::pow(std::max(power - kC1, 0.0) / (kC2 - kC3 * power), 1 / kM1);
}

/// Light of an HLG signal in nits (BT.2100) on a screen of 1000 nits.
double NitsOfHlg(double signal) {
  constexpr double kA = 0.17883277;
  constexpr double kB = 1 - 4 * kA;
  const double c = 0.5 - kA * std::log(4 * kA);
  const double scene = signal <= 0.5 ? signal * signal / 3 : (std::exp((signal - c) / kA) + kB) / 12;
  return 1000 * std::pow(scene, 1.2);
}

/// Presses light (paper is 1) into what the screen has (white is 1), so that only the brightest reaches its white.
double Press(double light) {
  if (light <= kKnee) return light;
  const double beyond = (light - kKnee) / (1 - kKnee);
  const double most = (kBrightestNits / kPaperNits - kKnee) / (1 - kKnee);
  return std::min(1.0, kKnee + (1 - kKnee) * beyond * (1 + beyond / (most * most)) / (1 + beyond));
}

/// The value of a usual screen (sRGB) for a part of its white.
double ScreenValue(double light) {
  return 255 * (light <= 0.0031308 ? 12.92 * light : 1.055 * std::pow(light, 1 / 2.4) - 0.055);
}

/// Blue, green and red of the screen, from red, green and blue of the camera.
struct Primaries {
  std::array<float, 3> ofRed;
  std::array<float, 3> ofGreen;
  std::array<float, 3> ofBlue;
};

Primaries PrimariesOf(int named) {
  switch (named) {
    case AVCOL_PRI_BT709: return {{0, 0, 1}, {0, 1, 0}, {1, 0, 0}};
    case AVCOL_PRI_SMPTE432: return {{-0.0197F, -0.0420F, 1.2249F}, {-0.0786F, 1.0420F, -0.2249F}, {1.0983F, 0, 0}};
    default: return {{-0.0182F, -0.1246F, 1.6605F}, {-0.1006F, 1.1329F, -0.5876F}, {1.1188F, -0.0083F, -0.0729F}};
  }
}

}  // namespace

bool ToneMapper::Wants(const AVFrame& frame) {
  return frame.color_trc == AVCOL_TRC_SMPTE2084 || frame.color_trc == AVCOL_TRC_ARIB_STD_B67;
}

void ToneMapper::Learn(const AVFrame& frame) {
  const bool full = IsFullRange(frame);
  const std::array<int, 3> wanted = {frame.color_trc, frame.color_primaries, full};
  if (learnt_ == wanted) return;
  learnt_ = wanted;
  const Primaries primaries = PrimariesOf(frame.color_primaries);
  for (std::vector<Four>& table : light_) table.resize(kSignals);
  for (std::size_t i = 0; i < kSignals; ++i) {
    const auto sample = static_cast<double>(i);
    const double signal = std::clamp(full ? sample / (kSignals - 1) : (sample - 64) / 876, 0.0, 1.0);
    const double nits = frame.color_trc == AVCOL_TRC_SMPTE2084 ? NitsOfPq(signal) : NitsOfHlg(signal);
    const auto light = static_cast<float>(std::min(1.0, nits / kBrightestNits) * (kLights - 1));
    for (std::size_t c = 0; c < 3; ++c) {
      light_[0][i][c] = primaries.ofRed[c] * light + kBelow;
      light_[1][i][c] = primaries.ofGreen[c] * light;
      light_[2][i][c] = primaries.ofBlue[c] * light;
    }
  }
  shown_.resize(kBelow + kLights + kAbove);
  for (std::size_t i = 0; i < shown_.size(); ++i) {
    const double part = std::clamp((static_cast<double>(i) - kBelow) / (kLights - 1), 0.0, 1.0);
    const double light = part * kBrightestNits / kPaperNits;
    shown_[i] = static_cast<std::uint8_t>(std::lround(ScreenValue(Press(light))));
  }
}

void ToneMapper::Map(const AVFrame& frame, std::uint8_t* bits, int stride, int rows) {
  using Places = std::int32_t __attribute__((vector_size(16)));
  Learn(frame);
  const Four* red = light_[0].data();
  const Four* green = light_[1].data();
  const Four* blue = light_[2].data();
  const std::uint8_t* shown = shown_.data();
  for (int y = 0; y < rows; ++y) {
    std::uint8_t* pixel = bits + static_cast<std::ptrdiff_t>(y) * stride;
    for (int x = 0; x < frame.width; ++x, pixel += 4) {
      std::uint32_t signals = 0;
      std::memcpy(&signals, pixel, 4);
      const Four light = red[signals >> 20 & 1023] + green[signals >> 10 & 1023] + blue[signals & 1023];
      const Places place = __builtin_convertvector(light, Places);
      const std::uint32_t value = 0xFF000000U | static_cast<std::uint32_t>(shown[place[2]]) << 16 |
                                  static_cast<std::uint32_t>(shown[place[1]]) << 8 | shown[place[0]];
      std::memcpy(pixel, &value, 4);
    }
  }
}

}  // namespace kinalyx
