#pragma once

#include <cstdint>
#include <vector>

#include "platform/media/AvHandles.h"
#include "platform/media/RowConverter.h"

namespace kinalyx {

/// Makes of decoded pictures those of a video for the web: upright, in square pixels, of one size, planes of 4:2:0 with
/// brightness from 16 to 235. Of two fields the first is taken alone, brought to the whole height: a browser would show
/// both at once, as a comb. Only for the sources of this room.
class WebPictures {
 public:
  /// @param fields  the pictures hold two fields each; `topFirst` says which one was taken first
  WebPictures(PictureShape shape, PictureSize size, bool fields, bool topFirst)
      : shape_(shape), size_(size), fields_(fields), first_(topFirst ? 0 : 1), rows_(shape) {}

  /// The size of pictures that are made of upright ones of this size: inside 1280 x 720, or 720 x 1280 where they
  /// stand, never larger than they come; even sides.
  static PictureSize SizeFor(PictureSize upright);
  /// The colours that Make gives of pictures like this one.
  AVColorSpace ColoursOf(const AVFrame& picture) const;

  /// A picture of the caller's own, or the given one itself where it is right as it is; null when it cannot be
  /// converted, or without memory.
  FrameHandle Make(const AVFrame& picture);

 private:
  struct Planes {
    const std::uint8_t* bits[3];
    int pitch[3];
    int width[3];
    int height[3];
  };
  bool IsPlanar(const AVFrame& picture) const;
  FrameHandle NewPicture(PictureSize size) const;
  Planes PlanesOf(const AVFrame& picture) const;
  FrameHandle FromPlanes(const AVFrame& picture);
  FrameHandle FromRows(const AVFrame& picture);

  PictureShape shape_;
  PictureSize size_;
  bool fields_;
  int first_;
  RowConverter rows_;
  std::vector<std::uint8_t> upright_;
  std::vector<std::uint8_t> scaled_;
};

}  // namespace kinalyx
