#include "workspace/ZoomPan.h"

#include <gtest/gtest.h>

#include "CompareStage.h"
#include "workspace/PlayerPlace.h"

namespace kinalyx {
namespace {

using test::CompareStage;
using test::RawVideo;

class ZoomPanTest : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(stage_.Open(1, RawVideo(10)));
    ASSERT_TRUE(stage_.Open(2, RawVideo(10)));
  }

  CompareStage stage_{"2"};
  std::vector<int> downs_;
  std::string presses_;
  ZoomPan zoom_{stage_.host, stage_.workspace, [this](int key) { downs_.push_back(key); },
                [this](int key) { presses_ += static_cast<char>(key); }};
};

TEST_F(ZoomPanTest, ButtonsPressTheirKeysAndRepeatWhileHeld) {
  for (const int index : {0, 1, 2}) zoom_.ZoomBtn_Click(index);
  EXPECT_EQ(presses_, "-+");
  EXPECT_EQ(downs_, (std::vector{101}));
  downs_.clear();
  for (int index = 0; index < 5; ++index) {
    zoom_.PanBtn_MouseDown(index);
    zoom_.PanBtn_MouseUp();
  }
  EXPECT_EQ(downs_, (std::vector{104, 102, 98, 100, 101}));
  downs_.clear();
  zoom_.PanBtn_MouseDown(3);
  stage_.host.Advance(1000);
  const std::size_t held = downs_.size();
  EXPECT_GT(held, 10u);
  zoom_.PanBtn_MouseUp();
  stage_.host.Advance(1000);
  EXPECT_EQ(downs_.size(), held);
}

TEST_F(ZoomPanTest, WheelKeepsThePointUnderThePointer) {
  stage_.workspace.At(1).PanX = 333;
  stage_.workspace.MPResize(1);
  const double otherZoom = stage_.workspace.At(2).VideoZoom;
  // A point of the picture, and where it is in the cell.
  double part = 0.3;
  for (const int notches : {1, 1, 5, 40, -3, -100}) {
    const TwipRect before = PlayerPlace(stage_.workspace.At(1));
    const double x = part * before.Width;
    const double y = part * before.Height;
    zoom_.Wheel(1, static_cast<float>(x / kTwipsPerPixel), static_cast<float>(y / kTwipsPerPixel), notches);
    const TwipRect after = PlayerPlace(stage_.workspace.At(1));
    EXPECT_NEAR(after.Left + part * after.Width, before.Left + x, kTwipsPerPixel);
    EXPECT_NEAR(after.Top + part * after.Height, before.Top + y, kTwipsPerPixel);
    part += 0.1;
  }
  EXPECT_DOUBLE_EQ(stage_.workspace.At(1).VideoZoom, 0.2);
  zoom_.Wheel(1, 5, 5, 100);
  EXPECT_DOUBLE_EQ(stage_.workspace.At(1).VideoZoom, 4.0);
  EXPECT_DOUBLE_EQ(stage_.workspace.At(2).VideoZoom, otherZoom);
  zoom_.Wheel(3, 5, 5, 1);  // an empty window
}

TEST_F(ZoomPanTest, MiddleDragTakesThePictureAlong) {
  stage_.workspace.At(2).VideoZoom = 2;
  stage_.workspace.MPResize(2);
  const POINTAPI before = PlayerCorner(stage_.workspace.At(2));
  // Over the picture, which moves beneath the pointer.
  const auto moveTo = [&](int x, int y) {
    const POINTAPI corner = PlayerCorner(stage_.workspace.At(2));
    zoom_.DragMove(static_cast<float>(x - corner.x), static_cast<float>(y - corner.y));
  };
  zoom_.DragBegin(2, static_cast<float>(100 - before.x), static_cast<float>(100 - before.y));
  moveTo(130, 90);
  moveTo(140, 60);
  zoom_.DragEnd();
  moveTo(500, 500);
  const POINTAPI after = PlayerCorner(stage_.workspace.At(2));
  EXPECT_NEAR(after.x - before.x, 40, 1);
  EXPECT_NEAR(after.y - before.y, -40, 1);
}

}  // namespace
}  // namespace kinalyx
