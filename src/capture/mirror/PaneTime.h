#pragma once

#include <cstdint>

namespace kinalyx {

/// Which moment of a camera a pane shows, and when it shows one that is still to come: some seconds ago, or a stretch
/// of time again and again. Times are nanoseconds of CLOCK_MONOTONIC.
class PaneTime {
 public:
  static PaneTime Behind(std::int64_t delayNs);
  /// Begins now with the first moment. The last one stands for a little before it begins anew.
  /// @param lastNs  not before the first
  /// @param speed   part of the real one, 0 < speed <= 1
  static PaneTime Loop(std::int64_t firstNs, std::int64_t lastNs, double speed, std::int64_t nowNs);

  std::int64_t MomentAt(std::int64_t nowNs) const;
  /// @param momentNs  after MomentAt(nowNs), and in a loop not after its last moment
  std::int64_t WhenShown(std::int64_t momentNs, std::int64_t nowNs) const;

  bool Loops() const { return speed_ > 0; }
  bool Frozen() const { return frozenNs_ != kRuns; }
  /// It stands still, and goes on: in a loop with the moment at which it stood, else with what is due then.
  void Freeze(bool on, std::int64_t nowNs);
  /// A loop goes on from this moment of it.
  void GoTo(std::int64_t momentNs, std::int64_t nowNs);
  /// Of a loop; it goes on from where it is.
  void SetSpeed(double speed, std::int64_t nowNs);
  std::int64_t FirstNs() const { return firstNs_; }
  std::int64_t LastNs() const { return lastNs_; }

 private:
  static constexpr std::int64_t kRuns = -1;

  std::int64_t Now(std::int64_t nowNs) const { return Frozen() ? frozenNs_ : nowNs; }
  std::int64_t RoundNs() const;
  std::int64_t InRound(std::int64_t nowNs) const;

  std::int64_t delayNs_ = 0;
  std::int64_t firstNs_ = 0;
  std::int64_t lastNs_ = 0;
  double speed_ = 0;  ///< 0: no loop
  std::int64_t begunNs_ = 0;
  std::int64_t frozenNs_ = kRuns;
};

}  // namespace kinalyx
