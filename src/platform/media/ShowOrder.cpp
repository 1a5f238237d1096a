#include "platform/media/ShowOrder.h"

#include <algorithm>
#include <utility>

namespace kinalyx {
namespace {

/// Room between two anchor pictures for those shown between them.
constexpr std::int64_t kAnchorStep = 1 << 20;

}  // namespace

ShowOrder::ShowOrder(const PictureIndex& index, const AVCodecParameters& codec, bool tellsShowTimes) : index_(index) {
  const AVCodecDescriptor* descriptor = avcodec_descriptor_get(codec.codec_id);
  if (!descriptor || !(descriptor->props & AV_CODEC_PROP_REORDER)) return;
  if (tellsShowTimes) {
    rule_ = Rule::ByTime;
    return;
  }
  parser_.reset(av_parser_init(codec.codec_id));
  parsing_.reset(avcodec_alloc_context3(nullptr));
  if (!parser_ || !parsing_ || avcodec_parameters_to_context(parsing_.get(), &codec) < 0) return;
  parser_->flags |= PARSER_FLAG_COMPLETE_FRAMES;
  const bool numbered = codec.codec_id == AV_CODEC_ID_H264 || codec.codec_id == AV_CODEC_ID_HEVC;
  rule_ = numbered ? Rule::ByNumber : Rule::ByType;
}

void ShowOrder::Reset() {
  waiting_.clear();
  past_.clear();
  finished_ = false;
  section_ = 0;
  anchors_ = between_ = 0;
  keyChunk_ = -1;
}

ShowOrder::Key ShowOrder::KeyOf(int number, const AVPacket& packet) {
  Key key{index_.ChunkOfPacket(number), section_, number};
  if (rule_ == Rule::ByTime) {
    key.rank = packet.pts != AV_NOPTS_VALUE ? packet.pts : packet.dts;
    return key;
  }
  std::uint8_t* data = nullptr;
  int size = 0;
  av_parser_parse2(parser_.get(), parsing_.get(), &data, &size, packet.data, packet.size, packet.pts, packet.dts,
                   packet.pos);
  if (rule_ == Rule::ByNumber) {
    if (parser_->key_frame == 1) key.section = ++section_;
    key.rank = parser_->output_picture_number;
    return key;
  }
  // A picture of type B is shown before the anchor that stands before it in the file.
  if (parser_->pict_type == AV_PICTURE_TYPE_B) {
    key.rank = (anchors_ - 1) * kAnchorStep + ++between_;
  } else {
    key.rank = ++anchors_ * kAnchorStep;
    between_ = 0;
  }
  return key;
}

void ShowOrder::Push(int number, PacketHandle packet) {
  Waiting waiting{std::move(packet), number, {}};
  if (rule_ != Rule::AsStored) waiting.key = KeyOf(number, *waiting.packet);
  waiting_.push_back(std::move(waiting));
}

bool ShowOrder::FrontIsCertain() const {
  if (waiting_.empty()) return false;
  return rule_ == Rule::AsStored || finished_ || waiting_.size() > kReach ||
         waiting_.back().key.chunk != waiting_.front().key.chunk;
}

/// Its place in the file, corrected by the neighbours that are shown in another order than stored.
int ShowOrder::PictureOfFront() const {
  const Waiting& front = waiting_.front();
  int picture = index_.PicturesBefore(front.number);
  if (rule_ == Rule::AsStored) return picture;
  for (auto later = waiting_.begin() + 1; later != waiting_.end() && later->key.chunk == front.key.chunk; ++later)
    picture += !index_.IsHidden(later->number) && later->key < front.key;
  for (const Past& earlier : past_)
    picture -= !earlier.hidden && earlier.key.chunk == front.key.chunk && earlier.key > front.key;
  return std::clamp(picture, 0, index_.PictureCount() - 1);
}

std::optional<PlacedPacket> ShowOrder::Pop() {
  if (!FrontIsCertain()) return std::nullopt;
  PlacedPacket placed;
  const int picture = PictureOfFront();
  Waiting& front = waiting_.front();
  const bool hidden = index_.IsHidden(front.number);
  placed.number = front.number;
  placed.picture = hidden ? -1 : picture;
  if (rule_ != Rule::AsStored) {
    if (keyChunk_ != front.key.chunk) {
      keyChunk_ = front.key.chunk;
      keyPicture_ = picture;
    }
    placed.leading = picture < keyPicture_;
    past_.push_back({front.key, hidden});
    if (past_.size() > kReach) past_.pop_front();
  }
  placed.packet = std::move(front.packet);
  waiting_.pop_front();
  return placed;
}

}  // namespace kinalyx
