#pragma once

#include <cmath>
#include <cstdint>

namespace kinalyx {

/// When the beats of a play fall due: one every `interval` milliseconds, counted in fractions of a millisecond from
/// one moment, so that a play keeps the rate of its video however long it goes on. A beat is a position, or, of a
/// video whose pictures are shown for unequal times, where its position would stand if they were equal (see
/// AVIControl::BeatOf). All plays go by it.
class PlayClock {
 public:
  /// Takes `beat` as due at `now` (milliseconds of the host's clock).
  /// @param interval  milliseconds from one beat to the next; what is no time counts as one
  void Start(std::int64_t now, double beat, double interval) {
    interval_ = interval > 0 ? interval : 1;
    origin_ = now;
    first_ = -interval_ * beat;
  }

  /// Begins anew at beat `begin`, due when the round was over, which is at beat `end`, so that videos looped
  /// together stay together; at `now` when that is a whole round ago.
  void Wrap(std::int64_t now, double end, double begin = 0) {
    const double over = first_ + interval_ * end;
    if (static_cast<double>(now - origin_) - over >= interval_ * (end - begin - 1)) return Start(now, begin, interval_);
    const double whole = std::floor(over);
    origin_ += static_cast<std::int64_t>(whole);
    first_ = over - whole - interval_ * begin;
  }

  /// The beat, and the part of one, that has been reached at `now`.
  double BeatAt(std::int64_t now) const {
    return (static_cast<double>(now - origin_) - first_ + 2 * kGrain) / interval_;
  }

  /// The first whole millisecond at which BeatAt reaches `beat`.
  std::int64_t Due(double beat) const {
    return origin_ + static_cast<std::int64_t>(std::ceil(first_ + interval_ * beat - kGrain));
  }

 private:
  static constexpr double kGrain = 1e-6;  // milliseconds: what is due on the millisecond counts as due

  std::int64_t origin_ = 0;
  double first_ = 0;  ///< milliseconds after origin_ at which beat 0 is due
  double interval_ = 1;
};

}  // namespace kinalyx
