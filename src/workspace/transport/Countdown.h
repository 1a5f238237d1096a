#pragma once

#include <functional>
#include <string>

#include "platform/host/Host.h"

namespace kinalyx {

/// Minutes and seconds as one number, 1000 for ten minutes, counted down once a second.

/// What follows a second later: 300 gives 259. Never below 0.
int CountdownNext(int minutesSeconds);
/// "2:59"; below a minute the seconds alone, ":59", ":5".
std::string CountdownText(int minutesSeconds);

/// A clock that runs down and then does something once.
class Countdown {
 public:
  explicit Countdown(IHost& host) : host_(host) {}

  /// Starts from a number of that form; `show` gets the text at every second, `done` is called at 0.
  void Start(int minutesSeconds, std::function<void(const std::string&)> show, std::function<void()> done);
  void Stop() { timer_.Stop(); }
  bool Running() const { return timer_.Running(); }

 private:
  void Timer();

  IHost& host_;
  HostTimer timer_;
  int value_ = 0;
  std::function<void(const std::string&)> show_;
  std::function<void()> done_;
};

}  // namespace kinalyx
