#include <algorithm>
#include <array>
#include <cstring>

#include "platform/media/Films.h"
#include "platform/media/VideoFile.h"
#include "support/TestVideos.h"

namespace kinalyx::test {
namespace {

constexpr std::int32_t kOne = 1 << 16;

/// A picture that is alike neither turned nor mirrored, with colour in every corner.
void PaintCorners(AVFrame& frame, int n) {
  const bool halved = frame.format == AV_PIX_FMT_YUV420P;
  for (int p = 0; p < 3; ++p) {
    const int width = p && halved ? frame.width / 2 : frame.width;
    const int height = p && halved ? frame.height / 2 : frame.height;
    for (int y = 0; y < height; ++y) {
      for (int x = 0; x < width; ++x) {
        const int across = x * 255 / width;
        const int down = y * 255 / height;
        const int values[] = {(across * 3 + down + n * 8) / 5 + 20, 60 + across / 2, 200 - down / 2};
        frame.data[p][y * frame.linesize[p] + x] = static_cast<std::uint8_t>(values[p]);
      }
    }
  }
}

Film FilmOf(const std::string& name, AVPixelFormat format) {
  Film film{name, "libx264", 3, 3, 0, "preset=ultrafast:crf=18"};
  film.width = 96;
  film.height = 64;
  film.format = format;
  film.paint = &PaintCorners;
  return film;
}

std::unique_ptr<VideoFile> OpenFilm(const Film& film) {
  const std::string path = TestPath(film.name);
  MakeFilm(film, path);
  return OpenedVideo(path);
}

const std::uint8_t* PixelOf(const FrameRows& rows, int x, int y) {
  return rows.bits + static_cast<std::ptrdiff_t>(rows.height - 1 - y) * rows.rowBytes + x * rows.bitCount / 8;
}

TEST(Shapes, EveryTurnAndMirrorOfTheContainerIsObeyed) {
  for (const AVPixelFormat format : {AV_PIX_FMT_YUV420P, AV_PIX_FMT_YUV444P}) {
    const auto lying = OpenFilm(FilmOf("lying.mp4", format));
    const std::array<int, 4> turns[] = {{1, 0, 0, 1},  {0, 1, -1, 0}, {-1, 0, 0, -1}, {0, -1, 1, 0},
                                        {-1, 0, 0, 1}, {1, 0, 0, -1}, {0, 1, 1, 0},   {0, -1, -1, 0}};
    for (const auto& [a, b, c, d] : turns) {
      SCOPED_TRACE(testing::Message() << a << b << c << d << " of format " << format);
      Film film = FilmOf("turned.mp4", format);
      film.matrix = {a * kOne, b * kOne, 0, c * kOne, d * kOne, 0, 0, 0, 1 << 30};
      const auto file = OpenFilm(film);
      const int width = a ? 96 : 64;
      const int height = a ? 64 : 96;
      ASSERT_EQ(std::pair(file->Info().width, file->Info().height), std::pair(width, height));
      for (const int bitCount : {24, 32}) {
        const FrameRows rows = file->Frame(1, bitCount);
        const FrameRows plain = lying->Frame(1, bitCount);
        ASSERT_EQ(std::pair(rows.width, rows.height), std::pair(width, height));
        for (int y = 0; y < 64; ++y) {
          for (int x = 0; x < 96; ++x) {
            const int toX = a * x + c * y + (a + c < 0 ? width - 1 : 0);
            const int toY = b * x + d * y + (b + d < 0 ? height - 1 : 0);
            ASSERT_EQ(std::memcmp(PixelOf(rows, toX, toY), PixelOf(plain, x, y), 3), 0) << x << ", " << y;
          }
        }
      }
    }
  }
}

TEST(Shapes, PixelsBecomeSquareByStretchingRowsAlone) {
  Film film = FilmOf("narrow.mp4", AV_PIX_FMT_YUV420P);
  film.pixel = {4, 3};
  // Rows that differ as much as two fields may: nothing of one may show in the other.
  film.paint = [](AVFrame& frame, int) {
    for (int y = 0; y < frame.height; ++y) std::memset(frame.data[0] + y * frame.linesize[0], y % 2 ? 60 : 190, 96);
    for (int p = 1; p < 3; ++p) std::memset(frame.data[p], 128, static_cast<std::size_t>(frame.linesize[p]) * 32);
  };
  for (const bool turned : {false, true}) {
    if (turned) film.matrix = {0, kOne, 0, -kOne, 0, 0, 0, 0, 1 << 30};
    const auto file = OpenFilm(film);
    const FrameRows rows = file->Frame(1, 24);
    ASSERT_EQ(rows.width, turned ? 64 : 128);
    ASSERT_EQ(rows.height, turned ? 128 : 64);
    EXPECT_EQ(std::pair(file->Info().width, file->Info().height), std::pair(rows.width, rows.height));
    for (int y = 0; y < 64; ++y) {
      const std::uint8_t* pixel = turned ? PixelOf(rows, 63 - y, 77) : PixelOf(rows, 77, y);
      ASSERT_NEAR(pixel[1], y % 2 ? 51 : 203, 8) << y;
    }
  }
}

TEST(Shapes, TapeAndAviFilesOfTodayKeepTheirPixels) {
  // The stream inside tells a shape; the container, on whose pixels drawings lie, does not. Tape tells one in both.
  Film inside = FilmOf("inside.avi", AV_PIX_FMT_YUV420P);
  inside.pixel = {4, 3};
  inside.tellsPixel = false;
  Film tape = FilmOf("tape.avi", AV_PIX_FMT_YUV420P);
  tape.encoder = "dvvideo";
  tape.options = "";
  tape.width = 720;
  tape.height = 576;
  tape.pixel = {16, 11};
  for (const Film& film : {inside, tape}) {
    const auto file = OpenFilm(film);
    EXPECT_EQ(file->Info().width, film.width) << film;
    EXPECT_EQ(file->Frame(1, 24).width, film.width) << film;
  }
}

}  // namespace
}  // namespace kinalyx::test
