#include "platform/net/ServerPath.h"

#include <fmt/format.h>

#include <algorithm>

#include "platform/files/Folders.h"
#include "platform/files/PartFiles.h"
#include "platform/files/TextEncoding.h"
#include "platform/net/CurlSession.h"
#include "platform/net/ListingReader.h"

namespace kinalyx {

Result<std::vector<std::string>> PartsOf(const std::string& path) {
  std::vector<std::string> parts;
  if (path.empty()) return parts;
  for (std::size_t begin = 0; begin <= path.size();) {
    const std::size_t end = std::min(path.find('/', begin), path.size());
    const std::string part = path.substr(begin, end - begin);
    if (!IsServerName(part))
      return Outcome(Fault::Refused, fmt::format("\"{}\" is no name for a file or folder on a server.",
                                                 CleanWords(part.empty() ? path : part, {})));
    parts.push_back(part);
    begin = end + 1;
  }
  return parts;
}

std::string PartNameOnServer(const std::string& name) {
  // Without the dot in front: some servers take no hidden files.
  constexpr std::size_t kLongest = 150;
  return LastName(PartNameBeside(std::string(CutUtf8(name, kLongest)))).substr(1);
}

}  // namespace kinalyx
