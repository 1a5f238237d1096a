#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "platform/graph/MotionDetector.h"

namespace kinalyx {

/// How brightness has changed all over a picture, from what it was to what it is: now = gain * then + offset.
struct LightChange {
  double gain = 1;
  double offset = 0;

  bool None() const { return gain == 1 && offset == 0; }
};

/// Finds out how the light, or the camera's exposure, has changed since the picture before, and since what the picture
/// was on the average, by some of the picture's pixels. What moves in it is overlooked as long as most of it stands.
class LightMeter {
 public:
  /// @param learning  how much of its average this picture is, 0 to 1
  void Look(const LumaPicture& picture, double learning);
  LightChange SinceLast() const { return sinceLast_; }
  LightChange SinceMean() const { return sinceMean_; }

 private:
  std::vector<float> now_;
  std::vector<float> last_;
  std::vector<float> mean_;
  LightChange sinceLast_;
  LightChange sinceMean_;
};

/// The change that explains most of the pairs; none where the two are alike, or nothing explains them.
LightChange FitLight(std::span<const float> then, std::span<const float> now);

}  // namespace kinalyx
