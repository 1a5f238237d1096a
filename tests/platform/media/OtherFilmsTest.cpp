#include <random>

#include "platform/media/Films.h"
#include "platform/media/VideoFile.h"
#include "support/TestVideos.h"

namespace kinalyx::test {
namespace {

class OtherFilms : public testing::TestWithParam<Film> {};

TEST_P(OtherFilms, GiveEveryFrameWhicheverWayItIsReached) {
  const Film& film = GetParam();
  const std::string path =
      TestPath(film.encoder + std::to_string(film.gop) + std::to_string(film.bFrames) + "-" + film.name);
  MakeFilm(film, path);
  if (HasFatalFailure() || IsSkipped()) return;
  const auto opened = VideoFile::Open(path);
  ASSERT_TRUE(opened) << opened.Why();
  VideoFile& file = **opened;
  ASSERT_EQ(file.Info().frameCount, film.frames);
  EXPECT_EQ(file.Info().hasSound, film.sound);
  const auto expect = [&](int n) { ASSERT_EQ(ReadNumber(file.Frame(n, 24)), n); };
  std::mt19937 random(5);
  for (int i = 0; i < 30; ++i)
    ASSERT_NO_FATAL_FAILURE(expect(static_cast<int>(random() % static_cast<unsigned>(film.frames)))) << "jump";
  for (int n = film.frames - 1; n >= 0; --n) ASSERT_NO_FATAL_FAILURE(expect(n)) << "backward";
  for (int n = 0; n < film.frames; ++n) ASSERT_NO_FATAL_FAILURE(expect(n)) << "forward";

  if (film.time) {
    EXPECT_TRUE(file.Info().rateVaries);
    for (int n = 0; n < film.frames; ++n) {
      const auto begin = static_cast<double>(film.time(n));
      ASSERT_NEAR(file.SampleToTime(n), begin, 0.01);
      for (const double after : {0.0, 7.5, 15.0}) ASSERT_EQ(file.FrameAtTime(file.SampleToTime(n) + after), n);
    }
    const double last = file.SampleToTime(film.frames) - static_cast<double>(film.time(film.frames - 1));
    EXPECT_TRUE(last >= 16 && last <= 40) << last;
    EXPECT_EQ(file.FrameAtTime(-100), 0);
    EXPECT_EQ(file.FrameAtTime(1e9), film.frames - 1);
  } else {
    EXPECT_FALSE(file.Info().rateVaries);
    EXPECT_NEAR(file.SampleToTime(film.frames), film.frames * 40.0, 45);
    EXPECT_NEAR(file.SampleToTime(10), 400, 1.5);
  }
}

TEST(OtherFilms, OfEightBitsHaveTheirColoursWhereverTheyAreEntered) {
  const std::string path = TestPath("palette.avi");
  MakeFilm({"palette.avi", "rawvideo", 20, 1, 0}, path);
  if (HasFatalFailure()) return;
  const auto opened = VideoFile::Open(path);
  ASSERT_TRUE(opened) << opened.Why();
  for (const int n : {13, 0, 19, 1, 5, 4}) {
    const FrameRows rows = (*opened)->Frame(n, 24);
    ASSERT_TRUE(rows);
    const std::uint8_t* pixel = rows.bits + 5 * rows.rowBytes + 3 * 7;
    EXPECT_EQ(pixel[0], n);
    EXPECT_EQ(pixel[1], 100 + n);
    EXPECT_EQ(pixel[2], 200 - n);
  }
}

TEST(OtherFilms, AreKnownByTheirContentWhateverTheirNameSays) {
  using Case = std::pair<Film, std::string>;
  const Case cases[] = {{{"a.mp4", "mpeg4", 10}, "a.avi"},
                        {{"b.mkv", "mpeg4", 10}, "b.mp4"},
                        {{"c.mpg", "mpeg2video", 10}, "c.wmv"},
                        {{"d.avi", "mpeg4", 10}, "d.mov"},
                        {{"e.ts", "mpeg2video", 10}, "e"}};
  for (const auto& [film, other] : cases) {
    MakeFilm(film, TestPath(film.name));
    std::filesystem::rename(TestPath(film.name), TestPath(other));
    const auto opened = VideoFile::Open(TestPath(other));
    ASSERT_TRUE(opened) << other << ": " << opened.Why();
    EXPECT_EQ((*opened)->Info().frameCount, 10) << other;
    EXPECT_EQ(ReadNumber((*opened)->Frame(7, 24)), 7) << other;
  }
}

TEST(OtherFilms, OfSlowMotionTellHowTheyWereTaken) {
  Film film{"slow.mp4", "mpeg4", 10};
  film.muxing = "movflags=use_metadata_tags";
  for (const auto& [told, rate] : {std::pair{"240.000000", 240}, {"nan", 0}}) {
    film.metadata["com.android.capture.fps"] = told;
    MakeFilm(film, TestPath(film.name));
    EXPECT_EQ(ReadVideoInfo(TestPath(film.name))->captureRate, rate);
  }
}

/// A phone that lowers its rate in the dark: 40 ms, then 80, then 16.
std::int64_t Uneven(int n) { return n < 20 ? n * 40 : n < 40 ? 800 + (n - 20) * 80 : 2400 + (n - 40) * 16; }

/// As a browser or a camera that fears for its battery writes it.
Film Fragmented(Film film) {
  film.muxing = "movflags=frag_keyframe+empty_moov";
  return film;
}

INSTANTIATE_TEST_SUITE_P(
    Films, OtherFilms,
    testing::Values(
        Film{"phone.mp4", "libx264", 120, 50, 3, "preset=veryfast:sc_threshold=0"},
        Film{"uneven.mp4", "libx264", 60, 25, 2, "preset=veryfast", false, Uneven},
        Film{"uneven.mkv", "libx264", 60, 25, 3, "preset=veryfast", false, Uneven},
        Film{"sound.avi", "libx264", 100, 40, 2, "preset=veryfast:b_strategy=0", true},
        Film{"pyramid.avi", "libx264", 120, 60, 7, "preset=veryfast:b_strategy=0:x264-params=b-pyramid=normal"},
        Film{"open.avi", "libx264", 120, 24, 3, "preset=veryfast:b_strategy=0:sc_threshold=0:x264-params=open-gop=1"},
        Film{"camera.mkv", "libx264", 100, 40, 3, "preset=veryfast"}, Film{"old.avi", "mpeg4", 90, 30, 2, "", true},
        Film{"old.mp4", "mpeg4", 90, 30, 2}, Film{"disc.mpg", "mpeg2video", 90, 15, 2},
        Film{"disc.avi", "mpeg2video", 90, 15, 2}, Film{"stream.ts", "libx264", 80, 20, 2, "preset=veryfast"},
        Film{"tape.avi", "ffvhuff", 30, 1, 0, "pred=left", true},
        Film{"phone.mov", "libx265", 60, 24, 3, "preset=ultrafast:x265-params=log-level=none"},
        Film{"open.mp4", "libx265", 60, 15, 3, "preset=ultrafast:x265-params=log-level=none\\:open-gop=1"},
        Film{"web.webm", "libvpx-vp9", 30, 12, 0, "deadline=realtime:cpu-used=8"},
        Film{"camera.mts", "libx264", 50, 20, 2, "preset=veryfast"}, Film{"camera.m2ts", "mpeg2video", 50, 15, 2},
        Film{"disc.vob", "mpeg2video", 50, 15, 2}, Film{"disc.mpeg", "mpeg1video", 50, 15, 2},
        Film{"desk.wmv", "wmv2", 40, 15, 0, "", true}, Film{"desk.asf", "wmv1", 40, 15, 0},
        Film{"old.3gp", "mpeg4", 40, 15, 0}, Film{"web.flv", "flv", 40, 15, 0}, Film{"web.ogg", "libtheora", 40, 16, 0},
        Film{"phone.m4v", "mpeg4", 40, 15, 2}, Fragmented({"parts.mp4", "libx264", 60, 20, 2, "preset=veryfast"})),
    [](const auto& info) {
      std::string name = info.param.name + "_" + info.param.encoder;
      for (char& c : name)
        if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
      return name;
    });

}  // namespace
}  // namespace kinalyx::test
