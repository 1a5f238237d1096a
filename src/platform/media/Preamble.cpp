#include "platform/media/Preamble.h"

#include <algorithm>
#include <cstring>
#include <initializer_list>
#include <string_view>

namespace kinalyx {
namespace {

using namespace std::string_view_literals;

constexpr std::string_view kStart = "\0\0\1"sv;
/// Longer words are none: a damaged packet.
constexpr std::size_t kMostBytes = 1 << 16;

std::string_view BytesOf(const AVPacket& packet) {
  return {reinterpret_cast<const char*>(packet.data), static_cast<std::size_t>(std::max(0, packet.size))};
}

/// An SEI message of free content: there the encoder gives its name.
bool IsUserData(std::string_view unit) {
  constexpr int kSei = 6;
  constexpr char kUnregistered = 5;
  return unit.size() > 2 && (unit[0] & 31) == kSei && unit[1] == kUnregistered;
}

/// Bytes that hold the length of a unit of H.264; 0 where units begin with a mark instead.
std::size_t LengthBytesOf(const AVCodecParameters& codec) {
  return codec.extradata_size > 4 && codec.extradata[0] == 1 ? (codec.extradata[4] & 3U) + 1 : 0;
}

std::string UnitsByLength(std::string_view packet, std::size_t lengthBytes) {
  std::string words;
  while (packet.size() > lengthBytes) {
    std::size_t length = 0;
    for (std::size_t i = 0; i < lengthBytes; ++i) length = length << 8 | static_cast<unsigned char>(packet[i]);
    const std::string_view unit = packet.substr(lengthBytes, length);
    if (IsUserData(unit)) words += packet.substr(0, lengthBytes + unit.size());
    packet.remove_prefix(lengthBytes + unit.size());
  }
  return words;
}

std::string UnitsByMark(std::string_view packet) {
  std::string words;
  for (std::size_t at = packet.find(kStart); at != packet.npos;) {
    const std::size_t next = packet.find(kStart, at + kStart.size());
    const std::string_view unit = packet.substr(at, next == packet.npos ? next : next - at);
    if (IsUserData(unit.substr(kStart.size()))) words += unit;
    at = next;
  }
  return words;
}

/// All that stands before the first of the marks that begin a picture.
std::string HeaderBefore(std::string_view packet, std::initializer_list<std::string_view> pictures) {
  std::size_t end = packet.size();
  for (const std::string_view mark : pictures) end = std::min(end, packet.find(mark));
  return end < packet.size() ? std::string(packet.substr(0, end)) : std::string();
}

}  // namespace

Preamble::Preamble(const AVCodecParameters& codec, const AVPacket& first) {
  const std::string_view packet = BytesOf(first);
  switch (codec.codec_id) {
    case AV_CODEC_ID_H264: {
      const std::size_t lengthBytes = LengthBytesOf(codec);
      words_ = lengthBytes > 0 ? UnitsByLength(packet, lengthBytes) : UnitsByMark(packet);
      break;
    }
    case AV_CODEC_ID_MPEG4:
      words_ = HeaderBefore(packet, {"\0\0\1\xB6"sv});
      replaces_ = "\0\0\1\xB2"sv;
      break;
    case AV_CODEC_ID_MPEG1VIDEO:
    case AV_CODEC_ID_MPEG2VIDEO:
      words_ = HeaderBefore(packet, {"\0\0\1\0"sv, "\0\0\1\xB8"sv});
      replaces_ = "\0\0\1\xB3"sv;
      break;
    default: break;
  }
  if (words_.size() > kMostBytes) words_.clear();
}

void Preamble::PutBefore(AVPacket& packet) const {
  const std::string_view own = BytesOf(packet);
  if (words_.empty() || (!replaces_.empty() && own.find(replaces_) != own.npos)) return;
  AVBufferRef* whole = av_buffer_alloc(words_.size() + own.size() + AV_INPUT_BUFFER_PADDING_SIZE);
  if (!whole) return;
  std::memcpy(whole->data, words_.data(), words_.size());
  std::memcpy(whole->data + words_.size(), own.data(), own.size());
  std::memset(whole->data + words_.size() + own.size(), 0, AV_INPUT_BUFFER_PADDING_SIZE);
  av_buffer_unref(&packet.buf);
  packet.buf = whole;
  packet.data = whole->data;
  packet.size += static_cast<int>(words_.size());
}

}  // namespace kinalyx
