#include "PhoneClips.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <random>
#include <stdexcept>
#include <vector>

#include "platform/media/AvHandles.h"

namespace kinalyx::bench {
namespace {

/// Pixels that the picture moves from frame to frame: enough for neighbours to be told apart.
constexpr int kMoveX = 6;
constexpr int kMoveY = 2;

void Check(int result, const char* what) {
  if (result < 0) throw std::runtime_error(fmt::format("{}: {}", what, AvError(result)));
}

/// A plane larger than the picture, of waves, over which the picture moves and turns back.
class Texture {
 public:
  Texture(int width, int height, double wave) : width_(width + kRange * kMoveX) {
    const int rows = height + kRange * kMoveY;
    pixels_.resize(static_cast<std::size_t>(width_) * rows);
    for (int y = 0; y < rows; ++y) {
      for (int x = 0; x < width_; ++x) {
        const double value =
            128 + 45 * std::sin(x / wave) * std::sin(y / (wave * 1.4)) + 30 * std::sin((x + 2 * y) / (wave * 0.4));
        pixels_[static_cast<std::size_t>(y) * width_ + x] = static_cast<std::uint8_t>(std::clamp(value, 24.0, 227.0));
      }
    }
  }

  /// A row of the nth picture; `part` is 2 for colours, of which there are half as many.
  const std::uint8_t* Row(int n, int y, int part) const {
    const int turn = n % (2 * kRange);
    const int at = turn < kRange ? turn : 2 * kRange - turn;
    return pixels_.data() + static_cast<std::size_t>(at * kMoveY / part + y) * width_ + at * kMoveX / part;
  }

 private:
  static constexpr int kRange = 100;
  int width_;
  std::vector<std::uint8_t> pixels_;
};

/// What a sensor adds to every picture anew.
class Grain {
 public:
  Grain() : values_(1 << 20) {
    std::minstd_rand random(1);
    for (std::uint8_t& value : values_) value = static_cast<std::uint8_t>(random() / 1024 % 25);
  }
  void Add(int n, int y, const std::uint8_t* from, std::uint8_t* to, int width) const {
    const std::uint8_t* grain = values_.data() + (n * 7919u + y * 104729u) % (values_.size() - width);
    for (int x = 0; x < width; ++x) to[x] = static_cast<std::uint8_t>(from[x] + grain[x] - 12);
  }

 private:
  std::vector<std::uint8_t> values_;
};

struct Output {
  AVFormatContext* context = nullptr;
  ~Output() {
    if (!context) return;
    if (context->pb) avio_closep(&context->pb);
    avformat_free_context(context);
  }
};

void Encode(const PhoneClip& clip, const std::string& path) {
  HearLibrary();
  Output output;
  Check(avformat_alloc_output_context2(&output.context, nullptr, "mp4", path.c_str()), "mp4");
  const AVCodec* encoder = avcodec_find_encoder_by_name(clip.encoder.c_str());
  if (!encoder) throw std::runtime_error("there is no " + clip.encoder);
  const CodecHandle codec(avcodec_alloc_context3(encoder));
  codec->width = clip.width;
  codec->height = clip.height;
  codec->pix_fmt = AV_PIX_FMT_YUV420P;
  codec->time_base = {1, clip.rate};
  codec->framerate = {clip.rate, 1};
  codec->gop_size = clip.rate;
  codec->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
  AVDictionary* options = nullptr;
  av_dict_set(&options, "preset", "ultrafast", 0);
  av_dict_set(&options, "crf", "22", 0);
  av_dict_set(&options, "x265-params", "log-level=none", 0);
  const int opened = avcodec_open2(codec.get(), encoder, &options);
  av_dict_free(&options);
  Check(opened, "encoder");
  AVStream* stream = avformat_new_stream(output.context, nullptr);
  Check(avcodec_parameters_from_context(stream->codecpar, codec.get()), "stream");
  stream->time_base = codec->time_base;
  stream->avg_frame_rate = codec->framerate;
  Check(avio_open(&output.context->pb, ("file:" + path).c_str(), AVIO_FLAG_WRITE), "file");
  Check(avformat_write_header(output.context, nullptr), "header");

  const PacketHandle packet = NewPacket();
  const auto drain = [&](const AVFrame* frame) {
    Check(avcodec_send_frame(codec.get(), frame), "picture");
    while (avcodec_receive_packet(codec.get(), packet.get()) >= 0) {
      av_packet_rescale_ts(packet.get(), codec->time_base, stream->time_base);
      Check(av_interleaved_write_frame(output.context, packet.get()), "packet");
    }
  };
  const Texture light(clip.width, clip.height, clip.height / 24.0);
  const Texture colour(clip.width / 2, clip.height / 2, clip.height / 8.0);
  const Grain grain;
  for (int n = 0; n < clip.Frames(); ++n) {
    const FrameHandle frame = NewFrame();
    frame->width = clip.width;
    frame->height = clip.height;
    frame->format = codec->pix_fmt;
    frame->pts = n;
    Check(av_frame_get_buffer(frame.get(), 0), "memory");
    for (int y = 0; y < clip.height; ++y)
      grain.Add(n, y, light.Row(n, y, 1), frame->data[0] + static_cast<std::ptrdiff_t>(y) * frame->linesize[0],
                clip.width);
    for (int p = 1; p <= 2; ++p) {
      for (int y = 0; y < clip.height / 2; ++y)
        std::memcpy(frame->data[p] + static_cast<std::ptrdiff_t>(y) * frame->linesize[p], colour.Row(n + 40 * p, y, 2),
                    clip.width / 2);
    }
    drain(frame.get());
  }
  drain(nullptr);
  Check(av_write_trailer(output.context), "end");
}

}  // namespace

std::string MakePhoneClip(const PhoneClip& clip) {
  namespace fs = std::filesystem;
  const fs::path folder = fs::read_symlink("/proc/self/exe").parent_path().parent_path() / "clips";
  fs::create_directories(folder);
  const fs::path path =
      folder / fmt::format("{}-{}x{}-{}-{}s.mp4", clip.encoder, clip.width, clip.height, clip.rate, clip.seconds);
  if (fs::exists(path)) return path;
  const fs::path part = path.string() + ".part";
  Encode(clip, part);
  fs::rename(part, path);
  return path;
}

}  // namespace kinalyx::bench
