#pragma once

#include <array>
#include <string>

#include "workspace/transport/Transport.h"

namespace kinalyx {

/// A stopwatch against the video: the time of the position that is shown, from a zero point that the user
/// sets, such as the top of the swing. Each slot has its own rate and zero point.
class VideoTimer {
 public:
  VideoTimer(Stage& stage, Transport& transport, ITransportView& view);

  /// Opens the timer, or closes it.
  void ToggleTimer();
  void Close();
  bool Shown() const { return shown_; }

  /// Shows the reading of the current slot.
  void UpdateTimer();
  /// Takes the rate of the current slot from its box, positions per second; what is no rate gives the
  /// video's own back.
  void TakeRate(const std::string& text);
  /// The position that is shown becomes zero.
  void SetZero();
  /// Positions of a slot's video in a second of its timer; 0 where the file's own times count.
  double PositionsPerSecond(int slot) const;
  /// Seconds of a slot's video that read as zero.
  double Zero(int slot) const { return TimerZero_[static_cast<std::size_t>(slot)]; }
  /// A slot's rate and zero point go with its video.
  void Forget(int slot);

  /// "#00.00": "05.32", "-01.20".
  static std::string Reading(double seconds);

 private:
  double Rate(int slot) const;
  double Seconds(int slot) const;

  Stage& stage_;
  Transport& transport_;
  ITransportView& view_;
  bool shown_ = false;
  std::array<double, kSlots + 1> TimerRate_{};  ///< set by the user; 0 means the video's own
  std::array<double, kSlots + 1> TimerZero_{};  ///< seconds
};

}  // namespace kinalyx
