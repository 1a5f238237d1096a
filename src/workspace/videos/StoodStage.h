#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "library/Sidecar.h"
#include "platform/files/Result.h"

namespace kinalyx {

/// A video as it stood in its window.
struct StoodVideo {
  int slot = 1;
  std::string path;
  VideoMoment moment;
  bool flipped = false;
  double zoom = 1;
  bool fits = false;  ///< all of it is seen
  double panX = 0;    ///< twips before zoom
  double panY = 0;

  friend bool operator==(const StoodVideo&, const StoodVideo&) = default;
};

/// What stood on the stage, so that it can be brought back: all of it, or what was closed alone.
struct StoodStage {
  std::vector<StoodVideo> videos;
  std::string layout;  ///< empty: it stays as it is
  int currentWindow = 1;
  std::array<bool, 3> locks{};  ///< slots 1 and 2, slots 3 and 4, all four
  /// Of what was closed: the videos that stayed, one path for each window. No file holds them.
  std::vector<std::string> stayed{};

  /// What stood at `from`, a video or a folder with videos, stands at `to` now. False when that was nothing of it.
  bool Follow(const std::string& from, const std::string& to);
  friend bool operator==(const StoodStage&, const StoodStage&) = default;
};

// The stage outlives the program in a file of its own, JSON.

/// Nothing when there is no such file, or nothing in it that makes sense.
std::optional<StoodStage> ReadSession(const std::string& path);
/// The same in the file.
void FollowInSession(const std::string& path, const std::string& from, const std::string& to);
Outcome WriteSession(const std::string& path, const StoodStage& stage);

}  // namespace kinalyx
