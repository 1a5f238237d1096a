#include "workspace/transport/Transport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "AnalysisStage.h"
#include "workspace/transport/Countdown.h"

namespace kinalyx::test {
namespace {

struct TransportTest : testing::Test {
  AnalysisStage stage{"2"};
  Transport& transport = stage.analysis.Transport();
};

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

TEST_F(TransportTest, AllVideosMoveByTheirOwnCommandsOrByThoseOfOne) {
  stage.Stage().SetScreen(4);
  for (const int slot : {1, 2, 3, 4}) stage.Open(slot, MjpegVideo(30), slot);
  const auto positions = [&] { return std::array{stage.At(1), stage.At(2), stage.At(3), stage.At(4)}; };
  stage.Modes().Locks().DualLock(1);
  stage.Run("ForwardAll");
  EXPECT_EQ(positions(), (std::array{2, 3, 4, 5}));
  stage.Key(kKeyLeft, kCtrl);
  EXPECT_EQ(positions(), (std::array{1, 2, 3, 4}));
  stage.Key(kKeySpace, kShift);
  stage.host.Advance(100);
  EXPECT_EQ(positions(), (std::array{4, 5, 6, 7})) << "locked or not, all play";
  stage.Key(kKeySpace, kShift);
  EXPECT_FALSE(transport.All().Playing());

  // From now on the buttons of one are those of all.
  stage.Stage().SelectWindow(3);
  stage.Type('a');
  stage.Type('r');
  EXPECT_EQ(positions(), (std::array{0, 1, 0, 0}));
  stage.Key(kKeySpace);
  EXPECT_TRUE(stage.window.playing && transport.All().Playing());
  transport.SetSpeed(50);
  stage.host.Advance(200);
  EXPECT_EQ(positions(), (std::array{3, 4, 3, 3}));
  stage.Key(kKeySpace);
  stage.Type('a');
  transport.StepForward();
  EXPECT_EQ(positions(), (std::array{3, 4, 4, 3}));
  // Videos that are out of sight stay where they are.
  stage.Stage().SetScreen(2);
  stage.Run("RewindAll");
  EXPECT_EQ(positions(), (std::array{0, 1, 4, 3}));
}

TEST_F(TransportTest, WithTheKeysOfAnEditorALockedPairIsDrivenAsOneVideo) {
  for (const int slot : {1, 2}) stage.Open(slot, MjpegVideo(60), 10 * slot);
  stage.Modes().Locks().DualLock(1);
  stage.EndTurn();
  stage.Key(kKeyRight);
  EXPECT_EQ(stage.At(1), 10) << "the classic keys leave it alone";
  stage.Key(kKeySpace);
  EXPECT_TRUE(stage.Modes().Locks().PlayingTogether()) << "but Space plays it";
  stage.Key(kKeySpace);

  stage.settings.KeysAndTools = kEditorKeys;
  stage.analysis.SettingsChanged();
  for (const auto& [key, shift, first] : {std::tuple{kKeyRight, 0, 11},
                                          {kKeyRight, kShift, 21},
                                          {kKeyLeft, kShift, 11},
                                          {kKeyLeft, 0, 10},
                                          {kKeyEnd, 0, 48},
                                          {kKeyHome, 0, 0}}) {
    stage.Key(key, shift);
    EXPECT_EQ(stage.At(1), first);
    EXPECT_EQ(stage.At(2), first + 10);
  }
  stage.Type('l');
  stage.host.Advance(10 * 1000 / 30 + 1);
  EXPECT_EQ(stage.At(2), 20);
  stage.Type('j');
  stage.host.Advance(5 * 1000 / 30 + 1);
  EXPECT_EQ(stage.At(1), 5);
  stage.Type('j');
  EXPECT_EQ(stage.window.speed, 150) << "once more is faster";
  stage.Type('k');
  EXPECT_FALSE(stage.Modes().Locks().PlayingTogether());
  EXPECT_EQ(stage.At(2), stage.At(1) + 10);
}

TEST_F(TransportTest, APartOfTheVideoIsPlayedUntilItsEndsAreTakenOff) {
  stage.Open(1, MjpegVideo(60));
  const auto mark = [&](const char* item, int position) {
    transport.Seek(position);
    stage.Run(item);
  };
  mark("RangeStart", 20);
  mark("RangeEnd", 24);
  EXPECT_EQ(stage.window.played, (std::pair{20, 24}));
  transport.ToggleLoop();
  std::set<int> seen;
  stage.signalled = [&](int) { seen.insert(stage.At(1)); };
  stage.host.Advance(1000);
  EXPECT_EQ(seen, (std::set{20, 21, 22, 23, 24}));
  transport.ToggleLoop();
  mark("RangeStart", 40);
  EXPECT_EQ(stage.window.played, (std::pair{40, 59})) << "a beginning behind the end takes the end off";
  mark("RangeStart", 40);
  EXPECT_FALSE(transport.HasRange());
  EXPECT_FALSE(stage.Run("RangeOff"));
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
  transport.TogglePlay();
  transport.ToggleSlomo();
  EXPECT_EQ(stage.window.line, "0 seconds | 00/00 frames  ");
  EXPECT_FALSE(stage.window.playing || stage.window.slomo) << "an empty window";
  stage.Open(1, stage.Video("a.avi"));
  transport.Seek(10);
  transport.TogglePlay();
  EXPECT_TRUE(stage.window.playing);
  stage.host.Advance(200);
  EXPECT_NEAR(stage.At(1), 16, 1);
  EXPECT_EQ(stage.window.value, stage.At(1)) << "the bar runs with the film";
  const int running = stage.At(1);
  transport.StepForward();
  EXPECT_EQ(stage.At(1), running + 1) << "a step takes a running film in hand";
  EXPECT_FALSE(stage.window.playing || stage.MP(1).IsPlaying());

  for (const auto& [start, from] : {std::pair{28, 0}, {29, 0}, {27, 27}}) {
    transport.Seek(start);
    transport.TogglePlay();
    EXPECT_EQ(stage.At(1), from);
    if (from == 0) transport.TogglePlay();
  }
  stage.host.Advance(1000);
  EXPECT_EQ(stage.At(1), 29);
  EXPECT_FALSE(stage.window.playing) << "the end of the film brings the play picture back";
  transport.StepForward();
  EXPECT_EQ(stage.At(1), 29);
  transport.TogglePlay();
  transport.Rewind();
  transport.StepBack();
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
  stage.analysis.CellPressed(2);
  stage.EndTurn();
  stage.host.Advance(1000);
  EXPECT_EQ(stage.At(1), 5);
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
  for (int slot = 1; slot <= 3; ++slot) stage.Open(slot, MjpegVideo(30));
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

// They belong to the video, not to the window, and two windows put together what they found.
TEST_F(TransportTest, MarksStayWithTheirVideo) {
  const std::string path = stage.Video("marked.avi");
  stage.Open(1, path);
  stage.Open(2, path);
  transport.Seek(7);
  transport.AddMark();
  transport.NameMark(0, "Aufprall, 衝撃");
  stage.Stage().SelectWindow(2);
  transport.Seek(3);
  transport.AddMark();
  stage.Rest();
  ASSERT_TRUE(stage.Videos().CloseAll());
  stage.Stage().SelectWindow(1);
  stage.Open(1, path);
  EXPECT_EQ(std::set(stage.window.marks.begin(), stage.window.marks.end()), (std::set{3, 7}));
  const auto& marks = stage.Stage().At(1).data.Study.Marks;
  EXPECT_TRUE(std::ranges::any_of(marks, [](const VideoMark& mark) { return mark.Name == "Aufprall, 衝撃"; }));
  transport.ClearMarks();
  ASSERT_TRUE(stage.Reopen(1));
  EXPECT_TRUE(stage.Stage().At(1).data.Study.Marks.empty());
}

TEST_F(TransportTest, TenMarksForEachWindow) {
  stage.Open(1, stage.Video("a.avi"));
  stage.Open(2, stage.Video("b.avi"));
  for (int i = 0; i < 12; ++i) {
    transport.Seek(2 * i + 1);
    transport.AddMark();
  }
  EXPECT_EQ(stage.window.marks.size(), 10u);
  EXPECT_EQ(stage.window.marks[9], 19);
  transport.GoToMark(3);
  EXPECT_EQ(stage.At(1), 7);
  stage.Stage().SelectWindow(2);
  stage.EndTurn();
  EXPECT_TRUE(stage.window.marks.empty());
  stage.Stage().SelectWindow(1);
  transport.ClearMarks();
  stage.EndTurn();
  EXPECT_TRUE(stage.window.marks.empty());
}

TEST_F(TransportTest, TheTimerCountsFromAnyPicture) {
  EXPECT_EQ(VideoTimer::Reading(5.32), "05.32");
  EXPECT_EQ(VideoTimer::Reading(-1.2), "-01.20");
  EXPECT_EQ(VideoTimer::Reading(123.4), "123.40");

  stage.Open(1, stage.Video("a.avi", MjpegVideo(61)));
  transport.Seek(30);
  stage.Run("TVT");
  EXPECT_EQ(stage.window.reading, "01.00");
  EXPECT_EQ(stage.window.counter, "30");
  stage.analysis.Timer().SetZero();
  transport.Seek(15);
  EXPECT_EQ(stage.window.reading, "-00.50");
  EXPECT_TRUE(stage.window.negative);
  stage.analysis.Timer().SetZero();
  EXPECT_EQ(stage.window.reading, "00.00") << "a second zero is a zero too";
  for (const auto& [typed, rate] : {std::pair{"240", "240"}, {"fast", "30"}}) {
    stage.analysis.Timer().TakeRate(typed);
    EXPECT_EQ(stage.window.rate, rate);
  }
  stage.Stage().SelectWindow(2);
  EXPECT_EQ(stage.window.reading, "00.00");
  stage.Run("TVT");
  EXPECT_FALSE(stage.window.timer);
  EXPECT_EQ(stage.window.counter, "");
}

TEST(DisplayRate, ReadsTheFirstTwoFiguresBehindThePoint) {
  EXPECT_EQ(DisplayRateTest::Result(114, 59), "Video Display Rate is 93%");
  EXPECT_EQ(DisplayRateTest::Result(118, 59), "Video Display Rate is 00%");
  EXPECT_EQ(DisplayRateTest::Result(4, 0), "Video Display Rate is 00%");

  OpenStage stage;
  stage.Run("VidTest");
  stage.host.Advance(3000);
  ASSERT_EQ(stage.host.messages.size(), 1u);
  EXPECT_EQ(stage.host.messages[0], DisplayRateTest::Result(60, 29) + "\n\n30 of 30 pictures were shown.");
  EXPECT_FALSE(stage.Commands().Find("VidTest")->checked());
  stage.analysis.Transport().TogglePlay();
  stage.host.Advance(3000);
  EXPECT_EQ(stage.host.messages.size(), 1u) << "an ordinary play is no test";
  stage.Run("VidTest");
  stage.host.Advance(300);
  stage.Key(kKeyEscape);
  stage.host.Advance(3000);
  EXPECT_EQ(stage.host.messages.size(), 1u) << "a test that is stopped has no result";
  EXPECT_TRUE(stage.Stage().HasVideo(1));
}

TEST(CountdownTest, CountsMinutesAndSecondsInOneNumberAndEndsOnce) {
  const std::pair<int, const char*> next[] = {{300, "2:59"}, {259, "2:58"},  {101, "1:00"}, {100, ":59"},
                                              {10, ":9"},    {1000, "9:59"}, {1, ":"}};
  for (const auto& [value, text] : next) EXPECT_EQ(CountdownText(CountdownNext(value)), text) << value;

  TestHost host;
  Countdown countdown(host);
  std::string shown;
  int ended = 0;
  countdown.Start(
      1000, [&](const std::string& text) { shown = text; }, [&] { ++ended; });
  host.Advance(599'000);
  EXPECT_EQ(shown, ":1") << "ten minutes last ten minutes";
  EXPECT_EQ(ended, 0);
  host.Advance(60'000);
  EXPECT_EQ(ended, 1);
}

}  // namespace
}  // namespace kinalyx::test
