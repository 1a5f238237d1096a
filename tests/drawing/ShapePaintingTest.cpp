#include "drawing/ShapePainting.h"

#include "DrawingSupport.h"
#include "drawing/ShapeOutline.h"
#include "drawing/WindowPainter.h"
#include "support/Surfaces.h"

namespace kinalyx::test {
namespace {

constexpr Colour kRed = Rgb(255, 0, 0);
constexpr Colour kGround = Rgb(0, 64, 0);

/// A picture of one colour and a pen three pixels wide.
struct Easel {
  Surface surface{200, 200};
  Canvas canvas{surface};
  ShapeLook look{3, false, false};

  Easel() {
    surface.Clear(kGround);
    canvas.SetPen({kRed, 3, 0});
  }
  Colour At(int x, int y) const { return surface.Pixel(x, y); }
  void Draw(const Shape& shape) { EXPECT_TRUE(DrawShape(shape, canvas, look)); }
};

TEST(ShapePainting, EveryKindIsDrawnWhereItsRuleSays) {
  struct Case {
    const char* name;
    int kind;
    std::vector<POINTAPI> points;
    std::vector<POINTAPI> on;
    std::vector<POINTAPI> off;
  };
  const Case cases[] = {
      {"freehand", kFreehand, {{10, 10}, {60, 10}, {60, 60}}, {{30, 10}, {60, 40}}, {{30, 35}}},
      {"plus sign", kFlag, {{50, 50}}, {{41, 50}, {59, 50}, {50, 41}, {50, 59}}, {{62, 50}, {45, 45}}},
      {"square", kSquare, {{20, 30}, {100, 90}}, {{20, 60}, {100, 60}, {60, 30}, {60, 90}}, {{60, 60}}},
      {"line", kLine, {{10, 20}, {110, 20}}, {{60, 20}}, {{60, 26}}},
      {"circle", kEllipse, {{20, 20}, {120, 80}}, {{20, 50}, {120, 50}, {70, 20}, {70, 80}}, {{70, 50}, {22, 22}}},
      {"angle", kAngle, {{10, 10}, {10, 100}, {100, 100}}, {{10, 50}, {50, 100}}, {{55, 55}}},
      // The fourth corner lies opposite the second.
      {"parallelogram",
       kParallelogram,
       {{20, 20}, {80, 20}, {110, 90}},
       {{50, 20}, {95, 55}, {80, 90}, {35, 55}},
       {{65, 55}}},
      // Ring at nine tenths, ticks from eight to ten tenths.
      {"clock",
       kClock,
       {{0, 0}, {200, 200}},
       {{190, 100}, {183, 100}, {197, 100}, {100, 183}},
       {{170, 100}, {100, 100}}},
      // Turned by fifteen degrees; 83 from the centre, that far below the level.
      {"turned clock", kClock, {{0, 0}, {200, 200}, {15, 0}}, {{180, 121}}, {{183, 100}}},
      // Tip to the right: notch 18 back, barbs 30 long at twenty degrees.
      {"arrow", kArrow, {{20, 100}, {120, 100}}, {{60, 100}, {92, 90}, {92, 110}, {106, 95}}, {{108, 100}, {85, 92}}},
      {"stick man",
       kStickMan,
       {{100, 40},
        {100, 90},
        {80, 100},
        {70, 110},
        {60, 120},
        {120, 100},
        {130, 110},
        {140, 120},
        {100, 130},
        {90, 150},
        {80, 180},
        {110, 150},
        {120, 180}},
       {{100, 10}, {70, 40}, {100, 80}, {100, 110}, {65, 115}, {135, 115}, {85, 165}, {115, 165}},
       {{100, 40}}}};
  for (const Case& entry : cases) {
    SCOPED_TRACE(entry.name);
    Easel easel;
    Shape shape;
    shape.Kind = static_cast<std::int16_t>(entry.kind);
    shape.Pts = entry.points;
    shape.NumBound = shape.NumPts = static_cast<std::int16_t>(entry.points.size());
    shape.Locked = true;
    easel.Draw(shape);
    for (const POINTAPI& point : entry.on) EXPECT_EQ(easel.At(point.x, point.y), kRed) << point.x << ", " << point.y;
    for (const POINTAPI& point : entry.off)
      EXPECT_EQ(easel.At(point.x, point.y), kGround) << point.x << ", " << point.y;
  }
}

// A kind that was added to the table and nowhere else.
TEST(ShapePainting, NoKindOfTheTableIsInvisibleOrOutOfReach) {
  for (std::int16_t kind = 0; kind < kShapeKinds; ++kind) {
    const ShapeInf& inf = InfOf(kind);
    if (!inf.Drawable) continue;
    SCOPED_TRACE(std::string(inf.Name));
    std::vector<POINTAPI> points;
    for (int i = 0; i < (inf.NumPoints == kOpenPoints ? 4 : inf.NumPoints); ++i)
      points.push_back({30 + i * 53 % 140, 30 + i * 37 % 140});
    const Shape shape = Finished(kind, points);
    Easel easel, untouched;
    EXPECT_TRUE(PaintShape(shape, kRed, easel.canvas, easel.look));
    EXPECT_GT(LargestDifference(easel.surface, untouched.surface), 0) << "nothing is painted";
    EXPECT_FALSE(OutlineOf(shape, false).empty()) << "no click takes it";
  }
}

TEST(ShapePainting, WhatIsTooSmallDrawsNothingAndIsNoError) {
  Easel easel;
  for (int kind : {kFreehand, kSquare, kLine, kEllipse, kAngle, kSwingPath, kParallelogram, kZone, kClock, kArrow})
    easel.Draw(Finished(kind, {{50, 50}}));
  easel.Draw({});
  Shape arrow = Finished(kArrow, {{50, 50}});
  arrow.Pts = {{50, 50}, {50, 50}, {}};
  arrow.NumBound = arrow.NumPts = 2;
  easel.Draw(arrow);
  // What a damaged file may hold: kinds that do not exist, counts without points.
  Shape odd = Finished(kLine, {{1, 1}, {90, 90}});
  odd.Kind = 4711;
  easel.Draw(odd);
  odd.Kind = kZone;
  odd.Pts.clear();
  easel.Draw(odd);
  EXPECT_EQ(LargestDifference(easel.surface, Easel().surface), 0);
}

TEST(ShapePainting, AZoneTintsThePictureAndHasNoRim) {
  Easel easel;
  easel.look.CadOutline = true;
  const Shape zone = Finished(kZone, {{10, 10}, {110, 10}, {10, 110}});
  EXPECT_TRUE(PaintShape(zone, kRed, easel.canvas, easel.look));
  EXPECT_EQ(easel.At(30, 30), Rgb(255, 64, 0)) << "bits of both";
  EXPECT_EQ(easel.At(90, 90), kGround);
  for (int i = 0; i < 200 * 200; ++i) ASSERT_NE(easel.At(i % 200, i / 200), 0);
  EXPECT_EQ(easel.canvas.CurrentROP2(), Rop2::CopyPen);
}

TEST(ShapePainting, AnOutlineIsABlackRimAndAnUnfinishedShapeMarksItsNewestPoint) {
  Easel easel;
  easel.look.CadOutline = true;
  EXPECT_TRUE(PaintShape(Finished(kLine, {{10, 50}, {150, 50}}), kRed, easel.canvas, easel.look));
  EXPECT_EQ(easel.At(80, 50), kRed);
  for (const int rim : {48, 52}) EXPECT_EQ(easel.At(80, rim), 0);
  EXPECT_EQ(easel.At(80, 54), kGround);
  EXPECT_EQ(easel.canvas.CurrentPen().width, 3);

  Easel other;
  Shape line = Finished(kLine, {{50, 50}});
  line.Locked = false;
  other.Draw(line);
  for (const POINTAPI& point : {POINTAPI{52, 50}, {50, 48}}) EXPECT_EQ(other.At(point.x, point.y), kRed);
  EXPECT_EQ(other.At(60, 50), kGround);
}

TEST(ShapePainting, AFinishedPathShinesWhereItWasFastest) {
  Shape path = Finished(kSwingPath, {{10, 20}, {30, 20}, {190, 20}, {190, 40}});
  const auto highlight = [](const Easel& easel) {
    int white = 0;
    for (int x = 0; x < 200; ++x)
      for (int y = 0; y < 40; ++y) white += easel.At(x, y) == Rgb(255, 255, 255);
    return white;
  };
  Easel easel;
  const Colour blue = Rgb(0, 0, 255);
  easel.canvas.SetPen({blue, 3, 0});
  easel.look.PathHighlight = true;
  easel.Draw(path);
  EXPECT_GT(highlight(easel), 10) << "white in the middle of the longest stretch";
  EXPECT_EQ(easel.At(20, 20), blue) << "the short stretch keeps its colour";
  EXPECT_EQ(easel.At(31, 20), kRed) << "the highlight begins red";
  EXPECT_EQ(easel.canvas.CurrentPen().colour, blue);

  // Not unless it is asked for, nor before the path is finished, nor on two clicks.
  const Shape finished = path;
  path.Locked = false;
  for (const auto& [plain, asked] :
       {std::pair{finished, false}, {path, true}, {Finished(kSwingPath, {{10, 20}, {190, 20}}), true}}) {
    Easel other;
    other.look.PathHighlight = asked;
    other.Draw(plain);
    EXPECT_NE(other.At(100, 20), kGround);
    EXPECT_EQ(highlight(other), 0);
  }
}

TEST(ShapePainting, TheGridHasSquareCells) {
  const auto uprights = [](int width, int divisions) {
    Surface surface(width, 60);
    Canvas canvas(surface);
    canvas.SetPen({kRed, 1, 0});
    EXPECT_TRUE(DrawGrid(canvas, width, 60, divisions));
    std::vector<int> at;
    for (int x = 0; x < width; ++x)
      if (surface.Pixel(x, 31) == kRed) at.push_back(x);
    return at;
  };
  const auto even = uprights(640, 10);
  ASSERT_EQ(even.size(), 10u) << "the eleventh lies on the border, outside the picture";
  EXPECT_EQ(even[1] - even[0], 64);
  EXPECT_EQ(uprights(645, 10).front(), 2);
  EXPECT_EQ(uprights(100, 30).size(), 34u) << "cells of 3, ten pixels over: three more columns, one pixel over";
  for (const int none : {0, 101}) EXPECT_TRUE(uprights(100, none).empty());
}

/// What the painter shows must be what painting each shape anew would show.
class WindowPainterTest : public testing::Test {
 protected:
  ShapeList list_;
  std::vector<Colour> colours_;
  ShapeLook look_{4, true, true};
  GridLook grid_{true, 7, Rgb(0, 0, 128)};
  WindowPainter painter_;
  Surface shown_{200, 200};

  WindowPainterTest() {
    Add(list_, Finished(kLine, {{0, 0}, {190, 150}}, Rgb(0, 0, 255)));
    // Whole bytes: half ones would make much of a step of one beneath them.
    Add(list_, Finished(kZone, {{20, 20}, {180, 60}, {60, 180}}, Rgb(0, 0, 255)));
    Add(list_, Finished(kEllipse, {{40, 40}, {160, 160}}, Rgb(255, 255, 0)));
    Add(list_, Finished(kSwingPath, {{10, 190}, {100, 100}, {190, 190}}, Rgb(0, 255, 0)));
    Add(list_, Finished(kClock, {{60, 60}, {140, 140}}, Rgb(255, 0, 255)));
  }
  void CheckPaints(const char* when) {
    SCOPED_TRACE(when);
    colours_.clear();
    for (const Shape& shape : ShapesOf(list_)) colours_.push_back(shape.Colour);
    Surface expected = Noise(shown_.Width(), shown_.Height(), 1);
    Canvas plain(expected);
    plain.SetPen({grid_.colour, 1, 0});
    if (grid_.on) DrawGrid(plain, expected.Width(), expected.Height(), grid_.divisions);
    plain.SetPen({0, 4, 0});
    for (const Shape& shape : ShapesOf(list_)) PaintShape(shape, shape.Colour, plain, look_);
    // The first time changes are painted directly, the second time they are kept, then laid over; a long list
    // that rests is at last laid over as a whole.
    for (int round = 0; round < 8; ++round) {
      shown_ = Noise(shown_.Width(), shown_.Height(), 1);
      Canvas canvas(shown_);
      canvas.SetPen({0, 4, 0});
      EXPECT_EQ(painter_.Paint(canvas, ShapesOf(list_), colours_, grid_, look_), std::nullopt);
      EXPECT_LE(LargestDifference(shown_, expected), 3) << "round " << round;
    }
  }
};

TEST_F(WindowPainterTest, ShowsEveryChangeAtOnce) {
  CheckPaints("first");
  EXPECT_GT(painter_.Bytes(), 0u);
  list_.Shapes[2].Pts[1].x -= 30;
  CheckPaints("a point moved");
  list_.Shapes[0].Colour = Rgb(1, 255, 255);
  CheckPaints("another colour");
  list_.Shapes[4].Pts[2].x = 20;
  CheckPaints("the clock turned");
  ShapeEngine().KillShape(list_, 1);
  CheckPaints("one removed from the middle");
  Add(list_, Finished(kArrow, {{20, 150}, {180, 150}}, Rgb(255, 255, 255)));
  CheckPaints("one added");
  for (int y = 40; y < 160; y += 30) Add(list_, Finished(kLine, {{5, y}, {195, y + 11}}, Rgb(0, y, 255)));
  CheckPaints("a long list");
  std::swap(list_.Shapes[0], list_.Shapes[2]);
  CheckPaints("another order");
  grid_.divisions = 11;
  CheckPaints("another grid");
  grid_.on = false;
  look_.CadOutline = false;
  CheckPaints("no grid, no rim");
  shown_ = Surface(150, 160);
  CheckPaints("another size");
  list_ = {};
  CheckPaints("none");
  EXPECT_EQ(painter_.Bytes(), 0u);
}

TEST_F(WindowPainterTest, AnEmptySurfaceIsNoError) {
  Surface nothing;
  Canvas canvas(nothing);
  colours_.assign(5, kRed);
  EXPECT_EQ(painter_.Paint(canvas, ShapesOf(list_), colours_, grid_, look_), std::nullopt);
  EXPECT_FALSE(DrawShape(list_.Shapes[0], canvas, look_));
  EXPECT_EQ(ShapeEngine().DrawShapeError(list_.Shapes[0]),
            "Error drawing 'Line' object with 2 points, and 0 unbound points");
}

}  // namespace
}  // namespace kinalyx::test
