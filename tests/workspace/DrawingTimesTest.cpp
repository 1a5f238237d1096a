// Drawings that belong to a moment.

#include <gtest/gtest.h>

#include <optional>

#include "AnalysisStage.h"

namespace kinalyx::test {
namespace {

/// How strong the line over a black picture is at the middle of it.
struct TimesTest : testing::Test {
  bool Seen(int position) {
    stage.MP(1).DrawFrame(position);
    seen.reset();
    stage.painted = [&](Canvas& canvas, int) { seen = canvas.Target().Row(60)[50 * 4 + 2]; };
    const int without = [&] {
      stage.analysis.Tools().HideDrawings(true);
      stage.MP(1).Refresh();
      return *seen;
    }();
    stage.analysis.Tools().HideDrawings(false);
    stage.MP(1).Refresh();
    stage.painted = nullptr;
    return *seen != without;
  }

  OpenStage stage;
  std::optional<int> seen;
};

TEST_F(TimesTest, ADrawingIsSeenWhenItBelongs) {
  stage.Draw(kLine, {10, 60}, {100, 60});
  EXPECT_TRUE(Seen(3) && Seen(29)) << "on the whole video, as long as nobody says otherwise";
  stage.MP(1).DrawFrame(12);
  EXPECT_TRUE(stage.Run("DrawingHere"));
  EXPECT_TRUE(Seen(12));
  EXPECT_FALSE(Seen(11) || Seen(13));

  stage.MP(1).DrawFrame(5);
  stage.Run("DrawingFromHere");
  stage.MP(1).DrawFrame(20);
  stage.Run("DrawingUntilHere");
  EXPECT_TRUE(Seen(5) && Seen(20) && Seen(22)) << "it goes slowly";
  EXPECT_FALSE(Seen(29));

  // It is kept, and an undo takes back what was said of it.
  stage.Rest();
  ASSERT_TRUE(stage.Reopen(1));
  ASSERT_EQ(stage.Shapes().NumShapes, 1);
  EXPECT_EQ(stage.Shapes().Shapes[0].Time, (ShapeTime{5, 20, DrawingTimes::kFade}));
  stage.Run("DrawingAlways");
  EXPECT_TRUE(Seen(29));
  stage.Run("UndoDrawing");
  EXPECT_FALSE(Seen(29));
  stage.Rest();
  ASSERT_TRUE(stage.Reopen(1));
  EXPECT_EQ(stage.Shapes().Shapes[0].Time.First, 5);
}

TEST_F(TimesTest, NextDrawingWalksThroughTheMoments) {
  EXPECT_FALSE(stage.Run("NextDrawing"));
  for (const int position : {20, 7}) {
    stage.MP(1).DrawFrame(position);
    stage.Draw(kLine, {10, position}, {100, 60});
    stage.Run("DrawingHere");
  }
  for (const int position : {20, 7, 20}) {
    stage.Type('n');
    EXPECT_EQ(stage.At(1), position);
  }
}

}  // namespace
}  // namespace kinalyx::test
