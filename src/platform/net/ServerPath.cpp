#include "platform/net/ServerPath.h"

#include <fmt/format.h>

#include <algorithm>

#include "platform/files/Folders.h"
#include "platform/files/PartFiles.h"
#include "platform/files/TextEncoding.h"
#include "platform/files/Tr.h"
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
      return Outcome(Fault::Refused, Tr("\"{}\" is no name for a file or folder on a server.",
                                        CleanWords(part.empty() ? path : part, {})));
    parts.push_back(part);
    begin = end + 1;
  }
  return parts;
}

namespace {

constexpr std::string_view kPartEnding = ".part";

/// What the name of a part begins with.
std::string StartOfPart(const std::string& name) {
  constexpr std::size_t kLongest = 150;
  return std::string(CutUtf8(name, kLongest));
}

}  // namespace

std::string PartNameOnServer(const std::string& name) {
  // Without the dot in front: some servers take no hidden files.
  return LastName(PartNameBeside(StartOfPart(name))).substr(1);
}

bool IsPartNameOf(const std::string& part, const std::string& name) {
  static const std::string kMade = PartNameOnServer("x");
  const std::string start = StartOfPart(name);
  if (!part.starts_with(start) || part.size() != start.size() + kMade.size() - 1 || !part.ends_with(kPartEnding))
    return false;
  const std::string own = part.substr(start.size(), part.size() - start.size() - kPartEnding.size());
  return own.starts_with('.') && own.find_first_not_of("0123456789abcdef", 1) == std::string::npos;
}

}  // namespace kinalyx
