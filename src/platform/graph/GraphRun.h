#pragma once

#include <chrono>
#include <memory>
#include <vector>

#include "platform/graph/GraphBuilder.h"
#include "platform/graph/GraphNews.h"

namespace kinalyx {

/// One run of a graph, from GraphRun to GraphStop. Each part that hangs together has threads of its own, which build
/// it, watch it and take it down, so that a device that never answers holds up nobody, not even the other camera. A
/// thread that hangs is left to itself with all that it uses.
class GraphRun {
  struct Part;

 public:
  /// @param before  the run before, whose devices are waited for; null for none
  GraphRun(std::shared_ptr<const GraphOrder> order, GraphNews news, std::unique_ptr<GraphRun> before);
  /// Has the devices let go, without waiting.
  ~GraphRun();
  GraphRun(const GraphRun&) = delete;
  GraphRun& operator=(const GraphRun&) = delete;

  /// Has the devices let go, and tells no more.
  void Stop();
  /// Waits until they have; false when that takes too long.
  bool WaitEnded(std::chrono::steady_clock::time_point until) const;

 private:
  std::vector<std::shared_ptr<Part>> StillAtWork(const Part& other) const;

  GraphNews news_;
  std::vector<std::shared_ptr<Part>> parts_;  ///< shared with the threads
};

}  // namespace kinalyx
