#include "platform/media/StandInShelf.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <utility>

namespace kinalyx {

void StandInShelf::Attach(const StandInLimits& limits, const FileStamp& video) {
  std::vector<StandInFile::Place> found;
  auto file = StandInFile::Open(limits, video, static_cast<int>(longSides_.size()),
                                [&](const StandInFile::Place& place) { found.push_back(place); });
  const std::lock_guard lock(mutex_);
  file_ = std::move(file);
  for (const StandInFile::Place& place : found) {
    places_[place.picture] = place;
    longSides_[place.picture] = static_cast<std::int16_t>(place.longSide);
  }
}

void StandInShelf::Detach() {
  if (file_) file_->Discard();
}

int StandInShelf::LongSide(int picture) const {
  const std::lock_guard lock(mutex_);
  return longSides_[picture];
}

int StandInShelf::Nearest(int picture) const {
  const std::lock_guard lock(mutex_);
  const int count = static_cast<int>(longSides_.size());
  for (int away = 0; away < count; ++away) {
    if (picture - away >= 0 && longSides_[picture - away]) return picture - away;
    if (picture + away < count && longSides_[picture + away]) return picture + away;
  }
  return -1;
}

bool StandInShelf::WouldKeep(int picture, int focus) const {
  if ((file_ && file_->HasRoom()) || used_ + largest_ <= most_) return true;
  if (memory_.empty()) return false;
  const int farthest = std::max(std::abs(memory_.begin()->first - focus), std::abs(memory_.rbegin()->first - focus));
  return std::abs(picture - focus) < farthest;
}

std::optional<int> StandInShelf::Missing(int first, int end, int longSide, int focus) const {
  const std::lock_guard lock(mutex_);
  for (int picture = first; picture < end; ++picture)
    if (longSides_[picture] < longSide && WouldKeep(picture, focus)) return picture;
  return std::nullopt;
}

StandInShelf::Bytes StandInShelf::Get(int picture) {
  const std::lock_guard lock(mutex_);
  if (const auto found = memory_.find(picture); found != memory_.end()) return found->second;
  const auto place = places_.find(picture);
  if (place == places_.end()) return nullptr;
  if (auto bytes = file_->Read(place->second)) return std::make_shared<std::vector<std::uint8_t>>(std::move(*bytes));
  places_.erase(place);
  longSides_[picture] = 0;
  return nullptr;
}

void StandInShelf::Put(int picture, int longSide, std::vector<std::uint8_t> packed, int focus) {
  if (packed.empty()) return;
  // Nobody who reads waits for the disk.
  const auto place = file_ ? file_->Append(picture, longSide, packed) : std::nullopt;
  const std::lock_guard lock(mutex_);
  if (const auto old = memory_.find(picture); old != memory_.end()) Drop(old);
  places_.erase(picture);
  if (place) places_[picture] = *place;
  longSides_[picture] = static_cast<std::int16_t>(longSide);
  used_ += packed.size();
  largest_ = std::max(largest_, packed.size());
  memory_[picture] = std::make_shared<std::vector<std::uint8_t>>(std::move(packed));
  MakeRoom(focus);
}

void StandInShelf::Trim(std::size_t bytes, int focus) {
  const std::lock_guard lock(mutex_);
  most_ = bytes;
  MakeRoom(focus);
}

void StandInShelf::MakeRoom(int focus) {
  while (used_ > most_ && memory_.size() > 1) {
    const auto lowest = memory_.begin();
    const auto highest = std::prev(memory_.end());
    Drop(highest->first - focus >= focus - lowest->first ? highest : lowest);
  }
}

void StandInShelf::Drop(std::map<int, Bytes>::iterator item) {
  used_ -= item->second->size();
  if (!places_.contains(item->first)) longSides_[item->first] = 0;
  memory_.erase(item);
}

}  // namespace kinalyx
