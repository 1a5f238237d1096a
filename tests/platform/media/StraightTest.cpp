#include <cstring>
#include <random>

#include "platform/media/Demuxer.h"
#include "platform/media/FieldStream.h"
#include "platform/media/Films.h"
#include "platform/media/RowConverter.h"
#include "platform/media/VideoFile.h"
#include "support/TestVideos.h"

namespace kinalyx::test {
namespace {

/// Whichever way a frame is reached, it is what the bare library shows in its place, decoding from the start.
void ExpectAsStraight(const std::string& path) {
  const auto opened = VideoFile::Open(path);
  ASSERT_TRUE(opened) << opened.Why();
  VideoFile& file = **opened;
  const auto straight = DecodeStraight(path);
  const int frames = file.Info().frameCount;
  ASSERT_EQ(static_cast<std::size_t>(frames), straight.size());
  std::vector<std::vector<std::uint8_t>> expected(straight.size());
  RowConverter converter;
  for (std::size_t n = 0; n < straight.size(); ++n) converter.Convert(*straight[n], 24, expected[n]);
  const auto expect = [&](int n) {
    const FrameRows rows = file.Frame(n, 24);
    ASSERT_TRUE(rows) << n;
    const auto& wanted = expected[static_cast<std::size_t>(n)];
    ASSERT_EQ(std::memcmp(rows.bits, wanted.data(), wanted.size()), 0)
        << "frame " << n << " shows " << ReadNumber(rows).value_or(-1);
  };
  std::mt19937 random(9);
  for (int i = 0; i < 40; ++i)
    ASSERT_NO_FATAL_FAILURE(expect(static_cast<int>(random() % static_cast<unsigned>(frames)))) << "jump";
  for (int n = frames - 1; n >= 0; --n) ASSERT_NO_FATAL_FAILURE(expect(n)) << "backward";
  for (int n = 0; n < frames; ++n) ASSERT_NO_FATAL_FAILURE(expect(n)) << "forward";
}

void ReplaceBytes(AVPacket& packet, const std::string& bytes) {
  AVBufferRef* buffer = av_buffer_alloc(bytes.size() + AV_INPUT_BUFFER_PADDING_SIZE);
  std::memset(buffer->data, 0, static_cast<std::size_t>(buffer->size));
  std::memcpy(buffer->data, bytes.data(), bytes.size());
  av_buffer_unref(&packet.buf);
  packet.buf = buffer;
  packet.data = buffer->data;
  packet.size = static_cast<int>(bytes.size());
}

std::string BytesOf(const AVPacket& packet) {
  return {reinterpret_cast<const char*>(packet.data), static_cast<std::size_t>(packet.size)};
}

/// A stream that gives its encoder as an old one, in the first packet and nowhere else. Old ones read one rule for
/// pictures between two others wrongly, and a decoder that knows of them does the same.
Film OfEncoder(const std::string& name, const std::string& core) {
  Film film{name, "libx264", 120, 20, 7, "preset=veryfast:b_strategy=0:sc_threshold=0:x264-params=b-pyramid=normal"};
  film.mangle = [core](AVPacket& packet) {
    std::string bytes = BytesOf(packet);
    const std::size_t place = bytes.find("x264 - core ");
    if (place != bytes.npos) ReplaceBytes(packet, bytes.replace(place + 12, 3, core));
  };
  return film;
}

/// The header of the sequence stands in front of the first picture and nowhere else.
Film WithOneHeader(Film film) {
  film.mangle = [](AVPacket& packet) {
    const std::string bytes = BytesOf(packet);
    const std::size_t group = bytes.find(std::string("\0\0\1\xB8", 4));
    if (packet.pts > 2 && group != bytes.npos) ReplaceBytes(packet, bytes.substr(group));
  };
  return film;
}

/// Its recovery points are no more than promises: a picture is whole only some time after.
Film Refreshed(const std::string& name) {
  return {name, "libx264", 100, 20, 0, "preset=veryfast:x264-params=intra-refresh=1"};
}

/// Key pictures of which the stream itself does not say that a decoder may begin there.
Film WithoutWord(const std::string& name) {
  Film film{name, "libx264", 100, 20, 2, "preset=veryfast:b_strategy=0:x264-params=open-gop=1"};
  film.mangle = [](AVPacket& packet) {
    const std::string mark("\0\0\1", 3);
    std::string bytes = BytesOf(packet);
    for (std::size_t at = bytes.find(mark); at != bytes.npos;) {
      const std::size_t next = bytes.find(mark, at + 3);
      const bool sei = (bytes[at + 3] & 31) == 6;
      if (sei) bytes.erase(at, next - at);
      at = sei ? at : next;
    }
    ReplaceBytes(packet, bytes);
  };
  return film;
}

TEST(Straight, AStretchThatIsReachedByAJumpIsTheSame) {
  for (const Film& film : {OfEncoder("old.mp4", "33 "), OfEncoder("old.avi", "33 "), OfEncoder("old.ts", "33 "),
                           WithOneHeader({"header.avi", "mpeg2video", 60, 12, 2}), Refreshed("refreshed.mp4"),
                           Refreshed("refreshed.ts"), WithoutWord("without.avi"), WithoutWord("without.ts")}) {
    SCOPED_TRACE(testing::Message() << film);
    MakeFilm(film, TestPath(film.name));
    ExpectAsStraight(TestPath(film.name));
  }
}

TEST(Straight, WhatIsDamagedIsTheSameTooFromWhereverItIsReached) {
  // Two chunks of a film that are shown as well as can be, whoever decodes them.
  Film film{"torn.mp4", "libx264", 120, 20, 2, "preset=veryfast:b_strategy=0:sc_threshold=0"};
  film.mangle = [](AVPacket& packet) {
    std::string bytes = BytesOf(packet);
    if (packet.pts / 4 == 12 || packet.pts / 3 == 22) {
      for (std::size_t i = bytes.size() / 3; i < bytes.size() / 2; ++i) bytes[i] = static_cast<char>(bytes[i] ^ 0x5A);
      ReplaceBytes(packet, bytes);
    }
  };
  MakeFilm(film, TestPath(film.name));
  ExpectAsStraight(TestPath(film.name));
}

TEST(Straight, AStreamWithoutTimesIsNotReadFromItsStartForEveryJump) {
  for (const Film& film : {Film{"long.mpg", "mpeg2video", 120, 12, 2}, Film{"long.m2v", "mpeg2video", 120, 12, 2}}) {
    SCOPED_TRACE(testing::Message() << film);
    MakeFilm(film, TestPath(film.name));
    const auto demuxer = Demuxer::Open(TestPath(film.name));
    ASSERT_TRUE(demuxer) << demuxer.Why();
    ASSERT_TRUE((*demuxer)->Seek(100));
    const PacketHandle packet = NewPacket();
    const int first = (*demuxer)->Read(*packet);
    EXPECT_TRUE(first > 60 && first <= 100) << first;
    ExpectAsStraight(TestPath(film.name));
  }
}

TEST(Straight, TwoFieldsThatAreCodedApartAreOnePicture) {
  using Case = std::pair<const char*, bool>;
  for (const auto& [name, apart] : {Case{"camera.mts", false},
                                    {"apart.ts", true},
                                    {"apart.mkv", true},
                                    {"apart.mp4", true},
                                    {"whole.mp4", false},
                                    {"whole.avi", false}}) {
    SCOPED_TRACE(name);
    const std::string path = TestPath(name);
    MakeFieldStream(path, 40, apart);
    const auto info = ReadVideoInfo(path);
    ASSERT_TRUE(info);
    EXPECT_EQ(info->frameCount, 40);
    EXPECT_TRUE(info->interlaced && info->topFieldFirst);
    EXPECT_NEAR(static_cast<double>(info->rate) / static_cast<double>(info->scale), 25, 0.01);
    EXPECT_NEAR(info->durationMs, 1600, 1);
    ExpectAsStraight(path);
  }
}

TEST(Straight, WhatAnEditOfTheFilmHidesIsNoFrame) {
  // Cut by a telephone: the packets before the cut are there, for the pictures behind it need them.
  Film film{"cut.mp4", "libx264", 90, 40, 3, "preset=veryfast"};
  film.time = [](int n) { return (n - 13) * 40; };
  film.muxing = "avoid_negative_ts=disabled";
  MakeFilm(film, TestPath(film.name));
  const auto file = OpenedVideo(TestPath(film.name));
  EXPECT_EQ(file->Info().frameCount, 90 - 13);
  EXPECT_EQ(ReadNumber(file->Frame(0, 24)), 13);
  EXPECT_NEAR(file->SampleToTime(10), 400, 0.01);
  ExpectAsStraight(TestPath(film.name));
}

}  // namespace
}  // namespace kinalyx::test
