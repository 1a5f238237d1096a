#pragma once

#include <chrono>
#include <memory>
#include <string>

#include "platform/disc/HeldDrive.h"
#include "platform/disc/IDiscDrive.h"
#include "platform/disc/ImageSource.h"
#include "platform/files/Tr.h"

namespace burn {
struct burn_disc;
}

namespace kinalyx {

/// One disc on its way: the drive is taken, erased if need be, written and read back.
class BurnRun final : public IBurnRun {
 public:
  BurnRun(std::string address, DiscTree tree, const BurnWish& wish);
  ~BurnRun() override;

  bool Step() override;
  void Cancel() override { cancelled_ = true; }
  DriveState State() const override { return state_; }
  std::int64_t BytesDone() const override { return done_; }
  std::int64_t BytesTotal() const override { return total_; }
  bool Written() const override { return written_; }
  const Outcome& How() const override { return how_; }

 private:
  enum class Stage { Take, Erase, Lay, Write, Check, Over };

  bool Take();
  bool Erased();
  bool BeginWriting();
  bool Writing();
  bool WritingOver();
  bool CheckOn();
  bool End(Outcome how);
  bool Stopped() { return End(Outcome(Fault::Cancelled, Tr("It was cancelled."))); }
  bool Next(Stage stage, DriveState state);

  std::string address_;
  DiscTree tree_;
  BurnWish wish_;
  std::unique_ptr<HeldDrive> drive_;
  std::unique_ptr<ImageSource> source_;
  struct Disc;
  std::unique_ptr<Disc> disc_;
  Stage stage_ = Stage::Take;
  DriveState state_ = DriveState::Preparing;
  bool cancelled_ = false;
  bool stopping_ = false;  ///< the drive has been asked to stop
  bool written_ = false;
  int tries_ = 0;  ///< to begin to write
  std::int64_t done_ = 0;
  std::int64_t total_ = 0;
  Checksum readBack_;
  std::vector<char> block_;
  Outcome how_;
};

/// What a held drive says of itself; waits for it to come to rest.
Result<DriveReport> ReportOf(HeldDrive& drive);

}  // namespace kinalyx
