#include "drawing/ShapeGeometry.h"

#include <limits>

#include "DrawingSupport.h"

namespace kinalyx::test {
namespace {

const ShapeEngine kEngine;

TEST(ShapeGeometry, RoundsTiesToEvenAndStaysInRange) {
  for (const auto& [value, rounded] :
       {std::pair{0.5, 0}, {1.5, 2}, {-2.5, -2}, {1e300, std::numeric_limits<int>::max()}, {std::nan(""), 0}})
    EXPECT_EQ(Round(value), rounded) << value;
  EXPECT_EQ(Round16(-1e9), -32768);
}

TEST(ShapeGeometry, AnglesRunClockwiseFromTheRight) {
  EXPECT_DOUBLE_EQ(PointAngle(0, 0, 0, 10), 1.5707964);
  EXPECT_DOUBLE_EQ(PointAngle(0, 0, 0, -10), 4.712389);
  EXPECT_NEAR(PointAngle(0, 0, -10, 0), 3.14159265, 1e-8);
  EXPECT_NEAR(PointAngle(0, 0, 10, -10), 5.4977871, 1e-6);
}

TEST(ShapeGeometry, OnlyFinishedShapesMove) {
  Shape line = Finished(kLine, {{1, 2}, {3, 4}});
  kEngine.MoveShape(line, 10, -20);
  const std::vector<POINTAPI> moved = {{11, -18}, {13, -16}, {}};
  EXPECT_EQ(line.Pts, moved) << "the spare slot is no point";
  line.Locked = false;
  kEngine.MoveShape(line, 5, 5);
  EXPECT_EQ(line.Pts, moved);
}

TEST(ShapeGeometry, ADragIsOneTransformFromWhereItBegan) {
  Shape line = Finished(kLine, {{100, 100}, {200, 100}});
  kEngine.PrepTrans(line);
  const POINTAPI middle = kEngine.GetMid(line);
  for (int degrees = 1; degrees <= 90; ++degrees) kEngine.RotateShape(line, degrees, middle);
  EXPECT_EQ(line.Pts, (std::vector<POINTAPI>{{150, 50}, {150, 150}, {}}));
  kEngine.RotateShape(line, 0, middle);
  EXPECT_EQ(line.Pts[0], (POINTAPI{100, 100})) << "no error builds up";
  kEngine.ScaleShape(line, 2, middle);
  EXPECT_EQ(line.Pts[1], (POINTAPI{250, 100}));
  kEngine.DoneTrans(line);
  EXPECT_EQ(line.SavedPts.size(), 1u);
}

TEST(ShapeGeometry, KindsThatTwoPointsCannotTurnBecomeOthers) {
  Shape square = Finished(kSquare, {{0, 0}, {100, 50}});
  kEngine.PrepTrans(square);
  kEngine.RotateShape(square, 0, kEngine.GetMid(square));
  EXPECT_EQ(square.Kind, kParallelogram);
  EXPECT_TRUE(square.Locked);
  ASSERT_EQ(square.NumBound, 3);
  EXPECT_EQ(std::vector(square.Pts.begin(), square.Pts.begin() + 3),
            (std::vector<POINTAPI>{{0, 50}, {100, 50}, {100, 0}}));

  Shape flag = Finished(kFlag, {{50, 60}});
  Shape scaled = flag;
  kEngine.RotateShape(flag, 90, {50, 60});
  EXPECT_EQ(flag.Kind, kFreehand);
  ASSERT_EQ(flag.NumBound, 6);
  EXPECT_EQ(flag.Pts[1], (POINTAPI{50, 50})) << "its left arm points up";
  kEngine.ScaleShape(scaled, 3, {50, 60});
  EXPECT_EQ(scaled.Pts[2], (POINTAPI{80, 60}));

  Shape circle = Finished(kEllipse, {{0, 0}, {100, 40}});
  kEngine.PrepTrans(circle);
  kEngine.RotateShape(circle, 90, kEngine.GetMid(circle));
  EXPECT_EQ(circle.Kind, kFreehand);
  ASSERT_EQ(circle.NumBound, 37);
  EXPECT_EQ(circle.Pts[0], circle.Pts[36]);
  EXPECT_EQ(circle.Pts[0], (POINTAPI{50, 70}));
}

TEST(ShapeGeometry, AClockTurnsItsTicksAlone) {
  Shape clock = Finished(kClock, {{10, 10}, {110, 90}});
  EXPECT_EQ(kEngine.GetMid(clock), (POINTAPI{10, 10})) << "it turns about its first corner";
  kEngine.PrepTrans(clock);
  const auto turned = [&](double degrees) {
    kEngine.RotateShape(clock, degrees, kEngine.GetMid(clock));
    return ClockRotation(clock);
  };
  EXPECT_EQ(turned(45), 15);
  EXPECT_EQ(turned(30), 30);
  EXPECT_EQ(turned(-31), -1);
  EXPECT_EQ(turned(350), 320);
  EXPECT_EQ(clock.Pts[1], (POINTAPI{110, 90}));
}

TEST(ShapeGeometry, ACircleFromItsCentreIsTwiceAsWide) {
  ShapeEngine engine;
  Shape circle = Finished(kEllipse, {{100, 100}, {150, 120}});
  EXPECT_EQ(engine.GetMid(circle), (POINTAPI{125, 110}));
  engine.EllipseFromCentre = true;
  EXPECT_EQ(engine.GetMid(circle), (POINTAPI{100, 100}));
  const ShapeBox box = engine.BoxOf({&circle, 1});
  EXPECT_EQ(box.least, (POINTAPI{50, 80}));
  EXPECT_EQ(box.most, (POINTAPI{150, 120}));
  engine.PrepTrans(circle);
  engine.RotateShape(circle, 0, {100, 100});
  EXPECT_EQ(circle.Pts[18], (POINTAPI{50, 100}));
}

TEST(ShapeGeometry, APathRunsOnACurveThroughItsClicks) {
  Shape path = Finished(kSwingPath, {{0, 0}, {100, 0}, {100, 100}, {100, 105}, {0, 105}});
  EXPECT_EQ(LongestSegment(path), 0) << "the first among equals";
  Shape smooth = path;
  const LongStretch stretch = SmoothLine(smooth, 20, 0.2, true);
  EXPECT_EQ(stretch.LongStart, 0);
  EXPECT_EQ(stretch.LongEnd, 6);
  // Five points between clicks 100 apart, none between those 5 apart.
  ASSERT_EQ(smooth.NumBound, 3 * 6 + 1 + 1);
  EXPECT_EQ(smooth.NumPts, smooth.NumBound);
  EXPECT_EQ(smooth.Pts[6], (POINTAPI{100, 0}));
  EXPECT_EQ(smooth.Pts[12], (POINTAPI{100, 100}));
  EXPECT_EQ(smooth.Pts[13], (POINTAPI{100, 105}));
  // The second point, t = 1/6: the cubic over (-100, 0) (0, 0) (100, 0) (100, 100) gives 28.2 and -2.3,
  // the chord 16.7 and 0; from 28 a fifth of the way back to 17 is 25.8, from -2 to 0 it is -1.6.
  EXPECT_EQ(smooth.Pts[1], (POINTAPI{26, -2}));

  Shape last = Finished(kSwingPath, {{0, 0}, {10, 0}, {110, 0}});
  const LongStretch end = SmoothLine(last, 20, 0.2, true);
  EXPECT_EQ(end.LongStart, 1);
  EXPECT_EQ(end.LongEnd, last.NumBound - 1);

  Shape line = Finished(kLine, {{0, 0}, {100, 0}});
  const Shape before = line;
  EXPECT_EQ(SmoothLine(line, 20, 0.2, true).LongEnd, 0);
  EXPECT_EQ(line, before);
}

TEST(ShapeGeometry, APathFromADamagedFileStaysBounded) {
  Shape path;
  path.Kind = kSwingPath;
  path.NumBound = path.NumPts = 32767;
  for (int i = 0; i < 32767; ++i)
    path.Pts.push_back(i % 2 ? POINTAPI{2147483647, 2147483647} : POINTAPI{-2147483647 - 1, 0});
  SmoothLine(path, 20, 0.2, true);
  EXPECT_LE(path.Pts.size(), 32767u);
  path.Locked = true;
  kEngine.MoveShape(path, 2147483647, -2147483647);
  kEngine.PrepTrans(path);
  kEngine.ScaleShape(path, 1e9, kEngine.GetMid(path));
}

}  // namespace
}  // namespace kinalyx::test
