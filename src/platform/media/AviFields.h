#pragma once

#include "platform/media/AvHandles.h"
#include "platform/media/FileInput.h"

namespace kinalyx {

/// What the head of an AVI file tells of the fields of a stream, which the library passes over. Unknown where it tells
/// nothing, or nothing that makes sense.
AVFieldOrder FieldsToldByAvi(const FileInput& file, int stream);

}  // namespace kinalyx
