#pragma once

#include <memory>
#include <string>

#include "platform/files/Result.h"

namespace burn {
struct burn_drive;
struct burn_drive_info;
}  // namespace burn

namespace kinalyx {

/// A drive that libburn holds for this program alone, until this goes out of scope.
class HeldDrive {
 public:
  /// @param address  as libburn takes it: "/dev/sr0", "stdio:/tmp/image.iso"
  /// @param load     closes an open tray
  static Result<std::unique_ptr<HeldDrive>> Hold(const std::string& address, bool load);
  ~HeldDrive();
  HeldDrive(const HeldDrive&) = delete;
  HeldDrive& operator=(const HeldDrive&) = delete;

  burn::burn_drive* Get() const;
  /// Opens the tray when the drive is let go.
  void EjectWhenLeft() { eject_ = true; }

 private:
  explicit HeldDrive(burn::burn_drive_info* infos) : infos_(infos) {}

  burn::burn_drive_info* infos_;
  bool eject_ = false;
};

/// Makes the disc libraries ready for the whole process; again and again is fine. False when they refuse.
bool DiscLibraries();
/// What libburn and libisofs have complained of since it was asked last: the first that is as bad as a failure, in the
/// libraries' words; empty when all is well.
std::string DiscComplaint();

}  // namespace kinalyx
