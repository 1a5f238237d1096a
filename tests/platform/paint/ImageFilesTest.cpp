#include "platform/paint/ImageFiles.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cmath>
#include <filesystem>
#include <fstream>

#include "platform/paint/PicturePainter.h"
#include "support/Surfaces.h"
#include "support/TestVideos.h"

namespace kinalyx::test {
namespace {

Surface Gradient(int width, int height) {
  Surface surface(width, height);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      surface.Row(y)[x * 4] = static_cast<std::uint8_t>(x * 255 / width);
      surface.Row(y)[x * 4 + 1] = static_cast<std::uint8_t>(y * 255 / height);
      surface.Row(y)[x * 4 + 2] = 90;
    }
  }
  return surface;
}

TEST(ImageFiles, KeepAPicture) {
  const Surface picture = Gradient(67, 40);
  const std::string png = TestPath("Bild \xC3\xA4.png");
  ASSERT_TRUE(SavePng(RowsOf(picture), png));
  Surface loaded;
  ASSERT_TRUE(LoadImageFile(png, loaded));
  EXPECT_EQ(LargestDifference(picture, loaded), 0);

  const std::string fine = TestPath("fine.jpg");
  const std::string coarse = TestPath("coarse.jpg");
  ASSERT_TRUE(SaveJpeg(RowsOf(picture), fine, 95));
  ASSERT_TRUE(SaveJpeg(RowsOf(picture), coarse, 10));
  ASSERT_TRUE(LoadImageFile(fine, loaded));
  EXPECT_LT(LargestDifference(picture, loaded), 12);
  EXPECT_LT(std::filesystem::file_size(coarse), std::filesystem::file_size(fine));

  // The name of a file does not matter, nor which way up its rows lay.
  PixelRows rows = RowsOf(picture);
  rows.bottomUp = true;
  ASSERT_TRUE(SavePng(rows, png));
  std::filesystem::rename(png, TestPath("picture.bmp"));
  ASSERT_TRUE(LoadImageFile(TestPath("picture.bmp"), loaded));
  for (int y = 0; y < 40; ++y) EXPECT_EQ(loaded.Pixel(30, y), picture.Pixel(30, 39 - y));
}

TEST(ImageFiles, SayWhatIsWrong) {
  const Surface picture = Gradient(8, 8);
  Surface target = Gradient(3, 3);
  std::ofstream(TestPath("text.png")) << "not an image";
  ASSERT_TRUE(SavePng(RowsOf(Gradient(200, 200)), TestPath("cut.png")));
  std::filesystem::resize_file(TestPath("cut.png"), 60);
  for (const auto& [name, fault] : {std::pair{"none.png", ImageFault::NotFound}, {"", ImageFault::NotFound},
                                    {"text.png", ImageFault::UnknownFormat}, {"cut.png", ImageFault::Damaged}})
    EXPECT_EQ(LoadImageFile(TestPath(name), target).fault, fault) << name;
  EXPECT_EQ(target.Width(), 3) << "a failure leaves the target alone";

  EXPECT_EQ(SaveJpeg(RowsOf(picture), TestPath("x.jpg"), 101).fault, ImageFault::BadArgument);
  EXPECT_EQ(SaveJpeg({}, TestPath("x.jpg"), 70).fault, ImageFault::BadArgument);
  EXPECT_FALSE(SavePng(RowsOf(picture), TestPath("no folder/x.png")).message.empty());

  // What is no file is never replaced by one.
  const std::string pipe = TestPath("pipe");
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  for (const std::string& path : {pipe, TestPath(""), TestPath("no folder/x.jpg")})
    EXPECT_EQ(SaveJpeg(RowsOf(picture), path, 70).fault, ImageFault::NoAccess) << path;
  EXPECT_TRUE(std::filesystem::is_fifo(pipe));
}

/// A moving image of two frames, 2 x 1 pixels: red, then green; 50 ms and 120 ms, three times.
std::string MovingImage() {
  std::string gif("GIF89a\x02\0\x01\0\xF1\0\0\xFF\0\0\0\xFF\0\0\0\xFF\0\0\0", 25);
  gif += std::string("\x21\xFF\x0BNETSCAPE2.0\x03\x01\x02\0\0", 19);
  for (const char* frame : {"\x05\x44\x24", "\x0C\x4C\x24"}) {
    gif += std::string("\x21\xF9\x04\0", 4) + frame[0] + std::string("\0\0\0", 3);
    gif += std::string("\x2C\0\0\0\0\x02\0\x01\0\0\x02\x02", 12);
    gif += frame[1] == 0x44 ? std::string("\x04\x0A\0", 3) : std::string("\x4C\x0A\0", 3);
  }
  return gif + ";";
}

TEST(ImageFiles, ReadMovingImages) {
  const std::string bytes = MovingImage();
  ImageFrames image;
  const auto* data = reinterpret_cast<const std::uint8_t*>(bytes.data());
  ASSERT_TRUE(DecodeImage({data, bytes.size()}, image));
  ASSERT_EQ(image.frames.size(), 2u);
  EXPECT_EQ(image.frames[0].PixelAt(0, 0), 0xFFFF0000u);
  EXPECT_EQ(image.frames[1].PixelAt(1, 0), 0xFF00FF00u);
  EXPECT_EQ(image.delays, (std::vector<int>{50, 120}));
  EXPECT_EQ(image.loopCount, 2);
}

TEST(Picture, TurnsCutsAndClears) {
  Picture picture(Gradient(30, 20));
  const Argb corner = picture.PixelAt(0, 0);
  const Argb right = picture.PixelAt(29, 0);
  Picture copy = picture;
  copy.Turn(1, false);
  EXPECT_EQ(copy.Width(), 20);
  EXPECT_EQ(copy.PixelAt(19, 0), corner) << "clockwise";
  EXPECT_EQ(picture.Width(), 30) << "a copy of its own";
  copy.Turn(3, true);
  EXPECT_EQ(copy.PixelAt(0, 0), right);

  const Picture part = picture.Part(-5, 10, 10, 100);
  EXPECT_EQ(part.Width(), 5);
  EXPECT_EQ(part.Height(), 10);
  EXPECT_EQ(part.PixelAt(0, 0), picture.PixelAt(0, 10));
  EXPECT_TRUE(picture.Part(30, 0, 5, 5).Empty());
  EXPECT_TRUE(picture.Scaled(0, 5).Empty());

  picture.MakeTransparent(Rgb(90, 0, 0));
  EXPECT_EQ(picture.PixelAt(0, 0), 0u);
  EXPECT_EQ(picture.On(Rgb(1, 2, 3)).Pixel(0, 0), Rgb(1, 2, 3));
  EXPECT_EQ(picture.PixelAt(30, 0), 0u);
}

TEST(PicturePainter, LaysPicturesTurnedAndMixed) {
  Surface target(40, 40);
  PicturePainter painter(target);
  Surface red(10, 10);
  red.Clear(Rgb(200, 0, 0));
  const Picture picture(red);
  EXPECT_TRUE(painter.Draw(picture, {5, 5, 10, 10}, {0, 0, 10, 10}));
  EXPECT_EQ(target.Pixel(6, 6), Rgb(200, 0, 0));
  EXPECT_EQ(target.Pixel(16, 6), 0);
  EXPECT_TRUE(painter.Draw(picture, {20, 5, 10, 10}, {0, 0, 10, 10}, {0.5, {}}));
  EXPECT_NEAR(Red(target.Pixel(25, 10)), 100, 2);
  EXPECT_TRUE(painter.Draw(picture, {20, 20, 10, 10}, {0, 0, 10, 10}, {1, Rgb(200, 0, 0)}));
  EXPECT_EQ(target.Pixel(25, 25), 0) << "its one colour is left out";
  painter.Translate(40, 40);
  painter.Rotate(180);
  EXPECT_TRUE(painter.Draw(picture, {0, 0, 10, 10}, {0, 0, 10, 10}));
  EXPECT_EQ(target.Pixel(35, 35), Rgb(200, 0, 0));
  EXPECT_FALSE(painter.Draw(Picture(), {0, 0, 10, 10}, {0, 0, 10, 10}));
  EXPECT_FALSE(painter.Draw(picture, {0, 0, 0, 10}, {0, 0, 10, 10}));
}

}  // namespace
}  // namespace kinalyx::test
