#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

#include "platform/media/VideoInfo.h"

namespace kinalyx {

/// One picture as rows of blue, green, red (24 bits) or blue, green, red, unused (32 bits), bottom row
/// first, each row padded to a multiple of 4 bytes. The view is good until the next call on its file.
struct FrameRows {
  const std::uint8_t* bits = nullptr;  ///< null when the picture could not be had
  int width = 0;
  int height = 0;
  int rowBytes = 0;
  int bitCount = 0;

  explicit operator bool() const { return bits != nullptr; }
};

enum class OpenFault {
  None,
  NotFound,   ///< there is no such file, or it cannot be read
  NoMedia,    ///< the file holds nothing that can be decoded as a video stream
  NoFrames,   ///< a video stream with not one picture
};

/// One open video. Gives the picture of any frame number exactly, in any order: frame n is the nth
/// picture that a decode from the start would show, whichever way it is reached. Decodes ahead on a
/// worker of its own and keeps a bounded store of pictures; the memory budget is shared by all open
/// files of the process. Used from one thread at a time.
class VideoFile {
 public:
  struct Result;

  /// Opens a file and indexes its pictures. Never throws; see Result.
  static Result Open(const std::string& path);
  ~VideoFile();
  VideoFile(const VideoFile&) = delete;
  VideoFile& operator=(const VideoFile&) = delete;

  const VideoInfo& Info() const;

  /// Playing time in milliseconds of the start of frame n; n = frameCount gives the end.
  double SampleToTime(int n) const;
  /// The frame that is shown at a playing time in milliseconds; before the start the first, after the end the last.
  int FrameAtTime(double ms) const;

  /// The picture of frame n with 24 or 32 bits per pixel. A damaged packet gives the nearest picture
  /// that could be decoded before it; no picture at all, an n outside 0 to frameCount - 1, another bit
  /// count, or a file that vanished give an empty view. Never waits longer than the decode needs.
  FrameRows Frame(int n, int bitCount);

 private:
  struct Engine;
  explicit VideoFile(std::unique_ptr<Engine> engine);
  std::unique_ptr<Engine> engine_;
};

struct VideoFile::Result {
  std::unique_ptr<VideoFile> file;    ///< null on any fault
  OpenFault fault = OpenFault::None;
  std::string message;                ///< the library's own words, for a log or a tip
};

/// Only the properties, without a worker or a picture; nothing when the file is no video.
std::unique_ptr<VideoInfo> ReadVideoInfo(const std::string& path);

/// Sets the bytes of decoded pictures that all open files may keep together (default 256 MiB).
void SetPictureBudget(std::size_t bytes);

}  // namespace kinalyx
