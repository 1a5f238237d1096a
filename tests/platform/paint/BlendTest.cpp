#include "platform/paint/Blend.h"

#include <bit>
#include <cmath>

#include "support/Surfaces.h"

namespace kinalyx::test {
namespace {

/// What the pixel of a mix has to be, byte by byte, worked out the slow way.
void ExpectMixed(const PlacedPicture& under, const PlacedPicture& over, int alpha, const Surface& target) {
  int wrong = 0;
  for (int y = 0; y < target.Height(); ++y) {
    for (int x = 0; x < target.Width(); ++x) {
      const Colour a = under.picture.Pixel(x - under.left, y - under.top);
      const Colour b = over.picture.Pixel(x - over.left, y - over.top);
      const Colour mixed = target.Pixel(x, y);
      for (const auto part : {Red, Green, Blue}) {
        const double wanted = part(b) * alpha / 255.0 + part(a) * (255 - alpha) / 255.0;
        const double allowed = alpha == 0 || alpha == 255 ? 0 : 1.01;
        if (std::abs(part(mixed) - wanted) > allowed) ++wrong;
      }
      if (target.Row(y)[x * 4 + 3] != 255) ++wrong;
    }
  }
  EXPECT_EQ(wrong, 0) << "at alpha " << alpha;
}

TEST(MixPictures, AgreesWithTheFormulaWhereverThePicturesStand) {
  const Surface first = Noise(61, 47, 1);
  const Surface second = Noise(61, 47, 2);
  const Surface small = Noise(20, 9, 3);
  const Surface none;
  Surface target = Noise(61, 47, 4);  // what stood there before must not show
  const struct {
    PlacedPicture under;
    PlacedPicture over;
  } cases[] = {
      {{first, 0, 0}, {second, 0, 0}},     {{first, -7, 5}, {second, 11, -3}}, {{small, 3, 30}, {second, 40, 2}},
      {{small, 0, 0}, {small, 41, 38}},    {{small, 0, 0}, {small, 10, 4}},    {{first, 0, 0}, {none, 0, 0}},
      {{none, 0, 0}, {small, -100, -100}}, {{first, 0, 0}, {first, 0, 0}},
  };
  for (const auto& [under, over] : cases) {
    for (const int alpha : {0, 1, 64, 128, 200, 254, 255}) {
      MixPictures(under, over, alpha, target);
      ExpectMixed(under, over, alpha, target);
    }
  }
}

TEST(CopyPart, LeavesOutWhatLiesOutsideEither) {
  const Surface source = Noise(30, 20, 5);
  const struct {
    int x, y, width, height, toX, toY;
  } cases[] = {{5, 4, 10, 8, 2, 3},    {-4, -2, 12, 9, 0, 0}, {25, 15, 20, 20, 1, 1},
               {0, 0, 30, 20, -6, 14}, {0, 0, 9, 0, 0, 0},    {40, 2, 9, 9, 0, 0}};
  const auto within = [](int x, int y, int width, int height) { return x >= 0 && x < width && y >= 0 && y < height; };
  for (const auto& part : cases) {
    const Surface before = Noise(24, 18, 6);
    Surface target = before;
    CopyPart(source, part.x, part.y, part.width, part.height, target, part.toX, part.toY);
    for (int y = 0; y < target.Height(); ++y) {
      for (int x = 0; x < target.Width(); ++x) {
        const int right = x - part.toX;
        const int down = y - part.toY;
        const bool copied =
            within(right, down, part.width, part.height) && within(right + part.x, down + part.y, 30, 20);
        ASSERT_EQ(target.Pixel(x, y), copied ? source.Pixel(right + part.x, down + part.y) : before.Pixel(x, y))
            << x << " " << y;
      }
    }
  }
}

TEST(ShiftLeft, MovesEveryRowAndKeepsTheFreedColumns) {
  const Surface before = Noise(21, 6, 7);
  Surface moved = before;
  ShiftLeft(moved, 8);
  for (int y = 0; y < 6; ++y)
    for (int x = 0; x < 21; ++x) ASSERT_EQ(moved.Pixel(x, y), before.Pixel(x < 13 ? x + 8 : x, y));
}

TEST(Dissolve, EachLevelLiesInTheOneBefore) {
  const auto bits = [](const DissolvePattern& pattern) {
    int count = 0;
    for (const auto row : pattern) count += std::popcount(row);
    return count;
  };
  for (int level = 1; level < kDissolveLevels; ++level) {
    const DissolvePattern before = createDissolveBrush(level - 1);
    const DissolvePattern pattern = createDissolveBrush(level);
    for (std::size_t row = 0; row < 8; ++row) EXPECT_EQ(pattern[row] & ~before[row], 0) << "level " << level;
    EXPECT_LT(bits(pattern), bits(before));
  }
  EXPECT_EQ(createDissolveBrush(1), (DissolvePattern{85, 255, 85, 255, 85, 255, 85, 255}));
  EXPECT_EQ(createDissolveBrush(2), (DissolvePattern{85, 170, 85, 170, 85, 170, 85, 170}));
  EXPECT_EQ(createDissolveBrush(99), DissolvePattern{});

  const Surface picture = Noise(19, 11, 8);
  const Surface ground = Noise(19, 11, 9);
  Surface target = ground;
  DissolveOver(picture, createDissolveBrush(2), target);
  for (int y = 0; y < 11; ++y)
    for (int x = 0; x < 19; ++x)
      ASSERT_EQ(target.Pixel(x, y), ((x + y) % 2 == 1 ? picture : ground).Pixel(x, y)) << x << " " << y;
}

}  // namespace
}  // namespace kinalyx::test
