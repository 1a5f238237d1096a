#pragma once

#include <string>
#include <utility>

#include "platform/disc/IDiscDrive.h"

namespace kinalyx {

/// A file that is written as if it were a disc. It gets its name when it is whole and, where that was wanted, checked;
/// a file of that name gives way.
class ImageDrive final : public IDiscDrive {
 public:
  explicit ImageDrive(std::string path) : path_(std::move(path)) {}

  Result<DriveReport> TestUnitReady() override;
  Outcome Eject() override;
  std::unique_ptr<IBurnRun> Burn(const DiscTree& tree, const BurnWish& wish) override;

 private:
  std::string path_;
};

}  // namespace kinalyx
