#include "distribution/clips/ClipDesk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "support/TestVideos.h"
#include "workspace/AnalysisStage.h"

namespace kinalyx::test {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

struct Heard final : IClipEvents {
  void ClipProgress(const std::string&, double, int others) override { waiting = others; }
  void ClipSaved(const std::string& path) override { saved.push_back(fs::path(path).filename()); }
  void ClipCancelled() override { ++cancelled; }
  void ClipFailed(const std::string& words) override { failed.push_back(words); }

  std::vector<std::string> saved;
  std::vector<std::string> failed;
  int cancelled = 0;
  int waiting = 0;
};

struct ClipDeskTest : testing::Test {
  ClipDeskTest() {
    stage.settings.LibraryPath = stage.folder;
    EXPECT_TRUE(stage.Open(1, stage.Video("Anna/Łukasz Żak/zamach.avi", MjpegVideo(30))));
  }
  ClipWish Wish(const std::string& name) {
    ClipWish wish = desk.Proposal(stage.analysis);
    wish.Name = name;
    wish.Size = ClipSize::AsSeen;
    return wish;
  }

  AnalysisStage stage{"1", 320, 240};
  Heard heard;
  ClipDesk desk{stage.host, stage.settings, heard, JobRunner::On::HostTimer};
};

TEST_F(ClipDeskTest, ProposesWhatTheStudentTakesHome) {
  ClipWish wish = desk.Proposal(stage.analysis);
  EXPECT_EQ(wish.Folder, stage.folder + "/Anna/Łukasz Żak/Lessons");
  EXPECT_EQ(wish.Name, "zamach");
  EXPECT_EQ(wish.Last, 29);
  EXPECT_FALSE(wish.AllWindows);

  fs::create_directories(wish.Folder);
  std::ofstream(wish.Folder + "/zamach.mp4") << "here";
  stage.MP(1).DrawFrame(12);
  stage.Run("TMark");
  stage.MP(1).setPlayRange(AVIControl::Range{5, 20});
  stage.MP(1).DrawFrame(15);
  wish = desk.Proposal(stage.analysis);
  EXPECT_EQ(wish.Name, "zamach 2");
  EXPECT_EQ(wish.First, 5);
  EXPECT_EQ(wish.Last, 20);
  std::vector<int> positions;
  for (const ClipMoment& moment : ClipDesk::Moments(stage.analysis)) positions.push_back(moment.Position);
  EXPECT_THAT(positions, ElementsAre(0, 5, 12, 15, 20, 29));
  EXPECT_EQ(ClipDesk::Moments(stage.analysis)[2].Words, "Mark, 0.40 s");
}

TEST_F(ClipDeskTest, OneAfterTheOther) {
  ASSERT_TRUE(desk.Save(stage.analysis, Wish("αlpha")));
  ASSERT_TRUE(desk.Save(stage.analysis, Wish("スイング")));
  EXPECT_EQ(desk.Save(stage.analysis, Wish("スイング")).Why(), "A clip of this name is being written.");
  EXPECT_EQ(heard.waiting, 0);
  // The videos go; the clips do not mind.
  ASSERT_TRUE(stage.Run("MnuCloseAll"));
  stage.host.Advance(5000);
  EXPECT_THAT(heard.saved, ElementsAre("αlpha.mp4", "スイング.mp4"));
  EXPECT_FALSE(desk.Busy());
  EXPECT_EQ(OpenedVideo(stage.folder + "/Anna/Łukasz Żak/Lessons/αlpha.mp4")->Info().frameCount, 30);
}

TEST_F(ClipDeskTest, RefusesAndAsks) {
  EXPECT_EQ(desk.Save(stage.analysis, Wish("a/b")).Why(), "Invalid Character in name. Please try again.");
  EXPECT_EQ(desk.Save(stage.analysis, Wish("  ")).Kind(), Fault::Refused);
  ClipWish itself = Wish("zamach");
  fs::copy_file(stage.folder + "/Anna/Łukasz Żak/zamach.avi", stage.folder + "/Anna/Łukasz Żak/zamach.mp4");
  ASSERT_TRUE(stage.Open(1, stage.folder + "/Anna/Łukasz Żak/zamach.mp4"));
  itself.Folder = stage.folder + "/Anna/Łukasz Żak";
  EXPECT_EQ(desk.Save(stage.analysis, itself).Why(), "The clip would replace its own video. Choose another name.");
  ASSERT_TRUE(stage.Open(1, stage.folder + "/Anna/Łukasz Żak/zamach.avi"));
  ClipWish nowhere = Wish("clip");
  nowhere.Folder = stage.folder + "/Anna/Łukasz Żak/zamach.avi/Lessons";
  EXPECT_EQ(desk.Save(stage.analysis, nowhere).Kind(), Fault::Unwritable);

  const ClipWish wish = Wish("clip");
  fs::create_directories(wish.Folder);
  std::ofstream(wish.Folder + "/clip.mp4") << "here";
  stage.host.answers = {false};
  EXPECT_EQ(desk.Save(stage.analysis, wish).Kind(), Fault::Cancelled);
  stage.host.answers = {true};
  ASSERT_TRUE(desk.Save(stage.analysis, wish));
  desk.Cancel();
  stage.host.Advance(5000);
  EXPECT_EQ(heard.cancelled, 1);
  EXPECT_EQ(fs::file_size(wish.Folder + "/clip.mp4"), 4u) << "what was there stays";

  ASSERT_TRUE((stage.host.answers = {true}, desk.Save(stage.analysis, wish)));
  fs::remove(stage.folder + "/Anna/Łukasz Żak/zamach.avi");
  stage.host.Advance(5000);
  EXPECT_THAT(heard.failed, ElementsAre("\"clip.mp4\" was not saved. \"zamach\" cannot be opened any more."));
  EXPECT_THAT(heard.saved, IsEmpty());
}

}  // namespace
}  // namespace kinalyx::test
