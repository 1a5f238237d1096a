#include <gtest/gtest.h>

#include "support/TestVideos.h"
#include "video/IntelJPEGLibrary.h"
#include "video/cBitmap.h"
#include "video/cDIBSection.h"
#include "video/cGDIP.h"
#include "video/cGraphics.h"
#include "video/cImageProcessDIB.h"

namespace kinalyx::test {
namespace {

/// Every pixel says where it stands.
Surface Chart(int width, int height) {
  Surface surface(width, height);
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x) {
      surface.Row(y)[x * 4] = static_cast<std::uint8_t>(x);
      surface.Row(y)[x * 4 + 1] = static_cast<std::uint8_t>(y);
      surface.Row(y)[x * 4 + 2] = static_cast<std::uint8_t>(x ^ y);
    }
  return surface;
}

TEST(cDIBSection, LaysItsRowsAsItsHeaderSays) {
  cDIBSection section;
  EXPECT_EQ(section.DIBSectionBitsPtr(), nullptr);
  EXPECT_EQ(section.BytesPerScanLine(), 0);
  ASSERT_TRUE(section.CreateFromPicture(Chart(35, 20)));
  EXPECT_EQ(section.BytesPerScanLine(), 108);
  EXPECT_EQ(section.hDib().imageSize, 20 * 108);
  EXPECT_EQ(section.hDib().size, 40);
  EXPECT_EQ(section.hDib().bitCount, 24);
  const std::uint8_t* bottomLeft = section.DIBSectionBitsPtr();
  EXPECT_EQ(bottomLeft[1], 19);
  EXPECT_EQ(bottomLeft[19 * 108 + 34 * 3], 34);
  for (const auto& [width, height] : {std::pair{0, 5}, {5, 0}, {-1, 5}, {40000, 2}}) {
    EXPECT_FALSE(section.Create(width, height));
    EXPECT_EQ(section.Width(), 0) << "a failure leaves nothing";
    ASSERT_TRUE(section.Create(3, 3));
  }
}

TEST(cDIBSection, JoinsPartsUnderRasterCodes) {
  const Surface chart = Chart(30, 20);
  cDIBSection section;
  ASSERT_TRUE(section.Create(30, 20));
  ASSERT_TRUE(section.LoadPictureBlt(RowsOf(chart), 10, 5, 8, 4));
  Surface shown(30, 20);
  ASSERT_TRUE(section.PaintPicture(shown));
  EXPECT_EQ(shown.Pixel(0, 0), chart.Pixel(10, 5));
  EXPECT_EQ(shown.Pixel(7, 3), chart.Pixel(17, 8));
  EXPECT_EQ(shown.Pixel(8, 3), 0);
  // Beyond the edges nothing happens.
  ASSERT_TRUE(section.Create(30, 20));
  EXPECT_TRUE(section.LoadPictureBlt(RowsOf(chart), -3, -3));
  EXPECT_TRUE(section.PaintPicture(shown, 25, 15, 100, 100));
  EXPECT_EQ(shown.Pixel(25, 15), 0) << "what the source lacks stays black";
  EXPECT_EQ(shown.Pixel(28, 18), chart.Pixel(0, 0));
  EXPECT_FALSE(section.LoadPictureBlt({}));

  Surface pixel(1, 1);
  pixel.Clear(Rgb(0xFF, 0x0F, 0xF0));
  ASSERT_TRUE(section.CreateFromPicture(pixel));
  constexpr std::uint32_t kSourceInvert = 0x660046, kSourceAnd = 0x8800C6, kSourcePaint = 0xEE0086, kBlackness = 0x42,
                          kNotSourceCopy = 0x330008;
  for (const auto& [code, joined] : {std::pair{kSourceCopy, Rgb(0xFF, 0x0F, 0xF0)}, {kSourceInvert, Rgb(0xF0, 0x3C, 0xA5)},
                                     {kSourceAnd, Rgb(0x0F, 0x03, 0x50)}, {kSourcePaint, Rgb(0xFF, 0x3F, 0xF5)},
                                     {kNotSourceCopy, Rgb(0x00, 0xF0, 0x0F)}, {kBlackness, 0}}) {
    pixel.Clear(Rgb(0x0F, 0x33, 0x55));
    section.PaintPicture(pixel, 0, 0, -1, -1, 0, 0, code);
    EXPECT_EQ(pixel.Pixel(0, 0), joined) << code;
  }
}

TEST(cDIBSection, ResamplesIntoAnotherSize) {
  cDIBSection section;
  EXPECT_FALSE(section.Resample(10, 10));
  ASSERT_TRUE(section.CreateFromPicture(Chart(100, 60)));
  const auto same = section.Resample(60, 100);
  ASSERT_TRUE(same);
  EXPECT_TRUE(std::equal(same->DIBSectionBitsPtr(), same->DIBSectionBitsPtr() + 60 * 300, section.DIBSectionBitsPtr()));
  const auto half = section.Resample(30, 50);
  ASSERT_TRUE(half);
  EXPECT_EQ(half->Width(), 50);
  EXPECT_EQ(half->Height(), 30);
  Surface shown(50, 30);
  half->PaintPicture(shown);
  EXPECT_NEAR(Blue(shown.Pixel(20, 10)), 40, 2);
  EXPECT_NEAR(Green(shown.Pixel(20, 10)), 20, 2);
  EXPECT_FALSE(section.Resample(0, 50));
}

TEST(cImageProcessDIB, SoftensEverySecondRow) {
  cDIBSection source;
  cDIBSection target;
  EXPECT_FALSE(cImageProcessDIB().ProcessImage(source, target));
  Surface stripes(8, 9);
  for (int y = 0; y < 9; ++y)
    for (int x = 0; x < 8 * 4; ++x) stripes.Row(8 - y)[x] = static_cast<std::uint8_t>(y % 2 ? 200 : y * 10);
  ASSERT_TRUE(source.CreateFromPicture(stripes));
  ASSERT_TRUE(cImageProcessDIB().ProcessImage(source, target));
  for (int row = 0; row < 9; ++row)
    EXPECT_EQ(target.DIBSectionBitsPtr()[row * 24], row % 2 ? (row - 1 + row + 1) * 10 / 2 : row * 10) << row;
}

TEST(cBitmap, ShowsBottomUpRowsTheRightWayUp) {
  cDIBSection section;
  ASSERT_TRUE(section.CreateFromPicture(Chart(21, 9)));
  cBitmap bitmap;
  const int row = section.BytesPerScanLine();
  EXPECT_FALSE(bitmap.CreateFromScan0(4, 4, 12, PixelFormatId::Undefined, nullptr));
  ASSERT_TRUE(bitmap.CreateFromScan0(21, 9, -row, PixelFormatId::Rgb24, section.DIBSectionBitsPtr() + 8 * row));
  EXPECT_EQ(bitmap.GetPixelLong(20, 0) & 0xFF, 20u);
  EXPECT_EQ(bitmap.GetPixelLong(20, 8) >> 8 & 0xFF, 8u);
  EXPECT_EQ(bitmap.GetPixelLong(21, 0), 0u);
  EXPECT_EQ(bitmap.CurErr(), GdipStatus::InvalidParameter);
  ASSERT_TRUE(bitmap.RotateFlip(6));
  EXPECT_EQ(bitmap.GetPixelLong(20, 0) >> 8 & 0xFF, 8u) << "half a turn and mirrored is upside down";
  EXPECT_FALSE(bitmap.RotateFlip(8));

  cBitmap small;
  ASSERT_TRUE(small.CreateThumbFromImage(0, 0, bitmap));
  EXPECT_EQ(small.Width(), 120);
  EXPECT_FALSE(small.LoadFromFile(TestPath("nothing.bmp")));
  EXPECT_EQ(small.CurErr(), GdipStatus::FileNotFound);
  EXPECT_FALSE(small.CreateFromClone(small));
}

TEST(cGraphics, DrawsAndRefusesWhileItsCanvasIsOut) {
  Surface surface(40, 30);
  cBitmap bitmap;
  ASSERT_TRUE(bitmap.CreateFromGraphics(10, 10));
  cGraphics onBitmap;
  ASSERT_TRUE(onBitmap.GetGraphicsContext(bitmap));
  ASSERT_TRUE(onBitmap.Clear(0xFF0000C8));
  EXPECT_EQ(onBitmap.GetDC(), nullptr);

  cGraphics graphics;
  EXPECT_FALSE(graphics.DrawImageI(bitmap, 0, 0)) << "there is no surface yet";
  ASSERT_TRUE(graphics.CreateFromHdc(surface));
  EXPECT_TRUE(graphics.SetInterpolationMode(3));
  EXPECT_FALSE(graphics.SetInterpolationMode(8));
  EXPECT_TRUE(graphics.DrawImageRectI(bitmap, 5, 5, 20, 10));
  EXPECT_EQ(surface.Pixel(15, 10), Rgb(0, 0, 200));
  EXPECT_EQ(surface.Pixel(26, 10), 0);
  ASSERT_NE(graphics.GetDC(), nullptr);
  EXPECT_FALSE(graphics.Clear(0xFFFFFFFF));
  EXPECT_EQ(graphics.CurErr(), GdipStatus::ObjectBusy);
  EXPECT_TRUE(graphics.ReleaseDC());
  EXPECT_TRUE(graphics.Clear(0xFFFFFFFF));
  EXPECT_EQ(surface.Pixel(0, 0), Rgb(255, 255, 255));
  EXPECT_FALSE(graphics.ReleaseDC());
}

TEST(cGDIP, NamesItsFaultsAndEncoders) {
  EXPECT_EQ(cGDIP::Error(GdipStatus::GenericError), "Generic Error");
  EXPECT_EQ(cGDIP::Error(GdipStatus::PropertyNotSupported), "Property Not Supported");
  for (const int unknown : {21, -1}) EXPECT_EQ(cGDIP::Error(static_cast<GdipStatus>(unknown)), "Unknown GDI+ Error");
  const cGDIP session;
  for (const char* extension : {"jpg", ".JPG", "*.jpeg", "png", "*.bmp"}) EXPECT_TRUE(session.ExtensionExists(extension));
  for (const char* extension : {"", "avi", "jp", "*"}) EXPECT_FALSE(session.ExtensionExists(extension)) << extension;
}

TEST(cFont, TakesItsSizeInPixelsOrPoints) {
  const cGDIP session;
  cFont font;
  EXPECT_FALSE(font.CreateFont("No such family in the world", 10));
  EXPECT_EQ(font.CurErr(), GdipStatus::FontFamilyNotFound);
  EXPECT_EQ(font.Handle(), nullptr);
  ASSERT_TRUE(font.CreateFromHdc(20));
  EXPECT_NEAR(font.Height(), 20, 3);
  const std::string family = font.Name();
  if (!font.CreateFont(family, 12, kFontBold | kFontUnderline)) GTEST_SKIP() << "no family of that name here";
  EXPECT_TRUE(font.Bold() && font.Underline() && !font.Italic());
  EXPECT_EQ(font.Handle()->pixels, 16);
  ASSERT_TRUE(font.CreateFont(family, 12, kFontItalic, FontUnit::Pixel));
  EXPECT_EQ(font.Handle()->pixels, 12);
}

TEST(WriteJpegFile, WritesOrSaysWhyNot) {
  cDIBSection section;
  std::string error;
  EXPECT_FALSE(WriteJpegFile(section, TestPath("snapshot.jpg"), 70, &error));
  EXPECT_EQ(error, "Failed to save to JPG 2");
  ASSERT_TRUE(section.CreateFromPicture(Chart(64, 48)));
  EXPECT_TRUE(WriteJpegFile(section, TestPath("snapshot.jpg"), 70));
  cBitmap bitmap;
  ASSERT_TRUE(bitmap.LoadFromFile(TestPath("snapshot.jpg")));
  EXPECT_EQ(bitmap.Width(), 64);
  EXPECT_NEAR(static_cast<int>(bitmap.GetPixelLong(30, 40) >> 8 & 0xFF), 40, 14) << "the right way up";
  EXPECT_FALSE(WriteJpegFile(section, TestPath("no such folder/snapshot.jpg"), 70, &error));
  EXPECT_EQ(error.find("Failed to save to JPG "), 0u);
  EXPECT_FALSE(WriteJpegFile(section, TestPath("snapshot2.jpg"), 300, &error));
}

}  // namespace
}  // namespace kinalyx::test
