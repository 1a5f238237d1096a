#pragma once

#include <string>
#include <vector>

namespace kinalyx {

/// A kind of pictures that cameras and programs store, and what the libraries of this machine make of it.
struct MediaFormat {
  std::string name;   ///< "H.264 (AVC)"
  std::string where;  ///< who stores it, in the user's language: "telephones, action cameras"
  bool reads = false;
  bool writes = false;
};

/// The kinds that are met with in practice, the commonest first, as the libraries tell.
std::vector<MediaFormat> KnownFormats();

}  // namespace kinalyx
