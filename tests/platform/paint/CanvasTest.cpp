#include "platform/paint/Canvas.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <limits>
#include <random>
#include <set>
#include <utility>
#include <vector>

#include "support/Surfaces.h"
#include "platform/paint/Fonts.h"

namespace kinalyx::test {
namespace {

constexpr Colour kWhite = 0xFFFFFF;
constexpr std::int32_t kFar = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kFarBack = std::numeric_limits<std::int32_t>::min();

std::set<std::pair<int, int>> PixelsUnlike(const Surface& surface, Colour colour) {
  std::set<std::pair<int, int>> pixels;
  for (int y = 0; y < surface.Height(); ++y)
    for (int x = 0; x < surface.Width(); ++x)
      if (surface.Pixel(x, y) != colour) pixels.insert({x, y});
  return pixels;
}

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

// What each raster mode makes of the four pairs of a pen's and a picture's bit, as (old, pen) = 00, 01, 10, 11.
constexpr std::array<std::array<int, 4>, 16> kTruth = {{{0, 0, 0, 0},
                                                        {1, 0, 0, 0},
                                                        {0, 0, 1, 0},
                                                        {1, 0, 1, 0},
                                                        {0, 1, 0, 0},
                                                        {1, 1, 0, 0},
                                                        {0, 1, 1, 0},
                                                        {1, 1, 1, 0},
                                                        {0, 0, 0, 1},
                                                        {1, 0, 0, 1},
                                                        {0, 0, 1, 1},
                                                        {1, 0, 1, 1},
                                                        {0, 1, 0, 1},
                                                        {1, 1, 0, 1},
                                                        {0, 1, 1, 1},
                                                        {1, 1, 1, 1}}};

TEST(Canvas, EveryRasterModeJoinsPenBrushAndPictureBitByBit) {
  const Colour old = Rgb(0x0F, 0xA5, 0x3C);
  const Colour penColour = Rgb(0x33, 0x0F, 0xF0);
  const Colour brushColour = Rgb(0x55, 0xF0, 0x99);
  const auto expected = [&](int mode, Colour ink) {
    Colour result = 0;
    for (int bit = 0; bit < 24; ++bit)
      result |= kTruth[mode - 1][((old >> bit) & 1) * 2 + ((ink >> bit) & 1)] << bit;
    return result;
  };
  const std::array<POINTAPI, 4> box = {{{10, 10}, {30, 10}, {30, 30}, {10, 30}}};
  for (int mode = 1; mode <= 16; ++mode) {
    SCOPED_TRACE(mode);
    Surface surface(41, 40);
    surface.Clear(old);
    Canvas canvas(surface);
    canvas.SetROP2(static_cast<Rop2>(mode));
    canvas.SetPen({penColour, 3, 0});
    canvas.SetBrush(brushColour);
    ASSERT_TRUE(canvas.Polygon(box));
    EXPECT_EQ(surface.Pixel(20, 20), expected(mode, brushColour));
    EXPECT_EQ(surface.Pixel(20, 10), expected(mode, penColour)) << "the outline lies in place of the filling, not over it";
    EXPECT_EQ(surface.Pixel(20, 5), old);
    EXPECT_EQ(surface.Pixel(35, 20), old);
    EXPECT_TRUE(IsOpaque(surface));
  }
}

TEST(Canvas, JoiningTouchesEachPixelOnceHoweverOftenAFigureCrossesItself) {
  std::vector<POINTAPI> scribble;
  std::mt19937 random(5);
  for (int i = 0; i < 60; ++i)
    scribble.push_back({static_cast<int>(random() % 90) - 5, static_cast<int>(random() % 90) - 5});
  for (const int width : {1, 2, 7}) {
    Surface surface(80, 80);
    Canvas canvas(surface);
    canvas.SetPen({kWhite, width, 0});
    canvas.SetROP2(Rop2::MergePen);
    canvas.Polyline(scribble);
    const auto merged = PixelsUnlike(surface, 0);
    surface.Clear(0);
    canvas.SetROP2(Rop2::XorPen);
    canvas.Polyline(scribble);
    EXPECT_EQ(PixelsUnlike(surface, 0), merged) << width;
    for (const auto& [x, y] : merged) ASSERT_EQ(surface.Pixel(x, y), kWhite) << "whole pixels only";
    canvas.Polyline(scribble);
    EXPECT_TRUE(PixelsUnlike(surface, 0).empty()) << "a second stroke takes the first away";
  }
}

TEST(Canvas, LinesOfACrispWidthFillTheirRowsAndNoOthers) {
  for (const auto& [width, first, last] : {std::tuple{1, 10, 10}, {2, 9, 10}, {3, 9, 11}, {4, 8, 11}}) {
    for (const Rop2 mode : {Rop2::CopyPen, Rop2::XorPen}) {
      SCOPED_TRACE(testing::Message() << "width " << width << " mode " << static_cast<int>(mode));
      Surface surface(40, 20);
      Canvas canvas(surface);
      canvas.SetPen({kWhite, width, 0});
      canvas.SetROP2(mode);
      canvas.Line({8, 10}, {30, 10});
      for (int y = 0; y < 20; ++y) EXPECT_EQ(surface.Pixel(20, y), y >= first && y <= last ? kWhite : 0) << y;
    }
  }
}

TEST(Canvas, CopyModeSoftensEdgesAndRoundsEnds) {
  Surface surface(60, 60);
  Canvas canvas(surface);
  canvas.SetPen({kWhite, 9, 0});
  canvas.Line({15, 20}, {45, 33});
  std::set<Colour> shades;
  for (const auto& [x, y] : PixelsUnlike(surface, 0)) shades.insert(surface.Pixel(x, y));
  EXPECT_GT(shades.size(), 10u);
  EXPECT_TRUE(IsOpaque(surface));

  surface.Clear(0);
  canvas.Line({20, 20}, {40, 20});
  EXPECT_EQ(surface.Pixel(17, 20), kWhite) << "the end reaches beyond its point";
  EXPECT_EQ(surface.Pixel(16, 16), 0) << "its corner is cut";
}

TEST(Canvas, DegenerateFiguresDrawALineOrADot) {
  const POINTAPI here{20, 20};
  const std::array<POINTAPI, 3> same = {here, here, here};
  for (const Rop2 mode : {Rop2::CopyPen, Rop2::XorPen}) {
    for (const int width : {1, 2, 5}) {
      SCOPED_TRACE(testing::Message() << "width " << width << " mode " << static_cast<int>(mode));
      Surface surface(40, 40);
      Canvas canvas(surface);
      canvas.SetPen({kWhite, width, 0});
      canvas.SetROP2(mode);
      const auto touched = [&](auto draw) {
        surface.Clear(0);
        EXPECT_TRUE(draw());
        return PixelsUnlike(surface, 0);
      };
      const auto dot = touched([&] { return canvas.Line(here, here); });
      EXPECT_TRUE(dot.contains({20, 20}) || dot.contains({19, 19}));
      EXPECT_LE(dot.size(), static_cast<std::size_t>((width + 1) * (width + 1)));
      EXPECT_EQ(touched([&] { return canvas.Polyline(same); }), dot);
      EXPECT_EQ(touched([&] { return canvas.Polygon(same); }), dot);
      EXPECT_EQ(touched([&] { return canvas.Ellipse(here, here); }), dot);
      EXPECT_EQ(touched([&] { return canvas.Ellipse({5, 20}, {30, 20}); }),
                touched([&] { return canvas.Line({5, 20}, {30, 20}); }));
      EXPECT_TRUE(touched([&] { return canvas.Polyline({}); }).empty());
      EXPECT_TRUE(touched([&] { return canvas.Polyline(std::span(same).first(1)); }).empty());
      canvas.SetPen({kWhite, width, 5});
      EXPECT_TRUE(touched([&] { return canvas.Line(here, {30, 30}); }).empty()) << "a pen of the style none";
    }
  }
}

TEST(Canvas, EllipsesTakeTheirCornersInAnyOrder) {
  for (const Rop2 mode : {Rop2::CopyPen, Rop2::XorPen}) {
    Surface first(50, 40);
    Canvas canvas(first);
    canvas.SetPen({kWhite, 1, 0});
    canvas.SetROP2(mode);
    canvas.Ellipse({10, 8}, {40, 28});
    for (const auto& [x, y] : {std::pair{10, 18}, {40, 18}, {25, 8}, {25, 28}})
      EXPECT_NE(first.Pixel(x, y), 0) << x << ", " << y;
    EXPECT_EQ(first.Pixel(25, 18), 0) << "hollow without a brush";
    EXPECT_EQ(first.Pixel(9, 18), 0);
    EXPECT_EQ(first.Pixel(25, 29), 0);
    for (const auto& [a, b] : {std::pair<POINTAPI, POINTAPI>{{40, 28}, {10, 8}}, {{40, 8}, {10, 28}}}) {
      Surface second(50, 40);
      Canvas other(second);
      other.SetPen({kWhite, 1, 0});
      other.SetROP2(mode);
      other.Ellipse(a, b);
      EXPECT_EQ(PixelsUnlike(second, 0), PixelsUnlike(first, 0));
    }
  }
}

TEST(Canvas, FiguresFarOutsideShowTheirPartOfThePicture) {
  for (const Rop2 mode : {Rop2::CopyPen, Rop2::MergePen}) {
    SCOPED_TRACE(static_cast<int>(mode));
    Surface surface(100, 80);
    Canvas canvas(surface);
    canvas.SetPen({kWhite, 1, 0});
    canvas.SetROP2(mode);
    const auto fresh = [&] { surface.Clear(0); };

    canvas.Line({kFarBack, 40}, {kFar, 40});
    for (int x = 0; x < 100; ++x) ASSERT_EQ(surface.Pixel(x, 40), kWhite) << x;
    EXPECT_EQ(PixelsUnlike(surface, 0).size(), 100u);

    fresh();
    canvas.Line({kFarBack, kFarBack}, {kFar, kFar});
    EXPECT_NE(surface.Pixel(30, 30), 0) << "the diagonal keeps its direction";
    EXPECT_EQ(surface.Pixel(30, 34), 0);

    fresh();
    canvas.Line({kFarBack, kFar}, {kFarBack, kFarBack});
    canvas.Ellipse({kFar - 10, kFar - 10}, {kFar, kFar});
    canvas.Line({kFar, kFar}, {kFar, kFar});
    EXPECT_TRUE(PixelsUnlike(surface, 0).empty());

    // An ellipse as wide as the plane whose top passes through the picture's middle row.
    fresh();
    canvas.Ellipse({kFarBack, 40}, {kFar, kFar});
    EXPECT_NE(surface.Pixel(0, 40), 0);
    EXPECT_NE(surface.Pixel(99, 40), 0);
    EXPECT_EQ(surface.Pixel(50, 37), 0);
    EXPECT_EQ(surface.Pixel(50, 43), 0);

    fresh();
    canvas.SetBrush(Rgb(200, 0, 0));
    const std::array<POINTAPI, 3> half = {{{50, kFarBack}, {50, kFar}, {kFarBack, 0}}};
    canvas.Polygon(half);
    EXPECT_EQ(surface.Pixel(0, 0), Rgb(200, 0, 0));
    EXPECT_EQ(surface.Pixel(49, 79), Rgb(200, 0, 0));
    EXPECT_EQ(surface.Pixel(50, 20), kWhite);
    EXPECT_EQ(surface.Pixel(52, 20), 0);
    canvas.Ellipse({kFarBack, kFarBack}, {kFar, kFar});
    EXPECT_EQ(surface.Pixel(99, 79) & 0xFF, 200) << "the picture lies inside";

    for (int style = 1; style <= 4; ++style) {
      canvas.SetPen({kWhite, 1, style});
      EXPECT_TRUE(canvas.Line({kFarBack, kFarBack}, {kFar, kFar - style}));
      EXPECT_TRUE(canvas.Polygon(half));
    }
    EXPECT_TRUE(IsOpaque(surface));
  }
}

TEST(Canvas, ALineCutAtTheBandJoinsUpWithTheSameLineDrawnWhole) {
  Surface whole(200, 200);
  Surface cut(200, 200);
  for (const auto& [surface, reach] : {std::pair{&whole, 4}, {&cut, 400}}) {
    Canvas canvas(*surface);
    canvas.SetPen({kWhite, 3, 0});
    canvas.SetROP2(Rop2::XorPen);
    // The same visible corner at (100, 100), its ends near or far along the same directions.
    const std::array<POINTAPI, 3> corner = {{{100 - 100 * reach, 100 - 50 * reach}, {100, 100}, {100 + 75 * reach, 100 - 100 * reach}}};
    canvas.Polyline(corner);
  }
  EXPECT_EQ(PixelsUnlike(cut, 0), PixelsUnlike(whole, 0));
}

TEST(Canvas, DashesLeaveGaps) {
  for (int style = 1; style <= 4; ++style) {
    for (const int width : {1, 5}) {
      Surface surface(400, 20);
      Canvas canvas(surface);
      canvas.SetPen({kWhite, width, style});
      canvas.Line({10, 10}, {390, 10});
      int gaps = 0;
      for (int x = 11; x < 389; ++x) gaps += surface.Pixel(x, 10) == 0;
      EXPECT_GT(gaps, 40) << "style " << style << " width " << width;
      EXPECT_LT(gaps, 300) << "style " << style << " width " << width;
    }
  }
}

TEST(Canvas, FollowsItsSurfaceToANewSize) {
  Surface surface(20, 20);
  Canvas canvas(surface);
  canvas.SetPen({kWhite, 1, 0});
  canvas.Line({0, 5}, {19, 5});
  surface = Surface(60, 10);
  EXPECT_TRUE(canvas.Line({0, 5}, {59, 5}));
  EXPECT_EQ(surface.Pixel(50, 5), kWhite);
  surface = Surface();
  EXPECT_FALSE(canvas.Line({0, 5}, {59, 5}));
  EXPECT_FALSE(canvas.Ellipse({0, 0}, {9, 9}));
  EXPECT_FALSE(canvas.Text({0, 0}, 12, "word"));
}

TEST(Canvas, TextNeedsFontsAndStaysInItsBox) {
  Surface surface(200, 60);
  Canvas canvas(surface);
  canvas.SetPen({kWhite, 1, 0});
  EXPECT_FALSE(canvas.Text({10, 10}, 20, "Before")) << "no application object yet";
  EXPECT_TRUE(PixelsUnlike(surface, 0).empty());

  const GraphicsSession session;
  for (const Rop2 mode : {Rop2::CopyPen, Rop2::XorPen}) {
    surface.Clear(0);
    canvas.SetROP2(mode);
    EXPECT_TRUE(canvas.Text({10, 20}, 20, "Swing 12\xC2\xB0"));
    const auto pixels = PixelsUnlike(surface, 0);
    EXPECT_GT(pixels.size(), 50u);
    for (const auto& [x, y] : pixels) {
      EXPECT_GE(x, 9);
      EXPECT_GE(y, 20);
      EXPECT_LE(y, 40);
    }
    EXPECT_TRUE(canvas.Text({kFar, kFarBack}, 20, "far"));
  }
}

}  // namespace
}  // namespace kinalyx::test
