#include "capture/mirror/PaneThread.h"

#include <chrono>
#include <utility>

namespace kinalyx {

using Clock = std::chrono::steady_clock;

PaneThread::PaneThread(MirrorPane& pane) : pane_(pane), thread_([this] { Work(); }) {}

PaneThread::~PaneThread() {
  {
    const std::lock_guard lock(mutex_);
    quit_ = true;
  }
  changed_.notify_all();
  thread_.join();
}

void PaneThread::Wake() {
  {
    const std::lock_guard lock(mutex_);
    woken_ = true;
  }
  changed_.notify_all();
}

void PaneThread::Work() {
  std::unique_lock lock(mutex_);
  while (!quit_) {
    woken_ = false;
    lock.unlock();
    const std::int64_t now = Clock::now().time_since_epoch() / std::chrono::nanoseconds(1);
    const std::int64_t next = pane_.Step(now);
    lock.lock();
    changed_.wait_until(lock, Clock::time_point(std::chrono::nanoseconds(next)), [this] { return woken_ || quit_; });
  }
}

}  // namespace kinalyx
