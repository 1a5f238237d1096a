#pragma once

#include <string_view>

#include "platform/media/Conversion.h"

namespace kinalyx {

/// The way in which a video is brought into a working format.
struct ConversionTemplate {
  std::string_view name;
  ConversionRequest::Codec codec = ConversionRequest::Codec::Mjpeg;
  bool sharpen = false;
};

/// Chooses among nine, by what the source is.
/// @param file   its name; only the last three letters count, in either case
/// @param codec  of its pictures, the four characters as the file has them
/// @param width  of its pictures, pixels: 720 and more are made tape, less keep their size
/// @param edge   tape is sharpened a little
ConversionTemplate ChooseTemplate(std::string_view file, std::string_view codec, int width, bool edge);

}  // namespace kinalyx
