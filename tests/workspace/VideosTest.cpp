#include "workspace/videos/Videos.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "AnalysisStage.h"
#include "platform/files/FileStore.h"
#include "platform/files/Folders.h"

namespace kinalyx::test {
namespace {

TEST(VideosTest, OpeningBeginsAfreshInEverySlot) {
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
  EXPECT_TRUE(slot.data.Study.Marks.empty());
  EXPECT_EQ(slot.MP->Speed(), 100);
  EXPECT_FALSE(slot.MP->FlipHorizontal() || stage.window.slomo);
  EXPECT_TRUE(FileExists(stage.folder + "/Erica Sample/(003) FO driver.ved")) << "the one before was written";
}

TEST(VideosTest, BadFilesAreToldAndHarmNobody) {
  AnalysisStage stage("2");
  stage.Open(2, stage.Video("good.avi"));
  std::ofstream(stage.folder + "/text.avi") << "these are words";
  EXPECT_FALSE(stage.Open(1, stage.folder + "/text.avi"));
  EXPECT_EQ(stage.host.messages.back(),
            "The specified file does not contain media streams, make sure you choose a valid media file");
  EXPECT_NE(stage.MP(1).BackColor(), 0) << "the colour of the cell tells too";
  EXPECT_FALSE(stage.Open(1, stage.folder + "/gone.avi"));
  EXPECT_EQ(stage.host.messages.back(), "The video \"gone.avi\" is no longer there.");
  stage.analysis.Transport().TogglePlay();
  stage.Videos().CloseVideo(1);
  EXPECT_FALSE(FileExists(stage.folder + "/text.ved"));
  EXPECT_TRUE(stage.Open(1, stage.Video("other.avi")));
  EXPECT_TRUE(stage.Stage().HasVideo(2));
}

TEST(VideosTest, SendingTakesTheFirstFreeSlotAndWidensTheLayout) {
  AnalysisStage stage("1");
  std::vector<std::string> told;
  const auto status = [&](const std::string& words) { told.push_back(words); };
  const char* const layouts[] = {"1", "2", "3T", "4", "6", "6", "8", "8"};
  for (int n = 1; n <= 8; ++n) {
    EXPECT_EQ(stage.Videos().SendToAnalysis(stage.Video(std::to_string(n) + ".avi"), status), n);
    EXPECT_EQ(stage.Stage().ScreenLayout, layouts[n - 1]);
    EXPECT_EQ(stage.Stage().CurrentWindow, n);
  }
  told.resize(3);
  EXPECT_EQ(told, (std::vector<std::string>{"Loading Analysis Section...", "Sending current video to Analysis...",
                                            "Current video was sent to Analysis."}));
  EXPECT_EQ(stage.Videos().SendToAnalysis(stage.Video("ninth.avi"), status), 0);
  EXPECT_EQ(told.back(), "All 8 windows already have videos in them. Send to analysis failed.");

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

TEST(VideosTest, FillsAllTopOrBottomAndTakesBackWhatWasOpened) {
  OpenStage stage("6");
  const auto full = [&] {
    std::string slots;
    for (int slot = 1; slot <= kSlots; ++slot) slots += stage.Stage().HasVideo(slot) ? std::to_string(slot) : "";
    return slots;
  };
  stage.Stage().SelectWindow(2);
  EXPECT_FALSE(stage.Videos().CanFill()) << "the current window is empty";
  stage.Stage().SelectWindow(1);
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

  stage.Videos().OpenFamily({stage.Video("1.avi"), stage.Video("3.avi"), stage.Video("5.avi")});
  EXPECT_EQ(stage.Stage().CurrentWindow, 2) << "the layout ends here";
  EXPECT_EQ(LastName(stage.Stage().At(2).path), "3.avi");
  for (const char* left : {"1", "", ""}) {
    stage.Videos().UndoLastOpen();
    EXPECT_EQ(full(), left);
    EXPECT_EQ(stage.Stage().CurrentWindow, 1);
  }
}

TEST(VideosTest, TheFieldCommandsAreKeptWithTheVideo) {
  OpenStage stage;
  stage.analysis.Transport().Seek(7);
  stage.Run("MenuSplitFields");
  EXPECT_EQ(stage.At(1), 14) << "the picture stays";
  stage.Run("MenuReverseFields");
  ASSERT_TRUE(stage.Reopen(1));
  const auto bytes = ReadWholeFile(stage.sidecar);
  ASSERT_TRUE(bytes);
  EXPECT_EQ(std::string(bytes->begin(), bytes->begin() + 5), "1XRSX");
  EXPECT_TRUE(stage.MP(1).SplitFields() && stage.MP(1).ReverseFields());
  EXPECT_EQ(stage.MP(1).VideoLength(), 60);
}

TEST(VideosTest, EightPlayWhileOneIsDrawnInAndOthersClose) {
  AnalysisStage stage("8");
  for (int slot = 1; slot <= 8; ++slot) ASSERT_TRUE(stage.Open(slot, stage.Video(std::to_string(slot) + ".avi")));
  stage.analysis.Transport().ToggleLoopAll();
  stage.Click(3, 10, 10);
  EXPECT_FALSE(stage.MP(1).IsPlaying()) << "a click stops the current video and chooses the other";
  EXPECT_EQ(stage.Stage().CurrentWindow, 3);
  stage.Click(3, 10, 10);
  EXPECT_FALSE(stage.MP(3).IsPlaying() || stage.window.loop || stage.window.playing);
  EXPECT_EQ(stage.Shapes(3).NumShapes, 0) << "and draws nothing";
  stage.Draw(kLine, {20, 20}, {120, 90});
  stage.host.Advance(400);
  EXPECT_EQ(stage.Shapes(3).NumShapes, 1);
  for (const int slot : {2, 4, 5, 6, 7, 8}) EXPECT_TRUE(stage.MP(slot).IsPlaying()) << slot;
  EXPECT_NE(stage.window.lines[5], stage.window.lines[3]) << "every cell tells where its film is";

  stage.Videos().CloseVideo(5);
  stage.host.Advance(200);
  EXPECT_TRUE(stage.MP(6).IsPlaying() && !stage.MP(5).IsPlaying());
  // All are closed in the middle of a picture.
  stage.signalled = [&](int) {
    if (stage.Stage().AnyVideo()) stage.Videos().CloseAll();
  };
  stage.host.Advance(1000);
  EXPECT_FALSE(stage.Stage().AnyVideo());
  EXPECT_EQ(stage.host.TimerCount(), 0u);
}

}  // namespace
}  // namespace kinalyx::test
