#pragma once

#include <memory>
#include <string>

#include "platform/files/Result.h"

namespace kinalyx {

/// One video to be brought into a format that every picture of it can be reached in.
struct ConversionRequest {
  enum class Codec { Mjpeg, Dv };

  std::string source;
  std::string destination;  ///< an AVI file; whatever is there already is left alone
  Codec codec = Codec::Mjpeg;
  int width = 0;         ///< pixels of the new pictures; 0 keeps the source's. Tape takes 720 x 480 alone
  int height = 0;        ///< likewise
  bool sharpen = false;  ///< a little
  double startMs = 0;    ///< the first picture is the one shown at this time
  double endMs = 0;      ///< and the last the one shown at this; 0 for the last of the video
};

/// What came of it.
struct ConvertedVideo {
  int pictures = 0;  ///< of the source, each once
  int frames = 0;    ///< in the file, with the places that repeat a picture
};

/// Brings any video that VideoFile opens into an AVI file of key pictures, upright and in square pixels, with its
/// sound as plain samples. Every picture of the source becomes one of the result. Where they are shown for unequal
/// times, the result has the lowest rate at which each is right within a picture, and the last is repeated where a
/// place stays empty. Fields stay in their rows and in their order; of tape, whose lower field is always first, this
/// holds in time: a picture whose upper field comes first stands one row lower there.
///
/// The file is written beside its final name and renamed at the end, so half a video never stands under it. Used from
/// one thread; decoding and encoding have their own.
class Conversion {
 public:
  enum class State { Running, Done, Failed };

  /// Opens the source and chooses the rate; writes nothing yet. What cannot be opened fails as VideoFile::Open does; a
  /// start behind the end fails too.
  static Result<std::unique_ptr<Conversion>> Open(const ConversionRequest& request);
  /// Without the end of the work removes what was written.
  ~Conversion();
  Conversion(const Conversion&) = delete;
  Conversion& operator=(const Conversion&) = delete;

  /// Takes one picture further; to be called until the work is over.
  State Step();
  /// 0 to 1.
  double Part() const;
  /// Once Done.
  const ConvertedVideo& Converted() const;
  /// Once Failed: why, in the words of the library or the disk.
  const std::string& Error() const;

 private:
  struct Engine;
  explicit Conversion(std::unique_ptr<Engine> engine);
  std::unique_ptr<Engine> engine_;
};

}  // namespace kinalyx
