#include "platform/media/PictureIndex.h"

#include <algorithm>
#include <numeric>

namespace kinalyx {

void PictureIndex::Add(std::int64_t time, bool key, bool hidden) {
  if (!packets_.empty() && time <= packets_.back().time) timesGrow_ = false;
  packets_.push_back({time, 0, key, hidden});
  showings_.push_back({});
  if (!frameOfOrder_.empty()) frameOfOrder_.push_back(frameOfOrder_.back() + 1);
}

void PictureIndex::TimeLast(std::int64_t shown, std::int64_t length) { showings_.back() = {shown, length}; }

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
  OrderShowTimes();
  frames_ = pictures_ == 0 ? 0 : std::max(frames, FrameOfPicture(pictures_ - 1) + 1);
}

void PictureIndex::OrderShowTimes() {
  std::vector<Showing> shown;
  shown.reserve(static_cast<std::size_t>(pictures_));
  for (std::size_t i = 0; i < packets_.size(); ++i) {
    if (!packets_[i].hidden) shown.push_back(showings_[i]);
  }
  showings_ = {};
  showTimes_.clear();
  if (shown.empty() || std::ranges::find(shown, kNoTime, &Showing::begin) != shown.end()) return;
  // Within a chunk by time, as they are shown; the chunks follow one another.
  for (std::size_t k = 0; k < keys_.size(); ++k) {
    const auto from = shown.begin() + packets_[keys_[k]].order;
    const auto to = k + 1 < keys_.size() ? shown.begin() + packets_[keys_[k + 1]].order : shown.end();
    std::ranges::sort(from, to, {}, &Showing::begin);
  }
  if (!std::ranges::is_sorted(shown, {}, &Showing::begin)) return;
  for (const Showing& showing : shown) showTimes_.push_back(showing.begin);
  const Showing& last = shown.back();
  const std::int64_t before = shown.size() > 1 ? last.begin - shown[shown.size() - 2].begin : 0;
  // Some writers close the film with a length of nonsense.
  const bool likely = last.length > 0 && (before == 0 || last.length <= 100 * before);
  showTimes_.push_back(last.begin + (likely ? last.length : before));
}

int PictureIndex::PictureOfFrame(int frame) const {
  if (frameOfOrder_.empty()) return std::min(frame, pictures_ - 1);
  const auto after = std::ranges::upper_bound(frameOfOrder_, frame);
  return std::max(0, static_cast<int>(after - frameOfOrder_.begin()) - 1);
}

int PictureIndex::FrameOfPicture(int picture) const { return frameOfOrder_.empty() ? picture : frameOfOrder_[picture]; }

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
