#include "platform/media/VideoWriter.h"

#include <sys/stat.h>

#include <fstream>

#include "platform/media/VideoFile.h"
#include "support/TestVideos.h"

namespace kinalyx::test {
namespace {

namespace fs = std::filesystem;

TEST(VideoWriter, StandsUnderItsNameOnlyWhenItIsWhole) {
  const std::string path = TestPath("written.avi");
  std::ofstream(path) << "an older file";
  std::vector<std::uint8_t> rows(90 * 60 * 3, 120);
  const PixelRows picture{rows.data(), 90, 60, 270, 24, false};
  {
    auto writer = VideoWriter::Create(path, RawVideo(1).format);
    ASSERT_TRUE(writer);
    EXPECT_TRUE((*writer)->Write(picture));
    EXPECT_EQ(fs::file_size(path), 13u);
  }
  EXPECT_EQ(fs::file_size(path), 13u) << "given up, nothing has changed";
  EXPECT_FALSE(fs::exists(path + ".part"));

  auto writer = VideoWriter::Create(path, RawVideo(1).format);
  ASSERT_TRUE(writer);
  EXPECT_FALSE((*writer)->Write({rows.data(), 88, 60, 270, 24, false}));
  EXPECT_FALSE((*writer)->Write({rows.data(), 90, 60, 270, 16, false}));
  EXPECT_TRUE((*writer)->Write(picture));
  EXPECT_TRUE((*writer)->Close());
  EXPECT_FALSE((*writer)->Close());
  EXPECT_FALSE((*writer)->Write(picture));
  EXPECT_FALSE(fs::exists(path + ".part"));
  ASSERT_TRUE(ReadVideoInfo(path));
  EXPECT_EQ(ReadVideoInfo(path)->frameCount, 1);
}

TEST(VideoWriter, SaysWhyItCannotBegin) {
  EXPECT_NE(VideoWriter::Create(TestPath("no folder/x.avi"), RawVideo(1).format).Why(), "");
  VideoFormat format = RawVideo(1).format;
  format.rate = 0;
  EXPECT_FALSE(VideoWriter::Create(TestPath("x.avi"), format));
  format = DvVideo(1).format;
  format.width = 640;
  EXPECT_FALSE(VideoWriter::Create(TestPath("x.avi"), format)) << "no tape has this size";
  EXPECT_FALSE(fs::exists(TestPath("x.avi.part")));

  const std::string pipe = TestPath("pipe.avi");
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_FALSE(VideoWriter::Create(pipe, RawVideo(1).format));
  EXPECT_TRUE(fs::is_fifo(pipe));
}

}  // namespace
}  // namespace kinalyx::test
