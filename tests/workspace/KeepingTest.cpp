#include "workspace/keeping/Keeping.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "AnalysisStage.h"
#include "platform/files/FileStore.h"
#include "platform/files/Folders.h"

namespace kinalyx::test {
namespace {

TEST(KeepingTest, EveryKindComesBackWithItsVideo) {
  OpenStage stage;
  const std::pair<ShapeKind, int> clicks[] = {{kFlag, 1},    {kSquare, 2}, {kLine, 2},
                                              {kEllipse, 2}, {kAngle, 3},  {kParallelogram, 3},
                                              {kZone, 3},    {kClock, 2},  {kArrow, 2}};
  std::vector<std::vector<POINTAPI>> drawn;
  for (const auto& [kind, count] : clicks) {
    stage.Key(kKeyF1 + int{kind});
    EXPECT_NE(stage.window.text.find("Drawing "), std::string::npos) << kind;
    for (int i = 0; i < count; ++i) stage.Click(1, 50 + 40 * i, 60 + (i == 1 ? 70 : 10) + kind);
    EXPECT_FALSE(stage.analysis.Tools().Drawing() || stage.window.colour) << kind;
    drawn.push_back(stage.Points(stage.Shapes().NumShapes - 1));
  }
  // Half a shape is none, and its tool is put down with the video.
  stage.Key(kKeyF1 + int{kArrow});
  stage.Click(1, 40, 40);
  stage.Move(1, 80, 80);
  ASSERT_TRUE(stage.Videos().CloseVideo(1));
  EXPECT_EQ(stage.Shapes().NumShapes, 0);
  EXPECT_FALSE(stage.analysis.Tools().Drawing());
  EXPECT_EQ(stage.window.text, "");
  stage.Open(1, stage.path);
  ASSERT_EQ(stage.Shapes().NumShapes, 9);
  for (int shape = 0; shape < 9; ++shape) {
    EXPECT_EQ(stage.Shapes().Shapes[static_cast<std::size_t>(shape)].Kind, clicks[shape].first);
    EXPECT_EQ(stage.Points(shape), drawn[static_cast<std::size_t>(shape)]) << shape;
  }
}

TEST(KeepingTest, DrawingsComeBackScaledInAnotherLayoutAndUnmirrored) {
  OpenStage stage;
  const int width = stage.MP(1).ControlWidthPixels();
  stage.Type('f');
  stage.Draw(kLine, {100, 120}, {301, 243});
  ASSERT_TRUE(stage.Reopen(1));
  EXPECT_FALSE(stage.MP(1).FlipHorizontal());
  const auto drawn = stage.Points(0);
  EXPECT_EQ(drawn, (std::vector<POINTAPI>{{width - 100, 120}, {width - 301, 243}}));
  stage.Type('f');
  EXPECT_EQ(stage.Points(0), (std::vector<POINTAPI>{{100, 120}, {301, 243}}));
  stage.Videos().CloseVideo(1);

  stage.Stage().SetScreen(8);
  stage.Open(6, stage.Video("b.avi"));
  stage.Open(6, stage.path);  // in the place of a video of the same shape
  const double ratio = static_cast<double>(stage.MP(6).ControlWidthPixels()) / width;
  ASSERT_LT(ratio, 0.7);
  ASSERT_EQ(stage.Shapes(6).NumShapes, 1);
  EXPECT_NEAR(stage.PointOf(0, 1, 6).x, drawn[1].x * ratio, 1);
  EXPECT_NEAR(stage.PointOf(0, 1, 6).y, drawn[1].y * ratio, 1);
  // Nobody touched it there: it is written as it was drawn.
  stage.Videos().CloseVideo(6);
  stage.Stage().SetScreen(1);
  stage.Open(1, stage.path);
  EXPECT_EQ(stage.Points(0), drawn);
}

TEST(KeepingTest, WhatIsDrawnIsOnTheDiskWhenTheHandsRest) {
  OpenStage stage("2");
  const auto onDisk = [&] { return ReadSidecarMarks(stage.sidecar).HasDrawings(); };
  stage.Draw(kLine, {10, 10}, {100, 100});
  EXPECT_FALSE(onDisk());
  stage.Rest();
  EXPECT_TRUE(onDisk()) << "and the video is still open";
  stage.Run("UndoDrawing");
  stage.Rest();
  EXPECT_FALSE(onDisk());

  // Of a shape that is being drawn there is nothing to keep yet.
  stage.Run("MenuDraw3");
  stage.Click(1, 20, 20);
  stage.Move(1, 60, 60);
  stage.Keeping().SetNotes(1, "Grip");
  stage.Rest();
  EXPECT_FALSE(onDisk());
  EXPECT_TRUE(ReadSidecarMarks(stage.sidecar).HasNotes());
}

TEST(KeepingTest, ADiskThatRefusesIsToldAndTriedAgain) {
  OpenStage stage;
  std::filesystem::create_directory(stage.sidecar);  // a name that cannot be written to
  stage.Draw(kLine, {10, 10}, {100, 100});
  stage.host.Advance(1500);
  const std::string& title = stage.window.titles[1];
  EXPECT_TRUE(title.ends_with("not saved")) << title;
  std::filesystem::remove(stage.sidecar);
  stage.host.Advance(30000);
  EXPECT_TRUE(ReadSidecarMarks(stage.sidecar).HasDrawings()) << "nothing more was drawn";
  EXPECT_FALSE(title.ends_with("not saved")) << title;
}

TEST(KeepingTest, AForeignSidecarIsLeftAloneUntilThereIsWorkAndThenKeptBeside) {
  OpenStage stage;
  const std::string foreign =
      "\x7F"
      "another program's bytes";
  const auto bytesOf = [](const std::string& file) {
    const auto bytes = ReadWholeFile(file);
    return bytes ? std::string(bytes->begin(), bytes->end()) : "";
  };
  std::ofstream(stage.sidecar) << foreign;
  ASSERT_TRUE(stage.Reopen(1) && stage.Reopen(1));
  EXPECT_EQ(bytesOf(stage.sidecar), foreign) << "opened and closed, and nothing done";
  stage.Draw(kLine, {10, 10}, {100, 100});
  ASSERT_TRUE(stage.Reopen(1));
  EXPECT_EQ(bytesOf(stage.sidecar + ".old"), foreign);
  EXPECT_TRUE(ReadSidecarMarks(stage.sidecar).HasDrawings());

  // One byte of its own has gone wrong: the number of dimensions of the points.
  std::string damaged = bytesOf(stage.sidecar);
  damaged[44] = '\2';
  ASSERT_TRUE(stage.Videos().CloseVideo(1));
  std::ofstream(stage.sidecar) << damaged;
  stage.Open(1, stage.path);
  stage.Rest();
  ASSERT_TRUE(stage.Reopen(1));
  EXPECT_EQ(bytesOf(stage.sidecar), damaged);

  // Garbage in its place since it was read is kept beside as well.
  std::filesystem::remove(stage.sidecar + ".old");
  std::ofstream(stage.sidecar) << foreign;
  stage.Draw(kLine, {20, 10}, {80, 100});
  stage.Rest();
  EXPECT_TRUE(ReadSidecarMarks(stage.sidecar).HasDrawings());
  EXPECT_EQ(bytesOf(stage.sidecar + ".old"), foreign);
}

/// A sidecar that cannot be written: a folder stands in its place.
struct BlockedSidecar : testing::Test {
  OpenStage stage{"2"};
  const std::string& path = stage.path;

  void SetUp() override { std::filesystem::create_directories(stage.sidecar + "/x"); }
  void DrawLine() {
    stage.Draw(kLine, {40, 50}, {200, 90});
    ASSERT_EQ(stage.Shapes().NumShapes, 1);
  }
  void Unblock() { std::filesystem::remove_all(stage.sidecar); }
};

TEST_F(BlockedSidecar, DrawingsStayUntilTheUserLetsThemGo) {
  EXPECT_TRUE(stage.Videos().CloseVideo(1));
  EXPECT_TRUE(stage.host.questions.empty()) << "nothing new is nothing to ask about";
  ASSERT_TRUE(stage.Open(1, path));
  DrawLine();
  stage.host.answers = {false, false};  // no second try, keep it open
  EXPECT_FALSE(stage.Videos().CloseVideo(1));
  EXPECT_EQ(stage.host.questions.size(), 2u);
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
  EXPECT_FALSE(FileExists(stage.sidecar));
  EXPECT_TRUE(stage.host.messages.empty());

  std::filesystem::rename(path + " elsewhere", path);
  ASSERT_TRUE(stage.Open(1, path));
  DrawLine();
  std::filesystem::rename(path, path + " elsewhere");
  EXPECT_TRUE(stage.Videos().CloseVideo(1));
  EXPECT_EQ(ReadSidecarMarks(stage.sidecar).First, 'S');
  ASSERT_EQ(stage.host.messages.size(), 1u);
  EXPECT_NE(stage.host.messages[0].find("are kept in " + stage.sidecar), std::string::npos);
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
  EXPECT_EQ(ReadSidecarMarks(stage.sidecar).First, 'S');
}

}  // namespace
}  // namespace kinalyx::test
