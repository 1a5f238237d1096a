#include "workspace/stage/Stage.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "AnalysisStage.h"
#include "platform/files/FileStore.h"
#include "platform/files/Folders.h"

namespace kinalyx::test {
namespace {

std::string Bytes(const std::string& path) {
  const auto bytes = ReadWholeFile(path);
  return bytes ? std::string(bytes->begin(), bytes->end()) : "";
}

TEST(WorkspaceLayouts, HiddenVideosStayLoadedAndComeBack) {
  AnalysisStage stage("8");
  for (const int slot : {1, 5, 8}) ASSERT_TRUE(stage.Open(slot, stage.Video(std::to_string(slot) + ".avi")));
  stage.Stage().SelectWindow(5);
  stage.Stage().SetScreen(1);
  EXPECT_EQ(stage.window.cells.size(), 1u);
  EXPECT_EQ(stage.Stage().CurrentWindow, 1) << "a window that is not shown cannot be current";
  EXPECT_TRUE(stage.Stage().HasVideo(5) && stage.Stage().HasVideo(8));
  stage.Stage().SetScreen(8);
  EXPECT_EQ(stage.window.cells.size(), 8u);
  EXPECT_FALSE(stage.MP(8).filename().empty());
}

TEST(WorkspaceLayouts, StartsWithTheLayoutOfTheSettings) {
  AnalysisStage stage;
  struct Nobody final : IStageEvents {
    void StageChanged(unsigned) override {}
  } nobody;
  for (const auto& [mode, layout] : {std::pair{"6", "6"}, {"99", "1"}}) {
    stage.settings.ScreenMode = mode;
    EXPECT_EQ(Stage(stage.host, stage.settings, stage.window, nobody).ScreenLayout, layout);
  }
}

TEST(WorkspaceLayouts, MaximizeShowsTheCurrentVideoAlone) {
  AnalysisStage stage("4");
  EXPECT_FALSE(stage.Stage().ToggleMaximize()) << "an empty window";
  stage.Open(3, stage.Video("a.avi"));
  stage.Stage().SelectWindow(3);
  ASSERT_TRUE(stage.Stage().ToggleMaximize());
  EXPECT_EQ(stage.Stage().ScreenLayout, "MAX");
  ASSERT_EQ(stage.window.cells.size(), 1u);
  EXPECT_EQ(stage.window.cells.begin()->first, 3);
  EXPECT_EQ(stage.window.cells[3].Width, 1280 * kTwipsPerPixel);
  EXPECT_FALSE(stage.Videos().CanFill());
  stage.Videos().CloseVideo(3);
  EXPECT_EQ(stage.Stage().ScreenLayout, "4") << "closing leaves it";
  EXPECT_EQ(stage.Stage().CurrentWindow, 3);
}

TEST(WorkspaceLayouts, ThePressedWindowBecomesCurrent) {
  AnalysisStage stage("4");
  stage.Open(2, stage.Video("a.avi"));
  stage.Press(2, 5, 5);
  EXPECT_EQ(stage.Stage().CurrentWindow, 2);
  EXPECT_TRUE(stage.window.borders[2] && !stage.window.borders[1]);
  EXPECT_EQ(stage.window.playBar.Left / kTwipsPerPixel, 640 + 4) << "the play bar goes along";
  stage.analysis.CellPressed(4);
  EXPECT_EQ(stage.Stage().CurrentWindow, 4);
  stage.analysis.CellPressed(7);
  EXPECT_EQ(stage.Stage().CurrentWindow, 4) << "not shown";
  stage.analysis.CellDoubleClicked(4);
  EXPECT_EQ(stage.window.openPanels, 1);
  stage.analysis.CellDoubleClicked(2);
  EXPECT_EQ(stage.window.openPanels, 1) << "this window has a video";
}

TEST(WorkspaceVideos, OpeningBeginsAfreshInEverySlot) {
  AnalysisStage stage("1");
  const std::string first = stage.Video("Erica Sample/(003) FO driver.avi");
  ASSERT_TRUE(stage.Open(1, first));
  EXPECT_EQ(stage.window.titles[1], "Erica Sample \u00B7 (003) FO driver");
  stage.Stage().SetZoom(2);
  stage.Stage().Pan(50, 0);
  stage.analysis.Transport().AddMark();
  stage.analysis.Transport().ToggleSlomo();
  stage.Videos().ToggleFlip();
  stage.Stage().At(1).SlotFrameRate = 99;
  ASSERT_TRUE(stage.Open(1, stage.Video("next.AVI")));
  const Slot& slot = stage.Stage().At(1);
  EXPECT_EQ(slot.VideoZoom, 1.0);
  EXPECT_EQ(slot.PanX + slot.SlotFrameRate, 0);
  EXPECT_TRUE(slot.marks.empty());
  EXPECT_EQ(slot.MP->Speed(), 100);
  EXPECT_FALSE(slot.MP->FlipHorizontal() || stage.window.slomo);
  EXPECT_TRUE(FileExists(stage.folder + "/Erica Sample/(003) FO driver.ved")) << "the one before was written";
}

TEST(WorkspaceVideos, BadFilesAreToldAndHarmNobody) {
  AnalysisStage stage("2");
  stage.Open(2, stage.Video("good.avi"));
  std::ofstream(stage.folder + "/text.avi") << "these are words";
  std::ofstream(stage.folder + "/empty.avi");
  EXPECT_FALSE(stage.Open(1, stage.folder + "/text.avi"));
  EXPECT_EQ(stage.host.messages.back(),
            "The specified file does not contain media streams, make sure you choose a valid media file");
  EXPECT_FALSE(stage.Open(1, stage.folder + "/empty.avi"));
  EXPECT_NE(stage.MP(1).BackColor(), 0) << "the colour of the cell tells too";
  EXPECT_FALSE(stage.Open(1, stage.folder + "/gone.avi"));
  EXPECT_EQ(stage.host.messages.back(), "The video \"gone.avi\" is no longer there.");
  EXPECT_FALSE(stage.Stage().HasVideo(1));
  EXPECT_FALSE(FileExists(stage.folder + "/text.ved"));
  stage.Stage().SelectWindow(1);
  stage.analysis.Transport().TogglePlay();
  stage.Videos().CloseVideo(1);
  EXPECT_TRUE(stage.Open(1, stage.Video("other.avi")));
  EXPECT_TRUE(stage.Stage().HasVideo(2));
}

TEST(WorkspaceVideos, SendingTakesTheFirstFreeSlotAndWidensTheLayout) {
  AnalysisStage stage("1");
  std::vector<std::string> told;
  const auto status = [&](const std::string& words) { told.push_back(words); };
  const char* const layouts[] = {"1", "2", "3T", "4", "6", "6", "8", "8"};
  for (int n = 1; n <= 8; ++n) {
    EXPECT_EQ(stage.Videos().SendToAnalysis(stage.Video(std::to_string(n) + ".avi"), status), n);
    EXPECT_EQ(stage.Stage().ScreenLayout, layouts[n - 1]);
    EXPECT_EQ(stage.Stage().CurrentWindow, n);
  }
  EXPECT_EQ(told[0], "Loading Analysis Section...");
  EXPECT_EQ(told[1], "Sending current video to Analysis...");
  EXPECT_EQ(told[2], "Current video was sent to Analysis.");
  EXPECT_EQ(stage.Videos().SendToAnalysis(stage.Video("ninth.avi"), status), 0);
  EXPECT_EQ(told.back(), "All 8 windows already have videos in them. Send to analysis failed.");
  EXPECT_EQ(LastName(stage.Stage().At(8).path), "8.avi");

  // The library asks before it renames or moves a file, by whatever road it has come to it.
  std::filesystem::create_directory_symlink(stage.folder, stage.folder + "/link");
  EXPECT_TRUE(stage.Stage().CheckOpenInAnalysis(stage.folder + "/link/3.avi"));
  EXPECT_FALSE(stage.Stage().CheckOpenInAnalysis(stage.folder + "/link/ninth.avi"));
  stage.Videos().CloseVideo(3);
  EXPECT_FALSE(stage.Stage().CheckOpenInAnalysis(stage.folder + "/3.avi"));
  EXPECT_EQ(stage.Videos().SendToAnalysis(stage.Video("again.avi")), 3);
  EXPECT_EQ(stage.Videos().SendToAnalysis(stage.folder + "/none.avi"), 0);
  EXPECT_EQ(stage.Stage().ScreenLayout, "8") << "a layout wider than needed stays";
}

TEST(WorkspaceVideos, FillsAllTopOrBottom) {
  AnalysisStage stage("6");
  const auto full = [&] {
    std::string slots;
    for (int slot = 1; slot <= kSlots; ++slot) slots += stage.Stage().HasVideo(slot) ? std::to_string(slot) : "";
    return slots;
  };
  stage.Open(2, stage.Video("a.avi"));
  EXPECT_FALSE(stage.Videos().CanFill()) << "the current window is empty";
  stage.Stage().SelectWindow(2);
  stage.Videos().FillTopRow();
  EXPECT_EQ(full(), "123");
  stage.Videos().FillBottomRow();
  EXPECT_EQ(full(), "123456");
  stage.Stage().SetScreen(2);
  EXPECT_TRUE(stage.Videos().CanFill());
  EXPECT_FALSE(stage.Videos().CanFillRows());
  stage.Videos().CloseAll();
  EXPECT_EQ(full(), "");
  EXPECT_EQ(stage.Stage().CurrentWindow, 1);
}

TEST(WorkspaceVideos, UndoAndFamiliesWalkTheWindows) {
  AnalysisStage stage("2");
  stage.Videos().OpenFamily({stage.Video("1.avi"), stage.Video("3.avi"), stage.Video("5.avi")});
  EXPECT_EQ(stage.Stage().CurrentWindow, 2) << "the layout ends here";
  EXPECT_EQ(LastName(stage.Stage().At(2).path), "3.avi");
  stage.Videos().UndoLastOpen();
  EXPECT_EQ(stage.Stage().CurrentWindow, 1);
  stage.Videos().UndoLastOpen();
  EXPECT_EQ(stage.Stage().CurrentWindow, 1);
  EXPECT_FALSE(stage.Stage().AnyVideo());
}

TEST(WorkspaceVideos, TheFieldCommandsAreKeptWithTheVideo) {
  AnalysisStage stage;
  const std::string path = stage.Video("a.avi");
  stage.Open(1, path);
  stage.analysis.Transport().Seek(7);
  stage.Commands().Run("MenuSplitFields");
  EXPECT_EQ(stage.At(1), 14) << "the picture stays";
  stage.Commands().Run("MenuReverseFields");
  EXPECT_TRUE(stage.Commands().Find("MenuReverseFields")->checked());
  stage.Videos().CloseVideo(1);
  EXPECT_EQ(Bytes(SidecarPath(path)).substr(0, 5), "1XRSX");
  stage.Open(1, path);
  EXPECT_TRUE(stage.MP(1).SplitFields() && stage.MP(1).ReverseFields());
  EXPECT_EQ(stage.MP(1).VideoLength(), 60);
}

/// A sidecar that cannot be written: a folder stands in its place.
struct BlockedSidecar : testing::Test {
  AnalysisStage stage{"2"};
  std::string path = stage.Video("a.avi");

  void SetUp() override {
    ASSERT_TRUE(stage.Open(1, path));
    std::filesystem::create_directories(SidecarPath(path) + "/x");
  }
  void DrawLine() {
    stage.Draw(kLine, {40, 50}, {200, 90});
    ASSERT_EQ(stage.Shapes().NumShapes, 1);
  }
  void Unblock() { std::filesystem::remove_all(SidecarPath(path)); }
};

TEST_F(BlockedSidecar, DrawingsStayUntilTheUserLetsThemGo) {
  EXPECT_TRUE(stage.Videos().CloseVideo(1));
  EXPECT_TRUE(stage.host.questions.empty()) << "nothing new is nothing to ask about";
  ASSERT_TRUE(stage.Open(1, path));
  DrawLine();
  stage.host.answers = {false, false};  // no second try, keep it open
  EXPECT_FALSE(stage.Videos().CloseVideo(1));
  EXPECT_EQ(stage.host.questions.size(), 2u);
  EXPECT_TRUE(stage.Stage().HasVideo(1));
  EXPECT_EQ(stage.Shapes().NumShapes, 1);
  stage.host.answers = {false, false};
  EXPECT_FALSE(stage.Open(1, stage.Video("b.avi"))) << "another video does not push it out";
  EXPECT_EQ(stage.Stage().At(1).path, path);
  stage.host.answers = {false, false};
  stage.Commands().Run("MenuExit");
  EXPECT_EQ(stage.exits, 0);
  stage.host.answers = {false, true};
  EXPECT_TRUE(stage.Videos().CloseVideo(1));
  EXPECT_FALSE(stage.Stage().HasVideo(1));

  // Kept open by "close all" from a maximized window: it and window 1 are on the stage.
  ASSERT_TRUE(stage.Open(2, path));
  stage.Stage().SelectWindow(2);
  stage.Draw(kLine, {40, 50}, {200, 90});
  ASSERT_TRUE(stage.Stage().ToggleMaximize());
  stage.host.answers = {false, false};
  EXPECT_FALSE(stage.Videos().CloseAll());
  EXPECT_TRUE(stage.Stage().HasVideo(2));
  EXPECT_EQ(stage.Stage().ScreenLayout, "2");
  EXPECT_TRUE(stage.window.cells.contains(1) && stage.window.borders[1]);
}

TEST_F(BlockedSidecar, AVideoThatSomebodyElseTookAwayLeavesOnlyNewWorkBehind) {
  Unblock();
  std::filesystem::rename(path, path + " elsewhere");
  EXPECT_TRUE(stage.Videos().CloseVideo(1));
  EXPECT_FALSE(FileExists(SidecarPath(path)));
  EXPECT_TRUE(stage.host.messages.empty());

  std::filesystem::rename(path + " elsewhere", path);
  ASSERT_TRUE(stage.Open(1, path));
  DrawLine();
  std::filesystem::rename(path, path + " elsewhere");
  EXPECT_TRUE(stage.Videos().CloseVideo(1));
  EXPECT_EQ(ReadSidecarMarks(SidecarPath(path)).First, 'S');
  ASSERT_EQ(stage.host.messages.size(), 1u);
  EXPECT_NE(stage.host.messages[0].find("are kept in " + SidecarPath(path)), std::string::npos);
}

TEST_F(BlockedSidecar, ADriveThatDoesNotAnswerIsNotWaitedForAgain) {
  Unblock();
  DrawLine();
  stage.host.drivesHang = true;
  stage.host.answers = {true, false, false};  // one more try, which ends at once
  EXPECT_FALSE(stage.Videos().CloseVideo(1));
  ASSERT_EQ(stage.host.questions.size(), 3u);
  EXPECT_NE(stage.host.questions[0].find("the drive is not answering"), std::string::npos) << stage.host.questions[0];
  EXPECT_EQ(stage.host.waits.size(), 1u);
  stage.host.DrivesAnswer();
  EXPECT_TRUE(stage.Videos().CloseVideo(1));
  EXPECT_EQ(ReadSidecarMarks(SidecarPath(path)).First, 'S');
}

}  // namespace
}  // namespace kinalyx::test
