// The comparing modes as a user of the whole section meets them.

#include <gtest/gtest.h>

#include "AnalysisStage.h"
#include "video/KeyCodes.h"

namespace kinalyx {
namespace {

using test::AnalysisStage;
using test::MjpegVideo;

class CompareInAnalysis : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(stage_.Open(1, stage_.Video("one.avi")));
    ASSERT_TRUE(stage_.Open(2, stage_.Video("two.avi", MjpegVideo(40))));
    stage_.MP(1).DrawFrame(10);
    stage_.MP(2).DrawFrame(15);
  }

  AnalysisStage stage_{"2"};
};

TEST_F(CompareInAnalysis, LockedPairRefusesTheTransportAndMovesTogether) {
  ASSERT_TRUE(stage_.Commands().Run("cmdDualPlay"));
  stage_.Type('P');
  stage_.Type('R');
  stage_.Type('L');
  stage_.Type('S');
  stage_.Key(kKeyRight);
  EXPECT_FALSE(stage_.MP(1).IsPlaying() || stage_.MP(1).Repeat());
  EXPECT_EQ(stage_.MP(1).Speed(), 100);
  EXPECT_EQ(stage_.MP(1).Position(), 10);
  EXPECT_EQ(stage_.window.range, 28);  // the bounds of the lock
  stage_.analysis.Player().Seek(20);
  EXPECT_EQ(stage_.MP(2).Position(), 25);
  stage_.analysis.Player().StepPressed(true, 0);
  stage_.host.Advance(500);
  stage_.analysis.Player().StepReleased();
  EXPECT_GT(stage_.MP(1).Position(), 21);
  EXPECT_EQ(stage_.MP(2).Position() - stage_.MP(1).Position(), 5);
  ASSERT_TRUE(stage_.Slots().CloseVideo(2));
  EXPECT_EQ(stage_.window.range, 29);
  stage_.Key(kKeyUp);
  EXPECT_EQ(stage_.MP(1).Position(), 0);
}

TEST_F(CompareInAnalysis, PathTracedOnOneAdvancesItsPartner) {
  ASSERT_TRUE(stage_.Commands().Run("cmdDualPlay"));
  stage_.Key(kKeyF1 + 6);
  stage_.Press(1, 50, 50);
  stage_.Release(1, 50, 50);
  EXPECT_EQ(stage_.MP(1).Position(), 11);
  EXPECT_EQ(stage_.MP(2).Position(), 16);
}

TEST_F(CompareInAnalysis, DrawnSquareBecomesTheStrip) {
  ASSERT_TRUE(stage_.Commands().Run("smbar"));
  MultiPicture& strip = stage_.analysis.Compare().Strip();
  EXPECT_EQ(stage_.Slots().ScreenLayout, "MF");
  EXPECT_EQ(stage_.window.cells.size(), 1u);
  strip.MPicBtn_Click(0);
  EXPECT_TRUE(stage_.analysis.Tools().Drawing());
  stage_.Drag(1, 40, 30, 120, 110);
  EXPECT_FALSE(strip.WaitingForSquare());
  stage_.host.Advance(0);
  EXPECT_NEAR(strip.PictureWidth(), 80, 1);
  EXPECT_EQ(stage_.Shapes(1).NumShapes, 0);  // it is no drawing
  stage_.Key(kKeyEscape);
  EXPECT_EQ(stage_.Slots().ScreenLayout, "2");
  EXPECT_TRUE(stage_.Slots().HasVideo(1));  // Escape left the mode and nothing else
}

TEST_F(CompareInAnalysis, MiddleButtonDragsThePicture) {
  stage_.Press(2, 100, 100, 4);
  stage_.Move(2, 130, 90);
  stage_.Release(2, 130, 90, 4);
  EXPECT_EQ(stage_.Slots().At(2).PanX, 30 * kTwipsPerPixel);
  EXPECT_EQ(stage_.Slots().At(2).PanY, -10 * kTwipsPerPixel);
  EXPECT_EQ(stage_.Slots().CurrentWindow, 1);
}

TEST_F(CompareInAnalysis, TransparencyTakesTheWholeStageAndGivesItBack) {
  const int before = stage_.MP(1).ControlHeightPixels();
  ASSERT_TRUE(stage_.Commands().Run("STM"));
  EXPECT_TRUE(stage_.compareView.transparency);
  EXPECT_GT(stage_.MP(1).ControlHeightPixels(), before);
  ASSERT_TRUE(stage_.Commands().PreparetoExit());
  EXPECT_FALSE(stage_.compareView.transparency);
  EXPECT_FALSE(stage_.Slots().AnyVideo());
}

}  // namespace
}  // namespace kinalyx
