#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace kinalyx {

/// The number at the beginning of a text, 0 when there is none: blanks are passed over, and reading stops
/// at the first character that belongs to no number. Takes `&H` hexadecimal with an optional `&` behind,
/// read as 32 bits.
double ReadNumber(std::string_view text);

/// The same rounded to the nearest whole number, ties to even, and held within the type's range.
std::int32_t ReadInt32(std::string_view text);
std::int16_t ReadInt16(std::string_view text);

/// "True" and "False" in any case, or a number, where only 0 is false; nothing for any other text.
std::optional<bool> ReadBoolean(std::string_view text);

}  // namespace kinalyx
