#include "workspace/transport/VideoTimer.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

#include "core/Numbers.h"

namespace kinalyx {

VideoTimer::VideoTimer(Stage& stage, Transport& transport, ITransportView& view)
    : stage_(stage), transport_(transport), view_(view) {}

void VideoTimer::ToggleTimer() {
  shown_ = !shown_;
  transport_.ShowFrameCounter = shown_;
  view_.ShowVideoTimer(shown_);
  transport_.ShowCurrent();
  UpdateTimer();
}

void VideoTimer::Close() {
  if (shown_) ToggleTimer();
}

double VideoTimer::Rate(int slot) const {
  const double own = TimerRate_[static_cast<std::size_t>(slot)];
  return own > 0 ? own : transport_.DisplayRate(slot);
}

double VideoTimer::Seconds(int slot) const {
  const double own = TimerRate_[static_cast<std::size_t>(slot)];
  const double seconds = own > 0 ? stage_.MP(slot).Position() / own : transport_.SecondsAt(slot);
  return std::floor(seconds * 100 + 0.5) / 100;
}

double VideoTimer::PositionsPerSecond(int slot) const {
  const double own = TimerRate_[static_cast<std::size_t>(slot)];
  if (own > 0) return own;
  return transport_.GoesByOwnTimes(slot) ? 0 : transport_.DisplayRate(slot);
}

void VideoTimer::UpdateTimer() {
  if (!shown_) return;
  const int slot = stage_.CurrentWindow;
  if (!stage_.HasVideo(slot)) {
    view_.SetVideoTimer(Reading(0), false, "");
    return;
  }
  const double value = Seconds(slot) - TimerZero_[static_cast<std::size_t>(slot)];
  const std::string reading = Reading(value);
  view_.SetVideoTimer(reading, reading.starts_with('-'), fmt::format("{:.6g}", Rate(slot)));
}

void VideoTimer::TakeRate(const std::string& text) {
  std::string number = text;
  std::ranges::replace(number, ',', '.');
  const double rate = ReadNumber(number);
  TimerRate_[static_cast<std::size_t>(stage_.CurrentWindow)] = rate > 0 && std::isfinite(rate) ? rate : 0;
  UpdateTimer();
}

void VideoTimer::SetZero() {
  const int slot = stage_.CurrentWindow;
  if (!stage_.HasVideo(slot)) return;
  TimerZero_[static_cast<std::size_t>(slot)] = Seconds(slot);
  UpdateTimer();
}

void VideoTimer::Forget(int slot) {
  TimerRate_[static_cast<std::size_t>(slot)] = TimerZero_[static_cast<std::size_t>(slot)] = 0;
}

std::string VideoTimer::Reading(double seconds) {
  const auto hundredths = std::llround(seconds * 100);
  return fmt::format("{}{:02}.{:02}", hundredths < 0 ? "-" : "", std::abs(hundredths) / 100,
                     std::abs(hundredths) % 100);
}

}  // namespace kinalyx
