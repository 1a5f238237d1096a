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

  bool Back() const { return back_; }

  /// The distances of a play, and where it begins.
  struct Way {
    int start = 0;
    int first = 0;
    int last = 0;
    bool back = false;
  };
  void Begin(std::vector<int> slots, const Way& way, double interval) {
    slots_ = std::move(slots);
    first_ = way.first;
    last_ = way.last;
    back_ = way.back;
    wrap_ = false;
    StartClock(way.start, interval);
    ShowAll(way.start);
  }

  void End() {
    slots_.clear();
    scheduler_.Remove(*this);
  }

  /// Goes on from the distance that is shown.
  void SetInterval(double interval) { StartClock(distance_, interval); }

  std::int64_t Tick(std::int64_t now) override {
    if (wrap_) {
      clock_.Wrap(now, BeatOf(last_ + 1), BeatOf(first_));
      ShowAll(first_);
    } else if (const int due = DistanceDue(now); back_ ? due < distance_ : due > distance_) {
      ShowAll(due);
    }
    return Running() ? DueAfter(distance_) : now;
  }

 private:
  const AVIControl& Lead() const { return videos_.stage_.MP(slots_.front()); }
  int LeadStart() const { return videos_.Lowest(slots_.front()); }
  /// The lead's times are the clock: a distance falls due when the lead's own picture does.
  double BeatOf(int distance) const { return Lead().BeatOf(LeadStart() + distance) - Lead().BeatOf(LeadStart()); }
  int DistanceAt(double beat) const { return Lead().PositionAtBeat(Lead().BeatOf(LeadStart()) + beat) - LeadStart(); }
  /// Going back, the clock counts how far below the end of the first pictures the play has come.
  int DistanceDue(std::int64_t now) const {
    const double beat = clock_.BeatAt(now);
    return DistanceAt(back_ ? std::max(0.0, top_ - beat) : beat);
  }
  std::int64_t DueAfter(int distance) const {
    return clock_.Due(back_ ? top_ - BeatOf(distance) : BeatOf(distance + 1));
  }

  void StartClock(int distance, double interval) {
    top_ = BeatOf(distance + 1);
    clock_.Start(videos_.host_.timeGetTime(), back_ ? 0 : BeatOf(distance), interval);
    scheduler_.Add(*this, DueAfter(distance));
  }

  /// Draws all videos at a distance; what they have to tell comes when all are drawn.
  void ShowAll(int distance) {
    const PlayerNews::Hold hold(scheduler_.News());
    const bool atEnd = back_ ? distance <= first_ : distance >= last_;
    distance_ = atEnd ? (back_ ? first_ : last_) : distance;
    wrap_ = false;
    for (const int slot : slots_) {
      // A video that was set going by a control of its own ends what they do together.
      if (videos_.stage_.MP(slot).IsPlaying()) return videos_.Stop(*this);
      videos_.stage_.MP(slot).DrawFrame(videos_.Lowest(slot) + distance_);
    }
    if (!atEnd) return;
    wrap_ = videos_.repeat_ && !back_ && last_ > first_;
    if (!wrap_) videos_.Stop(*this);
  }

  PlayScheduler& scheduler_;
  LockedVideos& videos_;
  std::vector<int> slots_;
  PlayClock clock_;
  double top_ = 0;
  int distance_ = 0;
  int first_ = 0;
  int last_ = 0;
  bool back_ = false;
  bool wrap_ = false;
};

LockedVideos::LockedVideos(IHost& host, PlayScheduler& scheduler, Stage& stage)
    : host_(host),
      stage_(stage),
      runs_{std::make_unique<Run>(scheduler, *this), std::make_unique<Run>(scheduler, *this)} {}

LockedVideos::~LockedVideos() {
  for (const auto& run : runs_) run->End();
}

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
  StopTogether(slot);
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
    StopTogether(slots.front());
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
  const int slot = stage_.CurrentWindow;
  if (IsLocked(slot)) return StepTogether(slot, Forward);
  if (stage_.HasVideo(slot)) StepBy(stage_.MP(slot), Forward ? 1 : -1);
}

void LockedVideos::StepTogether(int slot, bool forward) {
  StopTogether(slot);
  const std::vector<int> slots = LockedWith(slot);
  for (const int each : slots) {
    const int position = stage_.MP(each).Position();
    if (forward ? position >= Highest(each) : position <= Lowest(each)) return;
  }
  for (const int each : slots) GoTo(stage_.MP(each), stage_.MP(each).Position() + (forward ? 1 : -1));
}

void LockedVideos::RewindTogether(int slot) {
  StopTogether(slot);
  for (const int each : SlotsOf(LockOf(slot))) GoTo(stage_.MP(each), Lowest(each));
}

void LockedVideos::DualControlScroll(int slot, int Position) {
  StopTogether(slot);
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

void LockedVideos::StepPartners(int slot, int by) {
  for (const int each : LockedWith(slot))
    if (each != slot) StepBy(stage_.MP(each), by);
}

// ---------------------------------------------------------------- playing together

bool LockedVideos::PlayingTogether() const {
  return std::ranges::any_of(runs_, [](const auto& run) { return run->Running(); });
}

bool LockedVideos::PlayingTogether(int slot) const { return LeadOf(slot) != 0; }

int LockedVideos::LeadOf(int slot) const {
  const std::vector<int>& slots = RunOf(slot).Slots();
  return std::ranges::find(slots, slot) != slots.end() ? slots.front() : 0;
}

bool LockedVideos::PlaysBack(int slot) const { return PlayingTogether(slot) && RunOf(slot).Back(); }

void LockedVideos::PlayTogether(int slot, bool forward) {
  if (PlayingTogether(slot)) return StopTogether(slot);
  std::vector<int> slots = LockedWith(slot);
  if (slots.empty()) return;
  for (const int each : slots) stage_.MP(each).StopPlay();
  const AVIControl& lead = stage_.MP(slot);
  const int lowest = Lowest(slot);
  const int end = std::max(0, Highest(slot) - lowest);
  Run::Way way;
  way.back = !forward;
  way.first = std::clamp(lead.PlayRange().first - lowest, 0, end);
  way.last = std::clamp(lead.PlayRange().last - lowest, way.first, end);
  way.start = std::clamp(lead.Position() - lowest, 0, end);
  if (forward && (way.start < way.first || way.start >= way.last - 1)) way.start = way.first;
  RunOf(slot).Begin(std::move(slots), way, lead.PositionTime() * 100 / speed_);
  NoteChange();
}

void LockedVideos::Stop(Run& run) {
  if (!run.Running()) return;
  run.End();
  NoteChange();
}

void LockedVideos::StopTogether(int slot) {
  if (PlayingTogether(slot)) Stop(RunOf(slot));
}

void LockedVideos::StopTogether() {
  for (const auto& run : runs_) Stop(*run);
}

bool LockedVideos::setTogetherSpeed(int percent) {
  if (percent < 1 || percent > kFastest) return false;
  speed_ = percent;
  for (const auto& run : runs_)
    if (run->Running()) run->SetInterval(stage_.MP(run->Slots().front()).PositionTime() * 100 / speed_);
  NoteChange();
  return true;
}

void LockedVideos::setTogetherRepeat(bool on) {
  repeat_ = on;
  NoteChange();
}

}  // namespace kinalyx
