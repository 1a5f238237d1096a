#include "workspace/compare/Carve.h"

#include <gtest/gtest.h>

#include "AnalysisStage.h"

namespace kinalyx {
namespace {

using test::AnalysisStage;
using test::FakeCompareView;
using test::RawVideo;

class CarveTest : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(stage_.Open(1, RawVideo(30), 4));
    carve_.ToggleCarve();
    ASSERT_TRUE(view_.carve);
    ASSERT_EQ(view_.carvePic, 1);
  }
  void MarkArea(POINTAPI from, POINTAPI to) {
    carve_.BeginMark(from);
    carve_.MoveMark(to);
    carve_.EndMark(to);
  }
  /// The piece shows the area of the picture from this corner.
  void ExpectPiece(int left, int top) {
    int wrong = 0;
    for (int y = 0; y < view_.piece.Height(); ++y)
      for (int x = 0; x < view_.piece.Width(); ++x)
        wrong += view_.piece.Pixel(x, y) != stage_.MP(1).Picture().Pixel(left + x, top + y);
    EXPECT_EQ(wrong, 0);
  }

  AnalysisStage stage_{"2"};
  FakeCompareView& view_ = stage_.compareView;
  Carve& carve_ = stage_.Modes().Carving();
};

TEST_F(CarveTest, MarkedAreaFloatsAndFollowsItsVideo) {
  MarkArea({100, 100}, {103, 101});
  EXPECT_FALSE(carve_.Floating());
  EXPECT_EQ(view_.carvePic, 1) << "a mere click: still waiting";
  carve_.BeginMark({200, 150});
  carve_.MoveMark({120, 90});
  EXPECT_EQ(view_.mark, (std::array{120, 90, 80, 60}));  // also drawn backwards
  carve_.EndMark({120, 90});
  EXPECT_TRUE(carve_.Floating());
  EXPECT_EQ(view_.carvePic, 0);
  EXPECT_EQ(view_.piece.Width(), 80);
  EXPECT_EQ(view_.piece.Height(), 60);
  const int before = view_.pieces;
  stage_.MP(1).DrawFrame(20);
  stage_.MP(1).DrawFrame(21);
  stage_.host.Advance(0);
  EXPECT_EQ(view_.pieces, before + 1);
  ExpectPiece(120, 90);

  carve_.MarkAnew();
  EXPECT_TRUE(view_.piece.Empty());
  MarkArea({-50, -50}, {5000, 5000});  // beyond the picture: all of it
  EXPECT_EQ(view_.piece.Width(), stage_.MP(1).ControlWidthPixels());
  ASSERT_TRUE(stage_.Videos().CloseVideo(1));
  EXPECT_TRUE(view_.piece.Empty());
  carve_.ToggleCarve();
  EXPECT_FALSE(view_.carve) << "nothing is marked in an empty window";
}

TEST_F(CarveTest, PieceIsDraggedAndScaledAboutItsMiddle) {
  MarkArea({100, 100}, {180, 160});
  const POINTAPI corner = view_.corner;
  carve_.GrabPiece({corner.x + 7, corner.y + 9});
  carve_.DragPiece({corner.x + 57, corner.y - 11});
  carve_.ReleasePiece();
  EXPECT_EQ(view_.corner, (POINTAPI{corner.x + 50, corner.y - 20}));
  carve_.ScalePiece(200);
  EXPECT_EQ(view_.piece.Width(), 160);
  EXPECT_EQ(view_.corner, (POINTAPI{corner.x + 10, corner.y - 50}));
  carve_.ScalePiece(9999);
  EXPECT_EQ(carve_.CScroll(), Carve::kLargest);
  // A zoomed video gives the same part of its picture.
  carve_.ScalePiece(100);
  stage_.MP(1).Resize(stage_.MP(1).ControlWidthPixels() / 2, stage_.MP(1).ControlHeightPixels() / 2);
  stage_.host.Advance(0);
  EXPECT_EQ(view_.piece.Width(), 40);
  ExpectPiece(50, 50);
}

}  // namespace
}  // namespace kinalyx
