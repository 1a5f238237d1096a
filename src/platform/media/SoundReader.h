#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace kinalyx {

/// The sound of a video, decoded, from any time on: two channels of 16 bits, whatever the file has. Used from one
/// thread at a time, and best from one that nobody waits for.
class SoundReader {
 public:
  static constexpr int kRate = 48000;  ///< samples per second of each channel
  static constexpr int kChannels = 2;

  /// Null when the file has no sound that can be decoded, or is no video.
  static std::unique_ptr<SoundReader> Open(const std::string& path);
  ~SoundReader();
  SoundReader(const SoundReader&) = delete;
  SoundReader& operator=(const SoundReader&) = delete;

  /// Goes to a time, milliseconds from the start of the first picture.
  void Begin(double ms);
  /// Adds what follows, left and right in turn: the first sample after Begin stands exactly at its time, and what is
  /// missing in the file is silence. False at the end.
  bool Read(std::vector<std::int16_t>& samples);

 private:
  struct Engine;
  explicit SoundReader(std::unique_ptr<Engine> engine);
  std::unique_ptr<Engine> engine_;
};

}  // namespace kinalyx
