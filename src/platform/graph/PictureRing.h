#pragma once

#include <cstdint>
#include <deque>
#include <limits>
#include <mutex>
#include <optional>
#include <vector>

#include "platform/graph/IGraph.h"
#include "platform/graph/PackedPicture.h"

namespace kinalyx {

/// The pictures of the last seconds, in memory of their own: a camera's may not be held for long. Any thread may use
/// it. Times are nanoseconds of CLOCK_MONOTONIC.
class PictureRing {
 public:
  /// Remembers a picture; false for one that is not later than the last, which is left out.
  bool Push(const PackedPicture& picture);
  /// Forgets all.
  void Clear();

  /// @param seconds  that it reaches back from the latest picture
  void Reach(double seconds);
  /// @param bytes  that it takes at most, whatever else is asked of it; one picture it holds always
  void SetBound(std::int64_t bytes);
  /// Keeps what was taken from that moment on, beyond the reach, until another moment is pinned.
  void Pin(std::int64_t ns);
  void Unpin() { Pin(std::numeric_limits<std::int64_t>::max()); }

  RingTally Tally() const;
  /// The last picture that was taken until then; nothing where there is none so old.
  std::optional<PackedPicture> At(std::int64_t ns) const;
  /// The first one that was taken after that.
  std::optional<PackedPicture> After(std::int64_t ns) const;
  /// From one moment to another, both counted.
  std::vector<PackedPicture> Between(std::int64_t fromNs, std::int64_t toNs) const;

 private:
  void Forget();

  mutable std::mutex mutex_;
  std::deque<PackedPicture> pictures_;  ///< ever later ones
  std::int64_t bytes_ = 0;
  std::int64_t reachNs_ = 0;
  std::int64_t bound_ = std::numeric_limits<std::int64_t>::max();
  std::int64_t pinnedNs_ = std::numeric_limits<std::int64_t>::max();
};

}  // namespace kinalyx
