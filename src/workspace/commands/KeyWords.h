#pragma once

#include <string>

namespace kinalyx {

struct Command;

/// The caption of its menu entry, with its first key after a tab where the caption does not name one.
std::string CaptionWithKey(const Command& command);
/// The tip of its button, "Line (F4)".
std::string TipWithKey(const Command& command);

}  // namespace kinalyx
