#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "platform/net/IFileServer.h"

namespace kinalyx {

/// How a server tells what is in a folder.
enum class ListingForm {
  Facts,  ///< MLSD: facts and a name
  Long,   ///< LIST: whatever the server thinks fit; that of Unix and that of DOS are read
  Names,  ///< NLST: bare names
};

struct Listing {
  std::vector<ServerEntry> entries;  ///< names as the server has them, byte for byte
  bool understood = true;            ///< false: there were lines, and not one of them said anything
};

inline constexpr std::size_t kMostEntries = 10'000;

/// Reads what a server has sent, whatever that is. What is no name of an entry (see ServerEntry) is left out, and so is
/// what comes after kMostEntries.
Listing ReadListing(ListingForm form, std::string_view text);

/// Whether a text can be one part of a path on a server.
bool IsServerName(std::string_view name);

}  // namespace kinalyx
