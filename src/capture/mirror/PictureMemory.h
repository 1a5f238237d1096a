#pragma once

#include <cstdint>
#include <deque>
#include <mutex>
#include <optional>
#include <vector>

#include "platform/graph/IGraph.h"

namespace kinalyx {

/// What a mirror remembers of one camera: the ring of the graph that runs, and what is left of runs before, so that
/// the past plays on while a camera is away. Any thread may use it. Times are nanoseconds of CLOCK_MONOTONIC.
class PictureMemory {
 public:
  struct Tally {
    bool any = false;
    std::int64_t oldestNs = 0;
    std::int64_t newestNs = 0;
    std::int64_t bytes = 0;
    bool full = false;  ///< its bound, not the time that was asked for, says how far it reaches back
  };

  /// Takes over what the ring has; it may go then.
  void LetGo();
  /// The ring of the run that begins; it is let go of before it goes.
  void Follow(IBlockRecordingFilter& ring);
  /// Forgets all.
  void Clear();
  /// @param reachNs  how far back is remembered
  /// @param bound    bytes that all may take
  void Limit(std::int64_t reachNs, std::int64_t bound);
  /// Forgets what has become too old of earlier runs, or is too much.
  void Trim(std::int64_t nowNs);

  /// The last picture that was taken until then; nothing where none so old is remembered.
  std::optional<PackedPicture> At(std::int64_t ns) const;
  /// The first one that was taken after that, within some pictures' time.
  std::optional<PackedPicture> After(std::int64_t ns) const;
  /// From one moment to another, both counted.
  std::vector<PackedPicture> Between(std::int64_t fromNs, std::int64_t toNs) const;
  Tally Take() const;

 private:
  mutable std::mutex mutex_;
  IBlockRecordingFilter* ring_ = nullptr;
  std::deque<PackedPicture> past_;  ///< of earlier runs, ever later ones
  std::int64_t pastBytes_ = 0;
  std::int64_t reachNs_ = 0;
  std::int64_t bound_ = 0;
};

}  // namespace kinalyx
