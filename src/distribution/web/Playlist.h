#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kinalyx {

/// A file of a playlist.
struct PlaylistEntry {
  std::string address;  ///< as it stands in the list, whole and encoded
  std::string name;     ///< of the file, decoded: "Swing.wmv"
  bool operator==(const PlaylistEntry&) const = default;
};

/// The playlist `playlist.wvx`, which Windows Media Player plays from the first to the last.
std::string WritePlaylist(std::span<const std::string> addresses);

/// The entries of a playlist that WritePlaylist, or an earlier program, has written; of any other text none, or what
/// looks like them. At most 2000, each file once, and only those whose file is a plain name that ends in ".wmv": the
/// text comes from a server.
std::vector<PlaylistEntry> ReadPlaylist(std::string_view text);

}  // namespace kinalyx
