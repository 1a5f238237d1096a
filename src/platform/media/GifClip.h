#pragma once

#include <memory>
#include <string>

#include "platform/media/ClipWriter.h"

namespace kinalyx {

/// A loop whose colours are chosen from all its pictures. Only for the sources of this room.
Result<std::unique_ptr<ClipWriter>> MakeGifClip(const std::string& path, const ClipFormat& format);

}  // namespace kinalyx
