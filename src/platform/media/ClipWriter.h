#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>

#include "platform/files/Result.h"
#include "platform/paint/PixelOps.h"

namespace kinalyx {

/// How a clip is written that is given away.
struct ClipFormat {
  enum class Kind {
    Mp4,  ///< H.264 and AAC, with its index in front: telephones and browsers play it while it comes
    Gif,  ///< a silent loop of few colours
  };
  enum class Profile {
    Baseline,  ///< for the oldest telephones
    High,
  };

  Kind kind = Kind::Mp4;
  int width = 0;  ///< pixels, even in an MP4
  int height = 0;
  Profile profile = Profile::High;
  bool sound = false;
  int quality = 21;  ///< of H.264: its constant rate factor, less is better
};

/// Writes pictures, each with its time, and sound into a new clip. The file stands under a hidden name beside its
/// final one until Close; without Close it goes. From one thread at a time.
class ClipWriter {
 public:
  static constexpr int kSoundRate = 48000;  ///< samples per second of each of two channels

  /// Fails when the file, the container or the codec cannot be opened.
  static Result<std::unique_ptr<ClipWriter>> Create(const std::string& path, const ClipFormat& format);
  virtual ~ClipWriter() = default;

  /// One picture of the clip's size, 32 bits, shown from `ms` on until the next one. Times grow.
  virtual Outcome Write(const PixelRows& picture, double ms) = 0;
  /// What is heard, left and right in turn, behind what was heard before; it may run a little ahead of the pictures.
  virtual Outcome WriteSound(std::span<const std::int16_t> samples) = 0;
  /// Ends the clip: the last picture stays until `ms`. A file of that name gives way.
  virtual Outcome Close(double ms) = 0;
};

}  // namespace kinalyx
