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
/// For comparing without regard to case, in all alphabets; character by character, so the length in
/// characters stays. Bytes that are no UTF-8 stay as they are.
std::string FoldCase(std::string_view text);
/// Small letters for showing, likewise.
std::string LowerCase(std::string_view text);
/// The first letter as a capital, for showing.
std::string Capitalized(std::string_view text);
/// A text without the blanks (or other characters, as given) at its two ends; a view into it.
std::string_view Trimmed(std::string_view text, std::string_view blanks);
/// The longest beginning of at most `bytes` bytes that does not cut a character in two.
std::string_view CutUtf8(std::string_view text, std::size_t bytes);

}  // namespace kinalyx
