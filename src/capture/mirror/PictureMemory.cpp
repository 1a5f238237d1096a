#include "capture/mirror/PictureMemory.h"

#include <algorithm>
#include <iterator>
#include <limits>

namespace kinalyx {
namespace {

constexpr std::int64_t kAfterNs = 250'000'000;
constexpr auto kEver = std::numeric_limits<std::int64_t>::max();
constexpr double kFullPart = 0.97;

}  // namespace

void PictureMemory::LetGo() {
  const std::lock_guard lock(mutex_);
  if (!ring_) return;
  for (PackedPicture& picture : ring_->Pictures(past_.empty() ? 0 : past_.back().ns + 1, kEver)) {
    pastBytes_ += static_cast<std::int64_t>(picture.size);
    past_.push_back(std::move(picture));
  }
  ring_ = nullptr;
}

void PictureMemory::Follow(IBlockRecordingFilter& ring) {
  const std::lock_guard lock(mutex_);
  ring_ = &ring;
  ring_->Remember(static_cast<double>(reachNs_) / 1e9);
  ring_->SetBound(bound_);
}

void PictureMemory::Clear() {
  const std::lock_guard lock(mutex_);
  ring_ = nullptr;
  past_.clear();
  pastBytes_ = 0;
}

void PictureMemory::Limit(std::int64_t reachNs, std::int64_t bound) {
  const std::lock_guard lock(mutex_);
  if (reachNs == reachNs_ && bound == bound_) return;
  reachNs_ = reachNs;
  bound_ = bound;
  if (!ring_) return;
  ring_->Remember(static_cast<double>(reachNs_) / 1e9);
  ring_->SetBound(bound_);
}

void PictureMemory::Trim(std::int64_t nowNs) {
  const std::lock_guard lock(mutex_);
  const std::int64_t ringBytes = ring_ && !past_.empty() ? ring_->Ring().bytes : 0;
  const auto goes = [&] { return past_.front().ns < nowNs - reachNs_ || pastBytes_ + ringBytes > bound_; };
  while (!past_.empty() && goes()) {
    pastBytes_ -= static_cast<std::int64_t>(past_.front().size);
    past_.pop_front();
  }
}

std::optional<PackedPicture> PictureMemory::At(std::int64_t ns) const {
  const std::lock_guard lock(mutex_);
  if (ring_)
    if (auto picture = ring_->PictureAt(ns)) return picture;
  const auto after = std::ranges::upper_bound(past_, ns, {}, &PackedPicture::ns);
  if (after == past_.begin()) return std::nullopt;
  return *std::prev(after);
}

std::optional<PackedPicture> PictureMemory::After(std::int64_t ns) const {
  const std::lock_guard lock(mutex_);
  const auto after = std::ranges::upper_bound(past_, ns, {}, &PackedPicture::ns);
  if (after != past_.end()) return *after;
  if (!ring_) return std::nullopt;
  const std::vector<PackedPicture> next = ring_->Pictures(ns + 1, ns + kAfterNs);
  if (next.empty()) return std::nullopt;
  return next.front();
}

std::vector<PackedPicture> PictureMemory::Between(std::int64_t fromNs, std::int64_t toNs) const {
  const std::lock_guard lock(mutex_);
  std::vector<PackedPicture> pictures(std::ranges::lower_bound(past_, fromNs, {}, &PackedPicture::ns),
                                      std::ranges::upper_bound(past_, toNs, {}, &PackedPicture::ns));
  if (ring_)
    for (PackedPicture& picture : ring_->Pictures(fromNs, toNs)) pictures.push_back(std::move(picture));
  return pictures;
}

PictureMemory::Tally PictureMemory::Take() const {
  const std::lock_guard lock(mutex_);
  Tally tally;
  tally.bytes = pastBytes_;
  if (!past_.empty()) {
    tally.any = true;
    tally.oldestNs = past_.front().ns;
    tally.newestNs = past_.back().ns;
  }
  const auto newest = ring_ ? ring_->PictureAt(kEver) : std::nullopt;
  if (!newest) return tally;
  const RingTally ring = ring_->Ring();
  tally.newestNs = newest->ns;
  if (!tally.any) tally.oldestNs = newest->ns - static_cast<std::int64_t>(ring.seconds * 1e9);
  tally.any = true;
  tally.bytes += ring.bytes;
  tally.full = static_cast<double>(tally.bytes) > static_cast<double>(bound_) * kFullPart;
  return tally;
}

}  // namespace kinalyx
