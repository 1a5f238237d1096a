#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>

#include "platform/files/Result.h"
#include "platform/media/RecordingTally.h"

namespace kinalyx {

/// What becomes of a lesson: MPEG-4 V2 with ADPCM in an AVI file, or H.264 with AAC in an MP4 file.
enum class LessonKind { Avi, Mp4 };

struct LessonFormat {
  LessonKind kind = LessonKind::Avi;
  int width = 0;  ///< of all pictures, even
  int height = 0;
  bool voice = false;
};

/// A picture of a lesson: brightness row by row without gaps, then the two colours at half the size.
using LessonPicture = std::shared_ptr<const std::uint8_t>;

/// A lesson that grows: pictures of the screen at a steady rate, and the voice, both by one clock. It is written as
/// Matroska, of which everything up to the last half second can be read whenever it is broken off; LessonCopy makes of
/// it the file that is kept. One thread uses it.
class LessonFile {
 public:
  static constexpr int kRate = 15;           ///< pictures per second
  static constexpr int kSoundRate = 48'000;  ///< samples per second of the voice, which has one channel

  /// Begins a file; there must be none of that name.
  static Result<std::unique_ptr<LessonFile>> Create(const std::string& path, const LessonFormat& format);
  /// Closes with what has come so far.
  ~LessonFile();

  /// Shows a picture from this time on until the next one; of several within one fifteenth of a second the last counts.
  /// @param ns  of the lesson, whose first picture is at 0; never earlier than the one before
  Outcome TakePicture(LessonPicture picture, std::int64_t ns);
  /// Takes samples that were heard at this time. They stand in the file where they belong, whatever the microphone's
  /// own clock does: a clock that goes wrong is followed by stretching, unheard; what is missing is silence.
  Outcome TakeSound(std::span<const std::int16_t> samples, std::int64_t ns);
  /// How it stands.
  const RecordingTally& Tally() const;
  /// The last picture is shown up to this time, and the voice ends with it.
  Outcome Close(std::int64_t endNs);

 private:
  struct Engine;
  explicit LessonFile(std::unique_ptr<Engine> engine);
  std::unique_ptr<Engine> engine_;
};

}  // namespace kinalyx
