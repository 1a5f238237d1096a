#include "workspace/compare/LockedVideos.h"

#include <algorithm>
#include <cmath>

#include "video/PlayClock.h"
#include "workspace/stage/TakenRate.h"
#include "workspace/videos/PlayerMoves.h"

namespace kinalyx {
namespace {

constexpr int kPairOneTwo = 0;
constexpr int kPairThreeFour = 1;
constexpr int kAllFour = 2;
constexpr int kLockable = 4;  // slots that a lock can hold
constexpr int kFastest = 1000;
/// Rates are the same as long as a minute of one lasts no more than a second longer in the other: 59.94 and 60.
constexpr double kSameRate = 1.0 / 60;
/// Of a position, for what comes out a little short of it in reckoning.
constexpr double kHair = 1e-6;

}  // namespace

/// The common play. Counts how far one of the videos is from its lowest position; every other shows what belongs to
/// that, so no two can drift apart.
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
    counting_ = videos_.Counting(slots_);
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
  const AVIControl& Counting() const { return videos_.stage_.MP(counting_); }
  int Start() const { return videos_.Lowest(counting_); }
  /// The times of the one that counts are the clock: a distance falls due when its own picture does.
  double BeatOf(int distance) const { return Counting().BeatOf(Start() + distance) - Counting().BeatOf(Start()); }
  int DistanceAt(double beat) const { return Counting().PositionAtBeat(Counting().BeatOf(Start()) + beat) - Start(); }
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
      AVIControl& player = videos_.stage_.MP(slot);
      const int position = videos_.Along(slot, counting_, Start() + distance_);
      // Held by the time, one of fewer pictures shows each for longer.
      if (slot == counting_ || position != player.Position() || !videos_.IsHeldByTime(slot)) player.DrawFrame(position);
    }
    if (!atEnd) return;
    wrap_ = videos_.repeat_ && !back_ && last_ > first_;
    if (!wrap_) videos_.Stop(*this);
  }

  PlayScheduler& scheduler_;
  LockedVideos& videos_;
  std::vector<int> slots_;
  int counting_ = 0;
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
  const bool byTime = holdByTime_ && RatesDiffer(slots);
  for (const int slot : slots) {
    const AVIControl& player = stage_.MP(slot);
    TieOf(slot) = {player.Position(), player.VideoLength(), TakenMs(stage_.At(slot)), byTime};
  }
  // So far as every one of them reaches, in positions or in milliseconds.
  double before = INFINITY;
  double after = INFINITY;
  for (const int slot : slots) {
    const Tie& tie = TieOf(slot);
    before = std::min(before, byTime ? -MomentOf(slot, 0) : tie.anchor);
    after = std::min(after, byTime ? MomentOf(slot, tie.length - 1) : tie.length - tie.anchor - 1);
  }
  for (const int slot : slots) {
    std::array<int, 4>& range = slot <= 2 ? LockRangeA : LockRangeB;
    const auto first = static_cast<std::size_t>((slot - 1) % 2 * 2);
    const int anchor = TieOf(slot).anchor;
    range[first] = byTime ? PositionAt(slot, -before) : anchor - static_cast<int>(before);
    range[first + 1] = byTime ? PositionAt(slot, after) : anchor + static_cast<int>(after) - 1;
  }
}

// ---------------------------------------------------------------- what belongs together

bool LockedVideos::RatesDiffer(const std::vector<int>& slots) const {
  if (slots.empty() || !AllOpen(slots)) return false;
  const double first = TakenMs(stage_.At(slots.front()));
  return std::ranges::any_of(slots, [&](int slot) {
    const double other = TakenMs(stage_.At(slot));
    return first > 0 && other > 0 && std::abs(first - other) > kSameRate * std::max(first, other);
  });
}

bool LockedVideos::RatesDiffer(int slot) const { return RatesDiffer(SlotsOf(LockOf(slot))); }

bool LockedVideos::IsHeldByTime(int slot) const { return IsLocked(slot) && TieOf(slot).byTime; }

void LockedVideos::HoldByTime(bool on) {
  if (std::exchange(holdByTime_, on) == on) return;
  VideosChanged();
}

double LockedVideos::MomentOf(int slot, int position) const {
  const AVIControl& player = stage_.MP(slot);
  const Tie& tie = TieOf(slot);
  return (player.BeatOf(position) - player.BeatOf(tie.anchor)) * tie.takenMs;
}

int LockedVideos::PositionAt(int slot, double moment) const {
  const AVIControl& player = stage_.MP(slot);
  const Tie& tie = TieOf(slot);
  const int position = player.PositionAtBeat(player.BeatOf(tie.anchor) + moment / tie.takenMs + kHair);
  return std::clamp(position, 0, tie.length - 1);
}

int LockedVideos::Along(int slot, int lead, int position) const {
  if (slot == lead) return position;
  return TieOf(slot).byTime ? PositionAt(slot, MomentOf(lead, position)) : Lowest(slot) + position - Lowest(lead);
}

int LockedVideos::Counting(const std::vector<int>& slots) const {
  if (!TieOf(slots.front()).byTime) return slots.front();
  return *std::ranges::min_element(slots, {}, [this](int slot) { return TieOf(slot).takenMs; });
}

double LockedVideos::Interval(const std::vector<int>& slots) const {
  const int lead = slots.front();
  const double ms = stage_.MP(lead).PositionTime() * 100 / speed_;
  return TieOf(lead).byTime ? ms * TieOf(Counting(slots)).takenMs / TieOf(lead).takenMs : ms;
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

void LockedVideos::VideosChanged() {
  for (int lock = 0; lock <= kAllFour; ++lock) {
    if (!DualLocked[static_cast<std::size_t>(lock)]) continue;
    const std::vector<int> slots = SlotsOf(lock);
    const bool byTime = holdByTime_ && RatesDiffer(slots);
    const bool same = std::ranges::all_of(slots, [&](int slot) {
      const Tie& tie = TieOf(slot);
      const bool counts = !byTime || std::abs(TakenMs(stage_.At(slot)) - tie.takenMs) < kHair;
      return stage_.MP(slot).VideoLength() == tie.length && byTime == tie.byTime && counts;
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
  const int by = forward ? 1 : -1;
  const auto atEnd = [&](int each) {
    const int position = stage_.MP(each).Position();
    return forward ? position >= Highest(each) : position <= Lowest(each);
  };
  if (!IsHeldByTime(slot)) {
    if (std::ranges::any_of(slots, atEnd)) return;
    for (const int each : slots) GoTo(stage_.MP(each), stage_.MP(each).Position() + by);
    return;
  }
  const int counting = Counting(slots);
  if (atEnd(counting)) return;
  const int to = stage_.MP(counting).Position() + by;
  for (const int each : slots) GoTo(stage_.MP(each), Along(each, counting, to));
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
  const int to = std::clamp(Position, lowest, std::max(lowest, Highest(slot)));
  for (const int each : slots) GoTo(stage_.MP(each), Along(each, slot, to));
}

void LockedVideos::Seek(int slot, int position) {
  if (position == stage_.MP(slot).Position()) return;
  IsLocked(slot) ? DualControlScroll(slot, position) : GoTo(stage_.MP(slot), position);
}

void LockedVideos::StepPartners(int slot, int by) {
  for (const int each : LockedWith(slot)) {
    if (each == slot) continue;
    if (IsHeldByTime(each)) GoTo(stage_.MP(each), Along(each, slot, stage_.MP(slot).Position()));
    else StepBy(stage_.MP(each), by);
  }
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
  const int counting = Counting(slots);
  const int lowest = Lowest(counting);
  const int end = std::max(0, Highest(counting) - lowest);
  Run::Way way;
  way.back = !forward;
  way.first = std::clamp(Along(counting, slot, lead.PlayRange().first) - lowest, 0, end);
  way.last = std::clamp(Along(counting, slot, lead.PlayRange().last) - lowest, way.first, end);
  way.start = std::clamp(Along(counting, slot, lead.Position()) - lowest, 0, end);
  if (forward && (way.start < way.first || way.start >= way.last - 1)) way.start = way.first;
  const double interval = Interval(slots);
  RunOf(slot).Begin(std::move(slots), way, interval);
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
    if (run->Running()) run->SetInterval(Interval(run->Slots()));
  NoteChange();
  return true;
}

void LockedVideos::setTogetherRepeat(bool on) {
  repeat_ = on;
  NoteChange();
}

}  // namespace kinalyx
