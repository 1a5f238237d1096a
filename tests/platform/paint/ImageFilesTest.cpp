#include "platform/paint/ImageFiles.h"

#include <sys/stat.h>

#include "support/Pictures.h"
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
  EXPECT_EQ(LargestDifference(picture, LoadPicture(png)), 0);

  const std::string fine = TestPath("fine.jpg");
  const std::string coarse = TestPath("coarse.jpg");
  ASSERT_TRUE(SaveJpeg(RowsOf(picture), fine, 95));
  ASSERT_TRUE(SaveJpeg(RowsOf(picture), coarse, 10));
  EXPECT_LT(LargestDifference(picture, LoadPicture(fine)), 12);
  EXPECT_LT(std::filesystem::file_size(coarse), std::filesystem::file_size(fine));

  // It does not matter which way up the rows lay.
  PixelRows rows = RowsOf(picture);
  rows.bottomUp = true;
  ASSERT_TRUE(SavePng(rows, png));
  const Surface loaded = LoadPicture(png);
  for (int y = 0; y < 40; ++y) EXPECT_EQ(loaded.Pixel(30, y), picture.Pixel(30, 39 - y));
}

TEST(ImageFiles, SayWhatIsWrong) {
  const Surface picture = Gradient(8, 8);
  EXPECT_FALSE(SaveJpeg(RowsOf(picture), TestPath("x.jpg"), 101));
  EXPECT_FALSE(SaveJpeg({}, TestPath("x.jpg"), 70));
  EXPECT_FALSE(SavePng(RowsOf(picture), TestPath("no folder/x.png")).Why().empty());

  // What is no file is never replaced by one.
  const std::string pipe = TestPath("pipe");
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  for (const std::string& path : {pipe, TestPath(""), TestPath("no folder/x.jpg")})
    EXPECT_FALSE(SaveJpeg(RowsOf(picture), path, 70)) << path;
  EXPECT_TRUE(std::filesystem::is_fifo(pipe));
}

}  // namespace
}  // namespace kinalyx::test
