#include "distribution/clips/ClipPlan.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace kinalyx {
namespace {

using testing::ElementsAre;

/// A video of equal pictures.
struct Steady final : IFilmTimes {
  Steady(int pictures, double perSecond) : count(pictures), rate(perSecond) {}
  int Count() const override { return count; }
  double TimeOf(int position) const override { return position * 1000 / rate; }
  int PositionAt(double ms) const override {
    return std::clamp(static_cast<int>(std::floor(ms * rate / 1000 + 1e-6)), 0, count - 1);
  }

  int count;
  double rate;
};

ExactDrawing DrawnFrom(int first, int last) {
  Shape shape;
  shape.Kind = kLine;
  shape.Locked = true;
  shape.Time = {first, last, 0};
  return {shape, 320, 240};
}

/// The positions of one of the videos, picture by picture.
std::vector<int> Of(const ClipPlan& plan, std::size_t video) {
  std::vector<int> positions;
  for (const ClipFrame& frame : plan.Frames) positions.push_back(frame.Positions[video]);
  return positions;
}

TEST(ClipPlan, OneVideoAtEverySpeed) {
  ClipScene scene;
  scene.Videos.resize(1);
  const Steady film(30, 30);
  const IFilmTimes* times[] = {&film};
  struct Case {
    int slower;
    double secondPicture, end;
    std::size_t sounds;
  };
  for (const Case& each : {Case{1, 33.3, 133.3, 1}, {2, 66.7, 266.7, 0}, {4, 133.3, 533.3, 0}, {8, 266.7, 1066.7, 0}}) {
    SCOPED_TRACE(each.slower);
    const ClipPlan plan = PlanClip(scene, times, {.First = 10, .Last = 13, .Slower = each.slower});
    EXPECT_THAT(Of(plan, 0), ElementsAre(10, 11, 12, 13));
    EXPECT_NEAR(plan.Frames[1].Ms, each.secondPicture, 0.1);
    EXPECT_NEAR(plan.EndMs, each.end, 0.1);
    EXPECT_EQ(plan.Sounds.size(), each.sounds) << "slow motion is silent";
  }
  EXPECT_THAT(Of(PlanClip(scene, times, {.First = 28, .Last = 99}), 0), ElementsAre(28, 29));
  EXPECT_TRUE(PlanClip({}, {}, {}).Frames.empty());
}

TEST(ClipPlan, AFastCameraGivesWhatATelephoneShows) {
  ClipScene scene;
  scene.Videos.resize(1);
  const Steady film(240, 240);
  const IFilmTimes* times[] = {&film};
  EXPECT_EQ(PlanClip(scene, times, {.First = 0, .Last = 239}).Frames.size(), 61u) << "every fourth, and the last";
  EXPECT_EQ(PlanClip(scene, times, {.First = 0, .Last = 239, .Slower = 4}).Frames.size(), 240u);
}

TEST(ClipPlan, OthersGoAlongLockedOrByTheClock) {
  ClipScene scene;
  scene.Videos.resize(3);
  scene.Videos[0].Position = 20;
  scene.Videos[1].Position = 5;
  scene.Videos[1].Locked = true;
  scene.Videos[2].Position = 40;
  const Steady film(30, 30), partner(30, 30), fast(60, 60);
  const IFilmTimes* times[] = {&film, &partner, &fast};
  const ClipPlan plan = PlanClip(scene, times, {.First = 13, .Last = 24});
  EXPECT_THAT(Of(plan, 1), ElementsAre(0, 0, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9)) << "it stands before its beginning";
  EXPECT_THAT(Of(plan, 2), ElementsAre(26, 28, 30, 32, 34, 36, 38, 40, 42, 44, 46, 48));
}

TEST(ClipPlan, StandsWhereDrawingsBegin) {
  ClipScene scene;
  scene.Videos.resize(1);
  scene.Videos[0].Drawings.Drawings = {DrawnFrom(0, -1), DrawnFrom(12, 20), DrawnFrom(12, 14), DrawnFrom(25, 26)};
  const Steady film(30, 30);
  const IFilmTimes* times[] = {&film};
  const ClipPlan plan = PlanClip(scene, times, {.First = 10, .Last = 13, .Slower = 1, .PauseMs = 2000});
  ASSERT_THAT(Of(plan, 0), ElementsAre(10, 11, 12, 13));
  EXPECT_TRUE(plan.Frames[0].Paused) << "those that are always there begin with the clip";
  EXPECT_NEAR(plan.Frames[1].Ms, 2033.3, 0.1);
  EXPECT_TRUE(plan.Frames[2].Paused);
  EXPECT_NEAR(plan.Frames[3].Ms, 4100, 0.1);
  EXPECT_NEAR(plan.EndMs, 4133.3, 0.1);
  // The sound goes on behind each pause where it stopped.
  ASSERT_EQ(plan.Sounds.size(), 3u);
  EXPECT_NEAR(plan.Sounds[1].Ms, 2000, 0.1);
  EXPECT_NEAR(plan.Sounds[1].FromMs, 333.3, 0.1);
  EXPECT_NEAR(plan.Sounds[1].LengthMs, 66.7, 0.1);
  EXPECT_NEAR(plan.Sounds[2].LengthMs, 66.7, 0.1);
}

}  // namespace
}  // namespace kinalyx
