#include "platform/media/GifClip.h"

extern "C" {
#include <libavfilter/avfilter.h>
#include <libavfilter/buffersink.h>
#include <libavfilter/buffersrc.h>
}

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/files/Tr.h"
#include "platform/media/AvHandles.h"
#include "platform/media/VideoOutput.h"

namespace kinalyx {
namespace {

constexpr AVRational kHundredths{1, 100};  // in which the format counts
/// Viewers show shorter ones far too long.
constexpr std::int64_t kShortest = 2;
/// The colours of the whole loop are chosen first, then every picture is laid out in them; what moves is dithered
/// alone, so that the background stands still.
constexpr const char* kColours =
    "split[a][b];[a]palettegen=stats_mode=full[p];[b][p]paletteuse=dither=sierra2_4a:diff_mode=rectangle";

struct GraphDeleter {
  void operator()(AVFilterGraph* graph) const { avfilter_graph_free(&graph); }
};
struct PadDeleter {
  void operator()(AVFilterInOut* pads) const { avfilter_inout_free(&pads); }
};
using PadHandle = std::unique_ptr<AVFilterInOut, PadDeleter>;

class GifClip final : public ClipWriter {
 public:
  GifClip(const std::string& path, const ClipFormat& format) : output_(path), format_(format) {}

  Outcome Open() { return Told(OpenGraph()); }
  Outcome Write(const PixelRows& picture, double ms) override;
  Outcome WriteSound(std::span<const std::int16_t>) override { return Outcome::Failed(Tr("a loop has no sound")); }
  Outcome Close(double ms) override;

 private:
  int OpenGraph();
  int Begin(const AVFrame& first);
  int Drain();
  int Encode(const AVFrame* frame);
  static Outcome Told(int result) { return result < 0 ? Outcome::Failed(AvError(result)) : Outcome(); }

  VideoOutput output_;
  ClipFormat format_;
  std::unique_ptr<AVFilterGraph, GraphDeleter> graph_;
  AVFilterContext* in_ = nullptr;
  AVFilterContext* out_ = nullptr;
  CodecHandle codec_;
  AVStream* stream_ = nullptr;
  PacketHandle packet_ = NewPacket();
  std::int64_t last_ = -1;  ///< hundredths; of the picture taken last
  std::int64_t end_ = 0;
};

int GifClip::OpenGraph() {
  graph_.reset(avfilter_graph_alloc());
  const std::string shape = fmt::format("video_size={}x{}:pix_fmt={}:time_base=1/100:pixel_aspect=1/1", format_.width,
                                        format_.height, static_cast<int>(AV_PIX_FMT_BGR0));
  int result =
      avfilter_graph_create_filter(&in_, avfilter_get_by_name("buffer"), "in", shape.c_str(), nullptr, graph_.get());
  if (result >= 0)
    result =
        avfilter_graph_create_filter(&out_, avfilter_get_by_name("buffersink"), "out", nullptr, nullptr, graph_.get());
  if (result < 0) return result;
  // Named from the chain's side: its first filter takes from our source, its last gives to our sink.
  const auto pad = [](const char* name, AVFilterContext* filter) {
    AVFilterInOut* made = avfilter_inout_alloc();
    made->name = av_strdup(name);
    made->filter_ctx = filter;
    return made;
  };
  AVFilterInOut* sources = pad("in", in_);
  AVFilterInOut* sinks = pad("out", out_);
  result = avfilter_graph_parse_ptr(graph_.get(), kColours, &sinks, &sources, nullptr);
  const PadHandle kept(sources), others(sinks);
  return result < 0 ? result : avfilter_graph_config(graph_.get(), nullptr);
}

Outcome GifClip::Write(const PixelRows& picture, double ms) {
  if (picture.width != format_.width || picture.height != format_.height || picture.bitCount != 32)
    return Outcome::Failed(Tr("a picture of another size"));
  const std::int64_t time = std::llround(ms / 10);
  if (last_ >= 0 && time < last_ + kShortest) return {};
  last_ = time;
  const FrameHandle frame = NewFrame();
  frame->width = picture.width;
  frame->height = picture.height;
  frame->format = AV_PIX_FMT_BGR0;
  frame->pts = time;
  if (const int result = av_frame_get_buffer(frame.get(), 0); result < 0) return Told(result);
  for (int y = 0; y < picture.height; ++y) {
    const int row = picture.bottomUp ? picture.height - 1 - y : y;
    std::copy_n(picture.bits + static_cast<std::ptrdiff_t>(row) * picture.rowBytes, picture.width * 4,
                frame->data[0] + static_cast<std::ptrdiff_t>(y) * frame->linesize[0]);
  }
  return Told(av_buffersrc_add_frame(in_, frame.get()));
}

int GifClip::Begin(const AVFrame& first) {
  const AVCodec* encoder = avcodec_find_encoder(AV_CODEC_ID_GIF);
  if (!encoder) return AVERROR_ENCODER_NOT_FOUND;
  codec_.reset(avcodec_alloc_context3(encoder));
  codec_->width = first.width;
  codec_->height = first.height;
  codec_->pix_fmt = static_cast<AVPixelFormat>(first.format);
  codec_->time_base = kHundredths;
  int result = avcodec_open2(codec_.get(), encoder, nullptr);
  if (result >= 0) result = output_.Open("gif");
  if (result < 0) return result;
  stream_ = output_.AddStream();
  if (!stream_) return AVERROR(ENOMEM);
  stream_->time_base = kHundredths;
  result = avcodec_parameters_from_context(stream_->codecpar, codec_.get());
  if (result < 0) return result;
  AVDictionary* options = nullptr;
  av_dict_set(&options, "loop", "0", 0);
  av_dict_set_int(&options, "final_delay", std::max(kShortest, end_ - last_), 0);
  result = output_.Start(&options);
  av_dict_free(&options);
  return result;
}

int GifClip::Encode(const AVFrame* frame) {
  int result = avcodec_send_frame(codec_.get(), frame);
  while (result >= 0) {
    result = avcodec_receive_packet(codec_.get(), packet_.get());
    if (result == AVERROR(EAGAIN) || result == AVERROR_EOF) return 0;
    if (result >= 0) result = output_.Write(*packet_, *stream_, kHundredths);
  }
  return result;
}

int GifClip::Drain() {
  const FrameHandle frame = NewFrame();
  while (true) {
    int result = av_buffersink_get_frame(out_, frame.get());
    if (result == AVERROR(EAGAIN) || result == AVERROR_EOF) return 0;
    if (result >= 0 && !codec_) result = Begin(*frame);
    if (result >= 0) result = Encode(frame.get());
    if (result < 0) return result;
    av_frame_unref(frame.get());
  }
}

Outcome GifClip::Close(double ms) {
  if (last_ < 0) return Outcome::Failed(Tr("there is no picture"));
  end_ = std::llround(ms / 10);
  int result = av_buffersrc_add_frame(in_, nullptr);
  if (result >= 0) result = Drain();
  if (result >= 0 && codec_) result = Encode(nullptr);
  if (result < 0) return Told(result);
  std::string message;
  return output_.Finish(true, message) ? Outcome() : Outcome::Failed(message);
}

}  // namespace

Result<std::unique_ptr<ClipWriter>> MakeGifClip(const std::string& path, const ClipFormat& format) {
  auto clip = std::make_unique<GifClip>(path, format);
  if (const Outcome opened = clip->Open(); !opened) return opened;
  return std::unique_ptr<ClipWriter>(std::move(clip));
}

}  // namespace kinalyx
