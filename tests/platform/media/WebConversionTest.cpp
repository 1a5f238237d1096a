#include "platform/media/WebConversion.h"

#include <algorithm>
#include <cmath>

#include "platform/media/Films.h"
#include "platform/media/SoundReader.h"
#include "support/TempFolder.h"
#include "support/TestVideos.h"

namespace kinalyx::test {
namespace {

namespace fs = std::filesystem;

class WebFiles : public testing::Test {
 protected:
  std::string Convert(const std::string& source) {
    request.source = source;
    auto opened = WebConversion::Open(request);
    if (!opened) return opened.Why();
    const bool isNew = !fs::exists(request.mp4);
    bool early = false;
    while ((*opened)->Step() == WebConversion::State::Running) early |= isNew && fs::exists(request.mp4);
    EXPECT_FALSE(early) << "half a file";
    frameSeconds = (*opened)->FrameSeconds();
    return (*opened)->Error();
  }
  std::vector<int> Numbers(const std::string& path, int field = -1) {
    const auto file = OpenedVideo(path);
    std::vector<int> numbers;
    for (int n = 0; n < file->Info().frameCount; ++n)
      numbers.push_back(ReadNumber(file->Frame(n, 24), field).value_or(-1));
    return numbers;
  }
  TempFolder folder;
  WebRequest request{.source = "", .wmv = folder.Path("x.wmv"), .mp4 = folder.Path("x.mp4")};
  double frameSeconds = 0;
};

std::vector<int> Count(int to, int step = 1) {
  std::vector<int> numbers;
  for (int n = 0; n < to; n += step) numbers.push_back(n);
  return numbers;
}

TEST_F(WebFiles, HoldEveryPictureOfTheSource) {
  for (const TestVideo& video : {MjpegVideo(20), H264Video(40), RawVideo(10)}) {
    ASSERT_EQ(Convert(MakeTestVideo(video)), "");
    EXPECT_NEAR(frameSeconds, 1 / 30.0, 1e-9);
    for (const std::string& path : {request.wmv, request.mp4}) {
      EXPECT_EQ(Numbers(path), Count(video.frames)) << path;
      const auto file = OpenedVideo(path);
      EXPECT_EQ(file->Info().width, video.format.width);
      EXPECT_NEAR(file->Info().durationMs, video.frames * 1000 / 30.0, 40) << path;
    }
  }
  EXPECT_EQ(OpenedVideo(request.mp4)->Info().compressor, "avc1");
  EXPECT_EQ(OpenedVideo(request.wmv)->Info().compressor, "WMV2");
  const std::string mp4 = BytesOf(request.mp4);
  EXPECT_LT(mp4.find("moov"), mp4.find("mdat")) << "plays while it comes";
}

TEST_F(WebFiles, OfTapeTheFirstFieldIsShownUprightInSquarePixels) {
  ASSERT_EQ(Convert(MakeTestVideo(DvVideo(6))), "");
  const auto numbers = Numbers(request.mp4);
  ASSERT_EQ(numbers.size(), 6U);
  const bool topFirst = OpenedVideo(MakeTestVideo(DvVideo(6)))->Info().topFieldFirst;
  for (int n = 0; n < 6; ++n) EXPECT_EQ(numbers[static_cast<std::size_t>(n)], 2 * n + (topFirst ? 0 : 1));
  const auto made = OpenedVideo(request.mp4);
  const auto source = OpenedVideo(MakeTestVideo(DvVideo(6)));
  EXPECT_FALSE(made->Info().interlaced);
  EXPECT_NEAR(static_cast<double>(made->Info().width) / made->Info().height,
              static_cast<double>(source->Info().width) / source->Info().height, 0.01);
}

TEST_F(WebFiles, AreUprightAndNoLargerThanATelephoneShows) {
  const std::vector<std::int32_t> turned{0, 65536, 0, -65536, 0, 0, 0, 0, 1 << 30};
  const struct {
    Film film;
    int width;
    int height;
  } kFilms[] = {
      {{.name = "large.mp4",
        .encoder = "libx264",
        .frames = 4,
        .width = 1920,
        .height = 1080,
        .paint = [](AVFrame&, int) {}},
       1280,
       720},
      {{.name = "stands.mp4",
        .encoder = "libx264",
        .frames = 4,
        .width = 1920,
        .height = 1080,
        .matrix = turned,
        .paint = [](AVFrame&, int) {}},
       720,
       1280},
      {{.name = "wide.mkv", .encoder = "mpeg4", .frames = 4, .width = 320, .height = 240, .pixel = {4, 3}}, 426, 240},
  };
  for (const auto& [film, width, height] : kFilms) {
    MakeFilm(film, folder.Path(film.name));
    if (IsSkipped()) return;
    ASSERT_EQ(Convert(folder.Path(film.name)), "") << film;
    EXPECT_EQ(OpenedVideo(request.mp4)->Info().width, width) << film;
    EXPECT_EQ(OpenedVideo(request.mp4)->Info().height, height) << film;
  }
}

TEST_F(WebFiles, KeepTimesAndSoundInStep) {
  // A telephone's film: pictures at times of their own, the last one stands for long.
  const Film film{
      .name = "phone.mov", .encoder = "libx264", .frames = 20, .bFrames = 0, .sound = true, .time = [](int n) {
        return std::int64_t{n} * 40 + (n % 3) * 5;
      }};
  MakeFilm(film, folder.Path(film.name));
  if (IsSkipped()) return;
  ASSERT_EQ(Convert(folder.Path(film.name)), "");
  for (const std::string& path : {request.mp4, request.wmv}) {
    const auto file = OpenedVideo(path);
    EXPECT_TRUE(file->Info().hasSound) << path;
    int n = 0;
    for (int frame = 0; frame < file->Info().frameCount; ++frame) {
      const auto number = ReadNumber(file->Frame(frame, 24));
      if (!number || *number != n) continue;
      EXPECT_NEAR(file->SampleToTime(frame), static_cast<double>(film.time(n)), 45) << path << " " << n;
      ++n;
    }
    EXPECT_EQ(n, film.frames) << path;
    const auto sound = SoundReader::Open(path);
    ASSERT_TRUE(sound);
    sound->Begin(0);
    std::vector<std::int16_t> samples;
    while (sound->Read(samples)) {
    }
    EXPECT_NEAR(static_cast<double>(samples.size()) / 2 / SoundReader::kRate, 0.8, 0.12) << path;
  }
}

TEST_F(WebFiles, AreTheSameBytesAgain) {
  const std::string source = MakeTestVideo(H264Video(60));
  ASSERT_EQ(Convert(source), "");
  const std::string wmv = BytesOf(request.wmv), mp4 = BytesOf(request.mp4);
  ASSERT_EQ(Convert(source), "") << "over the old ones";
  EXPECT_TRUE(BytesOf(request.wmv) == wmv);
  EXPECT_TRUE(BytesOf(request.mp4) == mp4);
}

TEST_F(WebFiles, AreWholeOrNotThere) {
  EXPECT_NE(Convert(folder.Put("none.avi", "no video")), "");
  {
    request.source = MakeTestVideo(MjpegVideo(30));
    auto opened = WebConversion::Open(request);
    ASSERT_TRUE(opened);
    for (int i = 0; i < 10; ++i) (void)(*opened)->Step();
  }
  EXPECT_EQ(folder.FileCount(), 1U) << "the source alone";
  request.mp4 = folder.Path("nowhere/x.mp4");
  EXPECT_NE(Convert(MakeTestVideo(MjpegVideo(8))), "");
  EXPECT_EQ(folder.FileCount(), 1U);
  request = {.source = "", .wmv = "", .mp4 = folder.Path("x.mp4")};
  EXPECT_EQ(Convert(MakeTestVideo(MjpegVideo(8))), "");
  EXPECT_TRUE(fs::exists(request.mp4));
}

}  // namespace
}  // namespace kinalyx::test
