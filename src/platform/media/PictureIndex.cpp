#include "platform/media/PictureIndex.h"

#include <algorithm>
#include <numeric>

namespace kinalyx {

void PictureIndex::Add(std::int64_t time, bool key, bool hidden) {
  if (!packets_.empty() && time <= packets_.back().time) timesGrow_ = false;
  packets_.push_back({time, 0, key, hidden});
  if (!frameOfOrder_.empty()) frameOfOrder_.push_back(frameOfOrder_.back() + 1);
}

void PictureIndex::PlaceLast(int frame) {
  const auto last = static_cast<int>(packets_.size()) - 1;
  if (frameOfOrder_.empty()) {
    if (frame == last) return;
    frameOfOrder_.resize(packets_.size());
    std::iota(frameOfOrder_.begin(), frameOfOrder_.end(), 0);
  }
  frameOfOrder_.back() = frame;
}

void PictureIndex::Finish(int frames, bool dropBeforeKey) {
  if (dropBeforeKey) {
    const auto firstKey = std::ranges::find(packets_, true, &Packet::key);
    if (firstKey != packets_.end()) {
      for (auto packet = packets_.begin(); packet != firstKey; ++packet) packet->hidden = true;
    }
  }
  pictures_ = 0;
  keys_.clear();
  std::vector<std::int32_t> shownFrames;
  for (std::size_t i = 0; i < packets_.size(); ++i) {
    Packet& packet = packets_[i];
    packet.order = pictures_;
    if (packet.key || i == 0) keys_.push_back(static_cast<std::int32_t>(i));
    if (packet.hidden) continue;
    if (!frameOfOrder_.empty()) shownFrames.push_back(frameOfOrder_[i]);
    ++pictures_;
  }
  frameOfOrder_ = std::move(shownFrames);
  frames_ = pictures_ == 0 ? 0 : std::max(frames, FrameOfPicture(pictures_ - 1) + 1);
}

int PictureIndex::PictureOfFrame(int frame) const {
  if (frameOfOrder_.empty()) return std::min(frame, pictures_ - 1);
  const auto after = std::ranges::upper_bound(frameOfOrder_, frame);
  return std::max(0, static_cast<int>(after - frameOfOrder_.begin()) - 1);
}

int PictureIndex::FrameOfPicture(int picture) const {
  return frameOfOrder_.empty() ? picture : frameOfOrder_[picture];
}

int PictureIndex::PacketOfOrder(int order) const {
  // The last packet with this order is the shown one: hidden ones before it carry the same.
  const auto after = std::ranges::upper_bound(packets_, order, {}, &Packet::order);
  return std::max(0, static_cast<int>(after - packets_.begin()) - 1);
}

std::optional<int> PictureIndex::FindPacket(std::int64_t time) const {
  const auto found = std::ranges::lower_bound(packets_, time, {}, &Packet::time);
  if (found == packets_.end() || found->time != time) return std::nullopt;
  return static_cast<int>(found - packets_.begin());
}

int PictureIndex::ChunkOfPacket(int packet) const {
  return static_cast<int>(std::ranges::upper_bound(keys_, packet) - keys_.begin()) - 1;
}

int PictureIndex::ChunkOfPicture(int picture) const {
  // The last chunk that begins at or before the picture; chunks of hidden packets alone share a begin.
  const auto after = std::ranges::upper_bound(keys_, picture, {}, [&](int key) { return packets_[key].order; });
  return std::max(0, static_cast<int>(after - keys_.begin()) - 1);
}

}  // namespace kinalyx
