#include "platform/media/Conversion.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "platform/media/Films.h"
#include "platform/media/SteadyRate.h"
#include "support/TempFolder.h"
#include "support/TestVideos.h"

namespace kinalyx::test {
namespace {

namespace fs = std::filesystem;
using Codec = ConversionRequest::Codec;

/// Converts to the end; why it failed, or nothing.
std::string Convert(const ConversionRequest& request, ConvertedVideo* converted = nullptr) {
  auto opened = Conversion::Open(request);
  if (!opened) return opened.Why();
  Conversion& conversion = **opened;
  double part = 0;
  while (conversion.Step() == Conversion::State::Running) {
    EXPECT_GE(conversion.Part(), part);
    part = conversion.Part();
    EXPECT_FALSE(fs::exists(request.destination));
  }
  if (converted) *converted = conversion.Converted();
  return conversion.Error();
}

std::vector<int> NumbersOf(VideoFile& file, int field = -1) {
  std::vector<int> numbers;
  for (int n = 0; n < file.Info().frameCount; ++n) numbers.push_back(ReadNumber(file.Frame(n, 24), field).value_or(-1));
  return numbers;
}

std::vector<int> Numbers(int first, int last, int step = 1) {
  std::vector<int> numbers;
  for (int n = first; n <= last; n += step) numbers.push_back(n);
  return numbers;
}

TEST(Conversion, MakesOnePictureOfEveryPicture) {
  TempFolder folder;
  TestVideo fast = H264Video(240);
  fast.format.rate = 240;
  for (const TestVideo& video : {fast, MjpegVideo(30), RawVideo(30), DvVideo(12)}) {
    for (const Codec codec : {Codec::Mjpeg, Codec::Dv}) {
      const std::string source = MakeTestVideo(video);
      SCOPED_TRACE(source);
      const std::string target = folder.Path("made.avi");
      ConvertedVideo made;
      ASSERT_EQ(Convert({source, target, codec}, &made), "");
      EXPECT_EQ(made.pictures, video.frames);
      const auto file = OpenedVideo(target);
      const VideoInfo& info = file->Info();
      EXPECT_TRUE(info.everyFrameIsKey);
      EXPECT_EQ(info.rate * video.format.scale, video.format.rate * info.scale);
      EXPECT_EQ(info.compressor, codec == Codec::Dv ? "dvsd" : "MJPG");
      EXPECT_EQ(info.width, codec == Codec::Dv ? 720 : video.format.width);
      EXPECT_EQ(info.height, codec == Codec::Dv ? 480 : video.format.height);
      if (video.fieldsDiffer) {
        EXPECT_EQ(NumbersOf(*file, 0), Numbers(0, 2 * video.frames - 2, 2));
        EXPECT_EQ(NumbersOf(*file, 1), Numbers(1, 2 * video.frames - 1, 2));
      } else {
        EXPECT_EQ(NumbersOf(*file), Numbers(0, video.frames - 1));
      }
      fs::remove(target);
    }
  }
}

TEST(Conversion, TakesTheTrimmedStretchWithItsSound) {
  TempFolder folder;
  Film film{"phone.mov", "mpeg4", 60, 12, 2, "", true};
  MakeFilm(film, folder.Path(film.name));
  const std::string target = folder.Path("made.avi");
  // Pictures stand for 40 ms each.
  ASSERT_EQ(Convert({folder.Path(film.name), target, Codec::Mjpeg, 0, 0, false, 405, 1210}), "");
  const auto file = OpenedVideo(target);
  EXPECT_EQ(NumbersOf(*file), Numbers(10, 30));
  const std::vector<std::int16_t> sound = SoundOf(target);
  ASSERT_EQ(sound.size(), 21u * kFilmSamplesPerFrame);
  int wrong = 0;
  for (std::size_t i = 0; i < sound.size(); ++i)
    wrong += sound[i] != FilmSample(10 * kFilmSamplesPerFrame + static_cast<int>(i));
  EXPECT_EQ(wrong, 0);
}

TEST(Conversion, KeepsUnequalTimesWithinAPicture) {
  TempFolder folder;
  Film film{"phone.mp4", "mpeg4", 60, 12, 0};
  // A telephone in bad light: now 30, now 15 pictures a second, and a pause.
  film.time = [](int n) { return std::int64_t{n < 30 ? n * 33 : 990 + (n - 30) * 67 + (n > 50 ? 400 : 0)}; };
  MakeFilm(film, folder.Path(film.name));
  const std::string target = folder.Path("made.avi");
  ConvertedVideo made;
  ASSERT_EQ(Convert({folder.Path(film.name), target}, &made), "");
  EXPECT_EQ(made.pictures, film.frames);
  const auto file = OpenedVideo(target);
  EXPECT_EQ(made.frames, file->Info().frameCount);
  const double place = 1000.0 * static_cast<double>(file->Info().scale) / static_cast<double>(file->Info().rate);
  EXPECT_GT(place, 25);
  const std::vector<int> numbers = NumbersOf(*file);
  for (int n = 0; n < film.frames; ++n) {
    const auto at = std::find(numbers.begin(), numbers.end(), n);
    ASSERT_NE(at, numbers.end()) << n;
    EXPECT_NEAR(file->SampleToTime(static_cast<int>(at - numbers.begin())), static_cast<double>(film.time(n)), place);
  }
}

TEST(SteadyRate, IsTheLowestThatKeepsEveryPicture) {
  const auto rateOf = [](int pictures, const std::function<double(int)>& time) {
    std::vector<double> times;
    for (int n = 0; n <= pictures; ++n) times.push_back(time(n));
    const SteadyRate steady = SteadyRateFor(times);
    EXPECT_GE(steady.frames, pictures);
    return static_cast<double>(steady.rate) / steady.scale;
  };
  // A clock that counts whole milliseconds, one that drifts, every tenth picture left out, later two of three, and two
  // pictures that coincide.
  EXPECT_NEAR(rateOf(3600, [](int n) { return std::floor(n * 1001.0 / 30); }), 29.97, 0.001);
  EXPECT_NEAR(rateOf(36000, [](int n) { return n * 1000 / 239.4 + (n % 3) * 0.6; }), 239.4, 0.01);
  EXPECT_NEAR(rateOf(300, [](int n) { return (n + n / 9) * 1000.0 / 60; }), 54, 0.1);
  EXPECT_EQ(rateOf(90, [](int n) { return (n < 20 ? n : 3 * n - 40) * 1000.0 / 30; }), 30);
  EXPECT_GT(rateOf(300, [](int n) { return n < 150 ? n * 40.0 : (n - 1) * 40.0; }), 24);
}

TEST(Conversion, ShowsWhatThePlayerShows) {
  TempFolder folder;
  // A quarter turn, wide pixels, colours of HD: red above, blue below, before the turn.
  Film film{"turned.mov", "mpeg4", 3, 1, 0};
  film.matrix = {0, 65536, 0, -65536, 0, 0, 0, 0, 1 << 30};
  film.paint = [](AVFrame& picture, int) {
    for (int y = 0; y < picture.height; ++y)
      std::fill_n(picture.data[0] + y * picture.linesize[0], picture.width, y < picture.height / 2 ? 63 : 32);
    for (int y = 0; y < picture.height / 2; ++y) {
      std::fill_n(picture.data[1] + y * picture.linesize[1], picture.width / 2, y < picture.height / 4 ? 102 : 240);
      std::fill_n(picture.data[2] + y * picture.linesize[2], picture.width / 2, y < picture.height / 4 ? 240 : 118);
    }
  };
  MakeFilm(film, folder.Path(film.name));
  ASSERT_EQ(Convert({folder.Path(film.name), folder.Path("made.avi")}), "");
  const auto before = OpenedVideo(folder.Path(film.name));
  const auto after = OpenedVideo(folder.Path("made.avi"));
  const FrameRows was = before->Frame(1, 24);
  const FrameRows is = after->Frame(1, 24);
  ASSERT_TRUE(was && is && was.width == is.width && was.height == is.height && was.width < was.height);
  for (const auto& [x, y] : {std::pair{20, 40}, {20, 280}, {220, 40}, {220, 280}}) {
    for (int c = 0; c < 3; ++c)
      EXPECT_NEAR(was.bits[y * was.rowBytes + x * 3 + c], is.bits[y * is.rowBytes + x * 3 + c], 4) << x << ' ' << y;
  }
}

TEST(Conversion, OnTapeTheFieldThatWasFirstStaysFirst) {
  TempFolder folder;
  Film film{"hd.mov", "mpeg2video", 4, 1, 0};
  film.width = 720;
  film.height = 576;
  film.format = AV_PIX_FMT_YUV420P;
  film.tune = [](AVCodecContext& codec) {
    codec.flags |= AV_CODEC_FLAG_INTERLACED_DCT;
    codec.field_order = AV_FIELD_TT;
  };
  // The upper field, which is first, is bright.
  film.paint = [](AVFrame& picture, int) {
    picture.interlaced_frame = picture.top_field_first = 1;
    for (int y = 0; y < picture.height; ++y)
      std::fill_n(picture.data[0] + y * picture.linesize[0], picture.width, y % 2 == 0 ? 200 : 40);
    for (int p = 1; p < 3; ++p) std::fill_n(picture.data[p], picture.linesize[p] * picture.height / 2, 128);
  };
  MakeFilm(film, folder.Path(film.name));
  const auto source = ReadVideoInfo(folder.Path(film.name));
  ASSERT_TRUE(source && source->interlaced && source->topFieldFirst);
  const auto greenAt = [&](const FrameRows& rows, int y) {
    return static_cast<int>(rows.bits[(rows.height - 1 - y) * rows.rowBytes + 300 * 3 + 1]);
  };
  ASSERT_EQ(Convert({folder.Path(film.name), folder.Path("tape.avi"), Codec::Dv, 0, 0, true}), "");
  const auto tape = OpenedVideo(folder.Path("tape.avi"));
  const FrameRows rows = tape->Frame(2, 24);
  ASSERT_TRUE(rows);
  EXPECT_LT(greenAt(rows, 200), 70);  // the lower field is first here
  EXPECT_GT(greenAt(rows, 201), 185);
  ASSERT_EQ(Convert({folder.Path(film.name), folder.Path("kept.avi")}), "");
  const auto kept = OpenedVideo(folder.Path("kept.avi"));
  EXPECT_GT(greenAt(kept->Frame(2, 24), 200), 185);
  EXPECT_LT(greenAt(kept->Frame(2, 24), 201), 70);
}

TEST(Conversion, LeavesNothingHalfDone) {
  TempFolder folder;
  const std::string source = MakeTestVideo(MjpegVideo(60));
  const std::string target = folder.Path("made.avi");
  {
    auto conversion = Conversion::Open({source, target});
    ASSERT_TRUE(conversion);
    for (int i = 0; i < 20; ++i) ASSERT_EQ((*conversion)->Step(), Conversion::State::Running);
  }
  EXPECT_EQ(folder.FileCount(), 0u);
  const std::string text = folder.Put("text.avi", "no video");
  EXPECT_NE(Convert({text, target}), "");
  EXPECT_NE(Convert({source, text}), "");
  EXPECT_NE(Convert({source, target, Codec::Mjpeg, 0, 0, false, 1500, 1000}), "");
  EXPECT_NE(Convert({source, folder.Path("nowhere/x.avi")}), "");
  EXPECT_EQ(folder.Get("text.avi"), "no video");
  EXPECT_EQ(folder.FileCount(), 1u);
}

}  // namespace
}  // namespace kinalyx::test
