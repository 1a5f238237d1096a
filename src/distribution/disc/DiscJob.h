#pragma once

#include <memory>
#include <string>

#include "distribution/disc/BurnBoard.h"
#include "distribution/disc/DiscMaker.h"
#include "library/JobRunner.h"
#include "platform/disc/IDiscDrive.h"

namespace kinalyx {

/// Burns a disc: what it needs is made first, and the drive is touched when all of that is there. It is stopped by its
/// board, and then goes on until the drive has come to rest.
class DiscJob final : public IJob {
 public:
  DiscJob(DiscOrder order, std::unique_ptr<IDiscDrive> drive, const BurnWish& wish, std::shared_ptr<BurnBoard> board);
  ~DiscJob() override;

  bool Step() override;
  void Cancel() override;
  JobProgress Progress() const override;
  /// How it went, once it is over.
  const Outcome& How() const { return how_; }
  /// The disc holds everything, whether or not it could be checked.
  bool Written() const { return written_; }

 private:
  bool BeginBurn();
  bool BurnOn();
  bool End(Outcome how);

  DiscOrder order_;
  std::unique_ptr<IDiscDrive> drive_;
  BurnWish wish_;
  std::shared_ptr<BurnBoard> board_;
  std::unique_ptr<DiscMaker> maker_;
  std::unique_ptr<IBurnRun> run_;
  bool ready_ = false;
  bool begun_ = false;     ///< bytes have gone to the disc
  bool checking_ = false;  ///< and are being read back
  bool stopping_ = false;
  bool written_ = false;
  bool over_ = false;
  Outcome how_;
};

}  // namespace kinalyx
