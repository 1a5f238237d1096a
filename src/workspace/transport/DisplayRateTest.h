#pragma once

#include "platform/host/Host.h"
#include "workspace/stage/Stage.h"

namespace kinalyx {

/// Plays the current video once and tells how many of its pictures this machine has shown.
class DisplayRateTest {
 public:
  DisplayRateTest(IHost& host, Stage& stage) : host_(host), stage_(stage) {}

  void StartRateTest();
  bool Running() const { return slot_ != 0; }
  /// Ends the test without a result.
  void Stop();

  /// A picture of a slot was shown.
  void Signal(int slot);
  /// A play has ended; the result of the test is told at the next turn of the event loop.
  void Notify(int slot);

  /// The words for `counter`, which is 2 for each picture, against the last position: the first two
  /// figures behind the point of their ratio.
  static std::string Result(int counter, int lastPosition);

 private:
  IHost& host_;
  Stage& stage_;
  int slot_ = 0;  ///< under test; 0 none
  int DisplayRateCounter_ = 0;
  HostTimer tell_;
};

}  // namespace kinalyx
