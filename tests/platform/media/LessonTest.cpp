#include "platform/media/LessonFile.h"

#include <cmath>

#include "platform/media/LessonCopy.h"
#include "platform/media/SoundReader.h"
#include "platform/media/VideoFile.h"
#include "support/FlashLesson.h"
#include "support/TempFolder.h"

namespace kinalyx::test {
namespace {

namespace fs = std::filesystem;

constexpr std::int64_t kSecond = 1'000'000'000;

TEST(Lesson, IsInStepAfterTenMinutesWithAMicrophoneWhoseClockIsWrong) {
  const TempFolder folder;
  for (const LessonKind kind : {LessonKind::Avi, LessonKind::Mp4}) {
    const bool avi = kind == LessonKind::Avi;
    const std::string raw = folder.Path(avi ? "a.mkv" : "m.mkv"), kept = folder.Path(avi ? "a.avi" : "m.mp4");
    ASSERT_TRUE((FlashLesson{.kind = kind, .tooFast = avi ? 2e-4 : -2e-4, .hole = 41}.Record(raw)));
    ASSERT_TRUE(KeepLesson(raw, kept));
    EXPECT_EQ(KeepLesson(raw, kept).Kind(), Fault::Failed) << "what is there is not replaced";

    const auto info = ReadVideoInfo(kept);
    ASSERT_TRUE(info);
    EXPECT_EQ(info->frameCount, 600 * LessonFile::kRate);
    EXPECT_NEAR(info->durationMs, 600'000, 1);
    const std::vector<double> clicks = ClicksIn(kept), flashes = FlashesIn(kept);
    ASSERT_EQ(clicks.size(), 60u);
    ASSERT_EQ(flashes.size(), 60u);
    for (std::size_t i = 0; i < clicks.size(); ++i) {
      EXPECT_NEAR(flashes[i], 5 + 10 * static_cast<double>(i), 1e-3) << "flash " << i;
      EXPECT_NEAR(clicks[i], flashes[i], 0.012) << "click " << i;
    }
  }
}

TEST(Lesson, ThatIsBrokenOffHoldsAllButTheLastMoment) {
  const TempFolder folder;
  const std::string raw = folder.Path("whole.mkv"), cut = folder.Path("cut.mkv");
  for (const LessonKind kind : {LessonKind::Avi, LessonKind::Mp4}) {
    ASSERT_TRUE((FlashLesson{.kind = kind, .seconds = 20}.Record(raw)));
    fs::copy_file(raw, cut);
    fs::resize_file(cut, fs::file_size(raw) * 3 / 4);
    const auto facts = ReadLesson(cut);
    ASSERT_TRUE(facts);
    EXPECT_EQ(facts->kind, kind);
    EXPECT_GT(facts->seconds, 12);
    EXPECT_LT(facts->seconds, 17);
    const std::string kept = folder.Path(kind == LessonKind::Avi ? "kept.avi" : "kept.mp4");
    ASSERT_TRUE(KeepLesson(cut, kept));
    EXPECT_EQ(ClicksIn(kept).size(), 1u);
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
    auto file = LessonFile::Create(raw, {LessonKind::Mp4, 64, 48, false});
    ASSERT_TRUE(file);
    ASSERT_TRUE((*file)->TakePicture(PlainPicture(16), 0));
    ASSERT_TRUE((*file)->TakePicture(PlainPicture(235), 2 * kSecond));
    ASSERT_TRUE((*file)->Close(3 * kSecond));
    EXPECT_EQ((*file)->Tally().pictures, 45);
  }
  EXPECT_FALSE(LessonFile::Create(raw, {LessonKind::Avi, 64, 48, false}));
  EXPECT_FALSE(LessonFile::Create(folder.Path("odd.mkv"), {LessonKind::Avi, 63, 48, false}));
  ASSERT_TRUE(KeepLesson(raw, folder.Path("a.mp4")));
  const std::vector<double> flashes = FlashesIn(folder.Path("a.mp4"));
  ASSERT_EQ(flashes.size(), 1u);
  EXPECT_NEAR(flashes[0], 2, 1e-3);
  EXPECT_FALSE(SoundReader::Open(folder.Path("a.mp4")));
  EXPECT_FALSE(KeepLesson(raw, "/proc/none.mp4")) << "where nothing can be written";
  EXPECT_TRUE(fs::exists(raw));
}

}  // namespace
}  // namespace kinalyx::test
