#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

#include "platform/media/RecordingFile.h"

namespace kinalyx {

/// A picture as a file takes it: a camera's own bytes, or JPEG where the camera does not compress.
struct PackedPicture {
  RecordingFormat format;
  std::int64_t ns = 0;                     ///< when the camera took it, nanoseconds of CLOCK_MONOTONIC
  std::shared_ptr<const std::byte> bytes;  ///< keeps them; shared, never changed
  std::size_t size = 0;
};

}  // namespace kinalyx
