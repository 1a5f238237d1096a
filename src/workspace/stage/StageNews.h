#pragma once

#include <utility>

#include "platform/host/Host.h"

namespace kinalyx {

/// What may have changed; a sum of these is told at once.
enum StageChange : unsigned {
  kCommandsChanged = 0,  ///< what commands can do, or show: told with every change, and by itself
  kFocusChanged = 1,     ///< another slot is current
  kVideoChanged = 2,     ///< a video came or went, counts or plays in another way, or stands in another layout
  kPicturesChanged = 4,  ///< pictures have another size, are mirrored, or carry other drawings
  kLocksChanged = 8,     ///< a lock was made or ended, its bounds moved, or its play began, ended or paused
};

/// Who is told what has changed.
class IStageEvents {
 public:
  virtual ~IStageEvents() = default;
  /// @param changes  the sum of all StageChange since the last time
  virtual void StageChanged(unsigned changes) = 0;
};

/// The one road for news of the analysis section. Whoever changes something notes it here; those who show it
/// are told once, when the present turn of the event loop is over, however much it has changed.
class StageNews {
 public:
  StageNews(IHost& host, IStageEvents& events) : host_(host), events_(events) {}

  void Note(StageChange change) {
    changes_ |= change;
    if (!turn_.Running()) turn_ = HostTimer(host_, 0, false, [this] { Tell(); });
  }
  /// Tells at once what would be told at the end of the turn; nothing when nothing has changed.
  void Tell() {
    while (turn_.Running()) {
      turn_.Stop();
      events_.StageChanged(std::exchange(changes_, 0u));
    }
  }

 private:
  IHost& host_;
  IStageEvents& events_;
  unsigned changes_ = 0;
  HostTimer turn_;
};

}  // namespace kinalyx
