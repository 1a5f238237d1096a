#pragma once

#include <span>

#include "capture/CaptureState.h"

namespace kinalyx {

/// The five kinds in the order in which they are offered.
std::span<const SourceWords> SourceKinds();
/// The words of one kind; those of manual import for a number that no kind has.
const SourceWords& WordsOf(SourceKind kind);

}  // namespace kinalyx
