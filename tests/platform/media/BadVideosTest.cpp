#include <gtest/gtest.h>
#include <unistd.h>

#include <cstring>
#include <filesystem>
#include <fstream>
#include <random>
#include <vector>

#include "platform/media/VideoFile.h"
#include "support/TestVideos.h"

namespace kinalyx::test {
namespace {

namespace fs = std::filesystem;

std::string BytesOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::string FileWith(const std::string& name, const std::string& bytes) {
  const std::string path = TestPath(name);
  std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
  return path;
}

OpenFault FaultOf(const std::string& path) {
  const auto result = VideoFile::Open(path);
  EXPECT_EQ(result.file == nullptr, result.fault != OpenFault::None);
  EXPECT_EQ(result.file == nullptr, !result.message.empty()) << path;
  EXPECT_EQ(ReadVideoInfo(path) == nullptr, result.file == nullptr);
  return result.fault;
}

/// Where the first packet's bytes stand in an AVI file.
std::size_t FirstPacket(const std::string& avi) { return avi.find("00dc", avi.find("movi")) + 8; }

TEST(BadVideos, AreRefusedWithTheirReason) {
  const std::string avi = BytesOf(MakeTestVideo(MjpegVideo(60)));
  EXPECT_EQ(FaultOf(TestPath("nowhere.avi")), OpenFault::NotFound);
  EXPECT_EQ(FaultOf(TestPath("")), OpenFault::NotFound);
  EXPECT_EQ(FaultOf("/dev/zero"), OpenFault::NotFound);
  EXPECT_EQ(FaultOf(FileWith("empty.avi", "")), OpenFault::NoFrames);
  EXPECT_EQ(FaultOf(FileWith("text.avi", std::string(5000, 'x'))), OpenFault::NoMedia);
  EXPECT_EQ(FaultOf(FileWith("list.avi", "#EXTM3U\n#EXTINF:1,\n/etc/hostname\n")), OpenFault::NoMedia);
  EXPECT_EQ(FaultOf(FileWith("header.avi", avi.substr(0, avi.find("movi") + 4))), OpenFault::NoFrames);
  EXPECT_EQ(FaultOf(FileWith("riff.avi", avi.substr(0, 40))), OpenFault::NoMedia);

  // A sound file in the same container.
  std::string sound = avi;
  for (std::size_t at = sound.find("vids"); at != std::string::npos; at = sound.find("vids", at)) sound.replace(at, 4, "auds");
  EXPECT_EQ(FaultOf(FileWith("sound.avi", sound)), OpenFault::NoMedia);
}

TEST(BadVideos, CutInTheMiddleShowWhatIsLeft) {
  for (const TestVideo& video : {MjpegVideo(60), H264Video(300), DvVideo(24), RawVideo(40)}) {
    const std::string avi = BytesOf(MakeTestVideo(video));
    const std::string path = FileWith("cut.avi", avi.substr(0, avi.size() / 2));
    const auto file = VideoFile::Open(path).file;
    ASSERT_TRUE(file);
    const int frames = file->Info().frameCount;
    EXPECT_GT(frames, video.frames / 8);
    EXPECT_LT(frames, video.frames);
    const int field = video.fieldsDiffer ? 0 : -1;
    // The last packet may be half there; what it shows is its own matter, as long as it shows.
    for (int n = frames - 2; n >= 0; n -= 5)
      ASSERT_EQ(ReadNumber(file->Frame(n, 24), field), video.fieldsDiffer ? 2 * n : n);
    EXPECT_TRUE(file->Frame(frames - 1, 24));
  }
}

TEST(BadVideos, ADamagedPacketShowsThePictureBefore) {
  std::string avi = BytesOf(MakeTestVideo(MjpegVideo(60)));
  std::size_t at = FirstPacket(avi);
  for (int packet = 0; packet < 20; ++packet) {
    std::uint32_t size = 0;
    std::memcpy(&size, avi.data() + at - 4, 4);
    if (packet >= 10 && packet < 13) std::memset(avi.data() + at, 0, size);
    at += size + size % 2 + 8;
  }
  const auto file = VideoFile::Open(FileWith("damaged.avi", avi)).file;
  ASSERT_TRUE(file);
  ASSERT_EQ(file->Info().frameCount, 60);
  for (const int n : {9, 10, 11, 12, 13, 12, 11, 40, 12}) {
    const int shown = n >= 10 && n < 13 ? 9 : n;
    EXPECT_EQ(ReadNumber(file->Frame(n, 24)), shown) << n;
  }
}

TEST(BadVideos, WithNoGoodPacketShowNothing) {
  std::string avi = BytesOf(MakeTestVideo(MjpegVideo(60)));
  const std::size_t first = FirstPacket(avi);
  const std::size_t end = avi.find("idx1");
  for (std::size_t at = first; at < end; ++at) {
    // Everything but the chunks' own heads.
    if (avi.compare(at, 4, "00dc") == 0) at += 7;
    else avi[at] = 1;
  }
  const auto file = VideoFile::Open(FileWith("rubble.avi", avi)).file;
  ASSERT_TRUE(file);
  EXPECT_EQ(file->Info().frameCount, 60);
  for (const int n : {0, 59, 30, 2}) EXPECT_FALSE(file->Frame(n, 24));
}

TEST(BadVideos, OfAnyKindOfDamageDoNoHarm) {
  std::mt19937 random(11);
  for (const TestVideo& video : {MjpegVideo(12), H264Video(40), DvVideo(3), RawVideo(6)}) {
    const std::string avi = BytesOf(MakeTestVideo(video));
    for (int round = 0; round < 12; ++round) {
      std::string damaged = avi;
      // Some in the headers and the index, the rest anywhere.
      for (int i = 0; i < 40; ++i) {
        const std::size_t reach = i % 4 == 0 ? std::min<std::size_t>(damaged.size(), 6000) : damaged.size();
        damaged[random() % reach] = static_cast<char>(random());
      }
      if (round % 4 == 3) damaged.resize(random() % damaged.size());
      const auto file = VideoFile::Open(FileWith("any.avi", damaged)).file;
      if (!file) continue;
      const int frames = file->Info().frameCount;
      for (const int n : {0, frames - 1, frames / 2, frames / 2 - 1, 0}) file->Frame(n, 24);
    }
  }
}

TEST(BadVideos, MayVanishWhileOpen) {
  const std::string source = MakeTestVideo(H264Video(300));
  const std::string path = TestPath("vanishing.avi");
  fs::copy_file(source, path, fs::copy_options::overwrite_existing);
  const auto file = VideoFile::Open(path).file;
  ASSERT_TRUE(file);
  ASSERT_EQ(ReadNumber(file->Frame(20, 24)), 20);
  fs::remove(path);
  EXPECT_EQ(ReadNumber(file->Frame(280, 24)), 280);

  // Cut off under our hands, as by a copy over it: what is read no more shows what could be read.
  fs::copy_file(source, path, fs::copy_options::overwrite_existing);
  const auto cut = VideoFile::Open(path).file;
  ASSERT_TRUE(cut);
  fs::resize_file(path, fs::file_size(path) / 3);
  const FrameRows last = cut->Frame(299, 24);
  EXPECT_TRUE(last);
  EXPECT_EQ(ReadNumber(cut->Frame(5, 24)), 5);
}

/// Builds a video of 12 pictures anew, with an empty chunk wherever `pictures` holds -1.
std::string WithEmptyChunks(const std::vector<int>& pictures) {
  const std::string avi = BytesOf(MakeTestVideo(MjpegVideo(12)));
  std::string head = avi.substr(0, FirstPacket(avi) - 8);
  std::vector<std::string> chunks;
  std::size_t at = FirstPacket(avi) - 8;
  for (int packet = 0; packet < 12; ++packet) {
    std::uint32_t size = 0;
    std::memcpy(&size, avi.data() + at + 4, 4);
    chunks.push_back(avi.substr(at, 8 + size + size % 2));
    at += chunks.back().size();
  }
  const std::string empty("00dc\0\0\0\0", 8);
  std::string movie;
  std::string index;
  const auto append = [&](std::uint32_t value) { index.append(reinterpret_cast<const char*>(&value), 4); };
  for (const int picture : pictures) {
    const std::string& chunk = picture < 0 ? empty : chunks[static_cast<std::size_t>(picture)];
    std::uint32_t size = 0;
    std::memcpy(&size, chunk.data() + 4, 4);
    index += "00dc";
    append(16);
    append(static_cast<std::uint32_t>(4 + movie.size()));
    append(size);
    movie += chunk;
  }
  const auto put = [](std::string& bytes, std::size_t place, std::size_t value) {
    const auto word = static_cast<std::uint32_t>(value);
    std::memcpy(bytes.data() + place, &word, 4);
  };
  put(head, head.size() - 8, movie.size() + 4);
  std::string indexHead("idx1\0\0\0\0", 8);
  put(indexHead, 4, index.size());
  std::string whole = head + movie + indexHead + index;
  put(whole, 4, whole.size() - 8);
  put(whole, whole.find("strh") + 8 + 32, pictures.size());
  return whole;
}

TEST(BadVideos, FramesLeftOutRepeatTheOneBefore) {
  // A capture that lost frames stores empty chunks in their place.
  const std::vector<int> pictures = {0, 1, 2, -1, -1, 3, 4, 5, 6, -1, 7, 8, 9, 10, 11, -1};
  const auto file = VideoFile::Open(FileWith("dropped.avi", WithEmptyChunks(pictures))).file;
  ASSERT_TRUE(file);
  ASSERT_EQ(file->Info().frameCount, 16);
  const int shown[] = {0, 1, 2, 2, 2, 3, 4, 5, 6, 6, 7, 8, 9, 10, 11, 11};
  for (int n = 15; n >= 0; --n) EXPECT_EQ(ReadNumber(file->Frame(n, 24)), shown[n]) << n;
}

TEST(BadVideos, AnEmptyChunkBehindEveryPictureIsNoFrame) {
  std::vector<int> pictures;
  for (int n = 0; n < 12; ++n) pictures.insert(pictures.end(), {n, -1});
  const auto file = VideoFile::Open(FileWith("doubled.avi", WithEmptyChunks(pictures))).file;
  ASSERT_TRUE(file);
  ASSERT_EQ(file->Info().frameCount, 12);
  EXPECT_EQ(file->Info().rate / file->Info().scale, 15);
  EXPECT_NEAR(file->SampleToTime(12), 24 * 1000 / 30.0, 0.1);
  for (int n = 11; n >= 0; --n) EXPECT_EQ(ReadNumber(file->Frame(n, 24)), n);
}

}  // namespace
}  // namespace kinalyx::test
