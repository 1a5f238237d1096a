#pragma once

#include <cstdint>

#include "platform/media/AvHandles.h"
#include "platform/media/LessonFile.h"

namespace kinalyx {

// The encoders of a lesson. Only for the sources of this room; null where the library lacks one.

/// Its times count pictures; it keeps their order.
CodecHandle OpenLessonPictures(const LessonFormat& format);
/// Its times count samples.
CodecHandle OpenLessonVoice(LessonKind kind);

}  // namespace kinalyx
