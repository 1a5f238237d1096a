#pragma once

#include <cstdint>
#include <string>

namespace kinalyx {

/// What has come of a recording.
struct RecordingTally {
  std::int64_t pictures = 0;  ///< in the file
  /// That the camera's time stamps say are missing; their places are kept. As long as it is open, those of which that
  /// is certain.
  std::int64_t lost = 0;
  double rate = 0;           ///< pictures a second, as measured; 0 with fewer than two
  std::int64_t firstNs = 0;  ///< time of the first picture on the graph's clock, nanoseconds
  std::int64_t lastNs = 0;
  std::int64_t bytes = 0;
  bool open = false;  ///< still being written
  std::string fault;  ///< why it ended early; empty when it did not
};

}  // namespace kinalyx
