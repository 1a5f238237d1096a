#include <gtest/gtest.h>
#include <libyuv.h>

#include <algorithm>
#include <cstring>
#include <functional>
#include <random>

#include "platform/media/AvHandles.h"
#include "platform/media/VideoFile.h"
#include "support/TestVideos.h"

namespace kinalyx::test {
namespace {

/// Videos as cameras and other programs make them: other containers, codecs, timings, with sound.
struct Film {
  std::string name;       ///< the extension chooses the container
  std::string encoder;
  int frames = 60;
  int gop = 25;
  int bFrames = 2;
  std::string options = "";  ///< of the encoder, as key=value:key=value
  bool sound = false;
  std::function<std::int64_t(int)> time = nullptr;  ///< of a frame, in ms; empty: 40 each
};

std::ostream& operator<<(std::ostream& out, const Film& film) { return out << film.name << " by " << film.encoder; }

struct Muxer {
  AVFormatContext* output = nullptr;
  ~Muxer() {
    if (!output) return;
    if (output->pb) avio_closep(&output->pb);
    avformat_free_context(output);
  }
};

void Drain(Muxer& muxer, AVCodecContext& codec, AVStream& stream, const AVFrame* frame) {
  ASSERT_GE(avcodec_send_frame(&codec, frame), 0);
  const PacketHandle packet = NewPacket();
  while (avcodec_receive_packet(&codec, packet.get()) >= 0) {
    packet->stream_index = stream.index;
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
  if (OfEightBits(film)) {
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
  tone->nb_samples = 320;
  tone->format = AV_SAMPLE_FMT_S16;
  av_channel_layout_default(&tone->ch_layout, 1);
  tone->sample_rate = 8000;
  av_frame_get_buffer(tone.get(), 0);
  tone->pts = n * 320;
  return tone;
}

void Make(const Film& film, const std::string& path) {
  HearLibrary();
  Muxer muxer;
  ASSERT_GE(avformat_alloc_output_context2(&muxer.output, nullptr, nullptr, path.c_str()), 0);
  const AVCodec* encoder = avcodec_find_encoder_by_name(film.encoder.c_str());
  if (!encoder) GTEST_SKIP() << "this machine has no " << film.encoder;
  const CodecHandle codec(avcodec_alloc_context3(encoder));
  codec->width = 320;
  codec->height = 240;
  codec->pix_fmt = OfEightBits(film) ? AV_PIX_FMT_PAL8 : AV_PIX_FMT_YUV420P;
  codec->time_base = film.time ? AVRational{1, 1000} : AVRational{1, 25};
  codec->framerate = {25, 1};
  codec->gop_size = film.gop;
  codec->max_b_frames = film.bFrames;
  codec->bit_rate = 2000000;
  if (muxer.output->oformat->flags & AVFMT_GLOBALHEADER) codec->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
  AVDictionary* options = nullptr;
  av_dict_parse_string(&options, film.options.c_str(), "=", ":", 0);
  ASSERT_GE(avcodec_open2(codec.get(), encoder, &options), 0);
  av_dict_free(&options);
  // The sound comes first, so that the video is not stream 0.
  const CodecHandle sound = film.sound ? AddSound(muxer) : nullptr;
  AVStream* stream = avformat_new_stream(muxer.output, nullptr);
  avcodec_parameters_from_context(stream->codecpar, codec.get());
  stream->time_base = codec->time_base;
  stream->avg_frame_rate = {25, 1};
  ASSERT_GE(avio_open(&muxer.output->pb, ("file:" + path).c_str(), AVIO_FLAG_WRITE), 0);
  ASSERT_GE(avformat_write_header(muxer.output, nullptr), 0);
  for (int n = 0; n < film.frames; ++n) {
    ASSERT_NO_FATAL_FAILURE(Drain(muxer, *codec, *stream, PictureOf(film, *codec, n).get()));
    if (!sound) continue;
    ASSERT_NO_FATAL_FAILURE(Drain(muxer, *sound, *muxer.output->streams[0], ToneOf(n).get()));
  }
  ASSERT_NO_FATAL_FAILURE(Drain(muxer, *codec, *stream, nullptr));
  ASSERT_GE(av_write_trailer(muxer.output), 0);
}

class OtherFilms : public testing::TestWithParam<Film> {};

TEST_P(OtherFilms, GiveEveryFrameWhicheverWayItIsReached) {
  const Film& film = GetParam();
  const std::string path = TestPath(film.encoder + std::to_string(film.gop) + std::to_string(film.bFrames) + "-" + film.name);
  Make(film, path);
  if (HasFatalFailure() || IsSkipped()) return;
  const auto opened = VideoFile::Open(path);
  ASSERT_TRUE(opened.file) << opened.message;
  VideoFile& file = *opened.file;
  ASSERT_EQ(file.Info().frameCount, film.frames);
  EXPECT_EQ(file.Info().hasSound, film.sound);
  const auto expect = [&](int n) { ASSERT_EQ(ReadNumber(file.Frame(n, 24)), n); };
  std::mt19937 random(5);
  for (int i = 0; i < 30; ++i) ASSERT_NO_FATAL_FAILURE(expect(static_cast<int>(random() % static_cast<unsigned>(film.frames)))) << "jump";
  for (int n = film.frames - 1; n >= 0; --n) ASSERT_NO_FATAL_FAILURE(expect(n)) << "backward";
  for (int n = 0; n < film.frames; ++n) ASSERT_NO_FATAL_FAILURE(expect(n)) << "forward";

  if (film.time) {
    for (const int n : {0, 10, 20, 30, 39, 50, 59})
      EXPECT_NEAR(file.SampleToTime(n), static_cast<double>(film.time(n)), 100) << n;
  } else {
    EXPECT_NEAR(file.SampleToTime(film.frames), film.frames * 40.0, 45);
    EXPECT_NEAR(file.SampleToTime(10), 400, 1.5);
  }
}

TEST(OtherFilms, OfEightBitsHaveTheirColoursWhereverTheyAreEntered) {
  const std::string path = TestPath("palette.avi");
  Make({"palette.avi", "rawvideo", 20, 1, 0}, path);
  if (HasFatalFailure()) return;
  const auto opened = VideoFile::Open(path);
  ASSERT_TRUE(opened.file) << opened.message;
  for (const int n : {13, 0, 19, 1, 5, 4}) {
    const FrameRows rows = opened.file->Frame(n, 24);
    ASSERT_TRUE(rows);
    const std::uint8_t* pixel = rows.bits + 5 * rows.rowBytes + 3 * 7;
    EXPECT_EQ(pixel[0], n);
    EXPECT_EQ(pixel[1], 100 + n);
    EXPECT_EQ(pixel[2], 200 - n);
  }
}

/// A phone that lowers its rate in the dark: 40 ms, then 80, then 16.
std::int64_t Uneven(int n) { return n < 20 ? n * 40 : n < 40 ? 800 + (n - 20) * 80 : 2400 + (n - 40) * 16; }

INSTANTIATE_TEST_SUITE_P(
    Films, OtherFilms,
    testing::Values(Film{"phone.mp4", "libx264", 120, 50, 3, "preset=veryfast:sc_threshold=0"},
                    Film{"uneven.mp4", "libx264", 60, 25, 2, "preset=veryfast", false, Uneven},
                    Film{"sound.avi", "libx264", 100, 40, 2, "preset=veryfast:b_strategy=0", true},
                    Film{"pyramid.avi", "libx264", 120, 60, 7, "preset=veryfast:b_strategy=0:x264-params=b-pyramid=normal"},
                    Film{"open.avi", "libx264", 120, 24, 3, "preset=veryfast:b_strategy=0:sc_threshold=0:x264-params=open-gop=1"},
                    Film{"camera.mkv", "libx264", 100, 40, 3, "preset=veryfast"},
                    Film{"old.avi", "mpeg4", 90, 30, 2, "", true}, Film{"old.mp4", "mpeg4", 90, 30, 2},
                    Film{"disc.mpg", "mpeg2video", 90, 15, 2}, Film{"disc.avi", "mpeg2video", 90, 15, 2},
                    Film{"stream.ts", "libx264", 80, 20, 2, "preset=veryfast"},
                    Film{"tape.avi", "ffvhuff", 30, 1, 0, "pred=left", true}),
    [](const auto& info) {
      std::string name = info.param.name + "_" + info.param.encoder;
      for (char& c : name)
        if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
      return name;
    });

}  // namespace
}  // namespace kinalyx::test
