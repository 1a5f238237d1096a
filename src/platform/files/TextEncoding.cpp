#include "platform/files/TextEncoding.h"

#include <QChar>
#include <array>
#include <cstdint>
#include <utility>

namespace kinalyx {

namespace {

// What Windows-1252 has at 0x80 to 0x9F; 0 marks the five bytes without a character.
constexpr std::array<std::uint16_t, 32> kHighControls = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

void Append(std::string& text, std::uint32_t code) {
  if (code < 0x80) {
    text += static_cast<char>(code);
  } else if (code < 0x800) {
    text += static_cast<char>(0xC0 | (code >> 6));
    text += static_cast<char>(0x80 | (code & 0x3F));
  } else if (code < 0x10000) {
    text += static_cast<char>(0xE0 | (code >> 12));
    text += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
    text += static_cast<char>(0x80 | (code & 0x3F));
  } else {
    text += static_cast<char>(0xF0 | (code >> 18));
    text += static_cast<char>(0x80 | ((code >> 12) & 0x3F));
    text += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
    text += static_cast<char>(0x80 | (code & 0x3F));
  }
}

struct Character {
  std::uint32_t code = 0;
  std::size_t bytes = 0;  ///< 0: no valid character stands here
};

// Refuses what the standard refuses: overlong forms, surrogates, values past the last plane.
Character Decode(std::string_view text, std::size_t at) {
  const auto byte = [&](std::size_t i) { return static_cast<std::uint8_t>(text[at + i]); };
  const std::uint8_t first = byte(0);
  if (first < 0x80) return {first, 1};
  const std::size_t bytes = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
  if (first < 0xC2 || first > 0xF4 || at + bytes > text.size()) return {};
  std::uint32_t code = first & (0xFF >> (bytes + 1));
  for (std::size_t i = 1; i < bytes; ++i) {
    if ((byte(i) & 0xC0) != 0x80) return {};
    code = (code << 6) | (byte(i) & 0x3F);
  }
  constexpr std::uint32_t kSmallest[] = {0, 0, 0x80, 0x800, 0x10000};
  if (code < kSmallest[bytes] || code > 0x10FFFF || (code >= 0xD800 && code <= 0xDFFF)) return {};
  return {code, bytes};
}

int ByteInWindows1252(std::uint32_t code) {
  if (code < 0x80 || (code >= 0xA0 && code <= 0xFF)) return static_cast<int>(code);
  for (std::size_t i = 0; i < kHighControls.size(); ++i) {
    const std::uint32_t stands = kHighControls[i] ? kHighControls[i] : 0x80 + static_cast<std::uint32_t>(i);
    if (stands == code) return 0x80 + static_cast<int>(i);
  }
  return -1;
}

/// Changes every character that is one.
template <typename Change>
std::string EachCharacter(std::string_view text, Change change) {
  std::string changed;
  changed.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    const Character character = Decode(text, at);
    if (!character.bytes) {
      changed += text[at++];  // a name in another encoding still compares with itself
      continue;
    }
    Append(changed, change(character.code));
    at += character.bytes;
  }
  return changed;
}

}  // namespace

bool IsValidUtf8(std::string_view text) {
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t bytes = Decode(text, at).bytes;
    if (!bytes) return false;
    at += bytes;
  }
  return true;
}

std::string FromWindows1252(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  for (const char c : bytes) {
    const auto byte = static_cast<std::uint8_t>(c);
    const bool special = byte >= 0x80 && byte < 0xA0 && kHighControls[byte - 0x80];
    Append(text, special ? kHighControls[byte - 0x80] : byte);
  }
  return text;
}

std::string ToWindows1252(std::string_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    const Character character = Decode(text, at);
    const int byte = character.bytes ? ByteInWindows1252(character.code) : -1;
    bytes += byte < 0 ? '?' : static_cast<char>(byte);
    at += character.bytes ? character.bytes : 1;
  }
  return bytes;
}

std::string AsUtf8(std::string_view bytes) { return IsValidUtf8(bytes) ? std::string(bytes) : FromWindows1252(bytes); }

std::string FoldCase(std::string_view text) {
  return EachCharacter(text, [](char32_t code) { return QChar::toCaseFolded(code); });
}

std::string LowerCase(std::string_view text) {
  return EachCharacter(text, [](char32_t code) { return QChar::toLower(code); });
}

std::string Capitalized(std::string_view text) {
  bool first = true;
  return EachCharacter(text,
                       [&first](char32_t code) { return std::exchange(first, false) ? QChar::toUpper(code) : code; });
}

std::string_view Trimmed(std::string_view text, std::string_view blanks) {
  const std::size_t first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::string_view CutUtf8(std::string_view text, std::size_t bytes) {
  if (text.size() <= bytes) return text;
  std::size_t end = bytes;
  while (end > 0 && (static_cast<std::uint8_t>(text[end]) & 0xC0) == 0x80) --end;
  return text.substr(0, end);
}

}  // namespace kinalyx
