#include "library/DiskSpace.h"

#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <system_error>

#include "library/Mounts.h"
#include "platform/files/Tr.h"

namespace kinalyx {

DiskSpace DiskSpaceGauge(const std::string& path) {
  std::error_code failed;
  const auto space = std::filesystem::space(path, failed);
  if (failed || space.capacity == 0 || space.available == 0)
    return {false, 0, Tr("0% Free"), Tr("Disk Full or Not Available")};
  const double part = static_cast<double>(space.available) / static_cast<double>(space.capacity);
  const int percent = static_cast<int>(std::lrint(part * 100));
  return {true, percent, Tr("{} % Free", percent), {}};
}

DiskSpace SilentDiskSpace() { return {false, 0, Tr("0% Free"), Tr("The drive is not answering.")}; }

std::string RemoveableDiskText(const std::string& path) {
  std::error_code failed;
  const auto space = std::filesystem::space(path, failed);
  if (failed || space.capacity == 0) return Tr("Drive Error");
  if (space.available == 0) return Tr("No Available space on removeable disk");
  return Tr("Available space on removeable disk {}", DiskSpaceGauge(path).Label6);
}

namespace {

bool ComesAndGoes(const Mount& mount) {
  constexpr std::array<std::string_view, 3> kPlaces = {"/media/", "/run/media/", "/mnt/"};
  return std::ranges::any_of(kPlaces, [&](std::string_view place) { return mount.path.starts_with(place); });
}

}  // namespace

std::vector<std::string> RemoveableDrivesIn(std::string_view text) {
  const std::vector<Mount> mounts = MountsIn(text);
  const auto system = std::ranges::find(mounts, "/", &Mount::path);
  std::vector<std::string> drives;
  for (const Mount& mount : mounts) {
    // What the system's own drive shows at a second place is no other drive.
    const bool ofSystem = system != mounts.end() && mount.source == system->source;
    if (mount.HoldsFiles() && ComesAndGoes(mount) && !ofSystem && std::ranges::find(drives, mount.path) == drives.end())
      drives.push_back(mount.path);
  }
  return drives;
}

// Not by QStorageInfo: that asks each drive how full it is, and hangs with the first that does not answer.
std::vector<std::string> RemoveableDrives() { return RemoveableDrivesIn(MountsText()); }

bool IsSystemDrive(const std::string& path) {
  struct stat place {};
  struct stat system {};
  return ::stat(path.c_str(), &place) == 0 && ::stat("/", &system) == 0 && place.st_dev == system.st_dev;
}

}  // namespace kinalyx
