#pragma once

#include <string>
#include <string_view>

namespace kinalyx {

/// Brings together what two have made of one text, line by line: what one of them has left alone follows the
/// other, also where it was taken away. Where both have changed the same lines, the lines of both are kept,
/// those that they share once.
/// @param base  what both had before them
/// @return lines ended as those of `mine` are, or of `theirs` where it has none
std::string MergeTexts(std::string_view base, std::string_view mine, std::string_view theirs);

}  // namespace kinalyx
