#include <gtest/gtest.h>

#include <cstring>
#include <random>

#include "platform/media/Films.h"
#include "platform/media/VideoFile.h"
#include "support/TestVideos.h"

namespace kinalyx::test {
namespace {

class OtherFilms : public testing::TestWithParam<Film> {};

TEST_P(OtherFilms, GiveEveryFrameWhicheverWayItIsReached) {
  const Film& film = GetParam();
  const std::string path = TestPath(film.encoder + std::to_string(film.gop) + std::to_string(film.bFrames) + "-" + film.name);
  MakeFilm(film, path);
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
  MakeFilm({"palette.avi", "rawvideo", 20, 1, 0}, path);
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
