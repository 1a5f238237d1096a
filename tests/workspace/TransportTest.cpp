#include "workspace/transport/Transport.h"

#include <gtest/gtest.h>

#include "AnalysisStage.h"
#include "workspace/transport/Countdown.h"

namespace kinalyx::test {
namespace {

struct TransportTest : testing::Test {
  AnalysisStage stage{"2"};
  Transport& transport = stage.analysis.Transport();
};

TEST_F(TransportTest, AnEmptyWindowRefusesEveryMoveAndSaysSo) {
  EXPECT_EQ(stage.window.line, "0 seconds | 00/00 frames  ");
  transport.TogglePlay();
  transport.Rewind();
  transport.StepForward();
  transport.ToggleLoop();
  transport.ToggleSlomo();
  transport.AddMark();
  EXPECT_FALSE(stage.window.playing || stage.window.loop || stage.window.slomo);
  EXPECT_TRUE(stage.window.marks.empty());
}

TEST_F(TransportTest, TheLineShowsSecondsAndFrames) {
  stage.Open(1, stage.Video("a.avi", MjpegVideo(61)));
  EXPECT_EQ(stage.window.line, ".00 seconds | 0/60 frames  ");
  transport.Seek(15);
  EXPECT_EQ(stage.window.line, ".50 seconds | 15/60 frames  ");
  transport.Seek(37);
  EXPECT_EQ(stage.window.line, "1.23 seconds | 37/60 frames  ");
  EXPECT_EQ(stage.window.value, 37);
  EXPECT_EQ(stage.window.range, 60);
  // The rate of the user goes before the one stored with the video, and that before the file's.
  stage.Stage().At(1).data.RealFrameRate = 120;
  EXPECT_EQ(transport.DisplayLine(1), ".31 seconds | 37/60 frames  ");
  stage.Stage().At(1).SlotFrameRate = 240;
  EXPECT_EQ(transport.DisplayLine(1), ".15 seconds | 37/60 frames  ");
}

TEST_F(TransportTest, FieldsCountTwice) {
  stage.Open(1, stage.Video("dv.avi", DvVideo(20)));
  ASSERT_TRUE(stage.MP(1).SplitFields()) << "camera material opens with its fields apart";
  transport.Seek(20);
  EXPECT_EQ(stage.window.line, ".33 seconds | 20/39 frames  ");
  transport.StepForward();
  EXPECT_EQ(stage.At(1), 21);
  transport.AddMark();
  stage.Videos().ToggleSplitFields();
  stage.EndTurn();
  EXPECT_EQ(stage.window.line, ".33 seconds | 10/19 frames  ");
  EXPECT_EQ(stage.window.marks, std::vector{10});
}

TEST_F(TransportTest, PlayGoesOnFromHereAndFromTheEndBeginsAgain) {
  stage.Open(1, stage.Video("a.avi"));
  transport.Seek(10);
  transport.TogglePlay();
  EXPECT_TRUE(stage.window.playing);
  stage.host.Advance(200);
  EXPECT_GT(stage.At(1), 12);
  EXPECT_LT(stage.At(1), 20);
  EXPECT_EQ(stage.window.value, stage.At(1)) << "the bar runs with the film";
  transport.TogglePlay();
  EXPECT_FALSE(stage.window.playing || stage.MP(1).IsPlaying());

  for (const int start : {28, 29}) {
    transport.Seek(start);
    transport.TogglePlay();
    EXPECT_EQ(stage.At(1), 0) << start;
    transport.TogglePlay();
  }
  transport.Seek(27);
  transport.TogglePlay();
  EXPECT_EQ(stage.At(1), 27);
  stage.host.Advance(1000);
  EXPECT_EQ(stage.At(1), 29);
  EXPECT_FALSE(stage.window.playing) << "the end of the film brings the play picture back";
}

TEST_F(TransportTest, StepsStopAtBothEndsAndTakeARunningFilmInHand) {
  stage.Open(1, stage.Video("a.avi"));
  transport.StepBack();
  EXPECT_EQ(stage.At(1), 0);
  transport.Seek(29);
  transport.StepForward();
  EXPECT_EQ(stage.At(1), 29);

  transport.Seek(5);
  transport.TogglePlay();
  stage.host.Advance(100);
  const int running = stage.At(1);
  transport.StepForward();
  EXPECT_EQ(stage.At(1), running + 1);
  EXPECT_FALSE(stage.MP(1).IsPlaying());
  transport.TogglePlay();
  transport.Rewind();
  EXPECT_EQ(stage.At(1), 0);
  EXPECT_FALSE(stage.window.playing);
}

TEST_F(TransportTest, AHeldStepRepeatsAndGoesFasterAsThePointerLeaves) {
  stage.Open(1, stage.Video("a.avi", MjpegVideo(120)));
  transport.ShowFrameCounter = true;
  transport.StepPressed(true, 40);
  EXPECT_EQ(stage.window.counter, "001") << "as wide as the total";
  stage.host.Advance(1000);
  const int slow = stage.At(1);
  EXPECT_GT(slow, 4);
  transport.StepDragged(40 + 350);  // three more positions with each step
  stage.host.Advance(300);
  const int fast = stage.At(1) - slow;
  EXPECT_EQ(fast % 4, 0);
  EXPECT_GE(fast, 8);
  transport.StepReleased();
  stage.host.Advance(1000);
  EXPECT_EQ(stage.At(1), slow + fast);

  // Back beyond the start is refused as a whole; and another window ends the hold.
  transport.Seek(6);
  transport.StepPressed(false, 0);
  transport.StepDragged(-900);
  stage.host.Advance(500);
  EXPECT_EQ(stage.At(1), 5);
  transport.StepDragged(0);
  stage.Open(2, stage.Video("b.avi"));
  stage.Press(2, 10, 10);
  stage.host.Advance(1000);
  EXPECT_EQ(stage.At(1), 5);
  EXPECT_EQ(stage.At(2), 0);
}

TEST_F(TransportTest, SlowMotionComesAndGoesDuringAPlayAndBelongsToItsWindow) {
  stage.Open(1, stage.Video("a.avi"));
  stage.Open(2, stage.Video("b.avi"));
  transport.ToggleLoop();
  stage.host.Advance(100);
  const int before = stage.At(1);
  transport.ToggleSlomo();
  EXPECT_TRUE(stage.window.slomo && stage.window.playing && stage.window.loop) << "the loop outlives the change";
  stage.host.Advance(400);
  EXPECT_NEAR(stage.At(1) - before, 3, 1);
  stage.Stage().SelectWindow(2);
  stage.EndTurn();
  EXPECT_FALSE(stage.window.slomo || stage.window.loop || stage.window.playing);
  stage.Stage().SelectWindow(1);
  stage.EndTurn();
  EXPECT_TRUE(stage.window.slomo && stage.window.loop && stage.window.playing);
}

TEST_F(TransportTest, LoopsOneOrAllVideosOfTheLayout) {
  for (int slot = 1; slot <= 3; ++slot) stage.Open(slot, stage.Video(std::to_string(slot) + ".avi"));
  transport.ToggleLoop();
  stage.host.Advance(2500);
  EXPECT_TRUE(stage.MP(1).IsPlaying());
  transport.ToggleLoopAll();
  EXPECT_TRUE(stage.MP(2).IsPlaying() && transport.AllLooping());
  EXPECT_FALSE(stage.MP(3).IsPlaying()) << "the layout does not show it";
  transport.ToggleLoopAll();
  EXPECT_FALSE(stage.MP(1).IsPlaying() || stage.MP(2).IsPlaying() || stage.window.loop);
  transport.ToggleLoop();
  transport.TogglePlay();
  EXPECT_FALSE(stage.window.loop) << "pause ends the loop";
}

TEST_F(TransportTest, TenMarksForEachWindow) {
  stage.Open(1, stage.Video("a.avi"));
  stage.Open(2, stage.Video("b.avi"));
  for (int i = 0; i < 12; ++i) {
    transport.Seek(2 * i + 1);
    transport.AddMark();
  }
  EXPECT_EQ(stage.window.marks.size(), 10u);
  transport.GoToMark(3);
  EXPECT_EQ(stage.At(1), 7);
  stage.Stage().SelectWindow(2);
  stage.EndTurn();
  EXPECT_TRUE(stage.window.marks.empty());
  stage.Stage().SelectWindow(1);
  stage.EndTurn();
  EXPECT_EQ(stage.window.marks[9], 19);
  transport.ClearMarks();
  EXPECT_TRUE(stage.window.marks.empty());
}

TEST_F(TransportTest, EveryKeyOfTheTableDoesItsWork) {
  stage.Open(1, stage.Video("a.avi"));
  for (const int key : {kKeyRight, kKeyRight, kKeyLeft}) stage.Key(key);
  EXPECT_EQ(stage.At(1), 1);
  stage.Key(kKeyDown);
  EXPECT_TRUE(stage.MP(1).IsPlaying());
  stage.Key(kKeyUp);
  EXPECT_EQ(stage.At(1), 0);
  stage.Type('p');
  EXPECT_TRUE(stage.MP(1).IsPlaying());
  stage.Type('R');
  EXPECT_FALSE(stage.MP(1).IsPlaying());
  for (const char key : {'s', 'l', 'F', 'm'}) stage.Type(key);
  EXPECT_EQ(stage.MP(1).Speed(), 25);
  EXPECT_TRUE(stage.MP(1).Repeat() && stage.MP(1).FlipHorizontal());
  EXPECT_EQ(stage.window.marks.size(), 1u);
  stage.Key(kKeyF1);
  EXPECT_TRUE(stage.analysis.Tools().Drawing());
  stage.Key(kKeyEscape);
  EXPECT_FALSE(stage.analysis.Tools().Drawing());
  EXPECT_TRUE(stage.Stage().HasVideo(1)) << "Escape puts the tool down first";
  stage.Key(kKeyHome);
  stage.Key(kKeyEnd);
  EXPECT_EQ(stage.libraryVisits + stage.menuVisits, 2);
  stage.Type('o');
  EXPECT_EQ(stage.window.openPanels, 1);

  const char* const layouts[] = {"1", "2", "3T", "4", "3L", "6", "2H", "8"};
  for (int digit = 1; digit <= 8; ++digit) {
    stage.Key(kKey0 + digit);
    EXPECT_EQ(stage.Stage().ScreenLayout, layouts[digit - 1]);
  }
  for (const auto& [key, slot] : {std::pair{9, 2}, {3, 3}, {1, 4}, {7, 1}}) {
    stage.Key(kKeyNumpad0 + key);
    EXPECT_EQ(stage.Stage().CurrentWindow, slot);
  }
  stage.Key(kKey0 + 2);
  stage.Key(kKeyNumpad0 + 3);
  EXPECT_EQ(stage.Stage().CurrentWindow, 1) << "two windows have no third";
  stage.Type('c');
  EXPECT_FALSE(stage.Stage().HasVideo(1));
}

TEST_F(TransportTest, PanAndZoomKeysKeepTheirLimits) {
  stage.Open(1, stage.Video("a.avi"));
  const Slot& slot = stage.Stage().At(1);
  for (const char key : {'y', 'y', 'h'}) stage.Type(key);
  EXPECT_EQ(slot.PanY, -100);
  EXPECT_EQ(slot.PanX, 50);
  for (int i = 0; i < 40; ++i) stage.Type('+');
  EXPECT_EQ(slot.VideoZoom, 4.0);
  for (int i = 0; i < 60; ++i) stage.Type('-');
  EXPECT_EQ(slot.VideoZoom, 0.2);
  stage.Type('*');
  EXPECT_EQ(slot.VideoZoom, 1.0);
  stage.Key(kKeyNumpad0 + 5);
  EXPECT_EQ(slot.PanX, 0);
  EXPECT_EQ(stage.Stage().At(2).VideoZoom, 1.0);
}

TEST(CountdownTest, CountsMinutesAndSecondsInOneNumberAndEndsOnce) {
  const std::pair<int, const char*> next[] = {{300, "2:59"}, {259, "2:58"}, {101, "1:00"}, {100, ":59"},
                                              {10, ":9"},    {1000, "9:59"}, {1, ":"}};
  for (const auto& [value, text] : next) EXPECT_EQ(CountdownText(CountdownNext(value)), text) << value;

  TestHost host;
  Countdown countdown(host);
  std::string shown;
  int ended = 0;
  countdown.Start(1000, [&](const std::string& text) { shown = text; }, [&] { ++ended; });
  host.Advance(599'000);
  EXPECT_EQ(shown, ":1") << "ten minutes last ten minutes";
  EXPECT_EQ(ended, 0);
  host.Advance(60'000);
  EXPECT_EQ(ended, 1);
}

TEST(EscapeTest, LeavesOneThingAtATimeAndTheVideosComeBack) {
  AnalysisStage stage("2");
  stage.Open(1, stage.Video("a.avi"));
  stage.Open(2, stage.Video("b.avi"));
  stage.MP(2).DrawFrame(7);
  stage.Stage().SelectWindow(2);
  stage.Draw(kLine, {10, 20}, {50, 60});
  stage.Videos().ToggleFlip();
  stage.Stage().SetZoom(2);
  const POINTAPI drawn = stage.Shapes(2).Shapes[0].Pts[0];
  stage.Commands().Run("TVT");
  stage.Commands().Run("TN");
  stage.Commands().Run("MZoom");
  stage.Type('o');
  const auto open = [&] {
    return std::array{stage.window.lists, stage.window.notes.has_value(), stage.window.timer, stage.Modes().ZoomShown()};
  };
  for (std::size_t left = 0; left < 4; ++left) {
    EXPECT_TRUE(open()[left]) << left;
    stage.Key(kKeyEscape);
    EXPECT_FALSE(open()[left]) << left;
  }
  EXPECT_TRUE(stage.Stage().HasVideo(1) && stage.Stage().HasVideo(2));
  EXPECT_FALSE(stage.Commands().Run("ReopenVideos")) << "nothing is closed";

  stage.Key(kKeyEscape);
  EXPECT_FALSE(stage.Stage().HasVideo(1) || stage.Stage().HasVideo(2));
  stage.Stage().SetScreen(1);
  stage.analysis.KeyDown('T', kShift | kCtrl, 1);
  EXPECT_TRUE(stage.Stage().HasVideo(1) && stage.Stage().HasVideo(2));
  EXPECT_EQ(stage.Stage().ScreenLayout, "2");
  EXPECT_EQ(stage.Stage().CurrentWindow, 2);
  EXPECT_EQ(stage.At(2), 7);
  EXPECT_TRUE(stage.MP(2).FlipHorizontal());
  EXPECT_EQ(stage.Stage().Current().VideoZoom, 2);
  EXPECT_EQ(stage.Shapes(2).Shapes[0].Pts[0], drawn);

  // Only as long as the stage is empty, and without what has gone from the disk meanwhile.
  stage.Key(kKeyEscape);
  std::filesystem::remove(stage.folder + "/a.avi");
  EXPECT_TRUE(stage.Commands().Run("ReopenVideos"));
  EXPECT_FALSE(stage.Stage().HasVideo(1));
  EXPECT_TRUE(stage.Stage().HasVideo(2));

  // From within a film strip or a maximized window: the layout beneath comes back.
  for (const char* alone : {"smbar", "TMAX"}) {
    ASSERT_TRUE(stage.Commands().Run(alone)) << alone;
    stage.Commands().Run("MnuCloseAll");
    EXPECT_TRUE(stage.Commands().Run("ReopenVideos")) << alone;
    EXPECT_EQ(stage.Stage().ScreenLayout, "2") << alone;
  }
}

}  // namespace
}  // namespace kinalyx::test
