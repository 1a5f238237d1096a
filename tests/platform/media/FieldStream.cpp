#include "platform/media/FieldStream.h"

#include <cstring>
#include <memory>

#include "platform/media/AvHandles.h"

namespace kinalyx::test {
namespace {

constexpr int kGroup = 5;

class Bits {
 public:
  Bits& Put(unsigned value, int count) {
    for (int i = count - 1; i >= 0; --i) {
      if (free_ == 0) bytes_.push_back(0);
      free_ = (free_ + 7) % 8;
      if (value >> i & 1) bytes_.back() = static_cast<char>(bytes_.back() | 1 << free_);
    }
    return *this;
  }
  /// Exponential Golomb codes, without sign.
  Bits& Codes(std::initializer_list<unsigned> values) {
    for (const unsigned value : values) {
      int length = 0;
      while ((value + 1) >> (length + 1)) ++length;
      Put(0, length).Put(value + 1, length + 1);
    }
    return *this;
  }
  Bits& Raw(const std::string& bytes) {
    bytes_ += bytes;
    free_ = 0;
    return *this;
  }
  std::string Unit(unsigned char head) {
    Put(1, 1);
    return std::string("\0\0\0\1", 4) + static_cast<char>(head) + bytes_;
  }

 private:
  std::string bytes_;
  int free_ = 0;
};

std::string Headers() {
  constexpr unsigned kMainProfile = 77;
  std::string sequence = Bits()
                             .Put(kMainProfile, 8)
                             .Put(0, 8)
                             .Put(30, 8)
                             .Codes({0, 0, 2, 1})
                             .Put(0, 1)
                             .Codes({1, 0})
                             .Put(0b00100, 5)
                             .Unit(0x67);  // pictures may be fields
  std::string picture =
      Bits().Codes({0, 0}).Put(0, 2).Codes({0, 0, 0}).Put(0, 3).Codes({0, 0, 0}).Put(0b100, 3).Unit(0x68);
  return sequence + picture;
}

std::string Field(int n, bool lower) {
  const bool key = n % kGroup == 0 && !lower;
  Bits bits;
  bits.Codes({0, 7, 0}).Put(static_cast<unsigned>(n % kGroup), 4).Put(1, 1).Put(lower, 1);
  if (key) bits.Codes({static_cast<unsigned>(n / kGroup % 2)}).Put(0, 2);
  else bits.Put(0, 1);
  bits.Codes({0, 1});
  const auto brightness = static_cast<char>(lower ? 200 - 3 * n : 40 + 3 * n);
  for (int block = 0; block < 2; ++block) bits.Codes({25}).Raw(std::string(256, brightness) + std::string(128, '\x80'));
  const std::string delimiter("\0\0\0\1\x09\x10", 6);
  return delimiter + (key ? Headers() : std::string()) + bits.Unit(key ? 0x65 : 0x21);
}

struct OutputDeleter {
  void operator()(AVFormatContext* context) const {
    if (context->pb) avio_closep(&context->pb);
    avformat_free_context(context);
  }
};

}  // namespace

void MakeFieldStream(const std::string& path, int pictures, bool apart) {
  AVFormatContext* context = nullptr;
  ASSERT_GE(avformat_alloc_output_context2(&context, nullptr, nullptr, path.c_str()), 0);
  const std::unique_ptr<AVFormatContext, OutputDeleter> output(context);
  AVStream* stream = avformat_new_stream(context, nullptr);
  AVCodecParameters& codec = *stream->codecpar;
  codec.codec_type = AVMEDIA_TYPE_VIDEO;
  codec.codec_id = AV_CODEC_ID_H264;
  codec.width = codec.height = 32;
  const std::string headers = Headers();
  codec.extradata = static_cast<std::uint8_t*>(av_mallocz(headers.size() + AV_INPUT_BUFFER_PADDING_SIZE));
  codec.extradata_size = static_cast<int>(headers.size());
  std::memcpy(codec.extradata, headers.data(), headers.size());
  stream->time_base = {1, 50};
  ASSERT_GE(avio_open(&context->pb, ("file:" + path).c_str(), AVIO_FLAG_WRITE), 0);
  ASSERT_GE(avformat_write_header(context, nullptr), 0);
  for (int n = 0; n < pictures; ++n) {
    std::vector<std::string> contents = {Field(n, false), Field(n, true)};
    if (!apart) contents = {contents[0] + contents[1]};
    for (std::size_t i = 0; i < contents.size(); ++i) {
      const PacketHandle packet = NewPacket();
      ASSERT_GE(av_new_packet(packet.get(), static_cast<int>(contents[i].size())), 0);
      std::memcpy(packet->data, contents[i].data(), contents[i].size());
      packet->pts = packet->dts = 2 * n + static_cast<int>(i);
      packet->duration = apart ? 1 : 2;
      if (n % kGroup == 0 && i == 0) packet->flags |= AV_PKT_FLAG_KEY;
      av_packet_rescale_ts(packet.get(), {1, 50}, stream->time_base);
      ASSERT_GE(av_interleaved_write_frame(context, packet.get()), 0);
    }
  }
  ASSERT_GE(av_write_trailer(context), 0);
}

}  // namespace kinalyx::test
