#include "platform/media/RecordingClock.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace kinalyx {
namespace {

/// A stamp that is further away, in seconds, belongs to another time: nobody wants to look at that much of nothing.
constexpr double kLongestGap = 60;
/// Seconds of pictures that come before their places: more than that is no burst, the camera has become faster.
constexpr double kLongestBurst = 1;
/// Intervals, all of them too long, after which a promise counts as broken.
constexpr int kProof = 4;
// What is expected follows the stamps as fast as if so many had been seen: the promise stands for the first ones.
constexpr int kPromiseWeighs = 4;
constexpr int kMemory = 60;
/// As long as it follows faster than that, every stamp is taken for that of the next picture at least.
constexpr int kWarm = 12;
/// Seconds from picture to picture.
constexpr double kShortest = 1e-5;

}  // namespace

std::int64_t RecordingClock::Take(std::int64_t ns) {
  if (places_ == 0) {
    firstNs_ = ns;
    places_ = 1;
    line_.Add(0, 0);
    return 0;
  }
  double time = static_cast<double>(ns - firstNs_) * 1e-9 - paused_;
  if (time - phase_ > kLongestGap) {
    paused_ += time - phase_ - period_;
    time = phase_ + period_;
  }
  due_ += Steps(time);
  const std::int64_t missing = std::max<std::int64_t>(0, due_ - places_);
  places_ += missing + 1;
  if (static_cast<double>(places_ - 1 - due_) * period_ > kLongestBurst) BeginAnew(time);
  line_.Add(time, static_cast<double>(due_));
  return missing;
}

/// By how many places a picture is further than the one before.
std::int64_t RecordingClock::Steps(double time) {
  if (period_ <= 0) period_ = time - phase_;
  std::int64_t steps = std::max<std::int64_t>(0, std::llround((time - phase_) / period_));
  if (followed_ + kPromiseWeighs < kWarm) steps = std::max<std::int64_t>(1, steps);
  if (!promiseKept_ && steps > 1) {
    doubted_ += steps - 1;
    if (++lateIntervals_ == kProof) {
      period_ = time / kProof;
      promiseKept_ = true;
    }
    phase_ = time;
    return 1;
  }
  // What comes in a burst, held up on its way, tells nothing of the camera.
  if (steps > 0) Follow(time, steps);
  return std::exchange(promiseKept_, true) ? steps : steps + doubted_;
}

void RecordingClock::Follow(double time, std::int64_t steps) {
  const int n = followed_ + kPromiseWeighs;
  if (n < kMemory) ++followed_;
  const double error = time - (phase_ + static_cast<double>(steps) * period_);
  phase_ = time - error * (1 - 2.0 * (2 * n - 1) / (n * (n + 1)));
  waited_ |= steps > 1;
  period_ =
      std::max(waited_ ? shortest_ : kShortest, period_ + 6.0 / (n * (n + 1)) * error / static_cast<double>(steps));
}

void RecordingClock::BeginAnew(double time) {
  if (line_.pictures > usualLine_.pictures) usualLine_ = line_;
  line_ = {};
  due_ = places_ - 1;
  phase_ = time;
  followed_ = 0;
}

void RecordingClock::Line::Add(double time, double place) {
  ++pictures;
  const double fromTime = time - meanTime;
  meanTime += fromTime / static_cast<double>(pictures);
  meanPlace += (place - meanPlace) / static_cast<double>(pictures);
  timeSpread += fromTime * (time - meanTime);
  together += fromTime * (place - meanPlace);
}

}  // namespace kinalyx
