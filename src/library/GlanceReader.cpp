#include "library/GlanceReader.h"

#include <algorithm>
#include <deque>
#include <mutex>
#include <utility>

namespace kinalyx {

namespace {

constexpr int kTurnMs = 40;
/// Taken from the worker in one turn, so that a long list never holds up the window.
constexpr std::size_t kAtOnce = 64;
/// A drive that is longer silent than this is left to itself.
constexpr int kPatienceMs = 10000;
/// Videos that are remembered, some 20 kB each.
constexpr std::size_t kMostKnown = 2000;

}  // namespace

/// Between the worker and the user-interface thread.
struct GlanceReader::Shared {
  struct Wish {
    std::string path;
    bool glance = false;
    VideoFacts facts;  ///< as they are known already
  };

  std::mutex mutex;
  std::deque<Wish> wishes;
  std::deque<std::pair<std::string, VideoFacts>> found;
};

GlanceReader::GlanceReader(IHost& host, DriveWatch::Send send, IGlanceEvents& events, GlanceStore store)
    : host_(host), send_(std::move(send)), events_(events), store_(std::move(store)) {}

void GlanceReader::Want(const std::vector<std::string>& paths) {
  Stop();
  if (paths.empty()) return;
  // What hangs in a worker of before stays with that.
  shared_ = std::make_shared<Shared>();
  for (const bool glance : {false, true}) {
    for (const std::string& path : paths) {
      const VideoFacts* known = Known(path);
      shared_->wishes.push_back({path, glance, known ? *known : VideoFacts()});
    }
  }
  if (known_.size() > kMostKnown) known_.clear();
  heard_ = host_.timeGetTime();
  const bool tidy = !std::exchange(tidied_, true);
  errand_ = send_([shared = shared_, store = store_, tidy] {
    Work(shared, store);
    if (tidy) store.Tidy();
  });
  timer_ = HostTimer(host_, kTurnMs, true, [this] { Poll(); });
}

void GlanceReader::Stop() {
  timer_.Stop();
  errand_.reset();
  if (!shared_) return;
  const std::scoped_lock lock(shared_->mutex);
  shared_->wishes.clear();
}

const VideoFacts* GlanceReader::Known(const std::string& path) const {
  const auto found = known_.find(path);
  return found == known_.end() ? nullptr : &found->second;
}

void GlanceReader::Work(const std::shared_ptr<Shared>& shared, const GlanceStore& store) {
  for (;;) {
    Shared::Wish wish;
    {
      const std::scoped_lock lock(shared->mutex);
      if (shared->wishes.empty()) return;
      wish = std::move(shared->wishes.front());
      shared->wishes.pop_front();
    }
    const FileStamp stamp = StampOf(wish.path).value_or(FileStamp());
    const bool same = stamp == wish.facts.stamp;
    if (wish.glance && same && wish.facts.seen) continue;
    VideoFacts facts = same ? std::move(wish.facts) : VideoFacts{stamp};
    if (wish.glance) {
      auto kept = store.Load(stamp);
      facts.glance = kept ? std::move(*kept) : GlanceAt(wish.path, GlanceStore::kWidth, GlanceStore::kHeight);
      facts.seen = true;
      if (!kept) store.Save(stamp, facts.glance);
    }
    const std::scoped_lock lock(shared->mutex);
    shared->found.emplace_back(std::move(wish.path), std::move(facts));
  }
}

void GlanceReader::Poll() {
  bool over = errand_->Over(0);
  std::vector<std::pair<std::string, VideoFacts>> found;
  {
    const std::scoped_lock lock(shared_->mutex);
    while (!shared_->found.empty() && found.size() < kAtOnce) {
      found.push_back(std::move(shared_->found.front()));
      shared_->found.pop_front();
    }
    over = over && shared_->found.empty();
  }
  if (!found.empty()) heard_ = host_.timeGetTime();
  std::vector<std::string> paths;
  for (auto& [path, facts] : found) {
    paths.push_back(path);
    VideoFacts& known = known_[path];
    // The first look may have been put behind the second by what was known before.
    if (!facts.seen && known.seen && known.stamp == facts.stamp) continue;
    known = std::move(facts);
  }
  const bool silent = host_.timeGetTime() - heard_ > kPatienceMs;
  if (over || silent) Stop();
  if (!paths.empty()) events_.FactsCame(paths);
  if (over) events_.AllFactsCame();
}

}  // namespace kinalyx
