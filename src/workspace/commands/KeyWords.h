#pragma once

#include <string>

namespace kinalyx {

struct Command;

/// The caption without a key, and its first key after a tab.
std::string CaptionInColumns(const Command& command);
/// The caption of its menu entry: the same, or as it is where it names its key and no column is wanted.
std::string CaptionWithKey(const Command& command);
/// The tip of its button, "Line (F4)".
std::string TipWithKey(const Command& command);

}  // namespace kinalyx
