#include "platform/media/VideoWriter.h"

#include <libyuv.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <vector>

#include "platform/media/AvHandles.h"

namespace kinalyx {
namespace {

struct OutputDeleter {
  void operator()(AVFormatContext* context) const {
    if (context->pb) avio_closep(&context->pb);
    avformat_free_context(context);
  }
};
using OutputHandle = std::unique_ptr<AVFormatContext, OutputDeleter>;

struct CodecChoice {
  AVCodecID id;
  AVPixelFormat pixels;
};

CodecChoice ChoiceOf(const VideoFormat& format) {
  switch (format.codec) {
    case VideoFormat::Codec::Dv:
      // The tape formats fix the sampling: 4:1:1 with 480 lines, 4:2:0 with 576.
      return {AV_CODEC_ID_DVVIDEO, format.height == 576 ? AV_PIX_FMT_YUV420P : AV_PIX_FMT_YUV411P};
    case VideoFormat::Codec::Mjpeg: return {AV_CODEC_ID_MJPEG, AV_PIX_FMT_YUVJ422P};
    case VideoFormat::Codec::H264: return {AV_CODEC_ID_H264, AV_PIX_FMT_YUV420P};
    case VideoFormat::Codec::RawRgb: return {AV_CODEC_ID_RAWVIDEO, AV_PIX_FMT_BGR24};
  }
  return {AV_CODEC_ID_NONE, AV_PIX_FMT_NONE};
}

void Halve(const std::uint8_t* from, int fromStride, std::uint8_t* to, int toStride, int width, int height) {
  for (int y = 0; y < height; ++y, from += fromStride, to += toStride) {
    for (int x = 0; x < width / 2; ++x) to[x] = static_cast<std::uint8_t>((from[2 * x] + from[2 * x + 1] + 1) / 2);
  }
}

}  // namespace

struct VideoWriter::Engine {
  std::string path;
  std::string partial;  ///< where the file stands until Close
  VideoFormat format;
  OutputHandle output;
  CodecHandle codec;
  AVStream* stream = nullptr;
  FrameHandle frame = NewFrame();
  PacketHandle packet = NewPacket();
  std::vector<std::uint8_t> scratch;
  std::int64_t written = 0;
  bool headerWritten = false;
  bool failed = false;

  std::string Open();
  bool Convert(const PixelRows& picture);
  bool Encode(const AVFrame* picture);
};

std::string VideoWriter::Engine::Open() {
  const CodecChoice choice = ChoiceOf(format);
  // The finished file is renamed over its name: nothing but a file may stand there.
  std::error_code ignored;
  const auto old = std::filesystem::status(path, ignored);
  if (std::filesystem::exists(old) && !std::filesystem::is_regular_file(old)) return "that name is not a file's";
  if (format.width < 1 || format.height < 1 || format.rate < 1 || format.scale < 1) return "size or rate below 1";

  AVFormatContext* context = nullptr;
  int result = avformat_alloc_output_context2(&context, nullptr, "avi", nullptr);
  if (result < 0) return AvError(result);
  output.reset(context);

  const AVCodec* encoder =
      choice.id == AV_CODEC_ID_H264 ? avcodec_find_encoder_by_name("libx264") : avcodec_find_encoder(choice.id);
  if (!encoder) return "no encoder for this format";
  codec.reset(avcodec_alloc_context3(encoder));
  codec->width = format.width;
  codec->height = format.height;
  codec->pix_fmt = choice.pixels;
  codec->time_base = {format.scale, format.rate};
  codec->framerate = {format.rate, format.scale};

  AVDictionary* options = nullptr;
  switch (format.codec) {
    case VideoFormat::Codec::Dv:
      codec->flags |= AV_CODEC_FLAG_INTERLACED_DCT;
      codec->field_order = format.bottomFieldFirst ? AV_FIELD_BB : AV_FIELD_TT;
      break;
    case VideoFormat::Codec::Mjpeg:
      codec->flags |= AV_CODEC_FLAG_QSCALE;
      codec->global_quality = FF_QP2LAMBDA * format.quality;
      codec->color_range = AVCOL_RANGE_JPEG;
      break;
    case VideoFormat::Codec::H264:
      codec->gop_size = format.keyInterval;
      codec->keyint_min = format.keyInterval;
      codec->max_b_frames = format.bFrames;
      codec->colorspace = AVCOL_SPC_SMPTE170M;
      av_dict_set(&options, "preset", "veryfast", 0);
      av_dict_set_int(&options, "crf", format.quality * 5, 0);
      av_dict_set(&options, "sc_threshold", "0", 0);
      // Without this x264 decides by itself where a B frame pays.
      av_dict_set(&options, "b_strategy", "0", 0);
      break;
    case VideoFormat::Codec::RawRgb: break;
  }
  if (format.fourCC.size() == 4) {
    const auto* c = reinterpret_cast<const unsigned char*>(format.fourCC.data());
    codec->codec_tag = MKTAG(c[0], c[1], c[2], c[3]);
  } else if (format.codec == VideoFormat::Codec::Dv) {
    codec->codec_tag = MKTAG('d', 'v', 's', 'd');
  }
  result = avcodec_open2(codec.get(), encoder, &options);
  av_dict_free(&options);
  if (result < 0) return AvError(result);

  stream = avformat_new_stream(output.get(), nullptr);
  if (!stream || avcodec_parameters_from_context(stream->codecpar, codec.get()) < 0) return "out of memory";
  stream->time_base = codec->time_base;
  stream->avg_frame_rate = codec->framerate;
  stream->codecpar->codec_tag = codec->codec_tag;

  frame->width = format.width;
  frame->height = format.height;
  frame->format = choice.pixels;
  result = av_frame_get_buffer(frame.get(), 0);
  if (result < 0) return AvError(result);

  result = avio_open(&output->pb, ("file:" + partial).c_str(), AVIO_FLAG_WRITE);
  if (result < 0) return AvError(result);
  result = avformat_write_header(output.get(), nullptr);
  if (result < 0) return AvError(result);
  headerWritten = true;
  return {};
}

bool VideoWriter::Engine::Convert(const PixelRows& picture) {
  if (av_frame_make_writable(frame.get()) < 0) return false;
  const int width = format.width;
  const int height = format.height;
  const std::uint8_t* bits = picture.bits;
  int stride = picture.rowBytes;
  if (picture.bottomUp) {
    bits += static_cast<std::ptrdiff_t>(height - 1) * stride;
    stride = -stride;
  }
  std::uint8_t** to = frame->data;
  const int* pitch = frame->linesize;

  if (format.codec == VideoFormat::Codec::RawRgb) {
    if (picture.bitCount == 24) {
      for (int y = 0; y < height; ++y) {
        std::copy_n(bits + static_cast<std::ptrdiff_t>(y) * stride, width * 3,
                    to[0] + static_cast<std::ptrdiff_t>(y) * pitch[0]);
      }
      return true;
    }
    return libyuv::ARGBToRGB24(bits, stride, to[0], pitch[0], width, height) == 0;
  }

  // Everything else goes over 32-bit pixels, for which the library has all conversions.
  const int argbStride = width * 4;
  const std::size_t argbBytes = static_cast<std::size_t>(argbStride) * height;
  const bool quarterChroma = frame->format == AV_PIX_FMT_YUV411P;
  const int halfStride = (width + 1) / 2;
  const std::size_t halfBytes = quarterChroma ? static_cast<std::size_t>(halfStride) * height : 0;
  scratch.resize(argbBytes + 2 * halfBytes);
  if (picture.bitCount == 24) {
    libyuv::RGB24ToARGB(bits, stride, scratch.data(), argbStride, width, height);
    bits = scratch.data();
    stride = argbStride;
  }
  switch (frame->format) {
    case AV_PIX_FMT_YUV411P: {
      std::uint8_t* u = scratch.data() + argbBytes;
      std::uint8_t* v = u + halfBytes;
      libyuv::ARGBToI422(bits, stride, to[0], pitch[0], u, halfStride, v, halfStride, width, height);
      Halve(u, halfStride, to[1], pitch[1], halfStride, height);
      Halve(v, halfStride, to[2], pitch[2], halfStride, height);
      return true;
    }
    case AV_PIX_FMT_YUVJ422P:
      return libyuv::ARGBToJ422(bits, stride, to[0], pitch[0], to[1], pitch[1], to[2], pitch[2], width, height) == 0;
    default:
      return libyuv::ARGBToI420(bits, stride, to[0], pitch[0], to[1], pitch[1], to[2], pitch[2], width, height) == 0;
  }
}

bool VideoWriter::Engine::Encode(const AVFrame* picture) {
  int result = avcodec_send_frame(codec.get(), picture);
  while (result >= 0) {
    result = avcodec_receive_packet(codec.get(), packet.get());
    if (result == AVERROR(EAGAIN) || result == AVERROR_EOF) return true;
    if (result < 0) return false;
    packet->stream_index = stream->index;
    packet->duration = 1;
    av_packet_rescale_ts(packet.get(), codec->time_base, stream->time_base);
    result = av_interleaved_write_frame(output.get(), packet.get());
  }
  return false;
}

VideoWriter::VideoWriter(std::unique_ptr<Engine> engine) : engine_(std::move(engine)) {}

Result<std::unique_ptr<VideoWriter>> VideoWriter::Create(const std::string& path, const VideoFormat& format) {
  HearLibrary();
  auto engine = std::make_unique<Engine>();
  engine->path = path;
  engine->partial = path + ".part";
  engine->format = format;
  const std::string why = engine->Open();
  std::unique_ptr<VideoWriter> writer(new VideoWriter(std::move(engine)));
  if (!why.empty()) return Outcome::Failed(why);
  return writer;
}

VideoWriter::~VideoWriter() {
  // Close sets the output free; what is left now was never finished.
  const bool ours = engine_->output && engine_->output->pb;
  engine_->output.reset();
  if (ours) std::remove(engine_->partial.c_str());
}

bool VideoWriter::Write(const PixelRows& picture) {
  Engine& engine = *engine_;
  if (!engine.output || engine.failed) return false;
  const int leastRow = picture.width * picture.bitCount / 8;
  if (!picture.bits || picture.width != engine.format.width || picture.height != engine.format.height ||
      (picture.bitCount != 24 && picture.bitCount != 32) || picture.rowBytes < leastRow) {
    return false;
  }
  if (!engine.Convert(picture)) return false;
  engine.frame->pts = engine.written;
  engine.frame->pict_type = AV_PICTURE_TYPE_NONE;
  if (engine.format.codec == VideoFormat::Codec::Dv) {
    engine.frame->interlaced_frame = 1;
    engine.frame->top_field_first = !engine.format.bottomFieldFirst;
  }
  if (engine.format.codec == VideoFormat::Codec::Mjpeg) engine.frame->quality = engine.codec->global_quality;
  if (!engine.Encode(engine.frame.get())) {
    engine.failed = true;
    return false;
  }
  ++engine.written;
  return true;
}

bool VideoWriter::Close() {
  Engine& engine = *engine_;
  if (!engine.output) return false;
  bool good = !engine.failed && engine.Encode(nullptr);
  good = av_write_trailer(engine.output.get()) >= 0 && good;
  good = avio_closep(&engine.output->pb) >= 0 && good;
  engine.output.reset();
  engine.codec.reset();
  if (good) good = std::rename(engine.partial.c_str(), engine.path.c_str()) == 0;
  if (!good) std::remove(engine.partial.c_str());
  return good;
}

}  // namespace kinalyx
