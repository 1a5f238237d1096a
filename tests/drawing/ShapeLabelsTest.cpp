// The figures beside drawings.

#include "drawing/ShapeLabels.h"

#include <gtest/gtest.h>

namespace kinalyx {
namespace {

Shape Drawn(ShapeKind kind, std::vector<POINTAPI> points) {
  Shape shape;
  shape.Kind = kind;
  shape.NumBound = shape.NumPts = static_cast<std::int16_t>(points.size());
  shape.Pts = std::move(points);
  shape.Locked = true;
  return shape;
}

std::string Label(const Shape& shape, const MeasureScale& scale = {}) {
  const auto label = LabelOf(shape, scale);
  return label ? label->Text : "";
}

TEST(ShapeLabels, ALineReadsTheSameWhicheverWayItWasDrawn) {
  // Four mirror images of one line, both ways: 300 right, 173 up.
  for (const auto& [x, y] : {std::pair{300, 173}, {300, -173}, {-300, 173}, {-300, -173}}) {
    EXPECT_EQ(Label(Drawn(kLine, {{400, 300}, {400 + x, 300 + y}})), "30.0°");
    EXPECT_EQ(Label(Drawn(kArrow, {{400, 300}, {400 + x, 300 + y}}), {.FromUpright = true}), "60.0°");
  }
  const auto level = LabelOf(Drawn(kLine, {{0, 50}, {100, 50}}), {});
  EXPECT_LT(level->Middle.y, 50) << "above the line";
  EXPECT_GT(LabelOf(Drawn(kLine, {{50, 100}, {50, 0}}), {})->Middle.x, 50) << "beside a line that stands";
  EXPECT_EQ(Label(Drawn(kLine, {{7, 7}, {7, 7}})), "");
}

TEST(ShapeLabels, LengthsAreInTheUnitOfTheRuler) {
  const Shape line = Drawn(kLine, {{0, 0}, {0, 100}});
  EXPECT_EQ(Label(line, {.PixelsPerInch = 2, .Unit = kInches}), "50.0 in  90.0°");
  EXPECT_EQ(Label(line, {.PixelsPerInch = 2, .Unit = kFeet}), "4.17 ft  90.0°");
  EXPECT_EQ(Label(line, {.PixelsPerInch = 2, .Unit = kCentimetres}), "127 cm  90.0°");
  EXPECT_EQ(Label(line, {.PixelsPerInch = 2, .Unit = kMetres}), "1.27 m  90.0°");
  EXPECT_EQ(Label(line), "90.0°") << "pixels would be others in every window";
}

TEST(ShapeLabels, AnAngleIsReadAtItsCorner) {
  EXPECT_EQ(Label(Drawn(kAngle, {{200, 100}, {100, 100}, {100, 50}})), "90.0°");
  EXPECT_EQ(Label(Drawn(kAngle, {{100, 50}, {100, 100}, {200, 100}})), "90.0°");
  EXPECT_EQ(Label(Drawn(kAngle, {{0, 100}, {100, 100}, {200, 100}})), "180.0°");
  const auto label = LabelOf(Drawn(kAngle, {{200, 100}, {100, 100}, {100, 0}}), {});
  EXPECT_GT(label->Middle.x, 100) << "inside the angle";
  EXPECT_LT(label->Middle.y, 100);
  EXPECT_EQ(Label(Drawn(kAngle, {{100, 100}, {100, 100}, {200, 100}})), "");
}

TEST(ShapeLabels, SpeedsGoByTheRateAtWhichItWasTaken) {
  // Ten inches, then twenty, from one picture to the next.
  const Shape path = Drawn(kSwingPath, {{0, 0}, {0, 200}, {0, 400}, {0, 500}});
  MeasureScale scale{.PixelsPerInch = 10, .Unit = kMetres, .PerSecond = 30};
  EXPECT_EQ(Label(path, scale), "27.4 km/h  max 54.9 km/h") << "10 and 20 inches, 30 times a second";
  scale.PerSecond = 240;
  EXPECT_EQ(Label(path, scale), "219 km/h  max 439 km/h");
  scale.Speed = kMetresPerSecond;
  EXPECT_EQ(Label(path, scale), "61.0 m/s  max 122 m/s");
  scale = {.PixelsPerInch = 10, .Unit = kFeet, .PerSecond = 60};
  EXPECT_EQ(Label(path, scale), "34.1 mph  max 68.2 mph");
  // A path that knows its pictures says how fast it was on the one that is shown; one drawn on fields, too.
  Shape known = path;
  known.Steps = PathTime{10, false};
  for (const auto& [position, speed] : {std::pair{9, "34.1"}, {10, "68.2"}, {11, "68.2"}, {12, "68.2"}, {13, "34.1"}}) {
    scale.Now = PathTime{position, false};
    EXPECT_EQ(Label(known, scale), std::string(speed) + " mph  max 68.2 mph") << position;
    scale.Now = PathTime{2 * position + 1, true};
    scale.PerSecond = 120;
    EXPECT_EQ(Label(known, scale), std::string(speed) + " mph  max 68.2 mph") << "fields, " << position;
    scale.PerSecond = 60;
  }
  // The figures keep off the path, wherever it ends, and inside the picture.
  scale.Width = scale.Height = 1000;
  for (const POINTAPI& end : {POINTAPI{400, 60}, {700, 400}, {400, 900}, {990, 500}}) {
    const auto label = LabelOf(Drawn(kSwingPath, {{400, 400}, {420, 380}, end}), scale);
    EXPECT_TRUE(std::abs(label->Middle.y - end.y) >= 10 || std::abs(label->Middle.x - end.x) >= 84) << end.x;
    EXPECT_LE(label->Middle.x, 1000 - 84);
  }
  scale.PixelsPerInch = 0;
  EXPECT_EQ(Label(path, scale), "") << "pixels a second tell nobody anything";
}

TEST(ShapeTimes, ADrawingComesAndGoes) {
  EXPECT_EQ(ShapeTime{}.OpacityOn(99), 255) << "always";
  const ShapeTime time{10, 20, 4};
  for (const auto& [frame, opacity] : {std::pair{5, 0}, {6, 51}, {9, 204}, {10, 255}, {20, 255}, {21, 204}, {25, 0}})
    EXPECT_EQ(time.OpacityOn(frame), opacity) << frame;
  EXPECT_EQ((ShapeTime{7, 7, 0}.OpacityOn(8)), 0) << "one picture";
}

}  // namespace
}  // namespace kinalyx
