#include "platform/media/LessonFile.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>

#include "platform/media/LessonCopy.h"
#include "platform/media/SoundReader.h"
#include "platform/media/VideoFile.h"
#include "platform/media/VideoInfo.h"
#include "support/TempFolder.h"

namespace kinalyx::test {
namespace {

namespace fs = std::filesystem;

constexpr int kWidth = 64, kHeight = 48;
constexpr std::int64_t kSecond = 1'000'000'000;

LessonPicture Plain(std::uint8_t brightness) {
  constexpr std::size_t kPixels = std::size_t{kWidth} * kHeight;
  std::shared_ptr<std::uint8_t[]> bytes(new std::uint8_t[kPixels * 3 / 2]);
  std::memset(bytes.get(), brightness, kPixels);
  std::memset(bytes.get() + kPixels, 128, kPixels / 2);
  return {bytes, bytes.get()};
}

/// A microphone that hears a click at each flash, with a clock that runs wrong, and stamps that tremble.
class Microphone {
 public:
  explicit Microphone(double tooFast) : rate_(LessonFile::kSoundRate * (1 + tooFast)) {}

  /// The next hundredth of a second.
  std::vector<std::int16_t> Hear(double every, double from) {
    std::vector<std::int16_t> samples(LessonFile::kSoundRate / 100);
    for (std::int16_t& sample : samples) {
      const double at = static_cast<double>(heard_++) / rate_;
      if (at >= from && std::fmod(at - from, every) < 0.02) sample = heard_ / 20 % 2 == 0 ? 20'000 : -20'000;
    }
    return samples;
  }
  double Now() const { return static_cast<double>(heard_) / rate_; }

 private:
  double rate_;
  std::int64_t heard_ = 0;
};

/// A lesson with a flash and a click every ten seconds, from the fifth on.
void Record(const std::string& path, LessonKind kind, double seconds, double tooFast, double hole = 0) {
  auto file = LessonFile::Create(path, {kind, kWidth, kHeight, true});
  ASSERT_TRUE(file) << file.Why();
  Microphone microphone(tooFast);
  const LessonPicture dark = Plain(16), bright = Plain(235);
  for (int place = 0; place < static_cast<int>(seconds * LessonFile::kRate); ++place) {
    const double now = static_cast<double>(place) / LessonFile::kRate;
    const bool flash = now >= 5 && std::fmod(now - 5, 10) < 0.1;
    ASSERT_TRUE((*file)->TakePicture(flash ? bright : dark, std::llround(now * kSecond)));
    while (microphone.Now() < now) {
      const double at = microphone.Now();
      const auto samples = microphone.Hear(10, 5);
      if (hole > 0 && at > hole && at < hole + 1) continue;
      const double tremble = (place % 5 - 2) * 0.001;
      ASSERT_TRUE((*file)->TakeSound(samples, std::llround((at + tremble) * kSecond)));
    }
  }
  ASSERT_TRUE((*file)->Close(std::llround(seconds * kSecond)));
}

Outcome Keep(const std::string& from, const std::string& to) {
  LessonCopy copy(from, to);
  while (copy.Step()) {
  }
  return copy.How();
}

/// Seconds at which clicks are heard.
std::vector<double> Clicks(const std::string& path) {
  const auto reader = SoundReader::Open(path);
  std::vector<double> found;
  if (!reader) return found;
  reader->Begin(0);
  std::vector<std::int16_t> samples;
  while (reader->Read(samples)) {
  }
  for (std::size_t i = 0; i < samples.size(); i += SoundReader::kChannels) {
    const double at = static_cast<double>(i) / SoundReader::kChannels / SoundReader::kRate;
    if (std::abs(samples[i]) > 6000 && (found.empty() || at - found.back() > 1)) found.push_back(at);
  }
  return found;
}

/// Brightness of a picture.
int Brightness(VideoFile& video, int frame) {
  const FrameRows rows = video.Frame(frame, 24);
  return rows ? rows.bits[kHeight / 2 * rows.rowBytes + kWidth / 2 * 3] : -1;
}

TEST(Lesson, IsInStepAfterTenMinutesWithAMicrophoneWhoseClockIsWrong) {
  const TempFolder folder;
  for (const LessonKind kind : {LessonKind::Avi, LessonKind::Mp4}) {
    const bool avi = kind == LessonKind::Avi;
    const std::string raw = folder.Path(avi ? "a.mkv" : "m.mkv"), kept = folder.Path(avi ? "a.avi" : "m.mp4");
    Record(raw, kind, 600, avi ? 2e-4 : -2e-4, 41);
    ASSERT_TRUE(Keep(raw, kept));
    EXPECT_EQ(Keep(raw, kept).Kind(), Fault::Failed) << "what is there is not replaced";

    const auto info = ReadVideoInfo(kept);
    ASSERT_TRUE(info);
    EXPECT_EQ(info->frameCount, 600 * LessonFile::kRate);
    EXPECT_NEAR(info->durationMs, 600'000, 1);
    const std::vector<double> clicks = Clicks(kept);
    ASSERT_EQ(clicks.size(), 60u);
    for (std::size_t i = 0; i < clicks.size(); ++i)
      EXPECT_NEAR(clicks[i], 5 + 10 * static_cast<double>(i), 0.012) << "click " << i;
    auto video = VideoFile::Open(kept);
    ASSERT_TRUE(video);
    for (const int flash : {75, 75 + 59 * 150}) {
      EXPECT_LT(Brightness(**video, flash - 1), 60);
      EXPECT_GT(Brightness(**video, flash), 190);
      EXPECT_LT(Brightness(**video, flash + 3), 60);
    }
  }
}

TEST(Lesson, ThatIsBrokenOffHoldsAllButTheLastMoment) {
  const TempFolder folder;
  const std::string raw = folder.Path("whole.mkv"), cut = folder.Path("cut.mkv");
  for (const LessonKind kind : {LessonKind::Avi, LessonKind::Mp4}) {
    Record(raw, kind, 20, 0);
    fs::copy_file(raw, cut);
    fs::resize_file(cut, fs::file_size(raw) * 3 / 4);
    const auto facts = ReadLesson(cut);
    ASSERT_TRUE(facts);
    EXPECT_EQ(facts->kind, kind);
    EXPECT_GT(facts->seconds, 12);
    EXPECT_LT(facts->seconds, 17);
    const std::string kept = folder.Path(kind == LessonKind::Avi ? "kept.avi" : "kept.mp4");
    ASSERT_TRUE(Keep(cut, kept));
    EXPECT_EQ(Clicks(kept).size(), 1u);
    const auto info = ReadVideoInfo(kept);
    ASSERT_TRUE(info);
    EXPECT_NEAR(info->durationMs, facts->seconds * 1000, 1);
    fs::remove(raw);
    fs::remove(cut);
  }
  fs::resize_file(folder.Path("kept.avi"), 100);
  EXPECT_FALSE(ReadLesson(folder.Path("kept.avi"))) << "no lesson at all";
  EXPECT_FALSE(ReadLesson(folder.Path("none.mkv")));
}

TEST(Lesson, ShowsThePictureThatStandsAndWritesNothingOverAnother) {
  const TempFolder folder;
  const std::string raw = folder.Path("a.mkv");
  {
    auto file = LessonFile::Create(raw, {LessonKind::Mp4, kWidth, kHeight, false});
    ASSERT_TRUE(file);
    ASSERT_TRUE((*file)->TakePicture(Plain(16), 0));
    ASSERT_TRUE((*file)->TakePicture(Plain(235), 2 * kSecond));
    ASSERT_TRUE((*file)->Close(3 * kSecond));
    EXPECT_EQ((*file)->Tally().pictures, 45);
  }
  EXPECT_FALSE(LessonFile::Create(raw, {LessonKind::Avi, kWidth, kHeight, false}));
  EXPECT_FALSE(LessonFile::Create(folder.Path("odd.mkv"), {LessonKind::Avi, 63, 48, false}));
  ASSERT_TRUE(Keep(raw, folder.Path("a.mp4")));
  auto video = VideoFile::Open(folder.Path("a.mp4"));
  ASSERT_TRUE(video);
  EXPECT_LT(Brightness(**video, 29), 60);
  EXPECT_GT(Brightness(**video, 30), 190);
  EXPECT_FALSE(SoundReader::Open(folder.Path("a.mp4")));
  EXPECT_FALSE(Keep(raw, "/proc/none.mp4")) << "where nothing can be written";
  EXPECT_TRUE(fs::exists(raw));
}

}  // namespace
}  // namespace kinalyx::test
