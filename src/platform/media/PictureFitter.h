#pragma once

#include "platform/media/AvHandles.h"

namespace kinalyx {

/// Gives pictures of any kind the format and size that an encoder wants. Only for the sources of this room.
class PictureFitter {
 public:
  PictureFitter(AVPixelFormat format, int width, int height) : format_(format), width_(width), height_(height) {}

  /// The picture itself where it fits, else a changed one, good until the next call; null without memory.
  const AVFrame* Fit(const AVFrame& picture);

 private:
  AVPixelFormat format_;
  int width_;
  int height_;
  ScalerHandle scaler_;
  FrameHandle fitted_;
};

}  // namespace kinalyx
