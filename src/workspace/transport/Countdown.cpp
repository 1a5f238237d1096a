#include "workspace/transport/Countdown.h"

#include <utility>

namespace kinalyx {

int CountdownNext(int minutesSeconds) {
  if (minutesSeconds <= 0) return 0;
  // Borrowing a minute: 300 becomes 259.
  return minutesSeconds - (minutesSeconds % 100 == 0 ? 41 : 1);
}

std::string CountdownText(int minutesSeconds) {
  const std::string digits = minutesSeconds > 0 ? std::to_string(minutesSeconds) : "";
  const std::size_t minutes = digits.size() < 2 ? 0 : digits.size() - 2;
  return digits.substr(0, minutes) + ":" + digits.substr(minutes);
}

void Countdown::Start(int minutesSeconds, std::function<void(const std::string&)> show, std::function<void()> done) {
  value_ = minutesSeconds;
  show_ = std::move(show);
  done_ = std::move(done);
  timer_ = HostTimer(host_, 1000, true, [this] { Timer(); });
}

void Countdown::Timer() {
  value_ = CountdownNext(value_);
  show_(CountdownText(value_));
  if (value_ > 0) return;
  timer_.Stop();
  // The action may start the countdown anew.
  const auto done = done_;
  done();
}

}  // namespace kinalyx
