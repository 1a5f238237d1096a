#pragma once

#include <array>
#include <string>

#include "platform/host/Host.h"
#include "workspace/edits/IStudyView.h"

namespace kinalyx {

/// A quiet sentence over the picture of a window. Who clicks it has its command run; nobody has to, and it goes by
/// itself. A new one takes the place of the one before.
class StageHint {
 public:
  static constexpr int kLong = 20000;  ///< milliseconds
  static constexpr int kShort = 6000;

  StageHint(IHost& host, IStudyView& view) : host_(host), view_(view) {}

  void Show(int slot, const std::string& words, const std::string& command, int milliseconds = kLong) {
    view_.ShowHint(slot, words, command);
    TimerOf(slot) = HostTimer(host_, milliseconds, false, [this, slot] { Hide(slot); });
  }
  void Hide(int slot) {
    if (!TimerOf(slot).Running()) return;
    TimerOf(slot).Stop();
    view_.ShowHint(slot, {}, {});
  }

 private:
  HostTimer& TimerOf(int slot) { return timers_[static_cast<std::size_t>(slot)]; }

  IHost& host_;
  IStudyView& view_;
  std::array<HostTimer, kSlots + 1> timers_;
};

}  // namespace kinalyx
