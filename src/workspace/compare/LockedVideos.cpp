#include "workspace/compare/LockedVideos.h"

#include <algorithm>

#include "video/PlayClock.h"
#include "workspace/videos/PlayerMoves.h"

namespace kinalyx {
namespace {

constexpr int kPairOneTwo = 0;
constexpr int kPairThreeFour = 1;
constexpr int kAllFour = 2;
constexpr int kLockable = 4;  // slots that a lock can hold
constexpr int kFastest = 1000;

}  // namespace

/// The common play. Counts the distance from the lowest positions; every video shows its own lowest
/// position plus that one distance, so no two can drift apart.
class LockedVideos::Run final : public IPlayRun {
 public:
  Run(PlayScheduler& scheduler, LockedVideos& videos) : scheduler_(scheduler), videos_(videos) {}

  bool Running() const { return !slots_.empty(); }
  const std::vector<int>& Slots() const { return slots_; }

  void Begin(std::vector<int> slots, int distance, int last, double interval) {
    slots_ = std::move(slots);
    last_ = last;
    clock_.Start(videos_.host_.timeGetTime(), BeatOf(distance), interval);
    scheduler_.Add(*this, clock_.Due(BeatOf(distance + 1)));
    ShowAll(distance);
  }

  void End() {
    slots_.clear();
    scheduler_.Remove(*this);
  }

  /// Goes on from the distance that is shown.
  void SetInterval(double interval) {
    clock_.Start(videos_.host_.timeGetTime(), BeatOf(distance_), interval);
    scheduler_.Add(*this, clock_.Due(BeatOf(distance_ + 1)));
  }

  std::int64_t Tick(std::int64_t now) override {
    if (wrap_) {
      clock_.Wrap(now, BeatOf(last_ + 1));
      ShowAll(0);
    } else if (const int due = DistanceAt(clock_.BeatAt(now)); due > distance_) {
      ShowAll(due);
    }
    return Running() ? clock_.Due(BeatOf(distance_ + 1)) : now;
  }

 private:
  const AVIControl& Lead() const { return videos_.stage_.MP(slots_.front()); }
  int LeadStart() const { return videos_.Lowest(slots_.front()); }
  /// The lead's times are the clock: a distance falls due when the lead's own picture does.
  double BeatOf(int distance) const { return Lead().BeatOf(LeadStart() + distance) - Lead().BeatOf(LeadStart()); }
  int DistanceAt(double beat) const { return Lead().PositionAtBeat(Lead().BeatOf(LeadStart()) + beat) - LeadStart(); }

  /// Draws all videos at a distance; what they have to tell comes when all are drawn.
  void ShowAll(int distance) {
    const PlayerNews::Hold hold(scheduler_.News());
    const bool atEnd = distance >= last_;
    distance_ = std::min(distance, last_);
    wrap_ = false;
    for (const int slot : slots_) {
      // A video that was set going by a control of its own ends what they do together.
      if (videos_.stage_.MP(slot).IsPlaying()) return videos_.StopTogether();
      videos_.stage_.MP(slot).DrawFrame(videos_.Lowest(slot) + distance_);
    }
    if (!atEnd) return;
    wrap_ = videos_.repeat_ && last_ > 0;
    if (!wrap_) videos_.StopTogether();
  }

  PlayScheduler& scheduler_;
  LockedVideos& videos_;
  std::vector<int> slots_;
  PlayClock clock_;
  int distance_ = 0;
  int last_ = 0;
  bool wrap_ = false;
};

LockedVideos::LockedVideos(IHost& host, PlayScheduler& scheduler, Stage& stage)
    : host_(host), stage_(stage), run_(std::make_unique<Run>(scheduler, *this)) {}

LockedVideos::~LockedVideos() { run_->End(); }

// ---------------------------------------------------------------- locking

std::vector<int> LockedVideos::SlotsOf(int lock) const {
  switch (lock) {
    case kPairOneTwo: return {1, 2};
    case kPairThreeFour: return {3, 4};
    case kAllFour: return {1, 2, 3, 4};
    default: return {};
  }
}

int LockedVideos::LockOf(int slot) const {
  if (slot < 1 || slot > kLockable) return -1;
  if (DualLocked[kAllFour]) return kAllFour;
  const int pair = slot <= 2 ? kPairOneTwo : kPairThreeFour;
  return DualLocked[static_cast<std::size_t>(pair)] ? pair : -1;
}

bool LockedVideos::IsLocked(int slot) const { return LockOf(slot) >= 0; }

bool LockedVideos::AllOpen(const std::vector<int>& slots) const {
  return std::ranges::all_of(slots, [this](int slot) { return stage_.HasVideo(slot); });
}

bool LockedVideos::DualLock(int Which) {
  const int lock = Which == 1 ? kPairOneTwo : Which == 2 ? kPairThreeFour : kAllFour;
  const std::vector<int> slots = SlotsOf(lock);
  if (!AllOpen(slots)) return false;
  StopTogether();
  for (const int slot : slots) {
    stage_.MP(slot).StopPlay();
    Clear(LockOf(slot));
  }
  SetRanges(slots);
  DualLocked[static_cast<std::size_t>(lock)] = true;
  NoteChange();
  return true;
}

void LockedVideos::SetRanges(const std::vector<int>& slots) {
  int before = stage_.MP(slots.front()).Position();
  int after = stage_.MP(slots.front()).VideoLength() - before - 1;
  for (const int slot : slots) {
    const AVIControl& player = stage_.MP(slot);
    before = std::min(before, player.Position());
    after = std::min(after, player.VideoLength() - player.Position() - 1);
  }
  for (const int slot : slots) {
    const AVIControl& player = stage_.MP(slot);
    std::array<int, 4>& range = slot <= 2 ? LockRangeA : LockRangeB;
    const auto first = static_cast<std::size_t>((slot - 1) % 2 * 2);
    range[first] = player.Position() - before;
    range[first + 1] = player.Position() + after - 1;
    lengths_[static_cast<std::size_t>(slot - 1)] = player.VideoLength();
  }
}

void LockedVideos::Clear(int lock) {
  if (lock >= 0) DualLocked[static_cast<std::size_t>(lock)] = false;
}

void LockedVideos::DualUnlock(int slot) {
  const int lock = LockOf(slot);
  if (lock < 0) return;
  if (PlayingTogether(slot)) StopTogether();
  Clear(lock);
  NoteChange();
}

bool LockedVideos::CanLock() const {
  const int slot = stage_.CurrentWindow;
  if (IsLocked(slot)) return true;
  if (slot > kLockable || stage_.SlotsShown() < 2) return false;
  const int partner = (slot - 1) / 2 * 2 + (slot % 2 == 1 ? 2 : 1);
  return stage_.HasVideo(slot) && stage_.HasVideo(partner);
}

bool LockedVideos::ToggleLock() {
  if (!CanLock()) return false;
  const int slot = stage_.CurrentWindow;
  if (IsLocked(slot)) {
    DualUnlock(slot);
    return true;
  }
  return DualLock(slot <= 2 ? 1 : 2);
}

bool LockedVideos::CanLockAll() const {
  return DualLocked[kAllFour] || (stage_.SlotsShown() >= kLockable && AllOpen(SlotsOf(kAllFour)));
}

bool LockedVideos::LockAll() {
  if (!CanLockAll()) return false;
  if (!DualLocked[kAllFour]) return DualLock(0);
  DualUnlock(1);
  return true;
}

void LockedVideos::FieldsSplit() {
  for (int lock = 0; lock <= kAllFour; ++lock) {
    if (!DualLocked[static_cast<std::size_t>(lock)]) continue;
    const std::vector<int> slots = SlotsOf(lock);
    const bool same = std::ranges::all_of(slots, [this](int slot) {
      return stage_.MP(slot).VideoLength() == lengths_[static_cast<std::size_t>(slot - 1)];
    });
    if (same) continue;
    if (run_->Running()) StopTogether();
    SetRanges(slots);
    NoteChange();
  }
}

int LockedVideos::Lowest(int slot) const {
  return (slot <= 2 ? LockRangeA : LockRangeB)[static_cast<std::size_t>((slot - 1) % 2 * 2)];
}

int LockedVideos::Highest(int slot) const {
  return (slot <= 2 ? LockRangeA : LockRangeB)[static_cast<std::size_t>((slot - 1) % 2 * 2 + 1)];
}

std::optional<LockedVideos::Bounds> LockedVideos::BoundsOf(int slot) const {
  if (!IsLocked(slot)) return std::nullopt;
  return Bounds{Lowest(slot), Highest(slot)};
}

LockedVideos::Bounds LockedVideos::BarOf(int slot) const {
  if (!stage_.HasVideo(slot)) return {};
  const Bounds whole{0, stage_.MP(slot).VideoLength() - 1};
  const Bounds bounds = BoundsOf(slot).value_or(whole);
  return {bounds.lowest, std::max(bounds.lowest, bounds.highest)};
}

std::vector<int> LockedVideos::LockedWith(int slot) const {
  std::vector<int> slots = SlotsOf(LockOf(slot));
  const auto first = std::ranges::find(slots, slot);
  if (first != slots.end()) std::rotate(slots.begin(), first, first + 1);
  return slots;
}

// ---------------------------------------------------------------- moving

void LockedVideos::MoveTogether(DualMove move) {
  if (move == DualMove::Rewind) DualControlRewind();
  else DualControlStep(move == DualMove::Forward);
  host_.DoEvents();
}

void LockedVideos::DualControlStep(bool Forward) {
  StopTogether();
  const int move = Forward ? 1 : -1;
  const std::vector<int> slots = LockedWith(stage_.CurrentWindow);
  if (slots.empty()) {
    const int slot = stage_.CurrentWindow;
    if (stage_.HasVideo(slot)) StepBy(stage_.MP(slot), move);
    return;
  }
  for (const int slot : slots) {
    const int position = stage_.MP(slot).Position();
    if (Forward ? position >= Highest(slot) : position <= Lowest(slot)) return;
  }
  for (const int slot : slots) GoTo(stage_.MP(slot), stage_.MP(slot).Position() + move);
}

void LockedVideos::DualControlRewind() {
  StopTogether();
  for (const int slot : SlotsOf(LockOf(stage_.CurrentWindow))) GoTo(stage_.MP(slot), Lowest(slot));
}

void LockedVideos::DualControlScroll(int slot, int Position) {
  StopTogether();
  const std::vector<int> slots = LockedWith(slot);
  if (slots.empty()) return;
  const int lowest = Lowest(slot);
  const int distance = std::clamp(Position - lowest, 0, std::max(0, Highest(slot) - lowest));
  for (const int each : slots) GoTo(stage_.MP(each), Lowest(each) + distance);
}

void LockedVideos::Seek(int slot, int position) {
  if (position == stage_.MP(slot).Position()) return;
  IsLocked(slot) ? DualControlScroll(slot, position) : GoTo(stage_.MP(slot), position);
}

void LockedVideos::AdvancePartners(int slot) {
  for (const int each : LockedWith(slot))
    if (each != slot) StepBy(stage_.MP(each), 1);
}

// ---------------------------------------------------------------- playing together

bool LockedVideos::PlayingTogether() const { return run_->Running(); }

bool LockedVideos::PlayingTogether(int slot) const {
  return std::ranges::find(run_->Slots(), slot) != run_->Slots().end();
}

void LockedVideos::PlayTogether() {
  if (run_->Running()) return StopTogether();
  std::vector<int> slots = LockedWith(stage_.CurrentWindow);
  if (slots.empty()) return;
  for (const int slot : slots) stage_.MP(slot).StopPlay();
  const int lead = slots.front();
  const int last = std::max(0, Highest(lead) - Lowest(lead));
  int distance = std::clamp(stage_.MP(lead).Position() - Lowest(lead), 0, last);
  if (distance >= last - 1) distance = 0;
  run_->Begin(std::move(slots), distance, last, stage_.MP(lead).PositionTime() * 100 / speed_);
  NoteChange();
}

void LockedVideos::StopTogether() {
  if (!run_->Running()) return;
  run_->End();
  NoteChange();
}

bool LockedVideos::setTogetherSpeed(int percent) {
  if (percent < 1 || percent > kFastest) return false;
  speed_ = percent;
  if (run_->Running()) run_->SetInterval(stage_.MP(run_->Slots().front()).PositionTime() * 100 / speed_);
  NoteChange();
  return true;
}

void LockedVideos::setTogetherRepeat(bool on) {
  repeat_ = on;
  NoteChange();
}

}  // namespace kinalyx
