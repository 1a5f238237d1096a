#include "platform/graph/TriggerFaces.h"

#include <algorithm>
#include <chrono>
#include <cmath>

namespace kinalyx {
namespace {

/// Beyond the window: a sound is known to be an impact only a little after it was one, and a picture of a camera on
/// the network may come before the trigger does.
constexpr double kSlack = 1.5;
/// Shots that no trigger fired count from here, so that nothing pairs them with one that did.
constexpr int kFirstUntriggered = 1'000'000;

/// No clock of a microphone is further ahead.
constexpr std::int64_t kAheadNs = 1'000'000'000;

std::int64_t Now() { return std::chrono::steady_clock::now().time_since_epoch() / std::chrono::nanoseconds(1); }

std::int64_t Nanoseconds(double seconds) { return std::llround(seconds * 1e9); }

}  // namespace

BlockFace::BlockFace() : ring_(std::make_shared<PictureRing>()) { FitReach(); }

void BlockFace::FitReach() { ring_->Reach(std::max(remembered_, std::max(0.0, -startSeconds_) + kSlack)); }

void BlockFace::BlockRecordingSetStart(double seconds) {
  const std::lock_guard lock(mutex_);
  startSeconds_ = seconds;
  FitReach();
}

void BlockFace::BlockRecordingSetEnd(double seconds) {
  const std::lock_guard lock(mutex_);
  endSeconds_ = seconds;
}

double BlockFace::EndOffset() const {
  const std::lock_guard lock(mutex_);
  return endSeconds_;
}

void BlockFace::Remember(double seconds) {
  const std::lock_guard lock(mutex_);
  remembered_ = seconds;
  FitReach();
}

void BlockFace::SetBound(std::int64_t bytes) { ring_->SetBound(bytes); }
RingTally BlockFace::Ring() const { return ring_->Tally(); }
std::optional<PackedPicture> BlockFace::PictureAt(std::int64_t ns) const { return ring_->At(ns); }

std::vector<PackedPicture> BlockFace::Pictures(std::int64_t fromNs, std::int64_t toNs) const {
  return ring_->Between(fromNs, toNs);
}

std::shared_ptr<BlockLane> BlockFace::Lane() const {
  const std::lock_guard lock(mutex_);
  return lane_;
}

std::shared_ptr<IBlockWriter> BlockFace::Blocks() const { return Lane(); }

void BlockFace::WritePictures(std::vector<PackedPicture> pictures) {
  std::unique_lock lock(mutex_);
  const auto lane = lane_;
  const int shot = kFirstUntriggered + ++written_;
  lock.unlock();
  if (lane) lane->Write(shot, std::move(pictures));
}

std::shared_ptr<BlockLane> BlockFace::MakeLane(const std::string& label, const GraphNews& news) {
  ring_->Clear();
  const std::lock_guard lock(mutex_);
  lane_ = std::make_shared<BlockLane>(label, news, ring_);
  return lane_;
}

void BlockFace::Write(int shot, std::int64_t triggerNs) {
  const std::lock_guard lock(mutex_);
  if (lane_)
    lane_->Write({shot, triggerNs, triggerNs + Nanoseconds(startSeconds_), triggerNs + Nanoseconds(endSeconds_)});
}

void TriggerLine::Connect(std::shared_ptr<BlockFace> block) { blocks_.push_back(std::move(block)); }

void TriggerLine::Begin(const GraphNews& news) {
  const std::lock_guard lock(mutex_);
  news_.emplace(news);
  shots_ = 0;
  busyUntilNs_ = 0;
}

void TriggerLine::End() {
  const std::lock_guard lock(mutex_);
  news_.reset();
}

bool TriggerLine::Fire(std::int64_t ns) {
  // A stamp of tomorrow would hold up all triggers until then.
  ns = std::min(ns, Now() + kAheadNs);
  const std::lock_guard lock(mutex_);
  if (!news_ || ns <= busyUntilNs_) return false;
  ++shots_;
  busyUntilNs_ = ns;
  for (const auto& block : blocks_) {
    busyUntilNs_ = std::max(busyUntilNs_, ns + Nanoseconds(block->EndOffset()));
    block->Write(shots_, ns);
  }
  news_->TriggerFired(label_, shots_, ns);
  return true;
}

bool SwitchFace::Fire(std::int64_t ns) { return line_->Fire(ns > 0 ? ns : Now()); }

double AudioTriggerFace::Level() {
  const std::lock_guard lock(mutex_);
  return detector_.Level();
}

void AudioTriggerFace::SetThreshold(double level) {
  const std::lock_guard lock(mutex_);
  detector_.SetThreshold(level);
}

void AudioTriggerFace::SetGain(double gain) {
  const std::lock_guard lock(mutex_);
  detector_.SetGain(gain);
}

void AudioTriggerFace::Hear(std::span<const float> samples, int rate, std::int64_t ns) {
  std::unique_lock lock(mutex_);
  const std::vector<std::int64_t> impacts = detector_.Hear(samples, rate, ns);
  lock.unlock();
  for (const std::int64_t impact : impacts) line_->Fire(impact);
}

}  // namespace kinalyx
