#include "distribution/updates/VersionsReader.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>

namespace kinalyx {
namespace {

constexpr std::string_view kTag = "KNX1";

}  // namespace

std::string ProductVersion::Text() const { return fmt::format("{}.{}.{}", major, minor, build); }

std::optional<ProductVersion> ReadVersion(std::string_view text, char between) {
  ProductVersion version;
  bool any = false;
  for (int* part : {&version.major, &version.minor, &version.build}) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), *part);
    if (error != std::errc() || *part < 0) return std::nullopt;
    any = true;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    if (!text.starts_with(between)) break;
    text.remove_prefix(1);
  }
  return any ? std::optional(version) : std::nullopt;
}

std::optional<ProductVersion> ReadVersions(std::string_view text) {
  for (std::size_t at = text.find(kTag); at != std::string_view::npos; at = text.find(kTag, at + 1)) {
    if (at + kTag.size() >= text.size()) break;
    const std::string_view rest = text.substr(at + kTag.size() + 1);
    const std::string_view record = rest.substr(0, rest.find_first_not_of("0123456789:"));
    // All three stand there, or it is no record.
    if (std::ranges::count(record, ':') < 2) continue;
    if (auto version = ReadVersion(record, ':')) return version;
  }
  return std::nullopt;
}

}  // namespace kinalyx
