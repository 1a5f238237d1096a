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
  if (failed || space.capacity == 0 || space.available == 0)
    return {false, 0, "0% Free", "Disk Full or Not Available"};
  const double part = static_cast<double>(space.available) / static_cast<double>(space.capacity);
  const int percent = static_cast<int>(std::lrint(part * 100));
  return {true, percent, std::to_string(percent) + " % Free", {}};
}

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

}  // namespace

std::vector<std::string> RemoveableDrivesIn(std::string_view mounts) {
  constexpr std::array<std::string_view, 3> kPlaces = {"/media/", "/run/media/", "/mnt/"};
  std::vector<std::string> drives;
  while (!mounts.empty()) {
    const std::string_view line = mounts.substr(0, mounts.find('\n'));
    mounts.remove_prefix(std::min(line.size() + 1, mounts.size()));
    const std::size_t begin = line.find(' ');
    if (begin == std::string_view::npos) continue;
    std::string path = Unescaped(line.substr(begin + 1, line.find(' ', begin + 1) - begin - 1));
    const bool comesAndGoes = std::ranges::any_of(kPlaces, [&](std::string_view place) { return path.starts_with(place); });
    if (comesAndGoes && std::ranges::find(drives, path) == drives.end()) drives.push_back(std::move(path));
  }
  return drives;
}

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
