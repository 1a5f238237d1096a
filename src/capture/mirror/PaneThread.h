#pragma once

#include <condition_variable>
#include <mutex>
#include <thread>

#include "capture/mirror/MirrorPane.h"

namespace kinalyx {

/// Has a pane go on by itself.
class PaneThread {
 public:
  /// @param pane  outlives this
  explicit PaneThread(MirrorPane& pane);
  /// Waits until the step under way is over.
  ~PaneThread();
  PaneThread(const PaneThread&) = delete;
  PaneThread& operator=(const PaneThread&) = delete;

  /// The pane is to show something else: it does so at once.
  void Wake();

 private:
  void Work();

  MirrorPane& pane_;
  std::mutex mutex_;
  std::condition_variable changed_;
  bool woken_ = false;
  bool quit_ = false;
  std::thread thread_;
};

}  // namespace kinalyx
