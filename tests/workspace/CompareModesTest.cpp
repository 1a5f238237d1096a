#include "workspace/CompareModes.h"

#include <gtest/gtest.h>

#include "CompareStage.h"
#include "FakeCompareView.h"

namespace kinalyx {
namespace {

using test::CompareStage;
using test::FakeCompareView;
using test::RawVideo;

class CompareModesTest : public testing::Test {
 protected:
  void SetUp() override {
    stage_.signalled = [this](int slot) { modes_.Signal(slot); };
    stage_.notified = [this](int slot) { modes_.Notify(slot); };
    stage_.closing = [this](int slot) { modes_.VideoClosing(slot); };
    stage_.stateChanged = [this] { modes_.StateChanged(); };
    stage_.workspace.FocusChanged = [this] { modes_.FocusChanged(); };
    stage_.workspace.PlayerResized = [this](int slot) { modes_.PlayerResized(slot); };
    modes_.Transparency().Resize(1200, 600);
    ASSERT_TRUE(stage_.Open(1, RawVideo(40), 10));
    ASSERT_TRUE(stage_.Open(2, RawVideo(40), 15));
  }

  CompareStage stage_{"2"};
  FakeCompareView view_;
  std::vector<int> keys_;
  CompareModes modes_{stage_.host, stage_.settings, stage_.scheduler, stage_.workspace, view_,
                      {[this](int key) { keys_.push_back(key); }, [](int) {}}};
};

TEST_F(CompareModesTest, DualControlsFollowLockAndFocus) {
  modes_.ShowDual();
  EXPECT_FALSE(view_.dual.shown);
  EXPECT_TRUE(view_.dual.canLock);
  EXPECT_FALSE(view_.dual.canLockAll);
  int told = 0;
  modes_.LocksChanged = [&] { ++told; };
  ASSERT_TRUE(modes_.Locks().cmdDualPlay());
  EXPECT_EQ(told, 1);
  EXPECT_TRUE(view_.dual.shown && view_.dual.locked);
  EXPECT_EQ(view_.dual.lowest, 0);
  EXPECT_EQ(view_.dual.highest, 33);
  EXPECT_EQ(view_.dual.line, "10 + 15");
  modes_.Locks().DualControl_Click(1);
  EXPECT_EQ(view_.dual.line, "11 + 16");
  EXPECT_EQ(view_.dual.position, 11);
  stage_.workspace.SelectWindow(2);
  EXPECT_EQ(view_.dual.position, 16);
  modes_.Locks().PlayTogether();
  EXPECT_TRUE(view_.dual.playing);
  ASSERT_TRUE(stage_.workspace.CloseVideo(1));
  EXPECT_FALSE(view_.dual.shown);
  EXPECT_FALSE(view_.dual.playing);
}

TEST_F(CompareModesTest, EscapeLeavesOneModeAfterTheOther) {
  modes_.Transparency().STM_Click();
  EXPECT_TRUE(view_.dual.shown);  // the dual controls belong to the mode
  modes_.TASF_Click();
  EXPECT_TRUE(view_.strobe);
  modes_.Strobe().StrobeBtn_Click();
  ASSERT_TRUE(modes_.Strobe().StrobeRunning());
  EXPECT_TRUE(modes_.Escape());
  EXPECT_FALSE(modes_.Strobe().StrobeRunning());
  EXPECT_TRUE(view_.transparency);
  EXPECT_TRUE(modes_.Escape());
  EXPECT_FALSE(view_.transparency);
  EXPECT_FALSE(modes_.Escape());
  modes_.Carving().TTCarve();
  EXPECT_TRUE(modes_.Escape());
  EXPECT_FALSE(view_.carve);
  modes_.Strip().smbar_Click();
  EXPECT_TRUE(view_.strip);
  EXPECT_TRUE(modes_.Escape());
  EXPECT_FALSE(view_.strip);
}

TEST_F(CompareModesTest, OneFrameReachesMixAndPiece) {
  modes_.Transparency().STM_Click();
  modes_.Carving().TTCarve();
  modes_.Carving().CarvePic_MouseDown({0, 0});
  modes_.Carving().CarvePic_MouseUp({300, 200});
  stage_.host.Advance(0);
  stage_.painted = [](Canvas& canvas, int slot) {
    if (slot != 1) return;
    canvas.SetBrush(Rgb(200, 100, 50));
    const POINTAPI box[] = {{-9, -9}, {4000, -9}, {4000, 4000}, {-9, 4000}};
    canvas.Polygon(box);
  };
  modes_.Transparency().TransScroll_Scroll(0);
  stage_.MP(1).DrawFrame(12);
  stage_.host.Advance(0);
  EXPECT_EQ(view_.mix.Pixel(600, 300), Rgb(200, 100, 50));
  EXPECT_EQ(view_.piece.Pixel(10, 10), Rgb(200, 100, 50));
}

TEST_F(CompareModesTest, LeavingTheSectionLeavesNothingBehind) {
  ASSERT_TRUE(modes_.Locks().cmdDualPlay());
  modes_.Transparency().STM_Click();
  modes_.TASF_Click();
  modes_.TZP_Click();
  modes_.Locks().PlayTogether();
  modes_.CloseAll();
  EXPECT_FALSE(view_.transparency || view_.strobe || view_.zoom || view_.dual.shown);
  EXPECT_FALSE(modes_.Locks().IsLocked(1));
  const int at = stage_.At(1);
  stage_.host.Advance(1000);
  EXPECT_EQ(stage_.At(1), at);
  EXPECT_EQ(stage_.host.TimerCount(), 0u);
}

}  // namespace
}  // namespace kinalyx
