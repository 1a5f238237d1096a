#include "library/DiskSpace.h"

#include <sys/stat.h>

#include <cmath>
#include <filesystem>
#include <system_error>

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

bool IsSystemDrive(const std::string& path) {
  struct stat place {};
  struct stat system {};
  return ::stat(path.c_str(), &place) == 0 && ::stat("/", &system) == 0 && place.st_dev == system.st_dev;
}

}  // namespace kinalyx
