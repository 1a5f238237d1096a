// What stood on the stage comes back: after a slip, and the next day.

#include <gtest/gtest.h>

#include <fstream>
#include <tuple>

#include "AnalysisStage.h"

namespace kinalyx::test {
namespace {

std::string SessionOf(AnalysisStage& stage) { return stage.settings.DataPath + "/session.json"; }

TEST(Session, OneVideoThatWasClosedComesBack) {
  OpenStage stage("2");
  stage.MP(1).DrawFrame(9);
  stage.Type('c');
  ASSERT_FALSE(stage.Stage().HasVideo(1));
  EXPECT_EQ(stage.offers, (std::vector<std::string>{"\"a\" was closed."}));
  // Its window has been taken meanwhile.
  stage.Open(1, stage.Video("b.avi"));
  EXPECT_TRUE(stage.Run("ReopenVideos"));
  EXPECT_EQ(stage.Stage().At(2).path, stage.path);
  EXPECT_EQ(stage.At(2), 9);
  EXPECT_FALSE(stage.Run("ReopenVideos")) << "no more than was closed";
}

TEST(Session, WhatIsOpenAgainDoesNotComeASecondTime) {
  OpenStage stage("2");
  stage.Open(2, stage.path);
  stage.Type('c');
  EXPECT_TRUE(stage.Run("ReopenVideos")) << "it stood in two windows";
  EXPECT_EQ(stage.Stage().VideoCount(), 2);
  stage.Type('c');
  stage.Open(1, stage.path);
  EXPECT_FALSE(stage.Run("ReopenVideos"));

  stage.Open(2, stage.Video("b.avi"));
  ASSERT_TRUE(stage.Videos().CloseAll());
  stage.Open(1, stage.Video("b.avi"));
  EXPECT_TRUE(stage.Run("ReopenVideos")) << "of two one is missing";
  EXPECT_EQ(stage.Stage().At(2).path, stage.path);
  EXPECT_EQ(stage.Stage().VideoCount(), 2);
}

TEST(Session, TheNextDayFindsTheStageAsItWas) {
  OpenStage stage("4");
  const std::string other = stage.Video("\u0141ucja \u885d\u6483.avi", DvVideo(20));
  stage.Open(2, other);
  stage.MP(1).DrawFrame(12);
  stage.MP(2).DrawFrame(7);
  stage.Stage().SelectWindow(2);
  stage.Videos().ToggleFlip();
  stage.Stage().SetZoom(1.7);
  stage.Run("cmdDualPlay");
  ASSERT_TRUE(stage.Modes().Locks().IsLocked(1));
  ASSERT_TRUE(stage.Commands().PreparetoExit());
  EXPECT_EQ(stage.offers.back(), "2 videos were closed.");

  // A new section, as after a restart.
  const auto session = ReadSession(SessionOf(stage));
  ASSERT_TRUE(session);
  AnalysisStage next("1");
  std::filesystem::create_directories(next.settings.DataPath);
  ASSERT_TRUE(WriteSession(SessionOf(next), *session));
  EXPECT_TRUE(next.Run("ReopenVideos"));
  EXPECT_EQ(next.Stage().ScreenLayout, "4");
  EXPECT_EQ(next.Stage().CurrentWindow, 2);
  EXPECT_EQ(next.Stage().At(2).path, other);
  EXPECT_EQ(next.At(1), 12);
  EXPECT_EQ(next.At(2), 7);
  EXPECT_TRUE(next.MP(2).FlipHorizontal());
  EXPECT_EQ(next.Stage().At(2).VideoZoom, 1.7);
  EXPECT_TRUE(next.Modes().Locks().IsLocked(1) && next.Modes().Locks().IsLocked(2));
}

// The library renames and moves what was closed; it comes back from where it has gone.
TEST(Session, FollowsWhatTheProgramMoved) {
  AnalysisStage stage;
  const std::string before = stage.folder + "/Ann", after = stage.folder + "/Ann Weiss";
  ASSERT_TRUE(stage.Open(1, stage.Video("Ann/a.avi")));
  stage.MP(1).DrawFrame(9);
  stage.Rest();
  stage.Type('c');
  std::filesystem::rename(before, after);
  stage.Videos().PathChanged(before, after);
  stage.Videos().PathChanged(stage.folder + "/An", stage.folder + "/wrong");  // another folder that begins alike
  EXPECT_EQ(ReadSession(SessionOf(stage))->videos.front().path, after + "/a.avi");
  ASSERT_TRUE(stage.Run("ReopenVideos"));
  EXPECT_EQ(stage.Stage().At(1).path, after + "/a.avi");
  EXPECT_EQ(stage.At(1), 9);
  EXPECT_TRUE(stage.host.messages.empty());
}

// A power cut asks nobody to close first.
TEST(Session, IsKeptWhileTheVideosAreOpen) {
  OpenStage stage;
  stage.Rest();
  ASSERT_TRUE(ReadSession(SessionOf(stage)));
  EXPECT_EQ(ReadSession(SessionOf(stage))->videos.front().path, stage.path);
}

TEST(Session, ADamagedFileOffersNothing) {
  AnalysisStage stage("1");
  for (const std::string text :
       {"", "[", "[]", "{\"videos\": [{}]}", "{\"videos\": [{\"slot\": 99, \"path\": \"x\"}]}"}) {
    std::ofstream(SessionOf(stage)) << text;
    EXPECT_FALSE(ReadSession(SessionOf(stage))) << text;
  }
}

// Two swings side by side at the same moment: one command.
TEST(LineUp, BringsVideosToTheirMarksAndLocksThem) {
  OpenStage stage("2");
  stage.Open(2, stage.Video("second.avi"));
  stage.Type('u');
  EXPECT_EQ(stage.window.text, "The videos have no marks yet: M makes one where each of them stands");
  for (const auto& [slot, top, impact] : {std::tuple{1, 5, 14}, {2, 9, 20}}) {
    stage.Stage().SelectWindow(slot);
    for (const auto& [position, name] : {std::pair{top, "Top"}, {impact, "Impact"}}) {
      stage.MP(slot).DrawFrame(position);
      stage.analysis.Transport().AddMark();
      stage.analysis.Transport().NameMark(position == top ? 0 : 1, name);
    }
    stage.MP(slot).DrawFrame(0);
  }
  stage.MP(2).DrawFrame(17);  // nearer to its impact
  EXPECT_EQ(stage.analysis.Transport().NamesElsewhere(), (std::vector<std::string>{"Top", "Impact"}));
  stage.analysis.Transport().NameMark(1, "Landing");
  stage.analysis.Transport().RemoveMark(0);
  stage.EndTurn();
  stage.Type('u');
  EXPECT_EQ(stage.window.text, "No two videos have a mark of the same name: a right click on a mark names it");
  stage.analysis.Transport().NameMark(0, " IMPACT ");
  stage.Type('u');
  EXPECT_EQ(stage.At(1), 14);
  EXPECT_EQ(stage.At(2), 20);
  EXPECT_TRUE(stage.Modes().Locks().IsLocked(1));

  // Without marks they go to where they were locked.
  for (const int slot : {1, 2}) {
    stage.Stage().SelectWindow(slot);
    stage.analysis.Transport().ClearMarks();
  }
  stage.Run("cmdDualPlay");
  ASSERT_FALSE(stage.Modes().Locks().IsLocked(1));
  stage.MP(1).DrawFrame(1);
  EXPECT_TRUE(stage.Run("LineUp"));
  EXPECT_EQ(stage.At(1), 14);
}

}  // namespace
}  // namespace kinalyx::test
