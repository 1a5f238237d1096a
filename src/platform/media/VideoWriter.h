#pragma once

#include <memory>
#include <string>

#include "platform/files/Result.h"
#include "platform/paint/PixelOps.h"

namespace kinalyx {

/// How a video is written. All kinds go into an AVI file.
struct VideoFormat {
  enum class Codec { Dv, Mjpeg, H264, RawRgb };

  Codec codec = Codec::Mjpeg;
  int width = 640;
  int height = 480;
  int rate = 30;  ///< pictures per `scale` seconds
  int scale = 1;
  int keyInterval = 250;          ///< H.264: pictures from one key frame to the next
  int bFrames = 2;                ///< H.264: pictures between two references
  int quality = 4;                ///< MJPEG: 1 best to 31; H.264: used as constant rate factor times 5
  bool bottomFieldFirst = false;  ///< DV: the pictures are interlaced, bottom field first
  std::string fourCC;             ///< overrides the codec's usual code when 4 characters long
};

/// Writes pictures into a new video file. The file is written beside its final name and renamed by
/// Close, so a half-written video never stands under it.
class VideoWriter {
 public:
  /// Fails when the file or the codec cannot be opened.
  static Result<std::unique_ptr<VideoWriter>> Create(const std::string& path, const VideoFormat& format);
  /// Without Close, removes what was written.
  ~VideoWriter();

  /// Appends one picture of the format's size, 24 or 32 bits; false on a wrong size or a failing disk.
  bool Write(const PixelRows& picture);
  /// Finishes the file; false when the disk refused something, and then no file is left.
  bool Close();

 private:
  struct Engine;
  explicit VideoWriter(std::unique_ptr<Engine> engine);
  std::unique_ptr<Engine> engine_;
};

}  // namespace kinalyx
