#pragma once

#include <cstdint>
#include <vector>

#include "platform/media/AvHandles.h"
#include "platform/media/RowConverter.h"

namespace kinalyx {

/// The form in which an encoder is to get the pictures of a video.
struct PictureForm {
  AVPixelFormat format = AV_PIX_FMT_YUVJ422P;  ///< this, YUVJ420P, or YUV411P, which is tape's
  int width = 0;
  int height = 0;
  bool sharpen = false;                                                     ///< a little
  enum class Fields { None, TopFirst, BottomFirst } fields = Fields::None;  ///< of the pictures that come in
};

/// Brings decoded pictures into the form that an encoder takes, upright, in square pixels and in the colours that a
/// player shows: what is kept is what is seen. The rows of two fields are never mixed, and on tape, which knows only
/// the lower field first, a picture whose upper field is first stands one row lower. Only for the sources of this room.
class ConversionPictures {
 public:
  ConversionPictures(PictureShape shape, const PictureForm& form) : form_(form), rows_(shape) {}

  /// A picture of the caller's own; null when it cannot be converted, or without memory.
  FrameHandle Make(const AVFrame& picture);

 private:
  struct Argb {
    const std::uint8_t* bits;  ///< of the top row
    int stride;
  };
  bool Scale(const FrameRows& rows, std::uint8_t* to, int stride) const;
  bool ToPlanes(Argb from, AVFrame& to);
  bool ToTape(Argb from, AVFrame& to);
  void Sharpen(AVFrame& picture);

  PictureForm form_;
  RowConverter rows_;
  std::vector<std::uint8_t> upright_;
  std::vector<std::uint8_t> scaled_;
  std::vector<std::uint8_t> chroma_;  ///< of half the width, on the way to a quarter
  std::vector<std::uint8_t> before_;  ///< brightness as it was before it was sharpened
};

}  // namespace kinalyx
