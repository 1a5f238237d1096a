#include "platform/disc/BurningDrive.h"

#include "platform/disc/BurnRun.h"
#include "platform/disc/HeldDrive.h"

namespace kinalyx {

Result<DriveReport> BurningDrive::TestUnitReady() {
  auto drive = HeldDrive::Hold(address_, false);
  if (!drive) return drive.Failure();
  return ReportOf(**drive);
}

Outcome BurningDrive::Eject() {
  auto drive = HeldDrive::Hold(address_, false);
  if (!drive) return drive.Failure();
  (*drive)->EjectWhenLeft();
  return {};
}

std::unique_ptr<IBurnRun> BurningDrive::Burn(const DiscTree& tree, const BurnWish& wish) {
  return std::make_unique<BurnRun>(address_, tree, wish);
}

}  // namespace kinalyx
