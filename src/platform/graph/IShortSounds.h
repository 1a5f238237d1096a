#pragma once

#include <string>

namespace kinalyx {

/// Beeps and clicks, heard at once and one over the other. Nothing here waits for a sound card or a server; without
/// them nothing is heard, and nobody is told.
class IShortSounds {
 public:
  virtual ~IShortSounds() = default;
  /// @param path  of a WAV file of a few seconds; a file that is missing or none is silence
  virtual void Play(const std::string& path) = 0;
};

}  // namespace kinalyx
