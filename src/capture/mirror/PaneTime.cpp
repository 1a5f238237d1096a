#include "capture/mirror/PaneTime.h"

#include <algorithm>
#include <cmath>

namespace kinalyx {
namespace {

/// For which the last picture of a loop stands: the eye takes it for an end.
constexpr std::int64_t kPauseNs = 500'000'000;

std::int64_t Times(std::int64_t ns, double factor) { return std::llround(static_cast<double>(ns) * factor); }

}  // namespace

PaneTime PaneTime::Behind(std::int64_t delayNs) {
  PaneTime time;
  time.delayNs_ = delayNs;
  return time;
}

PaneTime PaneTime::Loop(std::int64_t firstNs, std::int64_t lastNs, double speed, std::int64_t nowNs) {
  PaneTime time;
  time.firstNs_ = firstNs;
  time.lastNs_ = std::max(firstNs, lastNs);
  time.speed_ = speed;
  time.begunNs_ = nowNs;
  return time;
}

/// What one round takes, with its pause.
std::int64_t PaneTime::RoundNs() const { return Times(lastNs_ - firstNs_, 1 / speed_) + kPauseNs; }

std::int64_t PaneTime::InRound(std::int64_t nowNs) const {
  return std::max<std::int64_t>(0, Now(nowNs) - begunNs_) % RoundNs();
}

std::int64_t PaneTime::MomentAt(std::int64_t nowNs) const {
  if (!Loops()) return Now(nowNs) - delayNs_;
  return std::min(lastNs_, firstNs_ + Times(InRound(nowNs), speed_));
}

std::int64_t PaneTime::WhenShown(std::int64_t momentNs, std::int64_t nowNs) const {
  if (!Loops()) return momentNs + delayNs_;
  // Rounded up: at that time it is due.
  const double into = static_cast<double>(momentNs - firstNs_) / speed_;
  return nowNs - InRound(nowNs) + static_cast<std::int64_t>(std::ceil(into));
}

void PaneTime::Freeze(bool on, std::int64_t nowNs) {
  if (on == Frozen()) return;
  if (!on) begunNs_ += nowNs - frozenNs_;
  frozenNs_ = on ? nowNs : kRuns;
}

void PaneTime::GoTo(std::int64_t momentNs, std::int64_t nowNs) {
  if (!Loops()) return;
  const std::int64_t into = std::clamp(momentNs, firstNs_, lastNs_) - firstNs_;
  // Rounded up, so that the moment is reached.
  begunNs_ = Now(nowNs) - static_cast<std::int64_t>(std::ceil(static_cast<double>(into) / speed_));
}

void PaneTime::SetSpeed(double speed, std::int64_t nowNs) {
  if (!Loops() || speed == speed_) return;
  const std::int64_t moment = MomentAt(nowNs);
  speed_ = speed;
  GoTo(moment, nowNs);
}

}  // namespace kinalyx
