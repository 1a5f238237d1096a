#pragma once

#include <chrono>
#include <string>

namespace kinalyx {

/// The order in which the open files of the process do work that nobody waits for. One at a time has the
/// turn, the one that the user had in hand last; and nobody while pictures are shown, decoded for somebody who
/// waits, or written. On a battery the turn ends soon after the video was let go.
class PassTurn {
 public:
  using Clock = std::chrono::steady_clock;

  PassTurn();
  ~PassTurn();
  PassTurn(const PassTurn&) = delete;
  PassTurn& operator=(const PassTurn&) = delete;

  /// The user has this file in hand now.
  void Handle();
  /// Takes part in the order, or leaves it to the others.
  void Want(bool work);
  /// How long to wait, at the least, before the next piece of work; zero when it may be done now. Short work
  /// waits less long for others to come to rest.
  Clock::duration Delay(bool isShort = false) const;

  /// Something is being done that comes first. From any thread.
  static void GiveWay();
};

/// True when the machine runs on a battery; `folder` is where the system lists its supplies.
bool OnBattery(const std::string& folder = "/sys/class/power_supply");

}  // namespace kinalyx
