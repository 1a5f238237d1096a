#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

extern "C" {
#include <libavutil/pixdesc.h>
}

#include "platform/media/Films.h"
#include "platform/media/RowConverter.h"
#include "platform/media/VideoFile.h"
#include "support/TestVideos.h"

namespace kinalyx::test {
namespace {

using Rgb = std::array<double, 3>;

/// Red, green and blue signals from 0 to 1 as samples of a picture.
std::array<int, 3> SamplesOf(const Rgb& rgb, double red, double blue, bool full, int depth) {
  const double y = red * rgb[0] + (1 - red - blue) * rgb[1] + blue * rgb[2];
  const double u = (rgb[2] - y) / (2 * (1 - blue));
  const double v = (rgb[0] - y) / (2 * (1 - red));
  const double most = std::ldexp(1.0, depth) - 1;
  const double unit = std::ldexp(1.0, depth - 8);
  const auto round = [&](double value) { return static_cast<int>(std::lround(std::clamp(value, 0.0, most))); };
  if (full) return {round(y * most), round(128 * unit + u * most), round(128 * unit + v * most)};
  return {round(16 * unit + 219 * unit * y), round((128 + 224 * u) * unit), round((128 + 224 * v) * unit)};
}

/// Paints patches of 16 columns each.
void PaintPatches(AVFrame& frame, const std::vector<std::array<int, 3>>& patches) {
  const bool wide = frame.format == AV_PIX_FMT_YUV420P10;
  for (int p = 0; p < 3; ++p) {
    for (int y = 0; y < frame.height / (p ? 2 : 1); ++y) {
      std::uint8_t* row = frame.data[p] + y * frame.linesize[p];
      for (int x = 0; x < frame.width / (p ? 2 : 1); ++x) {
        const auto& patch = patches[static_cast<std::size_t>(x / (p ? 8 : 16))];
        const auto value = static_cast<std::uint16_t>(patch[static_cast<std::size_t>(p)]);
        if (wide) std::memcpy(row + 2 * x, &value, 2);
        else row[x] = static_cast<std::uint8_t>(value);
      }
    }
  }
}

/// The colours of the patches as they are shown.
std::vector<Rgb> ShownPatches(Film film, const std::vector<std::array<int, 3>>& patches) {
  film.frames = 2;
  film.bFrames = 0;
  film.width = static_cast<int>(patches.size()) * 16;
  film.height = 32;
  film.paint = [&](AVFrame& frame, int) { PaintPatches(frame, patches); };
  const std::string path = TestPath(film.name);
  MakeFilm(film, path);
  const auto file = OpenedVideo(path);
  std::vector<Rgb> shown;
  const FrameRows rows = file->Frame(1, 24);
  for (std::size_t i = 0; rows && i < patches.size(); ++i) {
    const std::uint8_t* pixel = rows.bits + 16 * rows.rowBytes + 3 * (16 * i + 8);
    shown.push_back({static_cast<double>(pixel[2]), static_cast<double>(pixel[1]), static_cast<double>(pixel[0])});
  }
  return shown;
}

/// Saturated blue may come out a little weak: what is fast rounds its factor down.
void ExpectNear(const std::vector<Rgb>& shown, const std::vector<Rgb>& expected) {
  ASSERT_EQ(shown.size(), expected.size());
  for (std::size_t i = 0; i < shown.size(); ++i) {
    for (std::size_t c = 0; c < 3; ++c)
      EXPECT_NEAR(shown[i][c], expected[i][c], c == 2 ? 11 : 3) << "patch " << i << ", part " << c;
  }
}

/// A picture of any planar format: white, and black in its right half.
FrameHandle HalfWhite(AVPixelFormat format, int width, int height) {
  FrameHandle frame = NewFrame();
  frame->format = format;
  frame->width = width;
  frame->height = height;
  av_frame_get_buffer(frame.get(), 0);
  for (int p = 0; p < 3 && frame->data[p]; ++p) {
    const int rows = p ? -(-height >> av_pix_fmt_desc_get(format)->log2_chroma_h) : height;
    for (int y = 0; y < rows; ++y)
      std::memset(frame->data[p] + y * frame->linesize[p], p ? 128 : 255, static_cast<std::size_t>(frame->linesize[p]));
  }
  for (int y = 0; y < height; ++y)
    std::memset(frame->data[0] + y * frame->linesize[0] + width / 2, 0, static_cast<std::size_t>(width / 2));
  return frame;
}

TEST(Colours, RowsOfRareFormatsEndWhereTheyShould) {
  // A damaged byte makes such a picture of a usual one: its shared colours are told in its head.
  for (const AVPixelFormat format : {AV_PIX_FMT_YUVJ440P, AV_PIX_FMT_YUV410P, AV_PIX_FMT_GRAY8}) {
    for (const int width : {90, 86, 34}) {
      const FrameHandle frame = HalfWhite(format, width, 60);
      RowConverter converter{PictureShape{}};
      for (const int bitCount : {24, 32}) {
        std::vector<std::uint8_t> bits;
        bits.reserve(static_cast<std::size_t>(RowConverter::RowBytes(width, bitCount)) * 60 + 64);
        std::fill_n(bits.data(), bits.capacity(), std::uint8_t{77});
        const FrameRows rows = converter.Convert(*frame, bitCount, bits);
        ASSERT_TRUE(rows) << format << " " << width;
        EXPECT_EQ(bits.data()[bits.size()], 77) << format << " " << width;
        for (int y = 0; y < rows.height; ++y) {
          EXPECT_GT(rows.bits[y * rows.rowBytes], 230) << format << " " << width << ", row " << y;
          EXPECT_LT(rows.bits[y * rows.rowBytes + (width - 1) * bitCount / 8], 20) << format << " " << width;
        }
      }
    }
  }
}

TEST(Colours, FollowWhatTheStreamSaysOfMatrixAndRange) {
  const std::vector<Rgb> colours = {{0.9, 0.2, 0.1}, {0.1, 0.7, 0.3}, {0.2, 0.3, 0.9},
                                    {0.5, 0.5, 0.5}, {1, 1, 1},       {0, 0, 0}};
  struct Case {
    AVColorSpace matrix;
    double red;
    double blue;
    bool full;
    AVPixelFormat format;
  };
  for (const Case& c : {Case{AVCOL_SPC_SMPTE170M, 0.299, 0.114, false, AV_PIX_FMT_YUV420P},
                        Case{AVCOL_SPC_BT709, 0.2126, 0.0722, false, AV_PIX_FMT_YUV420P},
                        Case{AVCOL_SPC_BT709, 0.2126, 0.0722, true, AV_PIX_FMT_YUV420P},
                        Case{AVCOL_SPC_BT709, 0.2126, 0.0722, false, AV_PIX_FMT_YUV420P10},
                        Case{AVCOL_SPC_BT2020_NCL, 0.2627, 0.0593, false, AV_PIX_FMT_YUV420P10},
                        Case{AVCOL_SPC_BT2020_NCL, 0.2627, 0.0593, true, AV_PIX_FMT_YUV420P10}}) {
    SCOPED_TRACE(testing::Message() << "matrix " << c.matrix << ", full " << c.full << ", format " << c.format);
    Film film{"range.mkv", "ffv1"};
    film.format = c.format;
    film.tune = [&](AVCodecContext& codec) {
      codec.colorspace = c.matrix;
      codec.color_range = c.full ? AVCOL_RANGE_JPEG : AVCOL_RANGE_MPEG;
    };
    std::vector<std::array<int, 3>> patches;
    std::vector<Rgb> expected;
    for (const Rgb& colour : colours) {
      patches.push_back(SamplesOf(colour, c.red, c.blue, c.full, c.format == AV_PIX_FMT_YUV420P10 ? 10 : 8));
      expected.push_back({colour[0] * 255, colour[1] * 255, colour[2] * 255});
    }
    ExpectNear(ShownPatches(film, patches), expected);
  }
}

std::array<int, 3> WideSamplesOf(const Rgb& signals) { return SamplesOf(signals, 0.2627, 0.0593, false, 10); }

double PqOf(double nits) {
  const double power = std::pow(nits / 10000, 0.1593017578125);
  return std::pow((0.8359375 + 18.8515625 * power) / (1 + 18.6875 * power), 78.84375);
}

TEST(Colours, OfHighRangeLookNatural) {
  // Light in nits by the primaries of BT.2020: black, skin in shade, paper, a lamp, the sun; red and blue of
  // usual screens at the light of paper / 4.
  std::vector<Rgb> lights = {{0, 0, 0}, {36.5, 36.5, 36.5}, {203, 203, 203}, {600, 600, 600}, {4000, 4000, 4000}};
  lights.push_back({0.6274 * 51, 0.0691 * 51, 0.0164 * 51});
  lights.push_back({0.0433 * 51, 0.0114 * 51, 0.8956 * 51});
  std::vector<std::array<int, 3>> patches;
  for (const Rgb& light : lights) patches.push_back(WideSamplesOf({PqOf(light[0]), PqOf(light[1]), PqOf(light[2])}));
  Film film{"bright.mkv", "ffv1"};
  film.format = AV_PIX_FMT_YUV420P10;
  film.tune = [](AVCodecContext& codec) {
    codec.color_trc = AVCOL_TRC_SMPTE2084;
    codec.color_primaries = AVCOL_PRI_BT2020;
    codec.colorspace = AVCOL_SPC_BT2020_NCL;
    codec.color_range = AVCOL_RANGE_MPEG;
  };
  const auto shown = ShownPatches(film, patches);
  ASSERT_EQ(shown.size(), 7u);
  EXPECT_LE(shown[0][1], 2);
  for (const std::size_t c : {0, 1, 2}) {
    EXPECT_NEAR(shown[1][c], 118, 4) << "what is dark enough stays as it was";
    EXPECT_NEAR(shown[2][c], 225, 8) << "paper is white and not glaring";
    EXPECT_GT(shown[3][c], shown[2][c] + 10) << "a lamp is brighter than paper";
    EXPECT_LT(shown[3][c], 254) << "and can be told from the sun";
    EXPECT_EQ(shown[4][c], 255);
  }
  EXPECT_NEAR(shown[5][0], 137, 5);
  EXPECT_LE(std::max(shown[5][1], shown[5][2]), 14);
  EXPECT_NEAR(shown[6][2], 137, 5);
  EXPECT_LE(std::max(shown[6][0], shown[6][1]), 14);

  // In HLG three quarters of the signal are paper; the rest follows its curve.
  film.name = "hybrid.mkv";
  film.tune = [](AVCodecContext& codec) {
    codec.color_trc = AVCOL_TRC_ARIB_STD_B67;
    codec.color_primaries = AVCOL_PRI_BT2020;
    codec.colorspace = AVCOL_SPC_BT2020_NCL;
  };
  patches.clear();
  for (const double signal : {0.0, 0.38, 0.75, 1.0}) patches.push_back(WideSamplesOf({signal, signal, signal}));
  const auto hybrid = ShownPatches(film, patches);
  ASSERT_EQ(hybrid.size(), 4u);
  EXPECT_LE(hybrid[0][1], 2);
  EXPECT_NEAR(hybrid[1][1], 95, 20);
  EXPECT_NEAR(hybrid[2][1], 225, 8);
  EXPECT_GE(hybrid[3][1], 253);
}

TEST(Colours, EachFieldKeepsItsOwn) {
  // One field red, the other blue: a colour of both would be purple.
  for (const bool topFirst : {true, false}) {
    for (const char* encoder : {"mpeg2video", "libx264"}) {
      Film film{topFirst ? "fields.mts" : "fields.mpg", encoder, 8, 4, 0};
      film.width = 64;
      film.height = 64;
      film.tune = [&](AVCodecContext& codec) {
        codec.flags |= AV_CODEC_FLAG_INTERLACED_DCT | AV_CODEC_FLAG_INTERLACED_ME;
        codec.field_order = topFirst ? AV_FIELD_TT : AV_FIELD_BB;
        codec.bit_rate = 8000000;
        codec.colorspace = AVCOL_SPC_SMPTE170M;
      };
      film.paint = [&](AVFrame& frame, int) {
        frame.interlaced_frame = 1;
        frame.top_field_first = topFirst;
        for (int y = 0; y < 64; ++y) std::memset(frame.data[0] + y * frame.linesize[0], y % 2 ? 41 : 82, 64);
        for (int y = 0; y < 32; ++y) {
          std::memset(frame.data[1] + y * frame.linesize[1], y % 2 ? 240 : 90, 32);
          std::memset(frame.data[2] + y * frame.linesize[2], y % 2 ? 110 : 240, 32);
        }
      };
      SCOPED_TRACE(testing::Message() << film);
      MakeFilm(film, TestPath(film.name));
      const auto file = OpenedVideo(TestPath(film.name));
      EXPECT_TRUE(file->Info().interlaced);
      EXPECT_EQ(file->Info().topFieldFirst, topFirst);
      const FrameRows rows = file->Frame(2, 24);
      ASSERT_TRUE(rows);
      for (int y = 8; y < 56; ++y) {
        const std::uint8_t* pixel = rows.bits + (63 - y) * rows.rowBytes + 3 * 30;
        if (y % 2) EXPECT_TRUE(pixel[0] > 220 && pixel[2] < 40) << y;
        else EXPECT_TRUE(pixel[2] > 220 && pixel[0] < 40) << y;
      }
    }
  }
  EXPECT_TRUE(ReadVideoInfo(MakeTestVideo(DvVideo(3)))->interlaced);
  EXPECT_FALSE(ReadVideoInfo(MakeTestVideo(H264Video(3)))->interlaced);
}

}  // namespace
}  // namespace kinalyx::test
