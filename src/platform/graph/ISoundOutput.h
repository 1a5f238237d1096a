#pragma once

#include <string>

namespace kinalyx {

/// Where the sound of videos is heard, one at a time. Nothing here waits for a sound card, a server or a file; without
/// them nothing is heard, and nobody is told.
class ISoundOutput {
 public:
  virtual ~ISoundOutput() = default;
  /// Plays the sound of a video in place of what is heard: what belongs to `fromMs`, milliseconds from its first
  /// picture, is heard now, and what takes time to come joins in at its place.
  /// @param volume  percent
  virtual void Play(const std::string& path, double fromMs, int volume) = 0;
  virtual void Stop() = 0;
  virtual void SetVolume(int volume) = 0;
};

}  // namespace kinalyx
