#include "platform/graph/GraphFaces.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace kinalyx {
namespace {

std::int64_t Now() { return std::chrono::steady_clock::now().time_since_epoch() / std::chrono::nanoseconds(1); }

}  // namespace

LivePicture RendererFace::Latest() {
  const std::lock_guard lock(mutex_);
  told_ = false;
  return latest_;
}

void RendererFace::WantSize(int width, int height) {
  const std::lock_guard lock(mutex_);
  wanted_ = {width, height};
}

RendererFace::Size RendererFace::Wanted() const {
  const std::lock_guard lock(mutex_);
  return wanted_;
}

bool RendererFace::Full() const {
  const std::lock_guard lock(mutex_);
  return told_;
}

void RendererFace::Show(LivePicture picture, const GraphNews& news) {
  {
    const std::lock_guard lock(mutex_);
    std::swap(latest_, picture);  // the old one goes outside the lock
    shown_ = true;
    if (std::exchange(told_, true)) return;
  }
  news.PictureCame(label_);
}

bool RendererFace::Misses() {
  constexpr std::int64_t kPatienceNs = 3'000'000'000;
  constexpr std::int64_t kWatchedNs = 1'000'000'000;
  const std::lock_guard lock(mutex_);
  const std::int64_t now = Now();
  const bool watched = now - std::exchange(watchedNs_, now) < kWatchedNs;
  const bool shown = std::exchange(shown_, false);
  if (shown || told_) missed_ = false;
  if (shown || told_ || !watched) missingNs_ = now;
  return now - missingNs_ > kPatienceNs && !std::exchange(missed_, true);
}

RecordingTally WriterFace::Tally() {
  const std::lock_guard lock(mutex_);
  return lane_ ? lane_->Tally() : last_;
}

void WriterFace::Pause(bool on) {
  const std::lock_guard lock(mutex_);
  if (lane_) lane_->Pause(on);
}

void WriterFace::SetPath(const std::string& path) {
  const std::lock_guard lock(mutex_);
  path_ = path;
}

void WriterFace::Open() {
  const std::lock_guard lock(mutex_);
  if (lane_) lane_->Open(path_);
}

void WriterFace::Close(std::int64_t lastNs) {
  const std::lock_guard lock(mutex_);
  if (lane_) lane_->Close(lastNs);
}

void WriterFace::CloseNow() {
  const std::lock_guard lock(mutex_);
  if (lane_) lane_->CloseNow();
}

void WriterFace::SetLane(std::shared_ptr<IFileLane> lane) {
  const std::lock_guard lock(mutex_);
  if (lane_) last_ = lane_->Tally();
  lane_ = std::move(lane);
}

std::shared_ptr<IFileLane> WriterFace::Lane() const {
  const std::lock_guard lock(mutex_);
  return lane_;
}

std::int64_t GateMoment::Join() {
  const std::lock_guard lock(mutex_);
  if (armed_++ == 0) since_ = Now();
  return since_;
}

void GateMoment::Leave() {
  const std::lock_guard lock(mutex_);
  --armed_;
}

void GateFace::Arm(bool on) {
  const std::lock_guard lock(mutex_);
  if (armed_ == on) return;
  armed_ = on;
  if (on) {
    lastNs_ = std::numeric_limits<std::int64_t>::min();
    sinceNs_ = moment_->Join();
    if (writer_) writer_->Open();
  } else {
    moment_->Leave();
    if (writer_) writer_->Close(lastNs_);
  }
}

bool GateFace::LetsThrough(std::int64_t ns) {
  const std::lock_guard lock(mutex_);
  if (!armed_ || ns < sinceNs_) return false;
  lastNs_ = ns;
  return true;
}

void GateFace::Begin() {
  const std::lock_guard lock(mutex_);
  if (armed_ && writer_) writer_->Open();
}

}  // namespace kinalyx
