#include "platform/media/FieldJoiner.h"

#include <cstdint>
#include <cstring>
#include <utility>

namespace kinalyx {
namespace {

using Structure = FieldParser::Structure;

/// Puts the content of one packet behind that of another; false without memory.
bool Append(AVPacket& packet, const AVPacket& tail) {
  const int before = packet.size;
  if (av_grow_packet(&packet, tail.size) < 0) return false;
  std::memcpy(packet.data + before, tail.data, static_cast<std::size_t>(tail.size));
  // A field without a time of its own was given the length of both.
  if (tail.pts != AV_NOPTS_VALUE || tail.dts != AV_NOPTS_VALUE) packet.duration += tail.duration;
  return true;
}

}  // namespace

bool ReadPacket(AVFormatContext& input, int stream, AVPacket& packet) {
  while (av_read_frame(&input, &packet) >= 0) {
    if (packet.stream_index == stream && packet.size > 0) return true;
    av_packet_unref(&packet);
  }
  return false;
}

FieldParser::FieldParser(const AVCodecParameters& codec)
    : notes_(avcodec_alloc_context3(nullptr)), parser_(av_parser_init(codec.codec_id)) {
  if (!notes_ || avcodec_parameters_to_context(notes_.get(), &codec) < 0) parser_.reset();
  if (parser_) parser_->flags |= PARSER_FLAG_COMPLETE_FRAMES;
}

Structure FieldParser::Look(const AVPacket& packet) {
  if (!parser_) return Structure::Unknown;
  std::uint8_t* data = nullptr;
  int size = 0;
  av_parser_parse2(parser_.get(), notes_.get(), &data, &size, packet.data, packet.size, packet.pts, packet.dts,
                   packet.pos);
  switch (parser_->picture_structure) {
    case AV_PICTURE_STRUCTURE_TOP_FIELD: return Structure::TopField;
    case AV_PICTURE_STRUCTURE_BOTTOM_FIELD: return Structure::BottomField;
    case AV_PICTURE_STRUCTURE_FRAME: return Structure::Frame;
    default: return Structure::Unknown;
  }
}

AVFieldOrder FieldParser::Order() const {
  if (!parser_) return AV_FIELD_UNKNOWN;
  if (parser_->picture_structure == AV_PICTURE_STRUCTURE_TOP_FIELD) return AV_FIELD_TT;
  if (parser_->picture_structure == AV_PICTURE_STRUCTURE_BOTTOM_FIELD) return AV_FIELD_BB;
  return parser_->field_order;
}

FieldJoiner::FieldJoiner(const AVCodecParameters& codec, Structure first)
    : parser_(codec),
      first_(first),
      second_(first == Structure::TopField ? Structure::BottomField : Structure::TopField) {}

bool FieldJoiner::Read(AVFormatContext& input, int stream, AVPacket& packet) {
  if (held_) av_packet_move_ref(&packet, std::exchange(held_, nullptr).get());
  else if (!ReadPacket(input, stream, packet)) return false;
  if (parser_.Look(packet) != first_) return true;
  held_ = NewPacket();
  if (!held_ || !ReadPacket(input, stream, *held_)) {
    held_.reset();
    return true;
  }
  if (parser_.Look(*held_) == second_ && Append(packet, *held_)) {
    held_.reset();
    joined_ = true;
  }
  return true;
}

}  // namespace kinalyx
