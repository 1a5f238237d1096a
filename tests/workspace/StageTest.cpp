#include "workspace/stage/Stage.h"

#include <gtest/gtest.h>

#include "AnalysisStage.h"

namespace kinalyx::test {
namespace {

TEST(StageTest, HiddenVideosStayLoadedAndComeBack) {
  AnalysisStage stage("8");
  for (const int slot : {1, 5, 8}) ASSERT_TRUE(stage.Open(slot, MjpegVideo(30)));
  stage.Stage().SelectWindow(5);
  stage.Stage().SetScreen(1);
  EXPECT_EQ(stage.window.cells.size(), 1u);
  EXPECT_EQ(stage.Stage().CurrentWindow, 1) << "a window that is not shown cannot be current";
  EXPECT_TRUE(stage.Stage().HasVideo(5) && stage.Stage().HasVideo(8));
  stage.Stage().SetScreen(8);
  EXPECT_EQ(stage.window.cells.size(), 8u);

  stage.Stage().SelectWindow(3);
  EXPECT_FALSE(stage.Stage().ToggleMaximize()) << "an empty window";
  stage.Stage().SelectWindow(5);
  ASSERT_TRUE(stage.Stage().ToggleMaximize());
  ASSERT_EQ(stage.window.cells.size(), 1u);
  EXPECT_EQ(stage.window.cells[5].Width, 1280 * kTwipsPerPixel);
  EXPECT_FALSE(stage.Videos().CanFill());
}

TEST(StageTest, StartsWithTheLayoutOfTheSettings) {
  AnalysisStage stage;
  struct Nobody final : IStageEvents {
    void StageChanged(unsigned) override {}
  } nobody;
  for (const auto& [mode, layout] : {std::pair{"6", "6"}, {"99", "1"}}) {
    stage.settings.ScreenMode = mode;
    EXPECT_EQ(Stage(stage.host, stage.settings, stage.window, nobody).ScreenLayout, layout);
  }
}

TEST(StageTest, ThePressedWindowBecomesCurrent) {
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

}  // namespace
}  // namespace kinalyx::test
