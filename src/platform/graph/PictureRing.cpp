#include "platform/graph/PictureRing.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <iterator>

namespace kinalyx {
namespace {

constexpr double kSecond = 1e9;

PackedPicture CopyOf(const PackedPicture& picture) {
  const std::shared_ptr<std::byte[]> bytes(new std::byte[picture.size]);
  std::memcpy(bytes.get(), picture.bytes.get(), picture.size);
  PackedPicture copy = picture;
  copy.bytes = std::shared_ptr<const std::byte>(bytes, bytes.get());
  return copy;
}

/// The first of them that was taken after that.
auto FirstAfter(const std::deque<PackedPicture>& pictures, std::int64_t ns) {
  return std::ranges::upper_bound(pictures, ns, {}, &PackedPicture::ns);
}

}  // namespace

bool PictureRing::Push(const PackedPicture& picture) {
  PackedPicture copy = CopyOf(picture);
  const std::lock_guard lock(mutex_);
  if (!pictures_.empty() && copy.ns <= pictures_.back().ns) return false;
  bytes_ += static_cast<std::int64_t>(copy.size);
  pictures_.push_back(std::move(copy));
  Forget();
  return true;
}

void PictureRing::Clear() {
  const std::lock_guard lock(mutex_);
  pictures_.clear();
  bytes_ = 0;
}

void PictureRing::Reach(double seconds) {
  const std::lock_guard lock(mutex_);
  reachNs_ = std::llround(std::max(0.0, seconds) * kSecond);
}

void PictureRing::SetBound(std::int64_t bytes) {
  const std::lock_guard lock(mutex_);
  bound_ = bytes;
}

void PictureRing::Pin(std::int64_t ns) {
  const std::lock_guard lock(mutex_);
  pinnedNs_ = ns;
}

/// One picture before the reach stays: at that moment it was seen.
void PictureRing::Forget() {
  const std::int64_t from = std::min(pictures_.back().ns - reachNs_, pinnedNs_);
  while (pictures_.size() > 1 && (pictures_[1].ns <= from || bytes_ > bound_)) {
    bytes_ -= static_cast<std::int64_t>(pictures_.front().size);
    pictures_.pop_front();
  }
}

RingTally PictureRing::Tally() const {
  const std::lock_guard lock(mutex_);
  RingTally tally;
  if (!pictures_.empty()) tally.seconds = static_cast<double>(pictures_.back().ns - pictures_.front().ns) / kSecond;
  tally.bytes = bytes_;
  tally.bound = bound_;
  return tally;
}

std::optional<PackedPicture> PictureRing::At(std::int64_t ns) const {
  const std::lock_guard lock(mutex_);
  const auto after = FirstAfter(pictures_, ns);
  if (after == pictures_.begin()) return std::nullopt;
  return *std::prev(after);
}

std::optional<PackedPicture> PictureRing::After(std::int64_t ns) const {
  const std::lock_guard lock(mutex_);
  const auto after = FirstAfter(pictures_, ns);
  if (after == pictures_.end()) return std::nullopt;
  return *after;
}

std::vector<PackedPicture> PictureRing::Between(std::int64_t fromNs, std::int64_t toNs) const {
  const std::lock_guard lock(mutex_);
  if (toNs < fromNs) return {};
  return {std::ranges::lower_bound(pictures_, fromNs, {}, &PackedPicture::ns), FirstAfter(pictures_, toNs)};
}

}  // namespace kinalyx
