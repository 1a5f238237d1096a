#include "platform/graph/LessonLane.h"

#include <condition_variable>
#include <deque>
#include <limits>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>

#include "platform/graph/LessonTime.h"

namespace kinalyx {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr std::size_t kPicturesOnCredit = 2 * LessonFile::kRate;
constexpr std::int64_t kVoiceOnCreditNs = 10'000'000'000;
constexpr auto kLastPatience = 400ms;  // with which the last words are waited for
constexpr std::int64_t kForever = std::numeric_limits<std::int64_t>::max();

std::int64_t Now() { return Clock::now().time_since_epoch() / std::chrono::nanoseconds(1); }

/// A picture, or some of the voice.
struct Piece {
  std::int64_t ns = 0;
  ScreenPicture picture;
  std::vector<std::int16_t> samples;
};

}  // namespace

/// What the two sides tell each other.
struct LessonLane::Desk {
  Desk(std::string sink, GraphNews told, LessonKind what, bool heard)
      : label(std::move(sink)), news(std::move(told)), kind(what), voice(heard) {}

  static void Work(const std::shared_ptr<Desk>& desk);
  bool AllIsHere() const { return !voice || heardNs >= endNs; }
  void Take(std::unique_lock<std::mutex>& lock);
  Outcome Write(Piece& piece, const LessonTime& times);
  Outcome Begin(const ScreenPicture& first);
  void End(std::unique_lock<std::mutex>& lock);

  const std::string label;
  const GraphNews news;
  const LessonKind kind;
  const bool voice;

  mutable std::mutex mutex;
  mutable std::condition_variable changed;
  std::string path;
  std::deque<Piece> pieces;
  std::size_t pictures = 0;  ///< among the pieces
  LessonTime time;
  std::int64_t heardNs = std::numeric_limits<std::int64_t>::min();
  std::int64_t endNs = kForever;
  Clock::time_point giveUp = Clock::time_point::max();
  RecordingTally tally;
  bool open = false;
  bool quit = false;

  // Of the thread alone.
  std::unique_ptr<LessonFile> file;
  ScreenPicture last;
  std::deque<Piece> early;  ///< of the voice, before the first picture
};

LessonLane::LessonLane(std::string label, GraphNews news, LessonKind kind, bool voice)
    : desk_(std::make_shared<Desk>(std::move(label), std::move(news), kind, voice)) {}

LessonLane::~LessonLane() {
  CloseNow();
  const std::lock_guard lock(desk_->mutex);
  desk_->quit = true;
  desk_->changed.notify_all();
}

void LessonLane::Open(const std::string& path) {
  const std::lock_guard lock(desk_->mutex);
  if (std::exchange(desk_->open, true)) return;
  desk_->path = path;
  desk_->tally = {};
  desk_->tally.open = true;
  std::thread(Desk::Work, desk_).detach();
}

void LessonLane::Close(std::int64_t lastNs) {
  const std::lock_guard lock(desk_->mutex);
  if (!desk_->open || desk_->endNs <= lastNs) return;
  desk_->endNs = lastNs;
  desk_->giveUp = Clock::now() + kLastPatience;
  desk_->changed.notify_all();
}

void LessonLane::CloseNow() { Close(Now()); }

void LessonLane::Pause(bool on) {
  const std::lock_guard lock(desk_->mutex);
  on ? desk_->time.Pause(Now()) : desk_->time.GoOn(Now());
}

void LessonLane::PushPicture(ScreenPicture picture, std::int64_t ns) {
  const std::lock_guard lock(desk_->mutex);
  if (!desk_->open || ns > desk_->endNs || desk_->pictures >= kPicturesOnCredit || desk_->time.InPause(ns)) return;
  if (!desk_->time.Begun()) desk_->time.Begin(ns);
  ++desk_->pictures;
  desk_->pieces.push_back({ns, std::move(picture), {}});
  desk_->changed.notify_all();
}

void LessonLane::PushSound(std::vector<std::int16_t> samples, std::int64_t ns) {
  const std::lock_guard lock(desk_->mutex);
  const std::int64_t until = ns + static_cast<std::int64_t>(samples.size()) * 1'000'000'000 / LessonFile::kSoundRate;
  desk_->heardNs = std::max(desk_->heardNs, until);
  desk_->changed.notify_all();
  if (!desk_->open || samples.empty() || ns > desk_->endNs || desk_->time.InPause(ns)) return;
  if (!desk_->pieces.empty() && ns - desk_->pieces.front().ns > kVoiceOnCreditNs) return;
  desk_->pieces.push_back({ns, {}, std::move(samples)});
}

bool LessonLane::WaitClosed(Clock::time_point until) const {
  std::unique_lock lock(desk_->mutex);
  return desk_->changed.wait_until(lock, until, [this] { return !desk_->open; });
}

RecordingTally LessonLane::Tally() const {
  const std::lock_guard lock(desk_->mutex);
  return desk_->tally;
}

void LessonLane::Desk::Work(const std::shared_ptr<Desk>& desk) {
  std::unique_lock lock(desk->mutex);
  for (;;) {
    const bool ending = desk->endNs != kForever;
    const auto stirred = [&] {
      return !desk->pieces.empty() || desk->quit || (desk->endNs != kForever && (!ending || desk->AllIsHere()));
    };
    if (ending) (void)desk->changed.wait_until(lock, desk->giveUp, stirred);
    else desk->changed.wait(lock, stirred);
    if (!desk->pieces.empty()) desk->Take(lock);
    else if (desk->quit || (desk->endNs != kForever && (desk->AllIsHere() || Clock::now() >= desk->giveUp))) break;
  }
  desk->End(lock);
}

/// Writes the first piece that waits.
void LessonLane::Desk::Take(std::unique_lock<std::mutex>& lock) {
  Piece piece = std::move(pieces.front());
  pieces.pop_front();
  if (piece.picture.pixels) --pictures;
  const LessonTime times = time;
  const bool failed = !tally.fault.empty();
  if (failed) return;
  lock.unlock();
  const Outcome written = Write(piece, times);
  RecordingTally now = file ? file->Tally() : RecordingTally{};
  lock.lock();
  now.open = true;
  now.fault = written.Why();
  tally = now;
  if (!written) news.SinkFailed(label, written.Why());
}

Outcome LessonLane::Desk::Begin(const ScreenPicture& first) {
  auto made = LessonFile::Create(path, {kind, first.width, first.height, voice});
  if (!made) return made.Failure();
  file = std::move(*made);
  last = first;
  return Outcome();
}

Outcome LessonLane::Desk::Write(Piece& piece, const LessonTime& times) {
  if (!piece.picture.pixels) {
    if (file) return file->TakeSound(piece.samples, times.At(piece.ns));
    early.push_back(std::move(piece));
    return Outcome();
  }
  if (!file) {
    if (const Outcome begun = Begin(piece.picture); !begun) return begun;
    for (const Piece& before : std::exchange(early, {}))
      if (const Outcome heard = file->TakeSound(before.samples, times.At(before.ns)); !heard) return heard;
  }
  // A screen that has another size all at once is left out until it has the old one again.
  if (piece.picture.width != last.width || piece.picture.height != last.height) return Outcome();
  return file->TakePicture(std::move(piece.picture.pixels), times.At(piece.ns));
}

void LessonLane::Desk::End(std::unique_lock<std::mutex>& lock) {
  const std::int64_t length = time.At(endNs == kForever ? Now() : endNs);
  std::string fault = tally.fault;
  lock.unlock();
  RecordingTally now;
  if (file) {
    const Outcome closed = file->Close(length);
    now = file->Tally();
    file.reset();
    if (!closed && fault.empty()) {
      fault = closed.Why();
      news.SinkFailed(label, fault);
    }
  }
  lock.lock();
  now.open = false;
  now.fault = fault;
  tally = now;
  open = false;
  changed.notify_all();
}

}  // namespace kinalyx
