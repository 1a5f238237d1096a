#include "platform/media/Films.h"

#include <libyuv.h>

#include <algorithm>
#include <cstring>

#include "support/TestVideos.h"

extern "C" {
#include <libavutil/imgutils.h>
}

namespace kinalyx::test {
namespace {

struct Muxer {
  AVFormatContext* output = nullptr;
  ~Muxer() {
    if (!output) return;
    if (output->pb) avio_closep(&output->pb);
    avformat_free_context(output);
  }
};

void Drain(Muxer& muxer, AVCodecContext& codec, AVStream& stream, const AVFrame* frame, const Film* film) {
  ASSERT_GE(avcodec_send_frame(&codec, frame), 0);
  const PacketHandle packet = NewPacket();
  while (avcodec_receive_packet(&codec, packet.get()) >= 0) {
    packet->stream_index = stream.index;
    if (film && film->mangle) film->mangle(*packet);
    av_packet_rescale_ts(packet.get(), codec.time_base, stream.time_base);
    ASSERT_GE(av_interleaved_write_frame(muxer.output, packet.get()), 0);
  }
}

CodecHandle AddSound(Muxer& muxer) {
  const AVCodec* encoder = avcodec_find_encoder(AV_CODEC_ID_PCM_S16LE);
  CodecHandle codec(avcodec_alloc_context3(encoder));
  codec->sample_rate = 8000;
  codec->sample_fmt = AV_SAMPLE_FMT_S16;
  av_channel_layout_default(&codec->ch_layout, 1);
  codec->time_base = {1, 8000};
  EXPECT_GE(avcodec_open2(codec.get(), encoder, nullptr), 0);
  AVStream* stream = avformat_new_stream(muxer.output, nullptr);
  avcodec_parameters_from_context(stream->codecpar, codec.get());
  return codec;
}

/// Old screen recordings have pictures of 8 bits: places in a table of colours, which stands in the header.
bool OfEightBits(const Film& film) { return film.encoder == "rawvideo"; }

FrameHandle PictureOf(const Film& film, const AVCodecContext& codec, int n) {
  FrameHandle frame = NewFrame();
  frame->width = codec.width;
  frame->height = codec.height;
  frame->format = codec.pix_fmt;
  frame->pts = film.time ? film.time(n) : n;
  av_frame_get_buffer(frame.get(), 0);
  if (film.paint) {
    film.paint(*frame, n);
  } else if (OfEightBits(film)) {
    std::fill_n(frame->data[0], frame->linesize[0] * codec.height, static_cast<std::uint8_t>(n));
    for (std::uint32_t i = 0; i < 256; ++i) {
      const std::uint32_t colour = 0xFF000000 | (200 - i) << 16 | (100 + i) << 8 | i;
      std::memcpy(frame->data[1] + 4 * i, &colour, 4);
    }
  } else {
    std::vector<std::uint8_t> pixels;
    PaintTestPicture(H264Video(film.frames), n, pixels);
    libyuv::ARGBToI420(pixels.data(), 320 * 4, frame->data[0], frame->linesize[0], frame->data[1], frame->linesize[1],
                       frame->data[2], frame->linesize[2], 320, 240);
  }
  return frame;
}

FrameHandle ToneOf(int n) {
  FrameHandle tone = NewFrame();
  tone->nb_samples = kFilmSamplesPerFrame;
  tone->format = AV_SAMPLE_FMT_S16;
  av_channel_layout_default(&tone->ch_layout, 1);
  tone->sample_rate = 8000;
  av_frame_get_buffer(tone.get(), 0);
  tone->pts = n * kFilmSamplesPerFrame;
  auto* samples = reinterpret_cast<std::int16_t*>(tone->data[0]);
  for (int i = 0; i < kFilmSamplesPerFrame; ++i) samples[i] = FilmSample(n * kFilmSamplesPerFrame + i);
  return tone;
}

CodecHandle OpenEncoder(const Film& film, const AVCodec* encoder, bool globalHeader) {
  CodecHandle codec(avcodec_alloc_context3(encoder));
  codec->width = film.width;
  codec->height = film.height;
  codec->pix_fmt = OfEightBits(film) ? AV_PIX_FMT_PAL8 : film.format;
  codec->time_base = film.time ? AVRational{1, 1000} : AVRational{1, 25};
  codec->framerate = {25, 1};
  codec->gop_size = film.gop;
  codec->max_b_frames = film.bFrames;
  codec->bit_rate = 2000000;
  codec->sample_aspect_ratio = film.pixel;
  if (film.tune) film.tune(*codec);
  if (globalHeader) codec->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
  AVDictionary* options = nullptr;
  av_dict_parse_string(&options, film.options.c_str(), "=", ":", 0);
  const int opened = avcodec_open2(codec.get(), encoder, &options);
  av_dict_free(&options);
  return opened < 0 ? nullptr : std::move(codec);
}

AVStream* AddPictures(Muxer& muxer, const Film& film, const AVCodecContext& codec) {
  AVStream* stream = avformat_new_stream(muxer.output, nullptr);
  avcodec_parameters_from_context(stream->codecpar, &codec);
  stream->time_base = codec.time_base;
  stream->avg_frame_rate = {25, 1};
  stream->sample_aspect_ratio = film.tellsPixel ? film.pixel : AVRational{0, 1};
  if (!film.matrix.empty()) {
    std::uint8_t* matrix = av_stream_new_side_data(stream, AV_PKT_DATA_DISPLAYMATRIX, 9 * sizeof(std::int32_t));
    std::memcpy(matrix, film.matrix.data(), 9 * sizeof(std::int32_t));
  }
  for (const auto& [key, value] : film.metadata) av_dict_set(&muxer.output->metadata, key.c_str(), value.c_str(), 0);
  return stream;
}

void Receive(AVCodecContext& codec, std::vector<FrameHandle>& pictures) {
  for (FrameHandle frame = NewFrame(); avcodec_receive_frame(&codec, frame.get()) >= 0; frame = NewFrame())
    pictures.push_back(std::move(frame));
}

std::vector<FrameHandle> DecodeAll(const std::string& path, AVMediaType kind) {
  std::vector<FrameHandle> frames;
  AVFormatContext* context = nullptr;
  if (avformat_open_input(&context, ("file:" + path).c_str(), nullptr, nullptr) < 0) return frames;
  const InputHandle input(context);
  if (avformat_find_stream_info(context, nullptr) < 0) return frames;
  const int number = av_find_best_stream(context, kind, -1, -1, nullptr, 0);
  if (number < 0) return frames;
  const AVCodecParameters& parameters = *context->streams[number]->codecpar;
  const AVCodec* decoder = avcodec_find_decoder(parameters.codec_id);
  const CodecHandle codec(avcodec_alloc_context3(decoder));
  avcodec_parameters_to_context(codec.get(), &parameters);
  codec->pkt_timebase = context->streams[number]->time_base;
  codec->thread_count = 1;
  codec->strict_std_compliance = FF_COMPLIANCE_STRICT;
  if (avcodec_open2(codec.get(), decoder, nullptr) < 0) return frames;
  const PacketHandle packet = NewPacket();
  for (; av_read_frame(context, packet.get()) >= 0; av_packet_unref(packet.get())) {
    if (packet->stream_index != number) continue;
    avcodec_send_packet(codec.get(), packet.get());
    Receive(*codec, frames);
  }
  avcodec_send_packet(codec.get(), nullptr);
  Receive(*codec, frames);
  return frames;
}

}  // namespace

std::int16_t FilmSample(int n) { return static_cast<std::int16_t>(n * 7 % 30011); }

std::ostream& operator<<(std::ostream& out, const Film& film) { return out << film.name << " by " << film.encoder; }

void MakeFilm(const Film& film, const std::string& path) {
  HearLibrary();
  Muxer muxer;
  ASSERT_GE(avformat_alloc_output_context2(&muxer.output, nullptr, nullptr, path.c_str()), 0);
  const AVCodec* encoder = avcodec_find_encoder_by_name(film.encoder.c_str());
  if (!encoder) GTEST_SKIP() << "this machine has no " << film.encoder;
  const CodecHandle codec = OpenEncoder(film, encoder, muxer.output->oformat->flags & AVFMT_GLOBALHEADER);
  ASSERT_TRUE(codec);
  // The sound comes first, so that the video is not stream 0.
  const CodecHandle sound = film.sound ? AddSound(muxer) : nullptr;
  AVStream* stream = AddPictures(muxer, film, *codec);
  ASSERT_GE(avio_open(&muxer.output->pb, ("file:" + path).c_str(), AVIO_FLAG_WRITE), 0);
  AVDictionary* options = nullptr;
  av_dict_parse_string(&options, film.muxing.c_str(), "=", ":", 0);
  const int started = avformat_write_header(muxer.output, &options);
  av_dict_free(&options);
  ASSERT_GE(started, 0);
  for (int n = 0; n < film.frames; ++n) {
    ASSERT_NO_FATAL_FAILURE(Drain(muxer, *codec, *stream, PictureOf(film, *codec, n).get(), &film));
    if (!sound) continue;
    ASSERT_NO_FATAL_FAILURE(Drain(muxer, *sound, *muxer.output->streams[0], ToneOf(n).get(), nullptr));
  }
  ASSERT_NO_FATAL_FAILURE(Drain(muxer, *codec, *stream, nullptr, &film));
  ASSERT_GE(av_write_trailer(muxer.output), 0);
}

std::vector<FrameHandle> DecodeStraight(const std::string& path) { return DecodeAll(path, AVMEDIA_TYPE_VIDEO); }

std::vector<std::int16_t> SoundOf(const std::string& path) {
  std::vector<std::int16_t> samples;
  for (const FrameHandle& frame : DecodeAll(path, AVMEDIA_TYPE_AUDIO)) {
    const auto* data = reinterpret_cast<const std::int16_t*>(frame->data[0]);
    samples.insert(samples.end(), data, data + frame->nb_samples);
  }
  return samples;
}

bool SamePicture(const AVFrame& one, const AVFrame& other) {
  if (one.width != other.width || one.height != other.height || one.format != other.format) return false;
  const auto bytesOf = [](const AVFrame& frame) {
    const auto format = static_cast<AVPixelFormat>(frame.format);
    const int size = av_image_get_buffer_size(format, frame.width, frame.height, 1);
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(size));
    av_image_copy_to_buffer(bytes.data(), size, frame.data, frame.linesize, format, frame.width, frame.height, 1);
    return bytes;
  };
  return bytesOf(one) == bytesOf(other);
}

}  // namespace kinalyx::test
