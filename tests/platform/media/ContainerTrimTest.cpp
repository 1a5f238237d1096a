#include <algorithm>
#include <optional>
#include <utility>

#include "platform/media/Films.h"
#include "platform/media/VideoFile.h"
#include "platform/media/VideoTrim.h"
#include "support/TempFolder.h"
#include "support/TestVideos.h"

namespace kinalyx::test {
namespace {

namespace fs = std::filesystem;

std::string ContainerOf(const std::string& path) {
  AVFormatContext* context = nullptr;
  if (avformat_open_input(&context, ("file:" + path).c_str(), nullptr, nullptr) < 0) return "";
  return InputHandle(context)->iformat->name;
}

/// Every picture of a cut carries its number in the film, and is shown when it was shown there.
void ExpectFrames(const std::string& cut, const std::string& film, int first, int last) {
  const auto before = OpenedVideo(film);
  const auto after = OpenedVideo(cut);
  ASSERT_TRUE(before && after);
  ASSERT_EQ(after->Info().frameCount, last - first + 1);
  for (int n = first; n <= last; ++n) {
    ASSERT_EQ(ReadNumber(after->Frame(n - first, 24)), n);
    ASSERT_NEAR(after->SampleToTime(n - first), before->SampleToTime(n) - before->SampleToTime(first), 1.5) << n;
  }
  // Entered in the middle it shows the same.
  const int middle = (last - first) / 2;
  EXPECT_EQ(ReadNumber(OpenedVideo(cut)->Frame(middle, 24)), first + middle);
}

struct Kind {
  Film film;
  bool copiesAll = false;  ///< wherever it is cut
  bool opens = false;      ///< pictures behind a key picture may need those before it
  std::string anew = "";   ///< the codec where it is coded anew; empty: the film's own
};

std::ostream& operator<<(std::ostream& out, const Kind& kind) { return out << kind.film; }

class ContainerTrim : public testing::TestWithParam<Kind> {};

TEST_P(ContainerTrim, CutsExactlyWhereItIsTold) {
  const Kind& kind = GetParam();
  const std::string film = TestPath("trim-" + kind.film.encoder + "-" + kind.film.name);
  MakeFilm(kind.film, film);
  if (HasFatalFailure() || IsSkipped()) return;
  const std::vector<FrameHandle> pictures = DecodeStraight(film);
  const auto before = ReadVideoInfo(film);
  ASSERT_TRUE(before);
  TempFolder folder;
  const std::string own = folder.Path("own" + fs::path(kind.film.name).extension().string());
  // In the middle of runs; from a key picture to the end; the first pictures; a few.
  for (const auto& [first, last] : {std::pair{17, 40}, {24, 0}, {0, 20}, {31, 33}}) {
    SCOPED_TRACE(std::to_string(first) + " to " + std::to_string(last));
    fs::copy_file(film, own, fs::copy_options::overwrite_existing);
    const int end = last == 0 ? kind.film.frames - 1 : last;
    const auto cut = TrimVideo({own, own, first, last});
    ASSERT_TRUE(cut) << cut.Why();
    EXPECT_EQ(cut->frames, end - first + 1);
    ASSERT_NO_FATAL_FAILURE(ExpectFrames(own, film, first, end));
    EXPECT_EQ(ContainerOf(own), ContainerOf(film));
    // What is stored in another order than it is shown hangs together across the key pictures of some codecs.
    if (kind.copiesAll || (first == 24 && !kind.opens)) {
      EXPECT_TRUE(cut->copied);
    }
    if (cut->copied) {
      const std::vector<FrameHandle> now = DecodeStraight(own);
      ASSERT_EQ(now.size(), static_cast<std::size_t>(cut->frames));
      for (std::size_t i = 0; i < now.size(); ++i) ASSERT_TRUE(SamePicture(*now[i], *pictures[first + i])) << i;
    }
    const auto after = ReadVideoInfo(own);
    EXPECT_EQ(after->compressor, cut->copied || kind.anew.empty() ? before->compressor : kind.anew);
    EXPECT_EQ(after->hasSound, kind.film.sound);
    if (!kind.film.sound) continue;
    const std::vector<std::int16_t> sound = SoundOf(own);
    ASSERT_GE(sound.size(), static_cast<std::size_t>(cut->frames) * kFilmSamplesPerFrame);
    for (int i = 0; i < cut->frames * kFilmSamplesPerFrame; ++i)
      ASSERT_EQ(sound[static_cast<std::size_t>(i)], FilmSample(first * kFilmSamplesPerFrame + i)) << i;
  }
  EXPECT_EQ(folder.FileCount(), 1u);
}

constexpr char kFast[] = "preset=ultrafast";
INSTANTIATE_TEST_SUITE_P(
    Films, ContainerTrim,
    testing::Values(Kind{{"a.mp4", "libx264", 60, 24, 2, kFast}, true},
                    Kind{{"b.mov", "libx264", 60, 24, 2, kFast, true}, true},
                    Kind{{"c.mp4", "libx264", 60, 24, 2, "preset=veryfast:x264-params=open-gop=1"}, true},
                    Kind{{"d.mov", "libx265", 60, 24, 3, "preset=ultrafast:x265-params=log-level=error"}, true},
                    Kind{{"e.3gp", "mpeg4", 60, 12, 0}, true}, Kind{{"f.mkv", "libx264", 60, 24, 2, kFast, true}},
                    Kind{{"g.ts", "libx264", 60, 24, 2, kFast}}, Kind{{"h.m2ts", "mpeg2video", 60, 12, 2}, false, true},
                    Kind{{"i.vob", "mpeg2video", 60, 12, 2}, false, true}, Kind{{"j.wmv", "wmv2", 60, 12, 0}},
                    Kind{{"k.flv", "flv", 60, 12, 0}},
                    Kind{{"l.webm", "libvpx", 60, 24, 0, "deadline=realtime:auto-alt-ref=0"}},
                    Kind{{"m.ogg", "libtheora", 60, 12, 0}},
                    Kind{{"n.mkv", "mjpeg", 60, 1, 0, "", true, nullptr, 320, 240, AV_PIX_FMT_YUVJ420P}, true},
                    Kind{{"p.mkv", "snow", 60, 12, 0, "strict=-2"}, false, false, "h264"}));

TEST(ContainerTrim, KeepsUnevenTimesTurnShapeAndNotes) {
  Film film{"told.mp4", "libx264", 60, 24, 2, kFast};
  film.time = [](int n) { return 30 * n + n % 3 * 9; };
  film.matrix = {0, 1 << 16, 0, -(1 << 16), 0, 0, 0, 0, 1 << 30};
  film.pixel = {4, 3};
  film.metadata = {{"com.android.capture.fps", "240"}};
  film.muxing = "movflags=use_metadata_tags";
  film.tune = [](AVCodecContext& codec) { codec.color_trc = AVCOL_TRC_SMPTE2084; };
  for (const auto mode : {TrimRequest::Mode::Copy, TrimRequest::Mode::Recompress}) {
    const std::string own = TestPath(film.name);
    MakeFilm(film, own);
    const auto before = OpenedVideo(own);
    // A cut of a cut: what the first one hides is in the way of the second.
    ASSERT_TRUE(TrimVideo({own, own, 5, 50, 30, mode}));
    ASSERT_TRUE(TrimVideo({own, own, 8, 31, 30, mode}));
    const auto after = OpenedVideo(own);
    ASSERT_EQ(after->Info().frameCount, 24);
    for (int n = 0; n < 24; ++n)
      ASSERT_NEAR(after->SampleToTime(n), static_cast<double>(film.time(13 + n) - film.time(13)), 0.01) << n;
    EXPECT_EQ(std::pair(after->Info().width, after->Info().height),
              std::pair(before->Info().width, before->Info().height));
    EXPECT_EQ(after->Info().captureRate, 240);
    const std::vector<FrameHandle> pictures = DecodeStraight(own);
    ASSERT_EQ(pictures.size(), 24u);
    EXPECT_EQ(pictures[0]->color_trc, AVCOL_TRC_SMPTE2084);
  }
}

TEST(ContainerTrim, KeepsTenBitsWhereItCodesAnew) {
  for (const Film& made : {Film{"ten.mkv", "libx264", 12, 12, 0, kFast},
                           Film{"ten.ts", "libx265", 12, 12, 0, "preset=ultrafast:x265-params=log-level=error"}}) {
    Film film = made;
    film.format = AV_PIX_FMT_YUV420P10;
    film.paint = [](AVFrame& frame, int n) {
      for (int p = 0; p < 3; ++p)
        for (int y = 0; y < (p ? 120 : 240); ++y)
          std::fill_n(reinterpret_cast<std::uint16_t*>(frame.data[p] + y * frame.linesize[p]), p ? 160 : 320,
                      std::uint16_t(201 + 2 * n));
    };
    const std::string own = TestPath(film.name);
    MakeFilm(film, own);
    const auto cut = TrimVideo({own, own, 3, 9});
    ASSERT_TRUE(cut) << cut.Why();
    EXPECT_FALSE(cut->copied);
    const std::vector<FrameHandle> pictures = DecodeStraight(own);
    ASSERT_EQ(pictures.size(), 7u);
    EXPECT_EQ(pictures[2]->format, AV_PIX_FMT_YUV420P10);
    EXPECT_NEAR(reinterpret_cast<const std::uint16_t*>(pictures[2]->data[0])[1000], 211, 1);
  }
}

TEST(ContainerTrim, LeavesTheOldVideoWhenItIsStoppedOrCannot) {
  TempFolder folder;
  struct Case {
    Film film;
    bool stops = false;   ///< by the user
    double keeps = 1;     ///< of the film's bytes; the rest is missing
    std::string as = "";  ///< its name
    std::string why = "";
  };
  const Case cases[] = {
      {{"a.mp4", "libx264", 60, 24, 2, kFast}, true},
      {{"b.mkv", "libx264", 60, 24, 2, kFast}, true},
      {{"c.mp4", "mpeg4", 60, 24, 2}, false, 0.7, "", "the recording was cut off: its index is missing"},
      {{"d.h264", "libx264", 60, 24, 2, kFast}, false, 1, "d.mp4", "videos in this kind of file cannot be cut"}};
  for (const Case& one : cases) {
    SCOPED_TRACE(one.film.name);
    const std::string own = folder.Path(one.as.empty() ? one.film.name : one.as);
    MakeFilm(one.film, TestPath(one.film.name));
    if (HasFatalFailure()) return;
    fs::copy_file(TestPath(one.film.name), own);
    fs::resize_file(own, static_cast<std::uintmax_t>(static_cast<double>(fs::file_size(own)) * one.keeps));
    const std::string bytes = BytesOf(own);
    double last = 0;
    const auto cut = TrimVideo({own, own, 10, 58}, [&](double part) {
      EXPECT_TRUE(part >= last && part <= 1);
      last = part;
      return !one.stops || part < 0.5;
    });
    ASSERT_FALSE(cut);
    EXPECT_EQ(cut.Kind(), one.stops ? Fault::Cancelled : Fault::Failed);
    EXPECT_EQ(cut.Why(), one.why);
    EXPECT_TRUE(BytesOf(own) == bytes);
    fs::remove(own);
  }
  EXPECT_TRUE(fs::is_empty(folder.Path()));
}

}  // namespace
}  // namespace kinalyx::test
