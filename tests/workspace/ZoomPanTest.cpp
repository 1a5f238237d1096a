#include "workspace/compare/ZoomPan.h"

#include <gtest/gtest.h>

#include "AnalysisStage.h"
#include "workspace/stage/PlayerPlace.h"

namespace kinalyx {
namespace {

using test::AnalysisStage;
using test::RawVideo;

class ZoomPanTest : public testing::Test {
 protected:
  void SetUp() override {
    for (const int slot : {1, 2}) ASSERT_TRUE(stage_.Open(slot, RawVideo(10)));
  }

  AnalysisStage stage_{"2"};
  ZoomPan& zoom_ = stage_.Modes().Zoom();
};

TEST_F(ZoomPanTest, ButtonsDoWhatTheKeysDo) {
  const Slot& slot = stage_.Stage().At(1);
  const std::pair<double, double> panned[] = {{0, -50}, {50, 0}, {0, 50}, {-50, 0}, {0, 0}};
  for (int index = 0; index < 5; ++index) {
    zoom_.BeginPan(static_cast<PanMove>(index));
    zoom_.EndPan();
    EXPECT_EQ(std::pair(slot.PanX, slot.PanY), panned[index]) << index;
    stage_.Stage().ResetZoom();
  }
  for (const auto& [move, zoomed] : {std::pair{0, 0.9}, {0, 0.8}, {1, 0.9}, {2, 1.0}}) {
    zoom_.Zoom(static_cast<ZoomMove>(move));
    EXPECT_DOUBLE_EQ(slot.VideoZoom, zoomed) << move;
  }
}

TEST_F(ZoomPanTest, WheelKeepsThePointUnderThePointer) {
  stage_.Stage().At(1).PanX = 333;
  stage_.Stage().MPResize(1);
  // A point of the picture, and where it is in the cell.
  double part = 0.3;
  for (const int notches : {1, 1, 5, 40, -3, -100}) {
    const TwipRect before = PlayerPlace(stage_.Stage().At(1));
    const double x = part * before.Width;
    const double y = part * before.Height;
    zoom_.Wheel(1, static_cast<float>(x / kTwipsPerPixel), static_cast<float>(y / kTwipsPerPixel), notches);
    const TwipRect after = PlayerPlace(stage_.Stage().At(1));
    EXPECT_NEAR(after.Left + part * after.Width, before.Left + x, kTwipsPerPixel);
    EXPECT_NEAR(after.Top + part * after.Height, before.Top + y, kTwipsPerPixel);
    part += 0.1;
  }
  EXPECT_DOUBLE_EQ(stage_.Stage().At(1).VideoZoom, 0.2);
  zoom_.Wheel(1, 5, 5, 100);
  EXPECT_DOUBLE_EQ(stage_.Stage().At(1).VideoZoom, 4.0);
  zoom_.Wheel(3, 5, 5, 1);  // an empty window
}

TEST_F(ZoomPanTest, TheMiddleButtonTakesThePictureAlong) {
  Slot& slot = stage_.Stage().At(2);
  slot.VideoZoom = 2;
  stage_.Stage().MPResize(2);
  const POINTAPI before = PlayerCorner(slot);
  // Over the picture, which moves beneath the pointer.
  const auto moveTo = [&](int x, int y) { stage_.Move(2, x - PlayerCorner(slot).x, y - PlayerCorner(slot).y); };
  stage_.Press(2, 100 - before.x, 100 - before.y, 4);
  moveTo(130, 90);
  moveTo(140, 60);
  stage_.Release(2, 0, 0, 4);
  moveTo(500, 500);
  EXPECT_NEAR(PlayerCorner(slot).x - before.x, 40, 1);
  EXPECT_NEAR(PlayerCorner(slot).y - before.y, -40, 1);
  EXPECT_EQ(stage_.Stage().CurrentWindow, 1);
}

TEST_F(ZoomPanTest, APictureFitsOrFillsAndSaysWhatIsNotSeen) {
  // Two windows side by side are higher than wide.
  const Slot& slot = stage_.Stage().At(1);
  EXPECT_TRUE(ReachesOver(slot));
  EXPECT_EQ(stage_.window.zooms[1], "Sides cut off");
  stage_.Type('w');
  EXPECT_TRUE(slot.Fits && !ReachesOver(slot));
  EXPECT_NEAR(PlayerPlace(slot).Width, slot.panel.Width, kTwipsPerPixel);
  EXPECT_EQ(stage_.window.zooms[1], "");
  EXPECT_FALSE(stage_.Stage().At(2).Fits);
  stage_.Type('+');
  EXPECT_EQ(stage_.window.zooms[1], "110 %");
  stage_.Type('w');
  EXPECT_EQ(slot.VideoZoom, 1);

  // The setting is for those to come, and for all when it changes.
  stage_.settings.VideoFit = 1;
  stage_.analysis.SettingsChanged();
  EXPECT_TRUE(slot.Fits && stage_.Stage().At(2).Fits);
  ASSERT_TRUE(stage_.Reopen(2));
  EXPECT_TRUE(stage_.Stage().At(2).Fits);
}

TEST_F(ZoomPanTest, TheFreeHandMovesWhatIsLargerThanItsWindowAndLeavesNoGap) {
  Slot& slot = stage_.Stage().At(1);
  stage_.Stage().SetFits(1, true);
  const auto drag = [&](int dx, int dy) {
    const POINTAPI before = PlayerCorner(slot);
    stage_.Press(1, 100 - before.x, 100 - before.y);
    for (const int part : {1, 2, 4})
      stage_.Move(1, 100 + dx * part / 4 - PlayerCorner(slot).x, 100 + dy * part / 4 - PlayerCorner(slot).y);
    stage_.Release(1, 0, 0);
    return POINTAPI{PlayerCorner(slot).x - before.x, PlayerCorner(slot).y - before.y};
  };
  EXPECT_EQ(drag(60, 60), (POINTAPI{0, 0})) << "all of it is seen";
  slot.VideoZoom = 4;
  stage_.Stage().MPResize(1);
  EXPECT_EQ(drag(2, 0), (POINTAPI{0, 0})) << "a click";
  const POINTAPI moved = drag(40, -30);
  EXPECT_NEAR(moved.x, 40, 1);
  EXPECT_NEAR(moved.y, -30, 1);
  drag(20000, 20000);
  EXPECT_NEAR(PlayerPlace(slot).Left, 0, kTwipsPerPixel);
  EXPECT_NEAR(PlayerPlace(slot).Top, 0, kTwipsPerPixel);
  zoom_.PanBy(1, -30000, -10);
  EXPECT_NEAR(PlayerPlace(slot).Left, slot.panel.Width - PlayerPlace(slot).Width, kTwipsPerPixel);
  EXPECT_NEAR(PlayerPlace(slot).Top, -10 * kTwipsPerPixel, kTwipsPerPixel);
  // With a tool in hand the button draws.
  const TwipRect before = PlayerPlace(slot);
  stage_.Key(kKeyF1 + int{kLine});
  drag(40, 40);
  EXPECT_EQ(PlayerPlace(slot), before);
}

}  // namespace
}  // namespace kinalyx
