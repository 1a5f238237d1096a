#pragma once

#include "platform/media/AvHandles.h"

namespace kinalyx {

/// Opens an encoder for the pictures of a cut: of the source's own kind where there is one and the container takes
/// it, else H.264. Its packets come in the order of the pictures, and their times count pictures. Null when the
/// container takes neither. Only for the sources of this room.
/// @param source   the stream that is cut
/// @param picture  the first one
/// @param rate     pictures per second, on the average
CodecHandle OpenCutEncoder(const AVOutputFormat& format, const AVCodecParameters& source, const AVFrame& picture,
                           AVRational rate);

}  // namespace kinalyx
