// What hot zones cost: four of them, which cover the picture of a camera of 640 x 480.

#include <cmath>
#include <cstdint>
#include <random>
#include <vector>

#include "Bench.h"
#include "platform/graph/MotionDetector.h"

namespace kinalyx::bench {
namespace {

constexpr int kWidth = 640;
constexpr int kHeight = 480;
constexpr int kPictures = 30;  // that are shown over and over
constexpr int kLooks = 300;

/// Grass with noise, over which somebody walks.
std::vector<std::vector<std::uint8_t>> Walk() {
  std::mt19937 random(3);
  std::normal_distribution<double> noise(0, 4);
  std::vector<std::vector<std::uint8_t>> pictures;
  for (int i = 0; i < kPictures; ++i) {
    auto& picture = pictures.emplace_back();
    for (int y = 0; y < kHeight; ++y)
      for (int x = 0; x < kWidth; ++x) {
        const bool walker = x > 15 * i && x < 15 * i + 90 && y > 80;
        const double level = walker ? 60 : 110 + 20 * std::sin(x * 0.3) * std::cos(y * 0.2);
        picture.push_back(static_cast<std::uint8_t>(level + noise(random)));
      }
  }
  return pictures;
}

const Register kHotZones(
    {"hot_zone_cost", {Target::Of::AtMost, 1.0, 0.5}, [] {
       const auto pictures = Walk();
       const std::vector<MotionRegion> zones{
           {1, {0, 0, 0.5, 0.5}}, {2, {0.5, 0, 0.5, 0.5}}, {3, {0, 0.5, 0.5, 0.5}}, {4, {0.5, 0.5, 0.5, 0.5}}};
       MotionDetector detector;
       detector.SetRegions(zones);
       std::vector<double> times;
       for (int i = 0; i < kLooks; ++i) {
         const auto& picture = pictures[static_cast<std::size_t>(i) % pictures.size()];
         const LumaPicture luma{picture.data(), kWidth, kHeight, kWidth, 1'000'000'000 + i * 33'366'700LL};
         times.push_back(MeasureMs([&] { Keep(detector.Look(luma).data()); }));
       }
       return Figure{Median(times), "ms"};
     }});

}  // namespace
}  // namespace kinalyx::bench
