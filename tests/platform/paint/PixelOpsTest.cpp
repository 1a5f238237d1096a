#include "platform/paint/PixelOps.h"

#include <cmath>
#include <cstring>
#include <random>

#include "support/Surfaces.h"

namespace kinalyx::test {
namespace {

/// A picture as a decoder hands it over, with its rows padded to four bytes and noise between them.
struct Rows {
  std::vector<std::uint8_t> bytes;
  PixelRows rows;
};

Rows ToRows(const Surface& picture, int bitCount, bool bottomUp) {
  const int pixelBytes = bitCount / 8;
  const int rowBytes = (picture.Width() * pixelBytes + 3) / 4 * 4;
  Rows result{std::vector<std::uint8_t>(static_cast<std::size_t>(rowBytes) * picture.Height(), 0x5A), {}};
  for (int y = 0; y < picture.Height(); ++y) {
    std::uint8_t* row =
        result.bytes.data() + static_cast<std::size_t>(bottomUp ? picture.Height() - 1 - y : y) * rowBytes;
    for (int x = 0; x < picture.Width(); ++x) std::memcpy(row + x * pixelBytes, picture.Row(y) + x * 4, 3);
  }
  result.rows = {result.bytes.data(), picture.Width(), picture.Height(), rowBytes, bitCount, bottomUp};
  return result;
}

/// A soft slope in all three colours: what any honest bilinear scaler keeps.
Surface Slope(int width, int height) {
  Surface surface(width, height);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      surface.Row(y)[x * 4] = static_cast<std::uint8_t>(255 * x / width);
      surface.Row(y)[x * 4 + 1] = static_cast<std::uint8_t>(255 * y / height);
      surface.Row(y)[x * 4 + 2] = static_cast<std::uint8_t>(255 - 255 * x / width);
    }
  }
  return surface;
}

TEST(StretchRows, EqualSizeKeepsEveryPixel) {
  ScaleScratch scratch;
  for (const auto& [width, height] : {std::pair{64, 48}, {37, 5}, {1, 1}, {2, 3}}) {
    const Surface picture = Noise(width, height, 3);
    for (const auto& [bitCount, bottomUp] : {std::pair{24, true}, {24, false}, {32, true}, {32, false}}) {
      const Rows rows = ToRows(picture, bitCount, bottomUp);
      Surface target(width, height);
      ASSERT_TRUE(StretchRows(rows.rows, target, scratch));
      EXPECT_EQ(LargestDifference(target, picture), 0) << width << " x " << height << ", " << bitCount << " bits";
    }
  }
}

TEST(StretchRows, KeepsASlopeAtAnySize) {
  ScaleScratch scratch;
  for (const auto& [width, height] : {std::pair{720, 576}, {320, 240}, {101, 67}, {1920, 1080}}) {
    const Surface picture = Slope(width, height);
    for (const auto& [newWidth, newHeight] : {std::pair{640, 480}, {160, 120}, {333, 257}, {77, 900}}) {
      const Surface expected = Slope(newWidth, newHeight);
      for (const int bitCount : {24, 32}) {
        SCOPED_TRACE(testing::Message() << width << " x " << height << " to " << newWidth << " x " << newHeight << ", "
                                        << bitCount << " bits");
        const Rows rows = ToRows(picture, bitCount, true);
        Surface target(newWidth, newHeight);
        ASSERT_TRUE(StretchRows(rows.rows, target, scratch));
        EXPECT_LE(LargestDifference(target, expected), 6);
        EXPECT_TRUE(IsOpaque(target));
      }
    }
  }
}

TEST(StretchRows, RefusesWhatIsNoPicture) {
  const Rows good = ToRows(Noise(20, 10, 1), 24, true);
  Surface target = Noise(30, 30, 2);
  const Surface before = target;
  ScaleScratch scratch;
  std::vector<PixelRows> bad(6, good.rows);
  bad[0].bits = nullptr;
  bad[1].width = 0;
  bad[2].height = -10;
  bad[3].bitCount = 16;
  bad[4].rowBytes = 59;
  bad[5] = RowsOf(Surface());
  for (const PixelRows& rows : bad) EXPECT_FALSE(StretchRows(rows, target, scratch));
  EXPECT_EQ(LargestDifference(target, before), 0);
  Surface none;
  EXPECT_FALSE(StretchRows(good.rows, none, scratch));
}

TEST(MirrorHorizontal, TwiceIsThePictureAgain) {
  for (const auto& [width, height] : {std::pair{640, 48}, {33, 7}, {1, 4}}) {
    const Surface picture = Noise(width, height, 6);
    Surface mirrored = picture;
    Surface scratch;
    MirrorHorizontal(mirrored, scratch);
    for (int x = 0; x < width; ++x) ASSERT_EQ(mirrored.Pixel(x, height - 1), picture.Pixel(width - 1 - x, height - 1));
    EXPECT_TRUE(IsOpaque(mirrored));
    MirrorHorizontal(mirrored, scratch);
    EXPECT_EQ(LargestDifference(mirrored, picture), 0);
  }
}

}  // namespace
}  // namespace kinalyx::test
