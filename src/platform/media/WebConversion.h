#pragma once

#include <memory>
#include <string>

#include "platform/files/Result.h"

namespace kinalyx {

/// A video that is to be sent to somebody. Existing files of these names give way to whole ones.
struct WebRequest {
  std::string source;
  std::string wmv;  ///< Windows Media; empty for none
  std::string mp4;  ///< H.264 and AAC, which browsers and telephones play; empty for none
};

/// Makes of any video that VideoFile opens files to be sent: pictures of at most 1280 x 720, upright and in square
/// pixels, of interlaced ones the first field alone; sound, where there is any. The source is decoded once for both.
/// The same source gives the same bytes. A file stands under its name when it is whole, or not at all. Used from one
/// thread; decoding and encoding have their own.
class WebConversion {
 public:
  enum class State { Running, Done, Failed };

  /// Opens the source, and writes nothing yet. What cannot be opened fails as VideoFile::Open does.
  static Result<std::unique_ptr<WebConversion>> Open(const WebRequest& request);
  /// Without the end of the work removes what was written.
  ~WebConversion();
  WebConversion(const WebConversion&) = delete;
  WebConversion& operator=(const WebConversion&) = delete;

  /// Takes one picture further; to be called until the work is over.
  State Step();
  /// 0 to 1.
  double Part() const;
  /// Seconds from one picture to the next, at the least.
  double FrameSeconds() const;
  /// Once Failed: why, in the words of the library or the disk.
  const std::string& Error() const;

 private:
  struct Engine;
  explicit WebConversion(std::unique_ptr<Engine> engine);
  std::unique_ptr<Engine> engine_;
};

}  // namespace kinalyx
