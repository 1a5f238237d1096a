#pragma once

#include <string>
#include <utility>

#include "platform/disc/IDiscDrive.h"

namespace kinalyx {

/// A drive of this machine.
class BurningDrive final : public IDiscDrive {
 public:
  explicit BurningDrive(std::string address) : address_(std::move(address)) {}

  Result<DriveReport> TestUnitReady() override;
  Outcome Eject() override;
  std::unique_ptr<IBurnRun> Burn(const DiscTree& tree, const BurnWish& wish) override;

 private:
  std::string address_;
};

}  // namespace kinalyx
