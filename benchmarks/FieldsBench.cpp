#include <cstring>
#include <random>
#include <vector>

#include "Bench.h"
#include "video/FramePipeline.h"
#include "video/StrobeLayers.h"

namespace kinalyx::bench {
namespace {

using Rows = std::vector<std::uint8_t>;

Rows Noise(std::size_t count, unsigned seed) {
  std::mt19937 random(seed);
  Rows rows(count);
  for (auto& byte : rows) byte = static_cast<std::uint8_t>(random());
  return rows;
}

/// Milliseconds of one call: the median of many batches.
double Time(const std::function<void()>& work) {
  std::vector<double> samples;
  work();
  for (int batch = 0; batch < 40; ++batch) {
    samples.push_back(MeasureMs([&] {
      for (int i = 0; i < 25; ++i) work();
    }));
  }
  return Median(samples) / 25;
}

/// Rebuilding the missing rows of a field, against copying the same rows.
Figure Soften() {
  constexpr int kRow = 720 * 3;
  constexpr int kHeight = 480;
  Rows rows = Noise(kRow * kHeight, 1);
  const Rows other = Noise(kRow * kHeight, 2);
  const double ours = Time([&] {
    SoftenField(rows.data(), kRow, kHeight, true);
    Keep(rows.data());
  });
  const double copy = Time([&] {
    CopyField(other.data(), kRow, kHeight, false, rows.data());
    Keep(rows.data());
  });
  return {ours, "ms", copy};
}

/// The pixels of one strobe layer, against copying its three buffers once.
Figure Layer() {
  constexpr int kRow = 640 * 3;
  constexpr int kHeight = 480;
  const Rows scene = Noise(kRow * kHeight, 3);
  const Rows picture = Noise(kRow * kHeight, 4);
  Rows sum = Noise(kRow * kHeight, 5);
  StrobeLayers layers({kRow, kHeight});
  const double ours = Time([&] {
    layers.Add(scene.data(), picture.data(), false, sum.data());
    Keep(sum.data());
  });
  Rows copies[3] = {scene, picture, sum};
  const Rows* sources[3] = {&scene, &picture, &sum};
  const double copy = Time([&] {
    for (int i = 0; i < 3; ++i) {
      std::memcpy(copies[i].data(), sources[i]->data(), copies[i].size());
      Keep(copies[i].data());
    }
  });
  return {ours, "ms", copy};
}

const Register kSoften({"soften_field_720x480", {Target::Of::Ratio, 3, 1.5}, Soften});
const Register kLayer({"strobe_layer_640x480", {Target::Of::Ratio, 8, 4}, Layer});

}  // namespace
}  // namespace kinalyx::bench
