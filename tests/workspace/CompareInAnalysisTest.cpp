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

TEST_F(CompareInAnalysis, OneModeAtATimeAndItsButtonsSayWhy) {
  const std::string transparency = "Leave transparency mode first (Esc)";
  const std::string strip = "Leave multi-picture mode first (Esc)";
  const std::string carve = "Leave the transparency carve first (Esc)";
  const std::string locked = "Unlock the videos first";
  struct Row {
    const char* up;
    std::map<std::string, std::string> refused;  ///< every other command of the columns runs
  };
  const char* const columns[] = {"STM", "smbar", "TTCarve", "TMAX", "TN", "MenuEdit", "AddMacro", "TSFrames", "VidTest",
                                 "MenuDraw3", "TCal", "TVT", "TZP", "vFlip", "cmdDualPlay", "SSix"};
  const Row rows[] = {
      {"STM", {{"smbar", transparency}, {"TTCarve", transparency}, {"TMAX", transparency}, {"TN", transparency},
               {"MenuEdit", transparency}, {"AddMacro", transparency}}},
      {"smbar", {{"STM", strip}, {"TTCarve", strip}, {"TMAX", strip}, {"TN", strip}, {"TSFrames", strip},
                 {"cmdDualPlay", "Needs videos in windows 1 and 2, or 3 and 4, side by side"}}},
      {"TTCarve", {{"STM", carve}, {"smbar", carve}}},
      {"cmdDualPlay", {{"smbar", locked}, {"TSFrames", locked}, {"VidTest", locked}}},
      {"TSFrames", {}}, {"MenuEdit", {}}, {"TN", {}}, {"TCal", {}}, {"TVT", {}}, {"TZP", {}},
      {"TMAX", {{"cmdDualPlay", "Needs videos in windows 1 and 2, or 3 and 4, side by side"}}},
  };
  for (const Row& row : rows) {
    ASSERT_TRUE(stage_.Commands().Run(row.up)) << row.up;
    for (const char* column : columns) {
      const auto refused = row.refused.find(column);
      EXPECT_EQ(stage_.Commands().Find(column)->Reason(), refused == row.refused.end() ? "" : refused->second)
          << column << " while " << row.up;
    }
    ASSERT_TRUE(stage_.Commands().Run(row.up)) << "what is up can be left: " << row.up;
    EXPECT_EQ(stage_.Slots().ScreenLayout, "2") << row.up;
  }
}

TEST_F(CompareInAnalysis, AModeThatTakesTheStageClearsIt) {
  const int whole = stage_.MP(1).ControlHeightPixels();
  for (const char* mode : {"STM", "smbar", "TTCarve"}) {
    ASSERT_TRUE(stage_.Commands().Run("TN"));
    ASSERT_TRUE(stage_.Commands().Run("AddMacro"));
    ASSERT_TRUE(stage_.Commands().Run("MenuEdit"));
    ASSERT_TRUE(stage_.Commands().Run(mode));
    EXPECT_FALSE(stage_.window.notes || stage_.edits.bar || stage_.edits.macroForm) << mode;
    stage_.Key(kKeyEscape);
    EXPECT_EQ(stage_.MP(1).ControlHeightPixels(), whole) << mode;
    stage_.Key(kKeyF1 + 3);
    ASSERT_TRUE(stage_.Commands().Run(mode));
    EXPECT_FALSE(stage_.analysis.Tools().Drawing()) << mode;
    ASSERT_TRUE(stage_.Commands().Run(mode));
    ASSERT_TRUE(stage_.Commands().Run("TCal"));
    ASSERT_TRUE(stage_.Commands().Run(mode));
    EXPECT_FALSE(stage_.window.calibration) << mode;
    ASSERT_TRUE(stage_.Commands().Run(mode));
  }
}

TEST_F(CompareInAnalysis, AnotherLayoutLeavesTheModesOfTheStage) {
  ASSERT_TRUE(stage_.Commands().Run("STM"));
  stage_.Key('4');
  EXPECT_FALSE(stage_.compareView.transparency);
  EXPECT_EQ(stage_.Slots().ScreenLayout, "4");
  EXPECT_FALSE(stage_.Slots().BarHidden);
  // Also where the new layout shows no video at all.
  ASSERT_TRUE(stage_.Slots().CloseVideo(1));
  stage_.Slots().SelectWindow(2);
  ASSERT_TRUE(stage_.Commands().Run("smbar"));
  stage_.Key('1');
  EXPECT_FALSE(stage_.compareView.strip);
  EXPECT_EQ(stage_.Slots().ScreenLayout, "1");
}

TEST_F(CompareInAnalysis, OnlyOneHandTakesTheMouse) {
  Carve& carve = stage_.analysis.Compare().Carving();
  ASSERT_TRUE(stage_.Commands().Run("TTCarve"));
  stage_.Key(kKeyF1 + 3);
  EXPECT_FALSE(carve.Shown()) << "no area is marked with a line in hand";
  EXPECT_TRUE(stage_.analysis.Tools().Drawing());
  ASSERT_TRUE(stage_.Commands().Run("TTCarve"));
  ASSERT_TRUE(stage_.Commands().Run("MenuEdit"));
  EXPECT_FALSE(carve.Shown());
  ASSERT_TRUE(stage_.Commands().Run("TTCarve"));
  EXPECT_FALSE(stage_.edits.bar);
  carve.CarvePic_MouseDown({10, 10});
  carve.CarvePic_MouseUp({90, 90});
  stage_.Key(kKeyF1 + 3);
  EXPECT_TRUE(carve.Floating()) << "beside a piece one can draw";
  // A maximized window hides the source: the piece stays, and another area brings it back.
  stage_.Slots().SelectWindow(2);
  ASSERT_TRUE(stage_.Commands().Run("TMAX"));
  EXPECT_TRUE(carve.Floating());
  carve.MarkAnew();
  EXPECT_EQ(stage_.Slots().ScreenLayout, "2");
  EXPECT_EQ(stage_.compareView.carvePic, 1);
  EXPECT_FALSE(stage_.analysis.Tools().Drawing());
  stage_.Slots().SelectWindow(2);
  ASSERT_TRUE(stage_.Commands().Run("TMAX"));
  EXPECT_FALSE(carve.Shown()) << "nothing is marked on a video out of sight";
  ASSERT_TRUE(stage_.Commands().Run("TMAX"));
  stage_.Slots().SelectWindow(1);

  MultiPicture& strip = stage_.analysis.Compare().Strip();
  ASSERT_TRUE(stage_.Commands().Run("smbar"));
  const auto ask = [&] {
    strip.MPicBtn_Click(0);
    EXPECT_TRUE(strip.WaitingForSquare() && stage_.analysis.Tools().Drawing());
  };
  ask();
  stage_.Key(kKeyEscape);
  EXPECT_FALSE(strip.WaitingForSquare()) << "the tool was put down";
  ask();
  stage_.Key(kKeyF1 + 4);
  EXPECT_FALSE(strip.WaitingForSquare()) << "another one was taken up";
  stage_.Key(kKeyF1 + 2);
  stage_.Drag(1, 40, 30, 120, 110);
  EXPECT_EQ(stage_.Shapes(1).NumShapes, 1) << "a square is a drawing again";
}

TEST_F(CompareInAnalysis, TheStripShowsWhatIsDrawnOnAllItsPictures) {
  ASSERT_TRUE(stage_.Commands().Run("smbar"));
  stage_.analysis.Compare().Strip().setSkipBox("2");
  const auto made = [&] {
    const int before = stage_.compareView.stripsShown;
    stage_.host.Advance(0);
    return stage_.compareView.stripsShown - before;
  };
  const Surface& strip = stage_.analysis.Compare().Strip().Strip();
  const int width = stage_.analysis.Compare().Strip().PictureWidth();
  const int left = stage_.analysis.Compare().Strip().SourceLeft();
  stage_.Key(kKeyF1 + 3);
  stage_.Drag(1, left + 2, 40, left + width - 2, 40);
  EXPECT_EQ(made(), 1);
  for (int picture = 0; picture < stage_.analysis.Compare().Strip().PictureCount(); ++picture)
    EXPECT_EQ(strip.Pixel(picture * width + width / 2, 40), stage_.Shapes(1).Shapes[0].Colour) << picture;
  for (const char* command : {"Lastcadoff", "UndoDrawing", "vFlip", "MenuDraw11"}) {
    ASSERT_TRUE(stage_.Commands().Run(command));
    EXPECT_EQ(made(), 1) << command;
  }
}

TEST_F(CompareInAnalysis, TheSliderOfTheStrobeKeepsALock) {
  ASSERT_TRUE(stage_.Commands().Run("cmdDualPlay"));
  StrobeControl& strobe = stage_.analysis.Compare().Strobe();
  strobe.ESlider_Change(14);
  EXPECT_EQ(stage_.MP(1).Position(), 14);
  EXPECT_EQ(stage_.MP(2).Position(), 19);
  strobe.SSCommand1_Click(2);
  EXPECT_FALSE(strobe.StrobeRunning());
  ASSERT_TRUE(stage_.Commands().Run("cmdDualPlay"));
  strobe.SSCommand1_Click(2);
  EXPECT_TRUE(strobe.StrobeRunning());
  ASSERT_TRUE(stage_.Commands().Run("cmdDualPlay"));
  EXPECT_FALSE(strobe.StrobeRunning()) << "a lock ends what would pull it apart";
}

TEST_F(CompareInAnalysis, AClickStopsWhatLockedVideosPlayTogether) {
  ASSERT_TRUE(stage_.Commands().Run("cmdDualPlay"));
  stage_.analysis.Compare().Locks().PlayTogether();
  stage_.host.Advance(100);
  stage_.Key(kKeyF1 + 1);
  stage_.Press(1, 50, 50);
  stage_.Release(1, 50, 50);
  EXPECT_FALSE(stage_.analysis.Compare().Locks().PlayingTogether());
  EXPECT_EQ(stage_.Shapes(1).NumShapes, 0) << "the click that stops draws nothing";
  EXPECT_TRUE(stage_.analysis.Compare().Locks().IsLocked(1));
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
