#pragma once

#include <cstdint>
#include <vector>

#include "platform/host/Host.h"
#include "video/PlayerNews.h"

namespace kinalyx {

/// A running play, as the scheduler sees it.
class IPlayRun {
 public:
  virtual ~IPlayRun() = default;
  /// Does what is due at `now` (milliseconds of the host's clock) and returns when it wants to be
  /// called next. A run that is over must have left the scheduler before it returns. What its players have
  /// to tell is told after it.
  virtual std::int64_t Tick(std::int64_t now) = 0;
};

/// Keeps all plays of the program going on the one thread: ticks every run that is due, then hands the
/// thread back until the next one is. It hangs on a host timer, so plays go on inside message boxes
/// and menus, and a click, a key or the end of the program comes between any two pictures.
class PlayScheduler {
 public:
  explicit PlayScheduler(IHost& host) : host_(host) {}

  /// Adds a run, first due at `due`. The run is not owned and must be removed before it goes.
  void Add(IPlayRun& run, std::int64_t due);
  /// Unknown runs are ignored; safe inside a tick of this or another run.
  void Remove(IPlayRun& run);
  PlayerNews& News() { return news_; }

 private:
  struct Entry {
    IPlayRun* run;
    std::int64_t due;
  };

  void TickDue();
  void Arm();

  IHost& host_;
  PlayerNews news_;
  std::vector<Entry> entries_;
  HostTimer timer_;
  bool ticking_ = false;
};

}  // namespace kinalyx
