#include "library/LibraryIndexer.h"

#include <utility>

namespace kinalyx {

namespace {

constexpr int kTurnMs = 50;
/// An index that is younger is taken as it is.
constexpr int kFreshMs = 1500;
constexpr int kPatienceMs = 10000;

}  // namespace

LibraryIndexer::LibraryIndexer(IHost& host, DriveWatch::Send send, const std::string& root, const ProfileFields& fields,
                               IIndexEvents& events)
    : host_(host), send_(std::move(send)), root_(root), fields_(fields), events_(events) {}

void LibraryIndexer::Refresh() {
  // Another library, chosen meanwhile.
  if (std::exchange(indexedRoot_, root_) != root_) {
    Stop();
    index_.reset();
  }
  const std::int64_t now = host_.timeGetTime();
  if (errand_ || (index_ && now - ended_ < kFreshMs)) return;
  task_ = std::make_shared<Task>();
  heard_ = now;
  told_ = 0;
  silent_ = false;
  errand_ = send_([task = task_, root = root_, fields = fields_, before = index_] {
    task->made = ReadIndex(root, fields, before.get(), task->progress);
  });
  timer_ = HostTimer(host_, kTurnMs, true, [this] { Poll(); });
}

void LibraryIndexer::Stop() {
  timer_.Stop();
  if (task_) task_->progress.stop = true;
  errand_.reset();
  task_.reset();
}

void LibraryIndexer::Poll() {
  const std::int64_t now = host_.timeGetTime();
  if (errand_->Over(0)) {
    const auto made = task_->made;
    Stop();
    ended_ = now;
    if (made) index_ = made;
    events_.IndexCame();
    return;
  }
  const int read = FoldersRead();
  if (read != told_) heard_ = now;
  const bool silent = now - heard_ > kPatienceMs;
  if (read == told_ && silent == silent_) return;
  told_ = read;
  silent_ = silent;
  events_.IndexCame();
}

}  // namespace kinalyx
