#include "platform/paint/Canvas.h"

#include <array>
#include <cstdint>
#include <limits>
#include <random>
#include <set>
#include <utility>

#include "support/Surfaces.h"

namespace kinalyx::test {
namespace {

constexpr Colour kWhite = 0xFFFFFF;
constexpr std::int32_t kFar = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kFarBack = std::numeric_limits<std::int32_t>::min();

TEST(Surface, HoldsOpaquePixelsAndRefusesSenselessSizes) {
  Surface surface(3, 2);
  EXPECT_EQ(surface.Pixel(2, 1), 0);
  EXPECT_TRUE(IsOpaque(surface));
  surface.Clear(Rgb(1, 2, 3));
  EXPECT_EQ(surface.Row(1)[0], 3) << "blue comes first in memory";
  EXPECT_EQ(surface.Pixel(2, 1), Rgb(1, 2, 3));
  EXPECT_EQ(surface.Pixel(3, 1), 0);
  EXPECT_TRUE(IsOpaque(surface));
  for (const auto& [width, height] : {std::pair{0, 5}, {5, -1}, {kFar, kFar}, {32767, 32767}})
    EXPECT_TRUE(Surface(width, height).Empty()) << width << " x " << height;
}

/// A black surface, and a canvas on it with a white pen.
struct Sheet {
  Surface surface;
  Canvas canvas{surface};

  Sheet(int width, int height, int pen, Rop2 mode = Rop2::CopyPen) : surface(width, height) {
    canvas.SetPen({kWhite, pen, 0});
    canvas.SetROP2(mode);
  }
  Colour At(int x, int y) const { return surface.Pixel(x, y); }
  /// Where it is black no more.
  std::set<std::pair<int, int>> Touched() const {
    std::set<std::pair<int, int>> pixels;
    for (int y = 0; y < surface.Height(); ++y)
      for (int x = 0; x < surface.Width(); ++x)
        if (At(x, y) != 0) pixels.insert({x, y});
    return pixels;
  }
};

TEST(Canvas, MergingSetsTheBitsOfPenBrushAndPicture) {
  const Colour old = Rgb(0x0F, 0xA5, 0x3C);
  const Colour penColour = Rgb(0x33, 0x0F, 0xF0);
  const Colour brushColour = Rgb(0x55, 0xF0, 0x99);
  const std::array<POINTAPI, 4> box = {{{10, 10}, {30, 10}, {30, 30}, {10, 30}}};
  Sheet sheet(41, 40, 3, Rop2::MergePen);
  sheet.surface.Clear(old);
  sheet.canvas.SetPen({penColour, 3, 0});
  sheet.canvas.SetBrush(brushColour);
  ASSERT_TRUE(sheet.canvas.Polygon(box));
  EXPECT_EQ(sheet.At(20, 20), old | brushColour);
  EXPECT_EQ(sheet.At(20, 10), old | penColour) << "the outline lies in place of the filling, not over it";
  EXPECT_EQ(sheet.At(20, 5), old);
  EXPECT_EQ(sheet.At(35, 20), old);
  EXPECT_TRUE(IsOpaque(sheet.surface));
  sheet.canvas.SetROP2(static_cast<Rop2>(7));
  EXPECT_EQ(sheet.canvas.CurrentROP2(), Rop2::CopyPen) << "a mode that is no more";
}

TEST(Canvas, MergingTouchesWholePixels) {
  std::vector<POINTAPI> scribble;
  std::mt19937 random(5);
  for (int i = 0; i < 60; ++i)
    scribble.push_back({static_cast<int>(random() % 90) - 5, static_cast<int>(random() % 90) - 5});
  for (const int width : {1, 2, 7}) {
    Sheet merged(80, 80, width, Rop2::MergePen);
    merged.canvas.Polyline(scribble);
    EXPECT_GT(merged.Touched().size(), 500u);
    for (const auto& [x, y] : merged.Touched()) ASSERT_EQ(merged.At(x, y), kWhite);
  }
}

TEST(Canvas, LinesOfACrispWidthFillTheirRowsAndNoOthers) {
  for (const auto& [width, first, last] : {std::tuple{1, 10, 10}, {2, 9, 10}, {3, 9, 11}, {4, 8, 11}}) {
    for (const Rop2 mode : {Rop2::CopyPen, Rop2::MergePen}) {
      SCOPED_TRACE(testing::Message() << "width " << width << " mode " << static_cast<int>(mode));
      Sheet sheet(40, 20, width, mode);
      sheet.canvas.Line({8, 10}, {30, 10});
      for (int y = 0; y < 20; ++y) EXPECT_EQ(sheet.At(20, y), y >= first && y <= last ? kWhite : 0) << y;
    }
  }
}

TEST(Canvas, CopyModeSoftensEdgesAndRoundsEnds) {
  Sheet sheet(60, 60, 9);
  sheet.canvas.Line({15, 20}, {45, 33});
  std::set<Colour> shades;
  for (const auto& [x, y] : sheet.Touched()) shades.insert(sheet.At(x, y));
  EXPECT_GT(shades.size(), 10u);
  EXPECT_TRUE(IsOpaque(sheet.surface));

  sheet.surface.Clear(0);
  sheet.canvas.Line({20, 20}, {40, 20});
  EXPECT_EQ(sheet.At(17, 20), kWhite) << "the end reaches beyond its point";
  EXPECT_EQ(sheet.At(16, 16), 0) << "its corner is cut";
}

TEST(Canvas, DegenerateFiguresDrawALineOrADot) {
  const POINTAPI here{20, 20};
  const std::array<POINTAPI, 3> same = {here, here, here};
  for (const Rop2 mode : {Rop2::CopyPen, Rop2::MergePen}) {
    for (const int width : {1, 2, 5}) {
      SCOPED_TRACE(testing::Message() << "width " << width << " mode " << static_cast<int>(mode));
      Sheet sheet(40, 40, width, mode);
      Canvas& canvas = sheet.canvas;
      const auto touched = [&](auto draw) {
        sheet.surface.Clear(0);
        EXPECT_TRUE(draw());
        return sheet.Touched();
      };
      const auto dot = touched([&] { return canvas.Line(here, here); });
      EXPECT_TRUE(dot.contains({20, 20}) || dot.contains({19, 19}));
      EXPECT_LE(dot.size(), static_cast<std::size_t>((width + 1) * (width + 1)));
      EXPECT_EQ(touched([&] { return canvas.Polyline(same); }), dot);
      EXPECT_EQ(touched([&] { return canvas.Polygon(same); }), dot);
      EXPECT_EQ(touched([&] { return canvas.Ellipse(here, here); }), dot);
      EXPECT_EQ(touched([&] {
                  return canvas.Ellipse({5, 20}, {30, 20});
                }),
                touched([&] {
                  return canvas.Line({5, 20}, {30, 20});
                }));
      EXPECT_TRUE(touched([&] { return canvas.Polyline({}); }).empty());
      EXPECT_TRUE(touched([&] { return canvas.Polyline(std::span(same).first(1)); }).empty());
      canvas.SetPen({kWhite, width, 5});
      EXPECT_TRUE(touched([&] { return canvas.Line(here, {30, 30}); }).empty()) << "a pen of the style none";
    }
  }
}

TEST(Canvas, EllipsesTakeTheirCornersInAnyOrder) {
  for (const Rop2 mode : {Rop2::CopyPen, Rop2::MergePen}) {
    for (const auto& [a, b] :
         {std::pair<POINTAPI, POINTAPI>{{10, 8}, {40, 28}}, {{40, 28}, {10, 8}}, {{40, 8}, {10, 28}}}) {
      Sheet sheet(50, 40, 1, mode);
      sheet.canvas.Ellipse(a, b);
      for (const auto& [x, y] : {std::pair{10, 18}, {40, 18}, {25, 8}, {25, 28}})
        EXPECT_NE(sheet.At(x, y), 0) << x << ", " << y;
      for (const auto& [x, y] : {std::pair{25, 18}, {9, 18}, {25, 29}})
        EXPECT_EQ(sheet.At(x, y), 0) << "hollow without a brush, " << x << ", " << y;
    }
  }
}

TEST(Canvas, FiguresFarOutsideShowTheirPartOfThePicture) {
  for (const Rop2 mode : {Rop2::CopyPen, Rop2::MergePen}) {
    SCOPED_TRACE(static_cast<int>(mode));
    Sheet sheet(100, 80, 1, mode);
    Canvas& canvas = sheet.canvas;
    canvas.Line({kFarBack, 40}, {kFar, 40});
    for (int x = 0; x < 100; ++x) ASSERT_EQ(sheet.At(x, 40), kWhite) << x;
    EXPECT_EQ(sheet.Touched().size(), 100u);

    sheet.surface.Clear(0);
    canvas.Line({kFarBack, kFarBack}, {kFar, kFar});
    EXPECT_NE(sheet.At(30, 30), 0) << "the diagonal keeps its direction";
    EXPECT_EQ(sheet.At(30, 34), 0);

    sheet.surface.Clear(0);
    canvas.Line({kFarBack, kFar}, {kFarBack, kFarBack});
    canvas.Ellipse({kFar - 10, kFar - 10}, {kFar, kFar});
    canvas.Line({kFar, kFar}, {kFar, kFar});
    EXPECT_TRUE(sheet.Touched().empty());

    // An ellipse as wide as the plane whose top passes through the picture's middle row.
    canvas.Ellipse({kFarBack, 40}, {kFar, kFar});
    EXPECT_TRUE(sheet.At(0, 40) != 0 && sheet.At(99, 40) != 0);
    EXPECT_TRUE(sheet.At(50, 37) == 0 && sheet.At(50, 43) == 0);

    sheet.surface.Clear(0);
    canvas.SetBrush(Rgb(200, 0, 0));
    const std::array<POINTAPI, 3> half = {{{50, kFarBack}, {50, kFar}, {kFarBack, 0}}};
    canvas.Polygon(half);
    for (const auto& [x, y] : {std::pair{0, 0}, {49, 79}}) EXPECT_EQ(sheet.At(x, y), Rgb(200, 0, 0));
    EXPECT_EQ(sheet.At(50, 20), kWhite);
    EXPECT_EQ(sheet.At(52, 20), 0);
    canvas.Ellipse({kFarBack, kFarBack}, {kFar, kFar});
    EXPECT_EQ(sheet.At(99, 79) & 0xFF, 200) << "the picture lies inside";

    for (int style = 1; style <= 4; ++style) {
      canvas.SetPen({kWhite, 1, style});
      EXPECT_TRUE(canvas.Line({kFarBack, kFarBack}, {kFar, kFar - style}));
      EXPECT_TRUE(canvas.Polygon(half));
    }
    EXPECT_TRUE(IsOpaque(sheet.surface));
  }
}

TEST(Canvas, ALineCutAtTheBandJoinsUpWithTheSameLineDrawnWhole) {
  Sheet whole(200, 200, 3, Rop2::MergePen);
  Sheet cut(200, 200, 3, Rop2::MergePen);
  for (const auto& [sheet, reach] : {std::pair{&whole, 4}, {&cut, 400}}) {
    // The same visible corner at (100, 100), its ends near or far along the same directions.
    const POINTAPI from{100 - 100 * reach, 100 - 50 * reach};
    const POINTAPI to{100 + 75 * reach, 100 - 100 * reach};
    sheet->canvas.Polyline(std::array{from, POINTAPI{100, 100}, to});
  }
  EXPECT_EQ(cut.Touched(), whole.Touched());
}

TEST(Canvas, DashesLeaveGaps) {
  for (int style = 1; style <= 4; ++style) {
    for (const int width : {1, 5}) {
      Sheet sheet(400, 20, width);
      sheet.canvas.SetPen({kWhite, width, style});
      sheet.canvas.Line({10, 10}, {390, 10});
      int gaps = 0;
      for (int x = 11; x < 389; ++x) gaps += sheet.At(x, 10) == 0;
      EXPECT_TRUE(gaps > 40 && gaps < 300) << gaps << " in style " << style << ", width " << width;
    }
  }
}

TEST(Canvas, FollowsItsSurfaceToANewSize) {
  Sheet sheet(20, 20, 1);
  sheet.canvas.Line({0, 5}, {19, 5});
  sheet.surface = Surface(60, 10);
  EXPECT_TRUE(sheet.canvas.Line({0, 5}, {59, 5}));
  EXPECT_EQ(sheet.At(50, 5), kWhite);
  sheet.surface = Surface();
  EXPECT_FALSE(sheet.canvas.Line({0, 5}, {59, 5}));
  EXPECT_FALSE(sheet.canvas.Ellipse({0, 0}, {9, 9}));
}

}  // namespace
}  // namespace kinalyx::test
