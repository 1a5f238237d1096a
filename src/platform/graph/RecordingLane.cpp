#include "platform/graph/RecordingLane.h"

#include <condition_variable>
#include <deque>
#include <limits>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>

#include "platform/files/Tr.h"

namespace kinalyx {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr std::int64_t kCreditNs = 2'000'000'000;
constexpr auto kLastPatience = 500ms;  // with which the last picture of a file is waited for

/// One file, from its opening to its end.
struct Take {
  std::string path;
  std::int64_t lastNs = std::numeric_limits<std::int64_t>::max();
  Clock::time_point giveUp = Clock::time_point::max();  ///< when the last picture is waited for no more
};

}  // namespace

/// What the two sides tell each other.
struct RecordingLane::Desk {
  Desk(std::string sink, GraphNews told) : label(std::move(sink)), news(std::move(told)) {}

  static void Work(const std::shared_ptr<Desk>& desk);
  Clock::time_point GiveUp() const { return takes.empty() ? Clock::time_point::max() : takes.front().giveUp; }
  bool TakeIsOver() const { return !takes.empty() && (writtenNs >= takes.front().lastNs || failed); }
  void Write(std::unique_lock<std::mutex>& lock);
  void EndTake(std::unique_lock<std::mutex>& lock);
  void Fail(const std::string& why);

  const std::string label;
  const GraphNews news;
  mutable std::mutex mutex;
  mutable std::condition_variable changed;
  std::deque<PackedPicture> pictures;
  std::deque<Take> takes;  ///< the first is being written
  RecordingTally tally;
  std::int64_t pushedNs = std::numeric_limits<std::int64_t>::min();
  std::int64_t writtenNs = std::numeric_limits<std::int64_t>::min();
  bool failed = false;  ///< the take that is being written
  bool quit = false;
  bool working = false;

  // Of the thread alone.
  std::unique_ptr<RecordingFile> file;
  RecordingFormat format;
};

RecordingLane::RecordingLane(std::string label, GraphNews news)
    : desk_(std::make_shared<Desk>(std::move(label), std::move(news))) {}

RecordingLane::~RecordingLane() {
  const std::lock_guard lock(desk_->mutex);
  desk_->quit = true;
  desk_->changed.notify_all();
}

void RecordingLane::Open(const std::string& path) {
  const std::lock_guard lock(desk_->mutex);
  if (desk_->takes.empty()) {
    desk_->tally = {};
    desk_->tally.open = true;
  }
  desk_->takes.push_back({path});
  if (!std::exchange(desk_->working, true)) std::thread(Desk::Work, desk_).detach();
}

void RecordingLane::Close(std::int64_t lastNs) {
  const std::lock_guard lock(desk_->mutex);
  if (desk_->takes.empty()) return;
  desk_->takes.back().lastNs = std::min(desk_->takes.back().lastNs, lastNs);
  desk_->takes.back().giveUp = std::min(desk_->takes.back().giveUp, Clock::now() + kLastPatience);
  desk_->changed.notify_all();
}

void RecordingLane::CloseNow() {
  std::unique_lock lock(desk_->mutex);
  const std::int64_t last = desk_->pushedNs;
  lock.unlock();
  Close(last);
}

void RecordingLane::Push(PackedPicture picture) {
  const std::lock_guard lock(desk_->mutex);
  if (desk_->takes.empty()) return;
  auto& waiting = desk_->pictures;
  if (!waiting.empty() && picture.ns - waiting.front().ns > kCreditNs) return;
  desk_->pushedNs = picture.ns;
  waiting.push_back(std::move(picture));
  desk_->changed.notify_all();
}

bool RecordingLane::WaitClosed(Clock::time_point until) const {
  std::unique_lock lock(desk_->mutex);
  return desk_->changed.wait_until(lock, until, [this] { return desk_->takes.empty(); });
}

RecordingTally RecordingLane::Tally() const {
  const std::lock_guard lock(desk_->mutex);
  return desk_->tally;
}

void RecordingLane::Desk::Work(const std::shared_ptr<Desk>& desk) {
  std::unique_lock lock(desk->mutex);
  for (;;) {
    const auto giveUp = desk->GiveUp();
    const auto stirred = [&] {
      return !desk->pictures.empty() || desk->TakeIsOver() || desk->quit || desk->GiveUp() != giveUp;
    };
    bool late = false;
    if (giveUp == Clock::time_point::max()) desk->changed.wait(lock, stirred);
    else late = !desk->changed.wait_until(lock, giveUp, stirred);
    if (!late && desk->GiveUp() != giveUp) continue;
    if (late || desk->TakeIsOver() || (desk->pictures.empty() && !desk->takes.empty())) desk->EndTake(lock);
    else if (!desk->pictures.empty()) desk->Write(lock);
    else break;
  }
  desk->working = false;
}

/// Writes the first picture that waits, to the take to which it belongs.
void RecordingLane::Desk::Write(std::unique_lock<std::mutex>& lock) {
  const PackedPicture picture = std::move(pictures.front());
  pictures.pop_front();
  if (takes.empty()) return;
  if (picture.ns > takes.front().lastNs) {
    pictures.push_front(picture);
    EndTake(lock);
    return;
  }
  const std::string path = takes.front().path;
  lock.unlock();
  std::optional<Outcome> failure;
  if (!file) {
    auto made = RecordingFile::Create(path, picture.format);
    if (made) file = std::move(*made);
    else failure = made.Failure();
    format = picture.format;
  }
  if (file) {
    const bool same = picture.format.codec == format.codec && picture.format.width == format.width &&
                      picture.format.height == format.height;
    const Outcome written = same ? file->Write({picture.bytes.get(), picture.size}, picture.ns)
                                 : Outcome::Failed(Tr("The camera has changed the size of its pictures."));
    if (!written) failure = written;
  }
  RecordingTally now = file ? file->Tally() : RecordingTally{};
  lock.lock();
  now.open = true;
  tally = now;
  writtenNs = picture.ns;
  if (failure) Fail(failure->Why());
}

void RecordingLane::Desk::Fail(const std::string& why) {
  tally.fault = why;
  failed = true;
  news.SinkFailed(label, why);
}

/// Closes the file of the first take.
void RecordingLane::Desk::EndTake(std::unique_lock<std::mutex>& lock) {
  std::string fault = tally.fault;
  lock.unlock();
  RecordingTally last;
  if (file) {
    const Outcome closed = file->Close();
    last = file->Tally();
    file.reset();
    if (!closed && fault.empty()) {
      fault = closed.Why();
      news.SinkFailed(label, fault);
    }
  }
  lock.lock();
  takes.pop_front();
  failed = false;
  writtenNs = std::numeric_limits<std::int64_t>::min();
  tally = takes.empty() ? last : RecordingTally{};
  tally.open = !takes.empty();
  if (takes.empty()) tally.fault = fault;
  changed.notify_all();
}

}  // namespace kinalyx
