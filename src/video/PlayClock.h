#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace kinalyx {

/// When the positions of a play fall due: one every `interval` milliseconds, counted in fractions of a
/// millisecond from one moment, so that a play keeps the rate of its video however long it goes on. All
/// plays go by it.
class PlayClock {
 public:
  /// Takes `position` as due at `now` (milliseconds of the host's clock).
  /// @param interval  milliseconds from one position to the next; what is no time counts as one
  void Start(std::int64_t now, int position, double interval) {
    interval_ = interval > 0 ? interval : 1;
    origin_ = now;
    first_ = -interval_ * position;
  }

  /// Begins anew at position 0, due one interval after `last` was, so that videos looped together stay
  /// together; at `now` when that is a whole round ago.
  void Wrap(std::int64_t now, int last) {
    const double end = first_ + interval_ * (last + 1.0);
    if (static_cast<double>(now - origin_) - end >= interval_ * last) return Start(now, 0, interval_);
    const double whole = std::floor(end);
    origin_ += static_cast<std::int64_t>(whole);
    first_ = end - whole;
  }

  /// The position that is due at `now`, between `least` and `most`.
  int PositionAt(std::int64_t now, int least, int most) const {
    const double position = std::floor((static_cast<double>(now - origin_) - first_ + 2 * kGrain) / interval_);
    return static_cast<int>(std::clamp<double>(position, least, most));
  }

  /// The first whole millisecond at which PositionAt gives `position`.
  std::int64_t Due(int position) const {
    return origin_ + static_cast<std::int64_t>(std::ceil(first_ + interval_ * position - kGrain));
  }

 private:
  static constexpr double kGrain = 1e-6;  // milliseconds: what is due on the millisecond counts as due

  std::int64_t origin_ = 0;
  double first_ = 0;  ///< milliseconds after origin_ at which position 0 is due
  double interval_ = 1;
};

}  // namespace kinalyx
