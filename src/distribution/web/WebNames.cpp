#include "distribution/web/WebNames.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

#include "platform/files/TextEncoding.h"

namespace kinalyx {
namespace {

constexpr std::string_view kRemoved = "\\/:*?\"<>|!@#$%^&+={}[]~`;' ";
constexpr std::string_view kWideBlanks[] = {"\xC2\xA0",
                                            "\xE3\x80\x80"};  // that cannot be broken, and of a wide alphabet
constexpr std::size_t kLongestWebName = 200;                  // bytes: an ending and a number still fit
constexpr std::size_t kLongestName = 255;

constexpr std::pair<std::string_view, char> kEntities[] = {
    {"&amp;", '&'}, {"&lt;", '<'}, {"&gt;", '>'}, {"&quot;", '"'}, {"&#39;", '\''}};

bool IsControl(char letter) { return static_cast<unsigned char>(letter) < ' ' || letter == 0x7f; }

bool IsPlainLetter(char letter) {
  const bool isLetter = (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z');
  return isLetter || (letter >= '0' && letter <= '9') ||
         std::string_view("-._~/").find(letter) != std::string_view::npos;
}

}  // namespace

std::string CleanWebName(std::string_view text) {
  const std::string whole = AsUtf8(text);
  std::string name;
  for (std::string_view rest = whole; !rest.empty();) {
    const auto wide =
        std::ranges::find_if(kWideBlanks, [&](std::string_view blank) { return rest.starts_with(blank); });
    if (wide != std::end(kWideBlanks)) {
      rest.remove_prefix(wide->size());
      continue;
    }
    const char letter = rest.front();
    rest.remove_prefix(1);
    const bool removed = IsControl(letter) || kRemoved.find(letter) != std::string_view::npos;
    if (!removed && !(letter == '.' && name.empty())) name += letter;
  }
  return std::string(CutUtf8(name, kLongestWebName));
}

std::string EncodePath(std::string_view path) {
  std::string encoded;
  for (const char letter : path)
    if (IsPlainLetter(letter)) encoded += letter;
    else encoded += fmt::format("%{:02X}", static_cast<unsigned char>(letter));
  return encoded;
}

std::string DecodePath(std::string_view text) {
  std::string decoded;
  for (std::size_t i = 0; i < text.size(); ++i) {
    unsigned value = 0;
    const std::string_view digits = text[i] == '%' ? text.substr(i + 1, 2) : std::string_view();
    const char* const end = digits.data() + digits.size();
    if (digits.size() == 2 && std::from_chars(digits.data(), end, value, 16).ptr == end) {
      decoded += static_cast<char>(value);
      i += 2;
    } else {
      decoded += text[i];
    }
  }
  return decoded;
}

std::string EscapeText(std::string_view text) {
  std::string escaped;
  for (const char letter : AsUtf8(text)) {
    const auto entity = std::ranges::find(kEntities, letter, [](const auto& one) { return one.second; });
    if (entity != std::end(kEntities)) escaped += entity->first;
    else escaped += IsControl(letter) ? ' ' : letter;
  }
  return escaped;
}

std::string UnescapeText(std::string_view text) {
  std::string plain;
  while (!text.empty()) {
    const auto entity = std::ranges::find_if(kEntities, [&](const auto& one) { return text.starts_with(one.first); });
    const bool found = entity != std::end(kEntities);
    plain += found ? entity->second : text.front();
    text.remove_prefix(found ? entity->first.size() : 1);
  }
  return plain;
}

bool IsPlainName(std::string_view name) {
  if (name.empty() || name == "." || name == ".." || name.size() > kLongestName || !IsValidUtf8(name)) return false;
  return std::ranges::none_of(name, [](char letter) { return letter == '/' || letter == '\\' || IsControl(letter); });
}

}  // namespace kinalyx
