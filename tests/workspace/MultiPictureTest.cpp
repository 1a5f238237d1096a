#include "workspace/compare/MultiPicture.h"

#include <gtest/gtest.h>

#include "AnalysisStage.h"
#include "support/Pictures.h"

namespace kinalyx {
namespace {

using test::AnalysisStage;
using test::LoadPicture;
using test::RawVideo;
using test::TestPath;

class MultiPictureTest : public testing::Test {
 protected:
  void SetUp() override {
    // Every picture is one colour that tells its position.
    stage_.painted = [this](Canvas& canvas, int slot) { Fill(canvas, Rgb(stage_.At(slot) + 1, 100, 200)); };
  }
  static void Fill(Canvas& canvas, Colour colour) {
    canvas.SetBrush(colour);
    const POINTAPI box[] = {{-9, -9}, {4000, -9}, {4000, 4000}, {-9, 4000}};
    canvas.Polygon(box);
  }
  void Enter(int frames, int position, const std::string& skip) {
    ASSERT_TRUE(stage_.Open(1, RawVideo(frames), position));
    strip_.setSkipBox(skip);
    strip_.ToggleStrip();
    ASSERT_TRUE(strip_.Shown());
    ASSERT_EQ(strip_.PictureCount(), 9);
    stage_.host.Advance(0);
  }
  /// The positions whose pictures the strip holds; -1 for black.
  std::vector<int> Pictures() const {
    std::vector<int> found;
    for (int k = 0; k < strip_.PictureCount(); ++k)
      found.push_back(Red(strip_.Strip().Pixel(k * strip_.PictureWidth() + 2, strip_.PictureHeight() / 2)) - 1);
    return found;
  }

  AnalysisStage stage_{"2", 1200, 600};
  MultiPicture& strip_ = stage_.Modes().Strip();
};

TEST_F(MultiPictureTest, StripComesFromWhereverThereAreFramesEnough) {
  const struct {
    int frames, position;
    const char* skip;
    std::vector<int> pictures;
    int stands;
  } cases[] = {
      {40, 30, "3", {6, 9, 12, 15, 18, 21, 24, 27, 30}, 30},       // enough before the position
      {40, 18, "3 ", {15, 18, 21, 24, 27, 30, 33, 36, 39}, 39},    // too few before and after: ends at the end
      {60, 10, "3", {0, 3, 6, 9, 12, 15, 18, 21, 24}, 24},         // too few before: begins at the first
      {12, 5, "3", {-1, -1, -1, -1, -1, 2, 5, 8, 11}, 11},         // too short: what there is
      {40, 30, "none", {22, 23, 24, 25, 26, 27, 28, 29, 30}, 30},  // no number counts as one
  };
  for (const auto& wish : cases) {
    Enter(wish.frames, wish.position, wish.skip);
    EXPECT_EQ(Pictures(), wish.pictures) << wish.frames << " frames at " << wish.position;
    EXPECT_EQ(stage_.At(1), wish.stands);
    strip_.LeaveStrip();
  }
}

TEST_F(MultiPictureTest, StripRunsWithItsVideo) {
  Enter(40, 30, "2");
  stage_.MP(1).DrawFrame(31);
  stage_.MP(1).DrawFrame(32);
  EXPECT_EQ(Pictures(), (std::vector{18, 20, 22, 24, 26, 28, 30, 31, 32})) << "every frame comes in";
  // A drawing on the frame comes into its picture and moves nothing.
  stage_.painted = [](Canvas& canvas, int) { Fill(canvas, Rgb(9, 8, 7)); };
  stage_.MP(1).Refresh();
  const int last = 8 * strip_.PictureWidth();
  EXPECT_EQ(strip_.Strip().Pixel(last + 3, 40), Rgb(9, 8, 7));
  EXPECT_NE(strip_.Strip().Pixel(last - 3, 40), Rgb(9, 8, 7));
}

TEST_F(MultiPictureTest, PicturesShowTheMiddleOrTheCarvedSquare) {
  Enter(40, 30, "3");
  const Surface& picture = stage_.MP(1).Picture();
  EXPECT_NEAR(strip_.SourceLeft() + strip_.PictureWidth() / 2.0, picture.Width() / 2.0, 2);
  EXPECT_NEAR(strip_.SourceTop() + strip_.PictureHeight() / 2.0, picture.Height() / 2.0, 2);
  EXPECT_FALSE(strip_.TakeSquare(1, {10, 10}, {100, 100}));  // nobody asked
  strip_.CarveNew();
  ASSERT_EQ(stage_.host.messages.size(), 1u);
  EXPECT_EQ(stage_.host.messages[0],
            "\"New Carve\" Active. Click on the video to draw a square around the area that you want to create a "
            "MultiPicture.");
  stage_.Click(1, 160, 90);
  stage_.Click(1, 60, 190);
  EXPECT_EQ(stage_.Shapes().NumShapes, 0) << "the square is no drawing";
  stage_.host.Advance(0);
  EXPECT_NEAR(strip_.SourceLeft(), 60, 1);
  EXPECT_NEAR(strip_.SourceTop(), 90, 1);
  EXPECT_NEAR(strip_.PictureWidth(), 100, 1);
  EXPECT_EQ(strip_.PictureCount(), 7);  // as many as fit 1200 pixels at 165 each
  EXPECT_EQ(Pictures(), (std::vector{12, 15, 18, 21, 24, 27, 30}));
}

TEST_F(MultiPictureTest, ZoomAndPanMakeTheStripAnew) {
  Enter(60, 10, "3");
  const int left = strip_.SourceLeft();
  stage_.Stage().SetZoom(2);
  stage_.host.Advance(0);
  EXPECT_GT(strip_.SourceLeft(), left);
  // A pan leaves the size; the strip follows all the same.
  const int before = stage_.compareView.strips;
  stage_.Stage().Pan(20 * kTwipsPerPixel, 0);
  stage_.host.Advance(0);
  EXPECT_EQ(stage_.compareView.strips, before + 1);
  // Still the strip of the same moment, although the video stands at the strip's end by now.
  EXPECT_EQ(Pictures(), (std::vector{0, 3, 6, 9, 12, 15, 18, 21, 24}));
  // Once the video has gone on, it is the strip of where it has come to.
  stage_.MP(1).DrawFrame(25);
  stage_.MP(1).DrawFrame(45);
  stage_.Stage().SetZoom(1);
  stage_.host.Advance(0);
  EXPECT_EQ(Pictures(), (std::vector{21, 24, 27, 30, 33, 36, 39, 42, 45}));
}

TEST_F(MultiPictureTest, StripIsSaved) {
  strip_.ToggleStrip();
  EXPECT_FALSE(strip_.Shown());  // an empty window
  Enter(40, 30, "3");
  const std::string path = TestPath("strip.PNG");
  EXPECT_TRUE(strip_.SavePicture(path));
  EXPECT_EQ(LoadPicture(path).Width(), 9 * strip_.PictureWidth());
}

TEST(MultiPictureCell, LeavesTheTopToTheStrip) {
  EXPECT_EQ(CellBeneathStrip(18000, 9000, false), (TwipRect{3000, 2655, 11999, 9000 - 2655}));
  EXPECT_EQ(CellBeneathStrip(18000, 9000, true).Width, 16000);
  EXPECT_EQ(CellBeneathStrip(9600, 13500, false).Height, 7200 - 2655);
}

}  // namespace
}  // namespace kinalyx
