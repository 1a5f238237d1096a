#include "platform/paint/Layer.h"

#include <array>
#include <random>

#include "support/Surfaces.h"

namespace kinalyx::test {
namespace {

/// Lines, polygons and ellipses as an instructor draws them, each with a black rim beneath.
void PaintShapes(Canvas& canvas, unsigned seed, int count) {
  std::mt19937 random(seed);
  const int width = canvas.Target().Width();
  const int height = canvas.Target().Height();
  const auto below = [&](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
  for (int i = 0; i < count; ++i) {
    std::array<POINTAPI, 4> points;
    for (POINTAPI& point : points) point = {below(width + 60) - 30, below(height + 60) - 30};
    const int line = 1 + below(4);
    for (const bool rim : {true, false}) {
      canvas.SetPen({rim ? 0 : below(0x1000000), rim ? line + 2 : line, 0});
      if (i % 3 == 0) canvas.Polyline(points);
      if (i % 3 == 1) canvas.Polygon(points);
      if (i % 3 == 2) canvas.Ellipse(points[0], points[1]);
    }
  }
}

void ExpectSameAsDirect(int width, int height, int tolerance, const std::function<void(Canvas&)>& paint) {
  SCOPED_TRACE(testing::Message() << width << " x " << height);
  Surface direct = Noise(width, height, 11);
  Surface laid = direct;
  Canvas canvas(direct);
  paint(canvas);
  const Layer layer = Layer::Record(width, height, paint);
  layer.LayOver(laid);
  EXPECT_LE(LargestDifference(direct, laid), tolerance);
  EXPECT_TRUE(IsOpaque(laid));
  EXPECT_NE(LargestDifference(laid, Noise(width, height, 11)), 0) << "something was drawn";
}

TEST(Layer, GivesThePictureThatPaintingWouldGive) {
  // Sizes whose pixel count leaves no, one, two and three pixels after the last four, and tiny ones.
  for (const auto& [width, height] : {std::pair{640, 480}, {137, 125}, {139, 126}, {141, 127}, {3, 1}, {1, 1}})
    ExpectSameAsDirect(width, height, 1, [](Canvas& canvas) { PaintShapes(canvas, 3, 6); });
}

TEST(Layer, CrowdedSoftEdgesStayWithinTwoSteps) {
  for (unsigned seed = 1; seed <= 5; ++seed)
    ExpectSameAsDirect(200, 150, 2, [&](Canvas& canvas) { PaintShapes(canvas, seed, 200); });
}

TEST(Layer, KeepsTheOrderOfRasterModesAndStrokes) {
  const std::array<POINTAPI, 3> triangle = {{{20, 10}, {150, 90}, {5, 110}}};
  // Upright lines have no soft edges, so every pixel must agree.
  const auto cross = [](Canvas& canvas, Colour colour) {
    canvas.SetPen({colour, 6, 0});
    canvas.Line({-20, 60}, {180, 60});
    canvas.Line({80, -20}, {80, 140});
  };
  ExpectSameAsDirect(160, 120, 0, [&](Canvas& canvas) {
    cross(canvas, Rgb(77, 200, 13));
    canvas.SetROP2(Rop2::MergePen);
    canvas.SetPen({Rgb(10, 200, 90), 5, 0});
    canvas.SetBrush(Rgb(90, 10, 200));
    canvas.Polygon(triangle);
    canvas.SetBrush(std::nullopt);
    canvas.Line({0, 119}, {159, 0});
    canvas.SetROP2(Rop2::CopyPen);
    canvas.SetPen({Rgb(1, 2, 3), 2, 0});
    canvas.Line({-20, 90}, {180, 90});
  });
}

TEST(Layer, LeavesAloneWhatItDoesNotTouch) {
  const auto nothing = [](Canvas&) {};
  const auto outside = [](Canvas& canvas) { canvas.Line({-9, -9}, {-20, 30}); };
  const auto line = [](Canvas& canvas) { canvas.Line({0, 0}, {9, 9}); };
  Surface picture = Noise(50, 40, 9);
  const Surface before = picture;
  const Layer empty[] = {Layer(), Layer::Record(50, 40, nothing), Layer::Record(50, 40, outside),
                         Layer::Record(0, 40, line)};
  for (const Layer& layer : empty) {
    EXPECT_TRUE(layer.Empty());
    EXPECT_EQ(layer.Bytes(), 0u);
    layer.LayOver(picture);
  }
  const Layer ofAnotherSize[] = {Layer::Record(40, 50, line), Layer::Record(50, 39, line)};
  for (const Layer& layer : ofAnotherSize) {
    EXPECT_GT(layer.Bytes(), 0u);
    layer.LayOver(picture);
  }
  EXPECT_EQ(LargestDifference(picture, before), 0);
}

}  // namespace
}  // namespace kinalyx::test
