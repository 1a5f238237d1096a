#include "platform/media/VideoTrim.h"

#include <functional>

#include "platform/media/Films.h"
#include "platform/media/TrimCommand.h"
#include "platform/media/VideoFile.h"
#include "support/TempFolder.h"
#include "support/TestVideos.h"

namespace kinalyx::test {
namespace {

namespace fs = std::filesystem;

/// A video with sound of which some frames are left out: the file holds an empty chunk, and the picture before stays.
std::string VideoWithSound(const TempFolder& folder, int frames, const std::function<bool(int)>& left) {
  Film film{"sound.avi", "mjpeg", frames, 1, 0, "", true};
  film.format = AV_PIX_FMT_YUVJ420P;
  film.mangle = [&](AVPacket& packet) {
    if (left(static_cast<int>(packet.pts))) av_shrink_packet(&packet, 0);
  };
  const std::string path = folder.Path(film.name);
  MakeFilm(film, path);
  return path;
}

/// The numbers that the pictures of a video carry; -1 for one that cannot be read.
std::vector<int> NumbersOf(const std::string& path, int field = -1) {
  std::vector<int> numbers;
  const auto file = OpenedVideo(path);
  for (int n = 0; n < file->Info().frameCount; ++n)
    numbers.push_back(ReadNumber(file->Frame(n, 24), field).value_or(-1));
  return numbers;
}

std::vector<int> Numbers(int first, int last, int step = 1) {
  std::vector<int> numbers;
  for (int n = first; n <= last; n += step) numbers.push_back(n);
  return numbers;
}

TEST(VideoTrim, CutsEveryKindOfVideoExactly) {
  TempFolder folder;
  const std::string target = folder.Path("cut.avi");
  for (const TestVideo& video : {DvVideo(24), MjpegVideo(60), RawVideo(40), H264Video(300)}) {
    const std::string source = MakeTestVideo(video);
    const auto before = ReadVideoInfo(source);
    for (const auto mode : {TrimRequest::Mode::Copy, TrimRequest::Mode::Recompress}) {
      for (const auto& [first, last] : {std::pair{7, 19}, {0, 11}, {13, 0}}) {
        SCOPED_TRACE(source + " " + std::to_string(first) + " to " + std::to_string(last));
        const auto result = TrimVideo({source, target, first, last, 30, mode});
        ASSERT_TRUE(result) << result.Why();
        EXPECT_EQ(result->copied, before->everyFrameIsKey && mode == TrimRequest::Mode::Copy);
        const int end = last == 0 ? video.frames - 1 : last;
        EXPECT_EQ(result->frames, end - first + 1);
        if (video.fieldsDiffer) {
          EXPECT_EQ(NumbersOf(target, 0), Numbers(2 * first, 2 * end, 2));
          EXPECT_EQ(NumbersOf(target, 1), Numbers(2 * first + 1, 2 * end + 1, 2));
        } else {
          EXPECT_EQ(NumbersOf(target), Numbers(first, end));
        }
        const auto after = ReadVideoInfo(target);
        ASSERT_TRUE(after);
        EXPECT_EQ(after->rate * before->scale, before->rate * after->scale);
        if (result->copied || video.fieldsDiffer) {
          EXPECT_EQ(after->compressor, before->compressor);
        }
        fs::remove(target);
      }
    }
  }
  EXPECT_TRUE(fs::is_empty(folder.Path()));  // nothing is left beside
}

TEST(VideoTrim, KeepsTheSoundInStepAndFramesThatRepeat) {
  TempFolder folder;
  // Frames 3, 4 and 17 to 19 show what stood before them.
  const auto left = [](int n) { return n == 3 || n == 4 || n >= 17; };
  const std::string source = VideoWithSound(folder, 20, left);
  ASSERT_EQ(NumbersOf(source).size(), 20u);
  struct Case {
    int first;
    int last;
    std::vector<int> numbers;
  };
  const Case cases[] = {{2, 8, {2, 2, 2, 5, 6, 7, 8}}, {4, 6, {2, 5, 6}}, {15, 0, {15, 16, 16, 16, 16}}};
  for (const Case& one : cases) {
    for (const auto mode : {TrimRequest::Mode::Copy, TrimRequest::Mode::Recompress}) {
      SCOPED_TRACE(std::to_string(one.first) + (mode == TrimRequest::Mode::Copy ? " copied" : " coded"));
      const std::string target = folder.Path("cut.avi");
      const auto result = TrimVideo({source, target, one.first, one.last, 30, mode});
      ASSERT_TRUE(result) << result.Why();
      EXPECT_EQ(NumbersOf(target), one.numbers);
      const std::vector<std::int16_t> sound = SoundOf(target);
      ASSERT_EQ(sound.size(), one.numbers.size() * kFilmSamplesPerFrame);
      int wrong = 0;
      for (std::size_t i = 0; i < sound.size(); ++i)
        wrong += sound[i] != FilmSample(one.first * kFilmSamplesPerFrame + static_cast<int>(i));
      EXPECT_EQ(wrong, 0);
      fs::remove(target);
    }
  }
}

TEST(VideoTrim, ReplacesItsOwnSourceAndNothingElse) {
  TempFolder folder;
  const std::string own = folder.Path("own.avi");
  fs::copy_file(MakeTestVideo(MjpegVideo(60)), own);
  ASSERT_TRUE(TrimVideo({own, own, 5, 9}));
  EXPECT_EQ(NumbersOf(own), Numbers(5, 9));
  fs::permissions(own, fs::perms::owner_read);
  EXPECT_EQ(TrimVideo({own, own, 1, 2}).Why(), "the video is read-only");
  EXPECT_EQ(NumbersOf(own), Numbers(5, 9));

  const std::string other = folder.Put("other.avi", "other");
  const std::string none = folder.Path("x.avi");
  const TrimRequest refusals[] = {{own, other, 0, 0},
                                  {own, other, 1, 2},
                                  {own, none, 3, 2},
                                  {own, none, 5, 0},
                                  {folder.Path("none.avi"), none, 0, 0},
                                  {own, folder.Path("nowhere/x.avi"), 1, 2}};
  for (const TrimRequest& refused : refusals)
    EXPECT_FALSE(TrimVideo(refused)) << refused.destination << " from " << refused.firstFrame;
  EXPECT_EQ(folder.Get("other.avi"), "other");
  EXPECT_EQ(folder.FileCount(), 2u);

  // The whole of a video is a copy of the file, whatever its codec.
  const std::string film = MakeTestVideo(H264Video(300));
  const auto whole = TrimVideo({film, folder.Path("film.avi"), 0, 299});
  EXPECT_TRUE(whole && whole->copied);
  EXPECT_EQ(fs::file_size(folder.Path("film.avi")), fs::file_size(film));
}

TEST(VideoTrim, ACancelLeavesTheOldVideo) {
  TempFolder folder;
  const std::string own = folder.Path("own.avi");
  for (const auto mode : {TrimRequest::Mode::Copy, TrimRequest::Mode::Recompress}) {
    fs::copy_file(MakeTestVideo(MjpegVideo(60)), own, fs::copy_options::overwrite_existing);
    double last = 0;
    const auto result = TrimVideo({own, own, 10, 50, 30, mode}, [&last](double part) {
      EXPECT_GE(part, last);
      last = part;
      return part < 0.5;
    });
    EXPECT_EQ(result.Kind(), Fault::Cancelled);
    EXPECT_EQ(NumbersOf(own).size(), 60u);
    EXPECT_EQ(folder.FileCount(), 1u);
  }
}

TEST(TrimCommand, IsOneTextOfSixFields) {
  const TrimRequest request{"/lib/Ann/(001) DL.avi", "/lib/Bob/cut.avi", 12, 87, 30, TrimRequest::Mode::Recompress};
  const std::string text = FormatTrimCommand(request);
  EXPECT_EQ(text, "/lib/Ann/(001) DL.avi*/lib/Bob/cut.avi*12*87*30*2*");
  const auto back = ParseTrimCommand(text);
  ASSERT_TRUE(back);
  EXPECT_EQ(FormatTrimCommand(*back), text);
  EXPECT_EQ(ParseTrimCommand("a.avi*b.avi* 1 * 2 *30*0*")->lastFrame, 2);
  for (const char* bad : {"", "*", "a*b*1*2*30*0", "a*b*1*2*30*1*", "a*b*-1*2*30*0*", "a*b*x*2*30*0*", "a*1*2*30*0*",
                          "*b*1*2*30*0*", "a**1*2*30*0*", "a*b*1*99999999999*30*0*"})
    EXPECT_FALSE(ParseTrimCommand(bad)) << bad;
  // A star in a folder's name.
  TempFolder folder;
  fs::create_directories(folder.Path("a*b"));
  const std::string source = folder.Put("a*b/x.avi", "");
  const auto starred = ParseTrimCommand(source + "*" + folder.Path("a*b/y.avi") + "*0*0*30*0*");
  ASSERT_TRUE(starred);
  EXPECT_EQ(starred->source, source);
  EXPECT_EQ(starred->destination, folder.Path("a*b/y.avi"));
}

}  // namespace
}  // namespace kinalyx::test
