#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/files/Tr.h"

namespace kinalyx {

/// What `DiskSpaceGauge` shows of a drive.
struct DiskSpace {
  bool available = false;
  int percentFree = 0;  ///< 0 to 100, for the bar `SpaceFlood`
  std::string Label6;   ///< "37 % Free", or "0% Free" when the drive fails
  std::string message;  ///< "Disk Full or Not Available" when the drive fails, else empty

  /// There is little room for videos.
  bool Little() const { return percentFree < 10; }
};
/// A drive that does not answer.
DiskSpace SilentDiskSpace();

/// Looks at the drive that holds `path`; a path that is not there is a drive that fails.
DiskSpace DiskSpaceGauge(const std::string& path);

/// What the copy panel shows of a removeable disk: the percentage, or why there is none.
std::string RemoveableDiskText(const std::string& path);

inline constexpr const char* kReadingDisk = TrLater("Reading from specified Removeable disk. Please Wait....");

/// Where drives that come and go are mounted, in the order in which they were: sticks, cards, shares. What
/// the kernel makes up, and other views of the system's own drive, are left out.
std::vector<std::string> RemoveableDrives();
/// The same from the text of a list of mounts.
std::vector<std::string> RemoveableDrivesIn(std::string_view text);

/// True when a folder lies on the drive from which the system runs: what the program calls the C drive.
bool IsSystemDrive(const std::string& path);

}  // namespace kinalyx
