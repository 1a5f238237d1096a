#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>
#include <vector>

namespace kinalyx {

/// The time of a lesson: it begins with the first picture and stands still in its pauses. Nanoseconds; what is handed
/// over is CLOCK_MONOTONIC.
class LessonTime {
 public:
  void Begin(std::int64_t ns) { begin_ = ns; }
  bool Begun() const { return begin_.has_value(); }
  void Pause(std::int64_t ns) {
    if (!Paused()) pauses_.push_back({ns, kOpen});
  }
  void GoOn(std::int64_t ns) {
    if (Paused()) pauses_.back().to = ns;
  }
  bool Paused() const { return !pauses_.empty() && pauses_.back().to == kOpen; }

  /// The lesson's time; in a pause that at which it began, before the first picture a negative one.
  std::int64_t At(std::int64_t ns) const {
    std::int64_t time = ns - begin_.value_or(ns);
    for (const Span& pause : pauses_)
      if (ns > pause.from) time -= std::min(ns, pause.to) - pause.from;
    return time;
  }
  bool InPause(std::int64_t ns) const {
    for (const Span& pause : pauses_)
      if (ns >= pause.from && ns < pause.to) return true;
    return false;
  }

 private:
  static constexpr std::int64_t kOpen = std::numeric_limits<std::int64_t>::max();
  struct Span {
    std::int64_t from;
    std::int64_t to;
  };
  std::optional<std::int64_t> begin_;
  std::vector<Span> pauses_;
};

}  // namespace kinalyx
