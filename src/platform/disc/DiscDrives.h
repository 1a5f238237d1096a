#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/disc/IDiscDrive.h"

namespace kinalyx {

/// A drive as a list shows it.
struct DriveName {
  std::string Address;  ///< "/dev/sr0"
  std::string Name;     ///< "PIONEER BD-RW (sr0)"
};

/// The drives of this machine that write discs. It asks the system and touches no drive.
/// @param system   where the kernel tells of its devices
/// @param devices  where they can be opened
std::vector<DriveName> DiscDrives(const std::string& system = "/sys", const std::string& devices = "/dev");

/// The address of a file that is written like a disc.
std::string AddressOfImage(const std::string& path);
/// The path of such an address; empty for a real drive.
std::string ImageOfAddress(const std::string& address);

/// The drive of an address. It is opened by its operations alone.
std::unique_ptr<IDiscDrive> DriveAt(const std::string& address);

/// Where drives come from; a test passes its own.
class IDiscDrives {
 public:
  virtual ~IDiscDrives() = default;
  virtual std::vector<DriveName> List() = 0;
  virtual std::unique_ptr<IDiscDrive> At(const std::string& address) = 0;
};

/// Those of this machine.
class MachineDrives final : public IDiscDrives {
 public:
  std::vector<DriveName> List() override { return DiscDrives(); }
  std::unique_ptr<IDiscDrive> At(const std::string& address) override { return DriveAt(address); }
};

}  // namespace kinalyx
