#include "library/DiskSpace.h"

#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>
#include <utility>

namespace kinalyx {

DiskSpace DiskSpaceGauge(const std::string& path) {
  std::error_code failed;
  const auto space = std::filesystem::space(path, failed);
  if (failed || space.capacity == 0 || space.available == 0) return {false, 0, "0% Free", "Disk Full or Not Available"};
  const double part = static_cast<double>(space.available) / static_cast<double>(space.capacity);
  const int percent = static_cast<int>(std::lrint(part * 100));
  return {true, percent, std::to_string(percent) + " % Free", {}};
}

DiskSpace SilentDiskSpace() { return {false, 0, "0% Free", "The drive is not answering."}; }

std::string RemoveableDiskText(const std::string& path) {
  std::error_code failed;
  const auto space = std::filesystem::space(path, failed);
  if (failed || space.capacity == 0) return "Drive Error";
  if (space.available == 0) return "No Available space on removeable disk";
  return "Available space on removeable disk " + DiskSpaceGauge(path).Label6;
}

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

/// One line of the list of mounts.
struct Mount {
  std::string_view source;
  std::string path;
  std::string_view type;

  /// A drive or a share, and no file system that the kernel makes up.
  bool HoldsFiles() const {
    constexpr std::array<std::string_view, 6> kShares = {"nfs", "nfs4", "cifs", "smb3", "davfs", "fuse.sshfs"};
    return source.starts_with("/dev/") || std::ranges::find(kShares, type) != kShares.end();
  }
  bool ComesAndGoes() const {
    constexpr std::array<std::string_view, 3> kPlaces = {"/media/", "/run/media/", "/mnt/"};
    return std::ranges::any_of(kPlaces, [this](std::string_view place) { return path.starts_with(place); });
  }
};

std::string_view TakeUntil(std::string_view& text, char end) {
  const std::string_view part = text.substr(0, text.find(end));
  text.remove_prefix(std::min(part.size() + 1, text.size()));
  return part;
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

}  // namespace

std::vector<std::string> RemoveableDrivesIn(std::string_view text) {
  const std::vector<Mount> mounts = MountsIn(text);
  const auto system = std::ranges::find(mounts, "/", &Mount::path);
  std::vector<std::string> drives;
  for (const Mount& mount : mounts) {
    // What the system's own drive shows at a second place is no other drive.
    const bool ofSystem = system != mounts.end() && mount.source == system->source;
    if (mount.HoldsFiles() && mount.ComesAndGoes() && !ofSystem &&
        std::ranges::find(drives, mount.path) == drives.end())
      drives.push_back(mount.path);
  }
  return drives;
}

// Not by QStorageInfo: that asks each drive how full it is, and hangs with the first that does not answer.
std::vector<std::string> RemoveableDrives() {
  std::ifstream file("/proc/self/mounts");
  return RemoveableDrivesIn(std::string(std::istreambuf_iterator<char>(file), {}));
}

bool IsSystemDrive(const std::string& path) {
  struct stat place {};
  struct stat system {};
  return ::stat(path.c_str(), &place) == 0 && ::stat("/", &system) == 0 && place.st_dev == system.st_dev;
}

}  // namespace kinalyx
