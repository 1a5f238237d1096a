#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/media/VideoTrim.h"

namespace kinalyx {

/// The one argument of the program `avitrim`: source, destination, first frame, last frame, rate and mode
/// ("0" copy, "2" recompress), each followed by `*`.
std::string FormatTrimCommand(const TrimRequest& request);

/// Reads it back. A path may hold a `*` itself: the numbers are taken from the end, and of several ways
/// to part the two paths the one whose source exists. Nothing for any other text.
std::optional<TrimRequest> ParseTrimCommand(std::string_view text);

}  // namespace kinalyx
