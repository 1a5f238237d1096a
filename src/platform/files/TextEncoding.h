#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kinalyx {

bool IsValidUtf8(std::string_view text);
/// Windows-1252 bytes as UTF-8; the five unassigned bytes become the control characters of that value.
std::string FromWindows1252(std::string_view bytes);
/// UTF-8 as Windows-1252, one byte per character; what does not fit becomes '?'.
std::string ToWindows1252(std::string_view text);
/// UTF-8 as it stands, anything else taken as Windows-1252.
std::string AsUtf8(std::string_view bytes);
/// Lower case for comparing: ASCII and the Latin letters with accents; other characters stay.
std::string FoldCase(std::string_view text);
/// The longest beginning of at most `bytes` bytes that does not cut a character in two.
std::string_view CutUtf8(std::string_view text, std::size_t bytes);

}  // namespace kinalyx
