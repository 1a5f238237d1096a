#include "capture/RemoteKeys.h"

#include <algorithm>
#include <array>

namespace kinalyx {
namespace {

using std::string_view_literals::operator""sv;

constexpr std::array kNames{"PageDown"sv, "B"sv, "F5"sv, "Period"sv};
constexpr std::size_t kStandard = 2;  ///< of them
constexpr std::string_view kNone = "None";

}  // namespace

std::span<const std::string_view> RemoteKeyNames() { return kNames; }

std::vector<bool> RemoteKeysOf(std::string_view setting) {
  std::vector<bool> on(kNames.size(), false);
  if (setting == kNone) return on;
  std::string_view rest = setting;
  while (!rest.empty()) {
    const std::size_t comma = std::min(rest.find(','), rest.size());
    std::string_view word = rest.substr(0, comma);
    rest.remove_prefix(std::min(comma + 1, rest.size()));
    while (word.starts_with(' ')) word.remove_prefix(1);
    const auto found = std::ranges::find(kNames, word);
    if (found != kNames.end()) on[static_cast<std::size_t>(found - kNames.begin())] = true;
  }
  if (std::ranges::none_of(on, [](bool key) { return key; })) std::fill_n(on.begin(), kStandard, true);
  return on;
}

std::string RemoteKeysText(const std::vector<bool>& on) {
  std::string text;
  for (std::size_t i = 0; i < kNames.size() && i < on.size(); ++i) {
    if (!on[i]) continue;
    if (!text.empty()) text += ", ";
    text += kNames[i];
  }
  return text.empty() ? std::string(kNone) : text;
}

}  // namespace kinalyx
