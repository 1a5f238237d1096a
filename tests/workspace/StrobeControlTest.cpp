#include "workspace/compare/StrobeControl.h"

#include <gtest/gtest.h>

#include "AnalysisStage.h"

namespace kinalyx {
namespace {

using test::AnalysisStage;
using test::RawVideo;
using test::TestPath;

class FakeStrobeView final : public IStrobeView {
 public:
  void SetCaption(StrobeButton button, const std::string& caption) override {
    captions[static_cast<std::size_t>(button)] = caption;
  }
  void SetSlider(int lowest, int highest, int value) override { slider = {lowest, highest, value}; }
  void SetObstacle(const std::string&) override {}
  void SetResult(bool there) override { result = there; }

  std::array<std::string, 3> captions;
  std::array<int, 3> slider{};
  bool result = false;
};

class StrobeControlTest : public testing::Test {
 protected:
  using Captions = std::array<std::string, 3>;

  void SetUp() override {
    ASSERT_TRUE(stage_.Open(1, RawVideo(40), 6));
    strobe_.ChooseStep(1);  // every second frame, a layer each 100 ms
    ASSERT_EQ(strobe_.StrobeStep(), 2);
  }

  AnalysisStage stage_{"2"};
  StrobeControl& strobe_ = stage_.Modes().Strobe();
  FakeStrobeView view_;
};

TEST_F(StrobeControlTest, QuickStrobeRunsToTheEndAndASecondPressStopsIt) {
  strobe_.ToggleStrobe();
  stage_.host.Advance(350);
  const int at = stage_.At(1);
  EXPECT_GT(at, 6);
  strobe_.ToggleStrobe();
  EXPECT_FALSE(strobe_.StrobeRunning());
  stage_.host.Advance(2000);
  EXPECT_EQ(stage_.At(1), at);
  EXPECT_TRUE(strobe_.HasResult());  // what there is stays

  // The button that shows it is told of every end, also of one that comes by itself.
  stage_.EndTurn();
  const int told = stage_.window.updates;
  stage_.MP(1).DrawFrame(20);
  EXPECT_FALSE(strobe_.HasResult() || strobe_.SavePicture(TestPath("none.png")));
  strobe_.ToggleStrobe();
  stage_.host.Advance(5000);
  EXPECT_FALSE(strobe_.StrobeRunning());
  EXPECT_GE(stage_.At(1), 36);
  EXPECT_EQ(stage_.window.updates, told + 2);
}

TEST_F(StrobeControlTest, WindowChoosesStartAndEnd) {
  strobe_.SetWindow(&view_);
  EXPECT_EQ(view_.captions, (Captions{"Start Here", "End Here", "Strobe"}));
  EXPECT_EQ(view_.slider, (std::array{0, 39, 6}));
  strobe_.SeekTo(10);
  EXPECT_EQ(stage_.At(1), 10);
  strobe_.PressButton(StrobeButton::Start);
  strobe_.SeekTo(5);
  strobe_.PressButton(StrobeButton::End);
  EXPECT_EQ(view_.captions, (Captions{"Start at 10", "End at 5", "Strobe"}));
  strobe_.PressButton(StrobeButton::Strobe);  // the end lies before the start
  EXPECT_FALSE(strobe_.StrobeRunning());

  strobe_.SeekTo(20);
  strobe_.PressButton(StrobeButton::End);
  strobe_.PressButton(StrobeButton::Strobe);
  EXPECT_EQ(view_.captions[2], "Stop");
  EXPECT_FALSE(view_.result);
  stage_.host.Advance(5000);
  EXPECT_EQ(view_.captions[2], "Strobe");
  EXPECT_TRUE(view_.result);
  EXPECT_LE(stage_.At(1), 20);
  EXPECT_GE(stage_.At(1), 16);

  // Frames are raw where fields are split.
  stage_.Videos().ToggleSplitFields();
  strobe_.SetWindow(&view_);
  stage_.MP(1).DrawFrame(31);
  strobe_.PressButton(StrobeButton::Start);
  EXPECT_EQ(view_.captions, (Captions{"Start at 31", "End Here", "Strobe"}));
  strobe_.PressButton(StrobeButton::Strobe);  // no end chosen: to the last frame
  stage_.host.Advance(5000);
  EXPECT_GE(stage_.At(1) / 2, 36);
}

TEST_F(StrobeControlTest, AnotherWindowOrVideoResets) {
  ASSERT_TRUE(stage_.Open(2, RawVideo(25), 3));
  strobe_.SetWindow(&view_);
  strobe_.PressButton(StrobeButton::Start);
  strobe_.PressButton(StrobeButton::Strobe);
  // What happens to the stage and to other windows is none of its business.
  stage_.Stage().ToggleMaximize();
  stage_.Stage().ToggleMaximize();
  stage_.Stage().SetScreen(4);
  ASSERT_TRUE(stage_.Open(2, RawVideo(25), 3));
  ASSERT_TRUE(stage_.Open(3, RawVideo(25)));
  ASSERT_TRUE(stage_.Videos().CloseVideo(3));
  EXPECT_TRUE(strobe_.StrobeRunning());
  EXPECT_EQ(view_.captions, (Captions{"Start at 6", "End Here", "Stop"}));
  ASSERT_TRUE(stage_.Open(1, RawVideo(30)));
  EXPECT_FALSE(strobe_.StrobeRunning());
  EXPECT_EQ(view_.captions[0], "Start Here");

  strobe_.PressButton(StrobeButton::End);
  strobe_.PressButton(StrobeButton::Strobe);
  stage_.Stage().SelectWindow(2);
  stage_.EndTurn();
  EXPECT_FALSE(strobe_.StrobeRunning());
  EXPECT_EQ(view_.captions, (Captions{"Start Here", "End Here", "Strobe"}));
  EXPECT_EQ(view_.slider, (std::array{0, 24, 3}));
  strobe_.PressButton(StrobeButton::Strobe);
  ASSERT_TRUE(stage_.Videos().CloseVideo(2));
  strobe_.ToggleStrobe();  // an empty window
  EXPECT_FALSE(strobe_.StrobeRunning());
}

}  // namespace
}  // namespace kinalyx
