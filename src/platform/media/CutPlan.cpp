#include "platform/media/CutPlan.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "platform/media/ShowOrder.h"

namespace kinalyx {

std::int64_t CutPlan::TimeOf(int n) const {
  return timed_ ? index_->ShowTime(first_ + n) - index_->ShowTime(first_) : n;
}

bool CutPlan::Make(Demuxer& demuxer, int firstPicture, int count, AVRational frameLength,
                   const std::function<bool()>& goOn) {
  index_ = &demuxer.Index();
  first_ = firstPicture;
  count_ = count;
  timed_ = demuxer.TellsShowTimes() && index_->HasShowTimes();
  unit_ = timed_ ? demuxer.Stream().time_base : frameLength;
  const std::int64_t zero = timed_ ? index_->ShowTime(first_) : 0;
  const int lastPicture = first_ + count_ - 1;
  const int reach = static_cast<int>(ShowOrder::kReach);
  const int lastPacket = std::min(index_->PacketOfOrder(lastPicture) + reach, index_->PacketCount() - 1);

  ShowOrder order(*index_, demuxer.Codec(), timed_);
  for (int chunk = index_->ChunkOfPicture(first_); chunk >= 0; --chunk) {
    const int start = index_->ChunkStart(chunk);
    if (!demuxer.Seek(start)) return false;
    order.Reset();
    packets_.clear();
    bool decodingTimes = timed_;
    bool needsChunkBefore = false;
    std::size_t needed = 0;
    int missing = count_;
    for (int popped = -1; popped < lastPacket && missing > 0 && !needsChunkBefore;) {
      std::optional<PlacedPacket> placed = order.Pop();
      if (!placed) {
        PacketHandle packet = NewPacket();
        const int number = demuxer.Read(*packet);
        if (number < 0) order.Finish();
        else if (number >= start) order.Push(number, std::move(packet));
        if (number < 0 && order.Empty()) break;
        if (number % 64 == 0 && !goOn()) return false;
        continue;
      }
      popped = placed->number;
      // Made with help of the chunk before.
      needsChunkBefore = placed->leading && placed->picture >= first_ && chunk > 0;
      PlannedPacket& planned = packets_.emplace_back();
      planned.number = popped;
      planned.picture = placed->picture;
      planned.leading = placed->leading;
      const AVPacket& packet = *placed->packet;
      decodingTimes = decodingTimes && packet.dts != AV_NOPTS_VALUE && packet.pts != AV_NOPTS_VALUE;
      planned.shown =
          timed_ ? (packet.pts != AV_NOPTS_VALUE ? packet.pts : packet.dts) - zero : planned.picture - first_;
      if (packet.dts != AV_NOPTS_VALUE) planned.decoded = packet.dts - zero;  // else it is invented below
      if (!IsWanted(planned)) continue;
      --missing;
      needed = packets_.size();
    }
    if (needsChunkBefore) continue;
    packets_.resize(needed);
    fileEndsEarly_ = missing > 0 && demuxer.NextPacket() < index_->PacketCount();
    if (missing > 0 || packets_.empty()) return false;
    if (!decodingTimes) InventDecodingTimes();
    return true;
  }
  return false;
}

/// Packets are decoded at the times of showing, earlier by as many as a picture can be late.
void CutPlan::InventDecodingTimes() {
  std::vector<std::int64_t> times;
  for (const PlannedPacket& packet : packets_) times.push_back(packet.shown);
  std::ranges::sort(times);
  const auto step = times.size() > 1 ? std::max<std::int64_t>(1, times[1] - times[0]) : 1;
  std::int64_t delay = 0;
  for (std::size_t i = 0; i < packets_.size(); ++i) {
    const auto rank = std::ranges::lower_bound(times, packets_[i].shown) - times.begin();
    delay = std::max(delay, static_cast<std::int64_t>(i) - rank);
  }
  for (std::size_t i = 0; i < packets_.size(); ++i) {
    const std::int64_t at = static_cast<std::int64_t>(i) - delay;
    packets_[i].decoded = at >= 0 ? times[static_cast<std::size_t>(at)] : times[0] + at * step;
  }
}

void CutPlan::DropLeading() {
  if (packets_.empty() || packets_.front().picture != first_) return;
  std::erase_if(packets_, [this](const PlannedPacket& packet) { return packet.leading && packet.picture < first_; });
}

bool CutPlan::IsExact() const {
  return std::ranges::all_of(packets_, [this](const PlannedPacket& packet) { return IsWanted(packet); });
}

bool CutPlan::CanHideOthers() const {
  const std::int64_t end = TimeOf(count_);
  return timed_ && std::ranges::all_of(packets_, [&](const PlannedPacket& packet) {
           return IsWanted(packet) == (packet.shown >= 0 && packet.shown < end);
         });
}

}  // namespace kinalyx
