#include "library/Mounts.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <utility>

namespace kinalyx {

namespace {

/// A path as the list of mounts writes it: a blank in it stands as "\040".
std::string Unescaped(std::string_view text) {
  std::string path;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const auto isOctal = [](char c) { return c >= '0' && c <= '7'; };
    if (text[at] == '\\' && at + 3 < text.size() && std::ranges::all_of(text.substr(at + 1, 3), isOctal)) {
      path += static_cast<char>((text[at + 1] - '0') * 64 + (text[at + 2] - '0') * 8 + text[at + 3] - '0');
      at += 3;
    } else {
      path += text[at];
    }
  }
  return path;
}

std::string_view TakeUntil(std::string_view& text, char end) {
  const std::string_view part = text.substr(0, text.find(end));
  text.remove_prefix(std::min(part.size() + 1, text.size()));
  return part;
}

}  // namespace

bool Mount::HoldsFiles() const {
  constexpr std::array<std::string_view, 6> kShares = {"nfs", "nfs4", "cifs", "smb3", "davfs", "fuse.sshfs"};
  return source.starts_with("/dev/") || std::ranges::find(kShares, type) != kShares.end();
}

std::vector<Mount> MountsIn(std::string_view text) {
  std::vector<Mount> mounts;
  while (!text.empty()) {
    std::string_view line = TakeUntil(text, '\n');
    Mount mount;
    mount.source = TakeUntil(line, ' ');
    mount.path = Unescaped(TakeUntil(line, ' '));
    mount.type = TakeUntil(line, ' ');
    mounts.push_back(std::move(mount));
  }
  return mounts;
}

std::string MountsText() {
  std::ifstream file("/proc/self/mounts");
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace kinalyx
