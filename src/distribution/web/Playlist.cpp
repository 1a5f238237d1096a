#include "distribution/web/Playlist.h"

#include <algorithm>

#include "distribution/web/WebNames.h"
#include "platform/files/TextEncoding.h"

namespace kinalyx {
namespace {

constexpr std::string_view kEnding = ".wmv";
constexpr std::size_t kMostEntries = 2000;
constexpr std::size_t kLongestAddress = 2000;
constexpr std::size_t kLongestEntity = 6;  // a letter can stand there as "&quot;"

char Small(char letter) { return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter; }

/// Where `part` begins at or after `from`, without regard to the case of plain letters.
std::size_t FindAnyCase(std::string_view text, std::string_view part, std::size_t from) {
  if (from > text.size()) return std::string_view::npos;
  const auto at = std::search(text.begin() + static_cast<std::ptrdiff_t>(from), text.end(), part.begin(), part.end(),
                              [](char a, char b) { return Small(a) == Small(b); });
  return at == text.end() ? std::string_view::npos : static_cast<std::size_t>(at - text.begin());
}

bool EndsAsVideo(std::string_view name) {
  return name.size() > kEnding.size() && FindAnyCase(name, kEnding, name.size() - kEnding.size()) != std::string::npos;
}

/// What the text of one entry names; without a name for anything that must not be taken over.
PlaylistEntry ReadEntry(std::string_view entry) {
  constexpr std::string_view kHref = "href=\"";
  const std::size_t begin = FindAnyCase(entry, kHref, 0);
  if (begin == std::string_view::npos) return {};
  const std::size_t from = begin + kHref.size();
  const std::size_t end = entry.find('"', from);
  if (end == std::string_view::npos || end - from > kLongestAddress * kLongestEntity) return {};
  PlaylistEntry found;
  found.address = AsUtf8(UnescapeText(entry.substr(from, end - from)));
  if (found.address.size() > kLongestAddress) return {};
  const std::string name = DecodePath(std::string_view(found.address).substr(found.address.rfind('/') + 1));
  const bool known = found.address.find("://") == std::string::npos || found.address.starts_with("http://") ||
                     found.address.starts_with("https://") || found.address.starts_with("mms://");
  if (known && IsPlainName(name) && EndsAsVideo(name)) found.name = name;
  return found;
}

}  // namespace

std::string WritePlaylist(std::span<const std::string> addresses) {
  std::string text = "<ASX version =\"3.0\">\r\n";
  for (const std::string& address : addresses)
    text += "<Entry>\r\n<Ref href=\"" + EscapeText(address) + "\"/>\r\n</Entry>\r\n";
  return text + "</ASX>\r\n";
}

std::vector<PlaylistEntry> ReadPlaylist(std::string_view text) {
  constexpr std::string_view kBegin = "<Entry>";
  constexpr std::string_view kEnd = "</Entry>";
  std::vector<PlaylistEntry> entries;
  std::size_t at = 0;
  while (entries.size() < kMostEntries && (at = FindAnyCase(text, kBegin, at)) != std::string_view::npos) {
    at += kBegin.size();
    const std::size_t end = FindAnyCase(text, kEnd, at);
    if (end == std::string_view::npos) break;
    PlaylistEntry entry = ReadEntry(text.substr(at, end - at));
    at = end + kEnd.size();
    if (!entry.name.empty() && std::ranges::find(entries, entry.name, &PlaylistEntry::name) == entries.end())
      entries.push_back(std::move(entry));
  }
  return entries;
}

}  // namespace kinalyx
