// Reads any bytes as the playlist and as the page that lie on a server: what is kept of them must be a plain name of a
// video, and must be kept by every send that follows.

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "InputFile.h"
#include "distribution/web/PlayerPage.h"
#include "distribution/web/Playlist.h"
#include "distribution/web/WebNames.h"

namespace {

using namespace kinalyx;

void ReadAsPlaylist(std::string_view text) {
  const std::vector<PlaylistEntry> entries = ReadPlaylist(text);
  fuzz::Require(entries.size() <= 2000);
  std::vector<std::string> addresses;
  for (const PlaylistEntry& entry : entries) {
    fuzz::Require(IsPlainName(entry.name));
    addresses.push_back(entry.address);
  }
  const std::vector<PlaylistEntry> again = ReadPlaylist(WritePlaylist(addresses));
  fuzz::Require(std::ranges::equal(again, entries, {}, &PlaylistEntry::name, &PlaylistEntry::name));
}

void ReadAsPage(std::string_view text) {
  const PlayerPage page = ReadPlayerPage(text);
  fuzz::Require(page.videos.size() <= 2000);
  for (const PageVideo& video : page.videos) {
    fuzz::Require(video.file.starts_with("videos/") && IsPlainName(std::string_view(video.file).substr(7)));
    fuzz::Require(video.frameSeconds >= 0 && video.frameSeconds < 10);
  }
  const PlayerPage again = ReadPlayerPage(WritePlayerPage(page));
  fuzz::Require(std::ranges::equal(again.videos, page.videos, {}, &PageVideo::file, &PageVideo::file));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
  const std::string_view text(reinterpret_cast<const char*>(bytes), count);
  ReadAsPlaylist(text);
  ReadAsPage(text);
  return 0;
}
