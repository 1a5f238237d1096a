#include "distribution/disc/DiscJob.h"

#include <utility>

#include "platform/files/Folders.h"
#include "platform/files/Tr.h"

namespace kinalyx {

DiscJob::DiscJob(DiscOrder order, std::unique_ptr<IDiscDrive> drive, const BurnWish& wish,
                 std::shared_ptr<BurnBoard> board)
    : order_(std::move(order)), drive_(std::move(drive)), wish_(wish), board_(std::move(board)) {
  maker_ = std::make_unique<DiscMaker>(order_, *board_);
}

DiscJob::~DiscJob() = default;

bool DiscJob::End(Outcome how) {
  over_ = true;
  how_ = std::move(how);
  run_.reset();
  maker_.reset();
  if (how_) {
    board_->Say(Tr(">>> Burn Complete!"));
  } else if (how_.Kind() == Fault::Cancelled) {
    board_->Say(written_ ? ">>> " + how_.Why() : Tr(">>> BURN CANCELLED"));
  } else {
    board_->Say(begun_ ? Tr(">>> Burn Failed {}", how_.Why()) : Tr(">>> BURN CD FAILED {}", how_.Why()));
  }
  board_->SetState(DriveState::Idle);
  return false;
}

bool DiscJob::Step() {
  if (over_) return false;
  if (run_) return BurnOn();
  if (maker_->Step()) return true;
  if (!maker_->How()) return End(maker_->How());
  return BeginBurn();
}

bool DiscJob::BeginBurn() {
  const DiscPlan& plan = maker_->Plan();
  DiscTree tree{.Label = order_.Label, .Folders = plan.Folders, .Files = {}};
  for (const DiscFile& file : maker_->Files()) {
    board_->Say(Tr(">>> Adding File {}", LastName(file.To)));
    tree.Files.push_back({file.From, file.To});
  }
  run_ = drive_->Burn(tree, wish_);
  board_->Say(Tr(">>> CD Burn Started"));
  return true;
}

bool DiscJob::BurnOn() {
  if (board_->StopWanted() && !std::exchange(stopping_, true)) run_->Cancel();
  const bool goesOn = run_->Step();
  const DriveState state = run_->State();
  if (state == DriveState::Writing && run_->BytesDone() > 0) begun_ = true;
  if (state == DriveState::Checking && !std::exchange(checking_, true)) board_->Say(Tr(">>> Checking the disc"));
  board_->SetState(state);
  board_->SetBytes(run_->BytesDone(), run_->BytesTotal());
  if (goesOn) return true;
  written_ = run_->Written();
  return End(run_->How());
}

/// Only for a drive that nobody waits for any more.
void DiscJob::Cancel() {
  board_->Stop();
  if (over_) return;
  if (run_) {
    run_->Cancel();
    while (run_->Step()) {
    }
  }
  End(Outcome(Fault::Cancelled, Tr("It was cancelled.")));
}

JobProgress DiscJob::Progress() const {
  const auto total = board_->BytesTotal();
  return {.done = 0,
          .total = 0,
          .part = total > 0 ? static_cast<double>(board_->BytesDone()) / static_cast<double>(total) : 0,
          .current = {}};
}

}  // namespace kinalyx
