#include "KeyCurve.h"

#include <algorithm>
#include <cstddef>

namespace kinalyx::demo {

KeyCurve::KeyCurve(std::span<const double> times, std::span<const double> values)
    : times_(times.begin(), times.end()), values_(values.begin(), values.end()), slopes_(times.size(), 0.0) {
  // The weighted harmonic mean of the two neighbouring slopes keeps the curve monotonous; it rests where
  // the direction changes and at both ends.
  for (std::size_t i = 1; i + 1 < times_.size(); ++i) {
    const double before = times_[i] - times_[i - 1], after = times_[i + 1] - times_[i];
    const double in = (values_[i] - values_[i - 1]) / before, out = (values_[i + 1] - values_[i]) / after;
    if (in * out <= 0) continue;
    const double a = 2 * after + before, b = after + 2 * before;
    slopes_[i] = (a + b) / (a / in + b / out);
  }
}

double KeyCurve::At(double time) const {
  if (time <= times_.front()) return values_.front();
  if (time >= times_.back()) return values_.back();
  const std::size_t i = std::upper_bound(times_.begin(), times_.end(), time) - times_.begin() - 1;
  const double width = times_[i + 1] - times_[i];
  const double t = (time - times_[i]) / width, u = 1 - t;
  return values_[i] * (1 + 2 * t) * u * u + slopes_[i] * width * t * u * u + values_[i + 1] * t * t * (3 - 2 * t) -
         slopes_[i + 1] * width * t * t * u;
}

}  // namespace kinalyx::demo
