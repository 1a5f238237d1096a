// One video in two windows, or on two workstations: nobody writes over what the other has done.

#include <gtest/gtest.h>

#include <algorithm>

#include "AnalysisStage.h"

namespace kinalyx::test {
namespace {

std::vector<Shape> Stored(const std::string& path) { return ReadVideoData(SidecarPath(path), {}, {}).Shapes.Shapes; }

/// Notes of both are there, in whichever order.
void ExpectNotes(AnalysisStage& stage, const std::string& one, const std::string& other) {
  const std::string& notes = stage.Stage().At(1).data.Notes;
  EXPECT_TRUE(notes.find(one) != notes.npos && notes.find(other) != notes.npos) << notes;
}

// Whichever window closes last, the work of both is there.
TEST(TwoWindows, KeepTheWorkOfBoth) {
  OpenStage stage("2");
  stage.Draw(kLine, {10, 10}, {100, 100});
  stage.Videos().FillAll();
  EXPECT_EQ(stage.Shapes(2).NumShapes, 1) << "a copy comes with what is drawn so far";
  stage.Draw(kLine, {50, 60}, {70, 80});
  stage.Keeping().SetNotes(1, "Grip");
  EXPECT_TRUE(stage.Videos().CloseAll());
  stage.Open(1, stage.path);
  ASSERT_EQ(stage.Shapes().NumShapes, 2) << "the untouched copy has not written over it";

  // Drawn on and noted in both; what is there already is not added again.
  stage.Open(2, stage.path);
  stage.Draw(kEllipse, {5, 100}, {60, 20});
  stage.Stage().SelectWindow(2);
  stage.Draw(kEllipse, {40, 40}, {90, 120});
  stage.Keeping().SetNotes(1, stage.Stage().At(1).data.Notes + " and hips");
  stage.Keeping().SetNotes(2, "Stance");
  EXPECT_TRUE(stage.Videos().CloseAll());
  stage.Open(1, stage.path);
  EXPECT_EQ(stage.Shapes().NumShapes, 4);
  ExpectNotes(stage, "Grip and hips", "Stance");
}

// A drawing undone in one window does not come back from what the other has written meanwhile.
TEST(TwoWindows, WhatIsUndoneInOneStaysUndone) {
  OpenStage stage("2");
  stage.Open(2, stage.path);
  stage.Stage().SelectWindow(2);
  stage.Draw(kEllipse, {40, 40}, {90, 120});
  stage.Rest();
  stage.Stage().SelectWindow(1);
  stage.Draw(kLine, {10, 10}, {100, 100});
  stage.Rest();
  stage.Stage().SelectWindow(2);
  stage.Run("UndoDrawing");
  stage.Rest();
  EXPECT_TRUE(stage.Videos().CloseAll());
  const std::vector<Shape> stored = Stored(stage.path);
  ASSERT_EQ(stored.size(), 1u);
  EXPECT_EQ(stored[0].Kind, kLine);
}

TEST(TwoWindows, WhatOneHasDeletedOrMovedTheOtherDoesNotBringBack) {
  OpenStage stage("2");
  stage.Draw(kLine, {10, 10}, {100, 100});
  stage.Draw(kEllipse, {40, 40}, {90, 120});
  stage.Keeping().SetNotes(1, "Gripp\r\nStance");
  stage.Videos().FillAll();
  stage.Stage().SelectWindow(1);
  stage.Run("Lastcadoff");
  stage.analysis.Tools().Engine().MoveShape(stage.Shapes(1).Shapes[0], 30, 0);
  stage.Keeping().SetNotes(1, "Grip\r\nStance");
  stage.Rest();
  stage.Keeping().SetNotes(2, "Gripp\r\nStance\r\nHips");
  // From here on in another size.
  stage.Stage().SetScreen(8);
  stage.Stage().SelectWindow(2);
  stage.Draw(kSquare, {5, 80}, {60, 20});
  stage.Rest();
  EXPECT_EQ(stage.Shapes(2).NumShapes, 3) << "each window has drawings of its own";
  EXPECT_EQ(stage.Stage().At(2).data.Notes, "Grip\r\nStance\r\nHips");
  std::vector<Shape> stored = Stored(stage.path);
  ASSERT_EQ(stored.size(), 2u);
  EXPECT_EQ(stored[0].Pts[0], (POINTAPI{40, 10}));
  EXPECT_EQ(stored[1].Kind, kSquare);
  // Both move the same one: both are kept.
  stage.Stage().SelectWindow(1);
  stage.analysis.Tools().Engine().MoveShape(stage.Shapes(1).Shapes[0], 0, 20);
  stage.Stage().SelectWindow(2);
  stage.analysis.Tools().Engine().MoveShape(stage.Shapes(2).Shapes[0], 0, 40);
  EXPECT_TRUE(stage.Videos().CloseAll());
  EXPECT_EQ(Stored(stage.path).size(), 3u);
}

TEST(TwoWorkstations, OfDifferentSizesKeepWhatNobodyTouchesToTheByte) {
  AnalysisStage here, there("2", 1000, 810);
  const std::string path = here.Video("a.avi");
  here.Open(1, path);
  for (int i = 0; i < 50; ++i) here.Draw(kLine, {10 + 7 * i, 11 + i}, {300 - i, 401 - 3 * i});
  EXPECT_TRUE(here.Videos().CloseVideo(1));
  std::vector<Shape> drawn = Stored(path);
  ASSERT_EQ(drawn.size(), 50u);

  there.Open(1, path);
  there.Stage().SetScreen(8);
  there.Run("vFlip");
  EXPECT_TRUE(there.Videos().CloseVideo(1));
  EXPECT_EQ(Stored(path), drawn);

  here.Open(1, path);
  there.Open(1, path);
  there.Draw(kEllipse, {40, 40}, {60, 70});
  there.Rest();
  here.Run("Lastcadoff");
  here.Rest();
  there.Draw(kSquare, {40, 40}, {60, 70});
  there.Rest();
  std::vector<Shape> stored = Stored(path);
  ASSERT_EQ(stored.size(), 51u);
  EXPECT_TRUE(std::equal(stored.begin(), stored.begin() + 49, drawn.begin()));
  EXPECT_EQ(stored[49].Kind, kEllipse);
  EXPECT_EQ(stored[50].Kind, kSquare);

  // What is undone in a window of another size is what it was.
  there.Stage().SetScreen(1);
  there.Run("Cadoffbutton");
  there.Rest();
  EXPECT_EQ(Stored(path).size(), 0u);
  there.Stage().SetScreen(4);
  there.Run("UndoDrawing");
  EXPECT_TRUE(there.Videos().CloseVideo(1));
  EXPECT_EQ(Stored(path).size(), 52u) << "with the one that was deleted here";
  EXPECT_TRUE(here.Videos().CloseVideo(1));
  stored = Stored(path);
  EXPECT_EQ(stored.size(), 52u);
  EXPECT_TRUE(std::equal(drawn.begin(), drawn.end(), stored.begin()));
}

TEST(TwoWorkstations, KeepEachOthersWorkOnOneVideo) {
  OpenStage here;
  AnalysisStage there;
  const std::string& path = here.path;
  there.Open(1, path);
  there.Draw(kLine, {10, 10}, {100, 100});
  EXPECT_TRUE(there.Videos().CloseVideo(1));
  EXPECT_TRUE(here.Videos().CloseVideo(1));
  here.Open(1, path);
  ASSERT_EQ(here.Shapes().NumShapes, 1) << "who has done nothing writes over nothing";

  there.Open(1, path);
  there.Draw(kEllipse, {40, 40}, {90, 120});
  there.Keeping().SetNotes(1, "Stance");
  there.Rest();
  here.Run("Lastcadoff");
  here.Draw(kSquare, {5, 100}, {60, 20});
  here.Keeping().SetNotes(1, "Grip");
  here.Rest();
  EXPECT_TRUE(there.Videos().CloseVideo(1));
  EXPECT_TRUE(here.Videos().CloseVideo(1));
  here.Open(1, path);
  std::vector<int> kinds;
  for (const Shape& shape : ShapesOf(here.Shapes())) kinds.push_back(shape.Kind);
  std::ranges::sort(kinds);
  EXPECT_EQ(kinds, (std::vector<int>{kSquare, kEllipse})) << "the line was deleted here";
  ExpectNotes(here, "Grip", "Stance");
}

}  // namespace
}  // namespace kinalyx::test
