#include "workspace/compare/Transparency.h"

#include <gtest/gtest.h>

#include "AnalysisStage.h"

namespace kinalyx {
namespace {

using test::AnalysisStage;
using test::FakeCompareView;
using test::RawVideo;

class TransparencyTest : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(stage_.Open(1, RawVideo(40), 3));
    ASSERT_TRUE(stage_.Open(2, RawVideo(40), 21));
    transparency_.ToggleTransparency();
    ASSERT_TRUE(view_.transparency);
  }
  /// A point of the mix at which the two pictures, which are of one size, differ.
  POINTAPI Probe() {
    const Surface& first = stage_.MP(1).Picture();
    const Surface& second = stage_.MP(2).Picture();
    for (int x = 20; x < first.Width(); ++x)
      if (first.Pixel(x, 100) != second.Pixel(x, 100))
        return {x + (1200 - first.Width()) / 2, 100 + (600 - first.Height()) / 2};
    ADD_FAILURE() << "the pictures are alike";
    return {};
  }
  /// The colour of a slot's picture under a point of the mix.
  Colour Of(int slot, POINTAPI point) {
    const Surface& picture = stage_.MP(slot).Picture();
    return picture.Pixel(point.x - (1200 - picture.Width()) / 2, point.y - (600 - picture.Height()) / 2);
  }
  Colour Mix(POINTAPI point) const { return view_.mix.Pixel(point.x, point.y); }
  void SetMix(int value) {
    transparency_.SlideMix(value);
    stage_.host.Advance(0);
  }

  AnalysisStage stage_{"4", 1200, 600};
  LockedVideos& locks_ = stage_.Modes().Locks();
  const FakeCompareView& view_ = stage_.compareView;
  Transparency& transparency_ = stage_.Modes().Transparency();
};

TEST_F(TransparencyTest, SliderGoesFromOneVideoToTheOther) {
  EXPECT_EQ(stage_.Stage().ScreenLayout, "2");
  EXPECT_EQ(view_.scroll, 128);
  const POINTAPI at = Probe();
  SetMix(0);
  EXPECT_EQ(Mix(at), Of(1, at));
  EXPECT_EQ(view_.option, ShowOption::VideoWindow1);
  SetMix(255);
  EXPECT_EQ(Mix(at), Of(2, at));
  EXPECT_EQ(view_.option, ShowOption::VideoWindow2);
  SetMix(64);
  EXPECT_EQ(view_.option, ShowOption::Transparency);
  for (const auto part : {Red, Green, Blue})
    EXPECT_NEAR(part(Mix(at)), part(Of(2, at)) * 64 / 255.0 + part(Of(1, at)) * 191 / 255.0, 1.01);
}

TEST_F(TransparencyTest, PresetsWalkBySteps) {
  std::vector<int> seen;
  transparency_.Show(ShowOption::VideoWindow1);  // from 128 down to 0
  for (int step = 0; step < 20; ++step) {
    stage_.host.Advance(20);
    if (seen.empty() || seen.back() != view_.scroll) seen.push_back(view_.scroll);
  }
  EXPECT_EQ(seen, (std::vector{113, 98, 83, 68, 53, 38, 23, 8, 0}));
  EXPECT_EQ(view_.option, ShowOption::VideoWindow1);
  // The user's hand on the slider ends a walk.
  transparency_.Show(ShowOption::VideoWindow2);
  stage_.host.Advance(60);
  EXPECT_EQ(view_.scroll, 45);
  transparency_.SlideMix(200);
  stage_.host.Advance(1000);
  EXPECT_EQ(transparency_.TransScroll(), 200);
}

TEST_F(TransparencyTest, SplitScreenShowsTheMiddleHalfOfEachCell) {
  SetMix(0);
  transparency_.Show(ShowOption::SplitScreen);
  EXPECT_FALSE(view_.scrollEnabled);
  EXPECT_EQ(Mix({500, 301}), Of(1, {500, 301})) << "the old picture has not gone yet";
  stage_.host.Advance(1000);
  // The cells are 600 wide: the halves are 300 wide, from a quarter of the panel on.
  const Surface& first = stage_.MP(1).Picture();
  const Surface& second = stage_.MP(2).Picture();
  const int top = (600 - first.Height()) / 2;
  EXPECT_EQ(view_.mix.Pixel(450, 300), first.Pixel(first.Width() / 2, 300 - top));
  EXPECT_EQ(view_.mix.Pixel(750, 300), second.Pixel(second.Width() / 2, 300 - top));
  EXPECT_EQ(view_.mix.Pixel(299, 300), 0);
  EXPECT_EQ(view_.mix.Pixel(901, 300), 0);
  transparency_.Show(ShowOption::Transparency);
  stage_.host.Advance(1000);
  EXPECT_TRUE(view_.scrollEnabled);
  EXPECT_EQ(view_.scroll, 128);
}

TEST_F(TransparencyTest, MixFollowsBothVideosOncePerTurn) {
  ASSERT_TRUE(locks_.DualLock(1));
  SetMix(255);
  const int before = view_.mixes;
  locks_.DualControlStep(true);
  EXPECT_EQ(view_.mixes, before);
  stage_.host.Advance(0);
  EXPECT_EQ(view_.mixes, before + 1);
  EXPECT_EQ(Mix(Probe()), Of(2, Probe()));
  EXPECT_EQ(view_.bars.at(1), (std::array{0, 20, 4}));  // the bounds of the lock
  EXPECT_EQ(view_.bars.at(2), (std::array{18, 38, 22}));

  // A shape drawn over a video comes with its picture.
  stage_.painted = [](Canvas& canvas, int slot) {
    if (slot != 2) return;
    canvas.SetBrush(Rgb(1, 2, 3));
    const POINTAPI box[] = {{0, 0}, {4000, 0}, {4000, 4000}, {0, 4000}};
    canvas.Polygon(box);
  };
  stage_.MP(2).Refresh();
  stage_.host.Advance(0);
  EXPECT_EQ(view_.mix.Pixel(600, 300), Rgb(1, 2, 3));
}

TEST_F(TransparencyTest, EachVideoStandsWhereItsPanPutsIt) {
  SetMix(255);
  const Surface& picture = stage_.MP(2).Picture();
  stage_.Stage().CurrentWindow = 2;
  stage_.Stage().Pan(50 * kTwipsPerPixel, -20 * kTwipsPerPixel);
  stage_.host.Advance(0);
  const int left = (1200 - picture.Width()) / 2 + 50;
  EXPECT_EQ(view_.mix.Pixel(left, 300), picture.Pixel(0, 300 - (600 - picture.Height()) / 2 + 20));
  EXPECT_EQ(view_.mix.Pixel(left - 1, 300), 0);
}

TEST_F(TransparencyTest, EachVideoRunsFromItsOwnButtons) {
  transparency_.ControlVideo(1, VideoControl::Forward);
  transparency_.ControlVideo(2, VideoControl::Loop);
  EXPECT_TRUE(view_.playing.at(2));
  stage_.host.Advance(3000);
  EXPECT_TRUE(stage_.MP(2).IsPlaying());
  EXPECT_EQ(stage_.At(1), 4);
  transparency_.ControlVideo(2, VideoControl::Play);
  EXPECT_FALSE(stage_.MP(2).IsPlaying() || view_.playing.at(2));
  transparency_.SeekVideo(2, 7);
  ASSERT_TRUE(locks_.DualLock(1));
  transparency_.SeekVideo(2, 10);
  EXPECT_EQ(stage_.At(2), 10);
  EXPECT_EQ(stage_.At(1), 7);  // comes along
  ASSERT_TRUE(stage_.Videos().CloseVideo(2));
  stage_.EndTurn();
  transparency_.ControlVideo(2, VideoControl::Play);  // empty: nothing to do
  EXPECT_EQ(view_.bars.at(2), (std::array{0, 0, 0}));
  SetMix(255);
  EXPECT_EQ(view_.mix.Pixel(600, 300), 0);
}

}  // namespace
}  // namespace kinalyx
