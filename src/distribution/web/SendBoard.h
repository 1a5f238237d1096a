#pragma once

#include <atomic>
#include <mutex>
#include <string>
#include <utility>

#include "platform/net/ITransferWatch.h"

namespace kinalyx {

/// How far a send has come, as the user reads it.
struct SendNews {
  int step = 0;        ///< 1 to 3 as they are shown; 0 before, 4 after them
  std::string words;   ///< what is done now
  std::string detail;  ///< a figure to it: "37% complete", "Upload speed 812kb per second"
  double part = 0;     ///< of the present step, 0 to 1
};

/// Where a send tells how far it is, on its own thread, and where it is told to stop, on that of the windows. It
/// outlives both.
class SendBoard final : public ITransferWatch {
 public:
  void Tell(SendNews news) {
    const std::lock_guard lock(mutex_);
    news_ = std::move(news);
  }
  SendNews News() const {
    const std::lock_guard lock(mutex_);
    return news_;
  }
  void Stop() { stop_ = true; }
  bool Cancelled() override { return stop_; }

 private:
  mutable std::mutex mutex_;
  SendNews news_;
  std::atomic<bool> stop_ = false;
};

}  // namespace kinalyx
