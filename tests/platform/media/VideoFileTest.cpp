#include "platform/media/VideoFile.h"

#include <algorithm>
#include <array>
#include <random>

#include "support/TestVideos.h"

namespace kinalyx::test {
namespace {

std::unique_ptr<VideoFile> OpenTestVideo(const TestVideo& video) { return OpenedVideo(MakeTestVideo(video)); }

std::uint64_t Fingerprint(const FrameRows& rows) {
  std::uint64_t sum = 14695981039346656037u;
  for (int y = 0; y < rows.height; ++y) {
    const std::uint8_t* row = rows.bits + static_cast<std::ptrdiff_t>(y) * rows.rowBytes;
    for (int x = 0; x < rows.width * rows.bitCount / 8; ++x) sum = (sum ^ row[x]) * 1099511628211u;
  }
  return sum;
}

struct Kind {
  std::string name;
  TestVideo video;
  std::size_t budget = std::size_t{256} << 20;
};

std::ostream& operator<<(std::ostream& out, const Kind& kind) { return out << kind.name; }

Kind H264(const std::string& name, int frames, int gop, int bFrames, std::size_t budgetKiB) {
  Kind kind{name, H264Video(frames), budgetKiB << 10};
  kind.video.format.keyInterval = gop;
  kind.video.format.bFrames = bFrames;
  return kind;
}

Kind OddSize(Kind kind) {
  kind.video.format.width = 354;
  kind.video.format.height = 492;
  return kind;
}

class AnyWay : public testing::TestWithParam<Kind> {};

TEST_P(AnyWay, GivesTheSamePictureForAFrame) {
  const Kind& kind = GetParam();
  const Budget budget(kind.budget);
  const int frames = kind.video.frames;
  const int field = kind.video.fieldsDiffer ? 0 : -1;

  auto straight = OpenTestVideo(kind.video);
  ASSERT_EQ(straight->Info().frameCount, frames);
  std::vector<std::uint64_t> expected;
  for (int n = 0; n < frames; ++n) {
    const FrameRows rows = straight->Frame(n, 24);
    ASSERT_EQ(ReadNumber(rows, field), kind.video.fieldsDiffer ? 2 * n : n);
    expected.push_back(Fingerprint(rows));
  }
  const auto expect = [&](VideoFile& file, int n) {
    const FrameRows rows = file.Frame(n, 24);
    ASSERT_TRUE(rows) << n;
    ASSERT_EQ(Fingerprint(rows), expected[static_cast<std::size_t>(n)])
        << "frame " << n << " shows " << ReadNumber(rows, field).value_or(-1);
  };

  auto file = OpenTestVideo(kind.video);
  for (int n = frames - 1; n >= 0; --n) ASSERT_NO_FATAL_FAILURE(expect(*file, n)) << "backward";

  file = OpenTestVideo(kind.video);
  std::mt19937 random(7);
  for (int i = 0; i < 60; ++i) {
    // A jump, and then a few steps from where it led, as somebody looks for a moment in a swing.
    int n = static_cast<int>(random() % static_cast<unsigned>(frames));
    ASSERT_NO_FATAL_FAILURE(expect(*file, n)) << "jump";
    const int step = random() % 2 ? 1 : -1;
    for (int k = static_cast<int>(random() % 6); k > 0; --k) {
      n = std::clamp(n + step, 0, frames - 1);
      ASSERT_NO_FATAL_FAILURE(expect(*file, n)) << "step " << step;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Videos, AnyWay,
                         testing::Values(Kind{"dv", DvVideo(24)}, Kind{"mjpeg", MjpegVideo(60)},
                                         Kind{"raw", RawVideo(40)}, Kind{"mjpeg_poor", MjpegVideo(60), 1},
                                         OddSize({"odd_size", MjpegVideo(20)}), H264("h264", 300, 250, 2, 256 << 10),
                                         H264("h264_poor", 300, 250, 2, 3000), H264("h264_poorest", 120, 50, 3, 1),
                                         H264("h264_short_chunks", 100, 12, 3, 4000),
                                         OddSize(H264("h264_no_b", 100, 60, 0, 6000))),
                         [](const auto& info) { return info.param.name; });

TEST(VideoFile, TellsWhatItHolds) {
  const auto dv = OpenTestVideo(DvVideo(24));
  const VideoInfo& info = dv->Info();
  EXPECT_EQ(std::pair(info.width, info.height), std::pair(720, 480));
  EXPECT_EQ(info.rate / info.scale, 29);
  EXPECT_EQ(info.compressor, "dvsd");
  EXPECT_TRUE(info.everyFrameIsKey && !info.hasSound);
  for (const int n : {12, 24}) EXPECT_NEAR(dv->SampleToTime(n), n * 1001.0 / 30, 0.01);

  const auto h264 = ReadVideoInfo(MakeTestVideo(H264Video(300)));
  ASSERT_TRUE(h264);
  EXPECT_EQ(h264->compressor, "H264");
  EXPECT_FALSE(h264->everyFrameIsKey);
  EXPECT_EQ(h264->frameCount, 300);
  EXPECT_NEAR(h264->durationMs, 10000, 0.01);
}

TEST(VideoFile, RowsStandBottomUpAndPadded) {
  const TestVideo video = RawVideo(2);  // 270 bytes a row, padded to 272
  const auto file = OpenTestVideo(video);
  std::vector<std::uint8_t> drawn;
  PaintTestPicture(video, 1, drawn);
  for (const int bitCount : {24, 32}) {
    const FrameRows rows = file->Frame(1, bitCount);
    ASSERT_TRUE(rows);
    EXPECT_EQ(rows.rowBytes, bitCount == 24 ? 272 : 360);
    for (int y = 0; y < 60; ++y) {
      for (int x = 0; x < 90; ++x) {
        const std::uint8_t* pixel = rows.bits + (59 - y) * rows.rowBytes + x * bitCount / 8;
        const std::uint8_t* source = drawn.data() + (y * 90 + x) * 4;
        ASSERT_TRUE(std::equal(source, source + 3, pixel)) << x << ", " << y;
      }
    }
  }
  for (const int n : {-1, 2}) EXPECT_FALSE(file->Frame(n, 24));
  EXPECT_FALSE(file->Frame(0, 16));
}

TEST(VideoFile, AFieldIsEveryOtherRowOfItsFrame) {
  const auto fields = OpenTestVideo(DvVideo(3));
  const auto frames = OpenTestVideo(DvVideo(3));
  for (const bool lowest : {true, false}) {
    std::vector<std::uint8_t> bits(static_cast<std::size_t>(720) * 3 * 480, 7);
    ASSERT_TRUE(fields->Field(1, lowest, bits));
    const FrameRows whole = frames->Frame(1, 24);
    for (int row = 0; row < 480; ++row) {
      const auto* const at = bits.data() + static_cast<std::ptrdiff_t>(row) * whole.rowBytes;
      if ((row % 2 == 0) == lowest) ASSERT_EQ(std::memcmp(at, whole.bits + row * whole.rowBytes, 2160), 0) << row;
      else ASSERT_TRUE(std::all_of(at, at + 2160, [](int byte) { return byte == 7; })) << row;
    }
  }
  std::vector<std::uint8_t> bits;
  EXPECT_FALSE(fields->Field(3, true, bits));
  EXPECT_FALSE(OpenTestVideo(MjpegVideo(3))->Field(0, true, bits)) << "two rows share their colour";
}

TEST(VideoFile, CodecsKeepTheColours) {
  // Red over blue: swapped colour differences, a wrong range or rows upside down would all show.
  for (const auto codec : {VideoFormat::Codec::Dv, VideoFormat::Codec::Mjpeg, VideoFormat::Codec::H264}) {
    VideoFormat format = DvVideo(3).format;
    format.codec = codec;
    const std::string path = TestPath("colours" + std::to_string(static_cast<int>(codec)) + ".avi");
    auto writer = VideoWriter::Create(path, format);
    ASSERT_TRUE(writer);
    std::vector<std::uint8_t> rows(720 * 480 * 3);
    for (int i = 0; i < 720 * 480; ++i) {
      const bool upper = i < 720 * 240;
      rows[i * 3] = upper ? 30 : 200;
      rows[i * 3 + 1] = 60;
      rows[i * 3 + 2] = upper ? 210 : 20;
    }
    for (int n = 0; n < 3; ++n) ASSERT_TRUE((*writer)->Write({rows.data(), 720, 480, 720 * 3, 24, false}));
    ASSERT_TRUE((*writer)->Close());
    const auto file = OpenedVideo(path);
    const FrameRows shown = file->Frame(2, 24);
    ASSERT_TRUE(shown);
    for (const bool upper : {true, false}) {
      const std::uint8_t* pixel = shown.bits + (upper ? 400 : 80) * shown.rowBytes + 300 * 3;
      const std::array<int, 3> wanted = {upper ? 30 : 200, 60, upper ? 210 : 20};
      for (std::size_t c = 0; c < 3; ++c) EXPECT_NEAR(pixel[c], wanted[c], 12) << static_cast<int>(codec);
    }
  }
}

TEST(VideoFile, OpensFilesUnderAnyName) {
  const std::string source = MakeTestVideo(MjpegVideo(60));
  for (const char* name : {"CAPTURE.AVI", "M\xC3\xBCller  Abschlag 1.avi", "file:http,\xE6\x97\xA5.avi", "100%d.avi"}) {
    const std::string path = TestPath(name);
    std::filesystem::copy_file(source, path, std::filesystem::copy_options::overwrite_existing);
    const auto opened = VideoFile::Open(path);
    ASSERT_TRUE(opened) << name << ": " << opened.Why();
    EXPECT_EQ(ReadNumber((*opened)->Frame(59, 24)), 59) << name;
  }
}

TEST(VideoFile, EightFilesShareTheMemoryAndCloseInTheMiddleOfTheirWork) {
  const Budget budget(4 << 20);
  std::vector<std::unique_ptr<VideoFile>> files;
  for (int i = 0; i < 8; ++i) files.push_back(OpenTestVideo(i % 2 ? H264Video(300) : MjpegVideo(60)));
  for (int n = 0; n < 60; ++n) {
    for (std::size_t i = 0; i < files.size(); ++i) {
      const int wanted = i % 4 < 2 ? n : 59 - n;
      ASSERT_EQ(ReadNumber(files[i]->Frame(wanted, 24)), wanted) << "file " << i;
    }
    if (n % 10 == 9) files.pop_back();
    OpenTestVideo(H264Video(300));  // comes, takes its share, and goes before it has shown anything
  }
}

}  // namespace
}  // namespace kinalyx::test
