#include "core/Numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "platform/files/TextEncoding.h"

namespace kinalyx {

namespace {

std::string_view WithoutBlanks(std::string_view text) { return Trimmed(text, " \t"); }

bool SameWord(std::string_view text, std::string_view lowerCase) {
  return std::equal(text.begin(), text.end(), lowerCase.begin(), lowerCase.end(),
                    [](char a, char b) { return (a >= 'A' && a <= 'Z' ? a + 32 : a) == b; });
}

struct Scan {
  double number = 0;
  std::size_t used = 0;  ///< characters that belong to it
};

Scan ScanNumber(std::string_view text) {
  const char* begin = text.data();
  const char* end = begin + text.size();
  if (text.size() >= 2 && text[0] == '&' && (text[1] == 'H' || text[1] == 'h')) {
    std::uint32_t value = 0;
    const auto [stop, error] = std::from_chars(begin + 2, end, value, 16);
    if (error != std::errc{}) return {};
    const char* after = stop != end && *stop == '&' ? stop + 1 : stop;
    return {static_cast<double>(static_cast<std::int32_t>(value)), static_cast<std::size_t>(after - begin)};
  }
  const bool plus = text.starts_with('+');
  if (plus && text.substr(1).starts_with('-')) return {};
  // from_chars also takes the words inf and nan, which are no numbers here.
  const std::size_t digits = text.find_first_not_of("+-");
  if (digits == std::string_view::npos || (text[digits] != '.' && (text[digits] < '0' || text[digits] > '9')))
    return {};
  double value = 0;
  const auto [stop, error] = std::from_chars(begin + (plus ? 1 : 0), end, value);
  if (error == std::errc::result_out_of_range) {
    value = text.starts_with('-') ? std::numeric_limits<double>::lowest() : std::numeric_limits<double>::max();
  } else if (error != std::errc{}) {
    return {};
  }
  return {value, static_cast<std::size_t>(stop - begin)};
}

template <typename Whole>
Whole Held(double number) {
  constexpr double kLow = std::numeric_limits<Whole>::min();
  constexpr double kHigh = std::numeric_limits<Whole>::max();
  return static_cast<Whole>(std::clamp(std::nearbyint(number), kLow, kHigh));
}

}  // namespace

double ReadNumber(std::string_view text) { return ScanNumber(WithoutBlanks(text)).number; }

std::int32_t ReadInt32(std::string_view text) { return Held<std::int32_t>(ReadNumber(text)); }

std::int16_t ReadInt16(std::string_view text) { return Held<std::int16_t>(ReadNumber(text)); }

std::optional<bool> ReadBoolean(std::string_view text) {
  text = WithoutBlanks(text);
  if (SameWord(text, "true")) return true;
  if (SameWord(text, "false")) return false;
  const Scan scan = ScanNumber(text);
  if (!scan.used || scan.used != text.size()) return std::nullopt;
  return scan.number != 0;
}

}  // namespace kinalyx
