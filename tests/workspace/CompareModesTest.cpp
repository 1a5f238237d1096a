// The comparing modes as a user of the whole section meets them.

#include <gtest/gtest.h>

#include "AnalysisStage.h"

namespace kinalyx {
namespace {

using test::AnalysisStage;
using test::MjpegVideo;

class CompareModesTest : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(stage_.Open(1, MjpegVideo(30), 10));
    ASSERT_TRUE(stage_.Open(2, MjpegVideo(40), 15));
  }
  void Run(const char* command) { ASSERT_TRUE(stage_.Run(command)) << command; }

  AnalysisStage stage_{"2"};
  CompareModes& modes_ = stage_.Modes();
};

TEST_F(CompareModesTest, ALockHasControlsOfItsOwnAndRefusesTheOthers) {
  const DualState& dual = stage_.compareView.dual;
  EXPECT_TRUE(dual.canLock);
  EXPECT_FALSE(dual.shown || dual.canLockAll);
  Run("cmdDualPlay");
  EXPECT_TRUE(dual.shown && dual.locked);
  EXPECT_EQ(dual.lowest, 0);
  EXPECT_EQ(dual.highest, 28);
  EXPECT_EQ(dual.line, "10 + 15");
  EXPECT_EQ(dual.position, 10);
  stage_.Stage().SelectWindow(2);
  stage_.EndTurn();
  EXPECT_EQ(dual.position, 15);
  stage_.Stage().SelectWindow(1);

  for (const char key : {'P', 'R', 'L', 'S'}) stage_.Type(key);
  stage_.Key(kKeyRight);
  EXPECT_FALSE(stage_.MP(1).IsPlaying() || stage_.MP(1).Repeat());
  EXPECT_EQ(stage_.MP(1).Speed(), 100);
  EXPECT_EQ(stage_.At(1), 10);
  EXPECT_EQ(stage_.window.range, 28);  // the bounds of the lock
  stage_.analysis.Transport().Seek(20);
  EXPECT_EQ(stage_.At(2), 25);
  stage_.analysis.Transport().StepPressed(true, 0);
  stage_.host.Advance(500);
  stage_.analysis.Transport().StepReleased();
  EXPECT_GT(stage_.At(1), 21);
  EXPECT_EQ(stage_.At(2) - stage_.At(1), 5);

  modes_.Locks().PlayTogether();
  stage_.EndTurn();
  EXPECT_TRUE(dual.playing);
  ASSERT_TRUE(stage_.Videos().CloseVideo(2));
  stage_.EndTurn();
  EXPECT_FALSE(dual.shown || dual.playing);
  EXPECT_EQ(stage_.window.range, 29);
}

TEST_F(CompareModesTest, OneModeAtATimeAndItsButtonsSayWhy) {
  const std::string transparency = "Leave transparency mode first (Esc)";
  const std::string strip = "Leave multi-picture mode first (Esc)";
  const std::string carve = "Leave the transparency carve first (Esc)";
  const std::string locked = "Unlock the videos first";
  struct Row {
    const char* up;
    std::map<std::string, std::string> refused;  ///< every other command of the columns runs
  };
  const char* const columns[] = {"STM",      "smbar",    "TTCarve",     "TMAX",      "TN",   "MenuEdit",
                                 "AddMacro", "TSFrames", "VidTest",     "MenuDraw3", "TCal", "TVT",
                                 "TZP",      "vFlip",    "cmdDualPlay", "SSix"};
  const Row rows[] = {
      {"STM",
       {{"smbar", transparency},
        {"TTCarve", transparency},
        {"TMAX", transparency},
        {"TN", transparency},
        {"MenuEdit", transparency},
        {"AddMacro", transparency}}},
      {"smbar",
       {{"STM", strip},
        {"TTCarve", strip},
        {"TMAX", strip},
        {"TN", strip},
        {"TSFrames", strip},
        {"cmdDualPlay", "Needs videos in windows 1 and 2, or 3 and 4, side by side"}}},
      {"TTCarve", {{"STM", carve}, {"smbar", carve}}},
      {"cmdDualPlay", {{"smbar", locked}, {"TSFrames", locked}, {"VidTest", locked}}},
      {"TSFrames", {}},
      {"MenuEdit", {}},
      {"TN", {}},
      {"TCal", {}},
      {"TVT", {}},
      {"TZP", {}},
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
    EXPECT_EQ(stage_.Stage().ScreenLayout, "2") << row.up;
  }
}

TEST_F(CompareModesTest, AModeThatTakesTheStageClearsIt) {
  const int whole = stage_.MP(1).ControlHeightPixels();
  for (const char* mode : {"STM", "smbar", "TTCarve"}) {
    SCOPED_TRACE(mode);
    for (const char* card : {"TN", "AddMacro", "MenuEdit", mode}) Run(card);
    EXPECT_FALSE(stage_.window.notes || stage_.edits.bar || stage_.edits.macroForm);
    EXPECT_EQ(stage_.compareView.dual.shown, mode == std::string("STM"));
    stage_.Key(kKeyEscape);
    EXPECT_FALSE(stage_.compareView.transparency || stage_.compareView.strip || stage_.compareView.carve);
    EXPECT_EQ(stage_.MP(1).ControlHeightPixels(), whole);
    stage_.Key(kKeyF1 + 3);
    Run(mode);
    EXPECT_FALSE(stage_.analysis.Tools().Drawing());
    for (const char* next : {mode, "TCal", mode}) Run(next);
    EXPECT_FALSE(stage_.window.calibration);
    Run(mode);
  }
  // A strobe within a mode is left first.
  Run("STM");
  modes_.Strobe().ToggleStrobe();
  ASSERT_TRUE(modes_.Strobe().StrobeRunning());
  EXPECT_TRUE(modes_.Escape());
  EXPECT_FALSE(modes_.Strobe().StrobeRunning());
  EXPECT_TRUE(stage_.compareView.transparency && modes_.Escape());
  EXPECT_FALSE(stage_.compareView.transparency || modes_.Escape());
}

TEST_F(CompareModesTest, OnlyOneHandTakesTheMouse) {
  Carve& carve = modes_.Carving();
  Run("TTCarve");
  stage_.Key(kKeyF1 + 3);
  EXPECT_FALSE(carve.Shown()) << "no area is marked with a line in hand";
  EXPECT_TRUE(stage_.analysis.Tools().Drawing());
  Run("TTCarve");
  Run("MenuEdit");
  EXPECT_FALSE(carve.Shown());
  Run("TTCarve");
  carve.BeginMark({10, 10});
  carve.EndMark({90, 90});
  stage_.Key(kKeyF1 + 3);
  EXPECT_TRUE(carve.Floating()) << "beside a piece one can draw";
  // A maximized window hides the source: the piece stays, and another area brings it back.
  stage_.Stage().SelectWindow(2);
  Run("TMAX");
  EXPECT_TRUE(carve.Floating());
  carve.MarkAnew();
  EXPECT_EQ(stage_.Stage().ScreenLayout, "2");
  EXPECT_EQ(stage_.compareView.carvePic, 1);
  EXPECT_FALSE(stage_.analysis.Tools().Drawing());
  stage_.Stage().SelectWindow(2);
  Run("TMAX");
  EXPECT_FALSE(carve.Shown()) << "nothing is marked on a video out of sight";
  Run("TMAX");
  stage_.Stage().SelectWindow(1);

  MultiPicture& strip = modes_.Strip();
  Run("smbar");
  for (const int key : {int{kKeyEscape}, kKeyF1 + 4}) {
    strip.CarveNew();
    EXPECT_TRUE(strip.WaitingForSquare() && stage_.analysis.Tools().Drawing());
    stage_.Key(key);
    EXPECT_FALSE(strip.WaitingForSquare()) << "the tool was put down, or another one taken up";
  }
  stage_.Draw(kSquare, {40, 30}, {120, 110});
  EXPECT_EQ(stage_.Shapes(1).NumShapes, 1) << "a square is a drawing again";
}

TEST_F(CompareModesTest, TheStripShowsWhatIsDrawnOnAllItsPictures) {
  MultiPicture& strip = modes_.Strip();
  Run("smbar");
  strip.setSkipBox("2");
  const auto made = [&] {
    const int before = stage_.compareView.strips;
    stage_.host.Advance(0);
    return stage_.compareView.strips - before;
  };
  const int width = strip.PictureWidth();
  stage_.Draw(kLine, {strip.SourceLeft() + 2, 40}, {strip.SourceLeft() + width - 2, 40});
  EXPECT_EQ(made(), 1);
  for (int picture = 0; picture < strip.PictureCount(); ++picture)
    EXPECT_EQ(strip.Strip().Pixel(picture * width + width / 2, 40), stage_.Shapes(1).Shapes[0].Colour) << picture;
  for (const char* command : {"Lastcadoff", "UndoDrawing", "vFlip", "MenuDraw11"}) {
    Run(command);
    EXPECT_EQ(made(), 1) << command;
  }
}

TEST_F(CompareModesTest, TheSliderOfTheStrobeKeepsALock) {
  Run("cmdDualPlay");
  StrobeControl& strobe = modes_.Strobe();
  strobe.SeekTo(14);
  EXPECT_EQ(stage_.At(1), 14);
  EXPECT_EQ(stage_.At(2), 19);
  strobe.PressButton(StrobeButton::Strobe);
  EXPECT_FALSE(strobe.StrobeRunning());
  Run("cmdDualPlay");
  strobe.PressButton(StrobeButton::Strobe);
  EXPECT_TRUE(strobe.StrobeRunning());
  Run("cmdDualPlay");
  EXPECT_FALSE(strobe.StrobeRunning()) << "a lock ends what would pull it apart";
}

TEST_F(CompareModesTest, AClickStopsLockedVideosTogether) {
  Run("cmdDualPlay");
  modes_.Locks().PlayTogether();
  stage_.host.Advance(100);
  stage_.Key(kKeyF1 + 1);
  stage_.Click(1, 50, 50);
  EXPECT_FALSE(modes_.Locks().PlayingTogether());
  EXPECT_EQ(stage_.Shapes(1).NumShapes, 0) << "the click that stops draws nothing";
  EXPECT_TRUE(modes_.Locks().IsLocked(1));
}

TEST_F(CompareModesTest, LeavingTheSectionLeavesNothingBehind) {
  Run("cmdDualPlay");
  const int before = stage_.MP(1).ControlHeightPixels();
  Run("STM");
  EXPECT_GT(stage_.MP(1).ControlHeightPixels(), before) << "transparency has the stage to itself";
  for (const char* card : {"TASF", "MZoom"}) Run(card);
  modes_.Locks().PlayTogether();
  modes_.CloseAll();
  stage_.EndTurn();
  const auto& view = stage_.compareView;
  EXPECT_FALSE(view.transparency || view.strobe || view.zoom || view.dual.shown || modes_.Locks().IsLocked(1));
  stage_.Rest();  // what is kept has been kept
  EXPECT_EQ(stage_.host.TimerCount(), 0u);
  Run("STM");
  ASSERT_TRUE(stage_.Commands().PreparetoExit());
  EXPECT_FALSE(view.transparency || stage_.Stage().AnyVideo());
}

}  // namespace
}  // namespace kinalyx
