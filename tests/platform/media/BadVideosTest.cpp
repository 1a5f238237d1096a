#include <cmath>
#include <cstring>
#include <fstream>
#include <random>

#include "platform/files/Log.h"
#include "platform/media/Films.h"
#include "platform/media/MediaLog.h"
#include "platform/media/VideoFile.h"
#include "support/TempFolder.h"
#include "support/TestVideos.h"

namespace kinalyx::test {
namespace {

namespace fs = std::filesystem;

std::string FileWith(const std::string& name, const std::string& bytes) {
  const std::string path = TestPath(name);
  std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
  return path;
}

std::uint32_t WordAt(const std::string& bytes, std::size_t place) {
  std::uint32_t word = 0;
  std::memcpy(&word, bytes.data() + place, 4);
  return word;
}

/// The chunks of pictures that an AVI file begins with, as places of their heads.
std::vector<std::size_t> ChunksOf(const std::string& avi, std::size_t count) {
  std::vector<std::size_t> chunks = {avi.find("00dc", avi.find("movi"))};
  while (chunks.size() <= count) chunks.push_back(chunks.back() + 8 + (WordAt(avi, chunks.back() + 4) + 1) / 2 * 2);
  return chunks;
}

TEST(BadVideos, WhatTheLibrarySaysOfThemGoesToTheLog) {
  std::string avi = BytesOf(MakeTestVideo(MjpegVideo(60)));
  for (const std::size_t chunk : ChunksOf(avi, 3)) avi.replace(chunk + 8, 400, 400, '\xFF');
  const std::string path = FileWith("noisy.avi", avi);
  const TempFolder folder;
  Log log(folder.Path("kinalyx.log"));
  SetMediaLog(&log);
  OpenedVideo(path)->Frame(1, 24);
  SetMediaLog(nullptr);
  ASSERT_TRUE(log.Flush(20000));
  const std::string text = folder.Get("kinalyx.log");
  EXPECT_NE(text.find(" media: "), std::string::npos);
  EXPECT_EQ(text.find("noisy"), std::string::npos);
}

TEST(BadVideos, AreRefusedWithTheirReason) {
  const std::string avi = BytesOf(MakeTestVideo(MjpegVideo(60)));
  std::string sound = avi;  // a sound file in the same container
  for (std::size_t at = sound.find("vids"); at != std::string::npos; at = sound.find("vids", at))
    sound.replace(at, 4, "auds");
  const std::pair<std::string, Fault> cases[] = {
      {TestPath("nowhere.avi"), Fault::NotFound},
      {TestPath(""), Fault::NotFound},
      {"/dev/zero", Fault::NotFound},
      {FileWith("empty.avi", ""), Fault::NoFrames},
      {FileWith("header.avi", avi.substr(0, avi.find("movi") + 4)), Fault::NoFrames},
      {FileWith("text.avi", std::string(5000, 'x')), Fault::NoMedia},
      {FileWith("list.avi", "#EXTM3U\n#EXTINF:1,\n/etc/hostname\n"), Fault::NoMedia},
      {FileWith("riff.avi", avi.substr(0, 40)), Fault::NoMedia},
      {FileWith("sound.avi", sound), Fault::NoMedia}};
  for (const auto& [path, fault] : cases) {
    const auto result = VideoFile::Open(path);
    EXPECT_EQ(result.Kind(), fault) << path;
    EXPECT_FALSE(result || result.Why().empty()) << path;
    EXPECT_FALSE(ReadVideoInfo(path)) << path;
  }
}

TEST(BadVideos, CutInTheMiddleShowWhatIsLeft) {
  for (const TestVideo& video : {MjpegVideo(60), H264Video(300), DvVideo(24), RawVideo(40)}) {
    const std::string avi = BytesOf(MakeTestVideo(video));
    const std::string path = FileWith("cut.avi", avi.substr(0, avi.size() / 2));
    const auto file = OpenedVideo(path);
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
  const auto chunks = ChunksOf(avi, 20);
  for (std::size_t n = 10; n < 13; ++n) std::memset(avi.data() + chunks[n] + 8, 0, WordAt(avi, chunks[n] + 4));
  const auto file = OpenedVideo(FileWith("damaged.avi", avi));
  ASSERT_EQ(file->Info().frameCount, 60);
  for (const int n : {9, 10, 11, 12, 13, 12, 11, 40, 12})
    EXPECT_EQ(ReadNumber(file->Frame(n, 24)), n >= 10 && n < 13 ? 9 : n) << n;
}

TEST(BadVideos, WithNoGoodPacketShowNothing) {
  std::string avi = BytesOf(MakeTestVideo(MjpegVideo(60)));
  for (const std::size_t chunk : ChunksOf(avi, 59)) std::memset(avi.data() + chunk + 8, 1, WordAt(avi, chunk + 4));
  const auto file = OpenedVideo(FileWith("rubble.avi", avi));
  EXPECT_EQ(file->Info().frameCount, 60);
  for (const int n : {0, 59, 30, 2}) EXPECT_FALSE(file->Frame(n, 24));
}

Film SmallFilm(const std::string& name, const std::string& encoder, int bFrames, const std::string& muxing = "") {
  Film film{name, encoder, 30, 10, bFrames};
  film.muxing = muxing;
  return film;
}

/// One of each container, the sizes of their pictures and packets told in many ways.
std::vector<std::pair<std::string, std::string>> FilmsOfAllContainers() {
  std::vector<std::pair<std::string, std::string>> films;
  for (const Film& film :
       {SmallFilm("bad.mp4", "mpeg4", 2), SmallFilm("front.mp4", "mpeg4", 2, "movflags=faststart"),
        SmallFilm("parts.mp4", "mpeg4", 0, "movflags=frag_keyframe+empty_moov"), SmallFilm("bad.mov", "mjpeg", 0),
        SmallFilm("bad.mkv", "mpeg4", 2), SmallFilm("bad.ts", "mpeg2video", 2), SmallFilm("bad.mpg", "mpeg2video", 2),
        SmallFilm("bad.wmv", "wmv2", 0), SmallFilm("bad.flv", "flv", 0), SmallFilm("bad.ogg", "libtheora", 0)}) {
    Film made = film;
    if (made.encoder == "mjpeg") made.format = AV_PIX_FMT_YUVJ420P;
    MakeFilm(made, TestPath(made.name));
    films.emplace_back(made.name, BytesOf(TestPath(made.name)));
  }
  return films;
}

TEST(BadVideos, OfAnyKindOfDamageDoNoHarm) {
  std::mt19937 random(11);
  std::vector<std::string> videos;
  for (const TestVideo& video : {MjpegVideo(12), H264Video(40), DvVideo(3), RawVideo(6)})
    videos.push_back(BytesOf(MakeTestVideo(video)));
  for (const auto& [name, bytes] : FilmsOfAllContainers()) videos.push_back(bytes);
  for (const std::string& avi : videos) {
    for (int round = 0; round < 12; ++round) {
      std::string damaged = avi;
      // Some in the headers and the index, the rest anywhere.
      for (int i = 0; i < 40; ++i) {
        const std::size_t reach = i % 4 == 0 ? std::min<std::size_t>(damaged.size(), 6000) : damaged.size();
        damaged[random() % reach] = static_cast<char>(random());
      }
      if (round % 4 == 3) damaged.resize(random() % damaged.size());
      const auto file = VideoFile::Open(FileWith("any.avi", damaged));
      if (!file) continue;
      const int frames = (*file)->Info().frameCount;
      for (const int n : {0, frames - 1, frames / 2, frames / 2 - 1, 0}) (*file)->Frame(n, 24);
    }
  }
}

TEST(BadVideos, OfEveryContainerAreRefusedWithAWordOrShowWhatIsLeft) {
  const auto films = FilmsOfAllContainers();
  for (const auto& [name, whole] : films) {
    const std::size_t size = whole.size();
    for (const std::size_t part : {std::size_t{1}, std::size_t{50}, size / 3, size / 2, size - 1}) {
      SCOPED_TRACE(testing::Message() << part << " bytes of " << name);
      const auto result = VideoFile::Open(FileWith(name, whole.substr(0, part)));
      if (!result) {
        EXPECT_NE(result.Kind(), Fault::None);
        EXPECT_FALSE(result.Why().empty());
        continue;
      }
      const int frames = (*result)->Info().frameCount;
      EXPECT_TRUE(frames > 0 && frames <= 30) << frames;
      EXPECT_EQ(ReadNumber((*result)->Frame(0, 24)), 0);
      (*result)->Frame(frames - 1, 24);
    }
    EXPECT_EQ(VideoFile::Open(FileWith(name, std::string(3000, 'x'))).Kind(), Fault::NoMedia) << name;
    EXPECT_EQ(VideoFile::Open(FileWith(name, "")).Kind(), Fault::NoFrames) << name;
  }
  // A telephone that died: all pictures are there, and nothing tells where.
  const auto& [name, whole] = films.front();
  const auto cut = VideoFile::Open(FileWith(name, whole.substr(0, whole.size() / 2)));
  EXPECT_EQ(cut.Kind(), Fault::NoMedia);
  EXPECT_NE(cut.Why().find("cut off"), std::string::npos) << cut.Why();
}

/// A film in which a box of four letters says something else: `value` stands `offset` bytes behind the letters.
std::string WithLie(std::string film, const std::string& box, std::size_t offset, std::uint32_t value) {
  const std::size_t place = film.rfind(box) + box.size() + offset;
  for (std::size_t i = 0; i < 4; ++i) film[place + i] = static_cast<char>(value >> (24 - 8 * i));
  return film;
}

TEST(BadVideos, AnIndexThatLiesNeitherHangsNorTakesTheMemory) {
  Film film = SmallFilm("honest.mp4", "mpeg4", 0);
  MakeFilm(film, TestPath(film.name));
  const std::string honest = BytesOf(TestPath(film.name));
  using Lie = std::pair<const char*, std::size_t>;  // in which box, how far behind its name
  const Lie lies[] = {{"stsz", 4},  {"stsz", 8},  {"stsz", 12}, {"stco", 4},  {"stco", 8}, {"stsc", 4},
                      {"stsc", 12}, {"stts", 4},  {"stts", 8},  {"stts", 12}, {"stss", 4}, {"elst", 4},
                      {"elst", 8},  {"elst", 12}, {"mdhd", 12}, {"mvhd", 12}};
  for (const auto& [box, offset] : lies) {
    for (const std::uint32_t value : {0u, 1u, 0x7FFFFFFFu, 0xFFFFFFFFu, 50000000u}) {
      SCOPED_TRACE(testing::Message() << box << " + " << offset << " = " << value);
      const auto result = VideoFile::Open(FileWith("lie.mp4", WithLie(honest, box, offset, value)));
      EXPECT_TRUE(result || !result.Why().empty());
      if (!result) continue;
      const int last = (*result)->Info().frameCount - 1;
      for (const int n : {0, last, last / 2}) {
        (*result)->Frame(n, 24);
        EXPECT_TRUE(std::isfinite((*result)->SampleToTime(n)));
      }
    }
  }
  // What no camera has: refused before anything is made room for.
  std::string wide = BytesOf(MakeTestVideo(RawVideo(4)));
  const std::uint32_t columns = 65535;
  std::memcpy(wide.data() + wide.find("strf") + 12, &columns, 4);
  const auto refused = VideoFile::Open(FileWith("wide.avi", wide));
  EXPECT_EQ(refused.Kind(), Fault::NoMedia);
  EXPECT_NE(refused.Why().find("65535"), std::string::npos) << refused.Why();
}

TEST(BadVideos, MayVanishWhileOpen) {
  const std::string source = MakeTestVideo(H264Video(300));
  const std::string path = TestPath("vanishing.avi");
  fs::copy_file(source, path, fs::copy_options::overwrite_existing);
  const auto file = OpenedVideo(path);
  ASSERT_EQ(ReadNumber(file->Frame(20, 24)), 20);
  fs::remove(path);
  EXPECT_EQ(ReadNumber(file->Frame(280, 24)), 280);

  // Cut off under our hands, as by a copy over it: what is read no more shows what could be read.
  fs::copy_file(source, path, fs::copy_options::overwrite_existing);
  const auto cut = OpenedVideo(path);
  fs::resize_file(path, fs::file_size(path) / 3);
  const FrameRows last = cut->Frame(299, 24);
  EXPECT_TRUE(last);
  EXPECT_EQ(ReadNumber(cut->Frame(5, 24)), 5);
}

/// Builds a video of 12 pictures anew, with an empty chunk wherever `pictures` holds -1.
std::string WithEmptyChunks(const std::vector<int>& pictures) {
  const std::string avi = BytesOf(MakeTestVideo(MjpegVideo(12)));
  const auto chunks = ChunksOf(avi, 12);
  const auto word = [](std::size_t value) {
    const auto number = static_cast<std::uint32_t>(value);
    return std::string(reinterpret_cast<const char*>(&number), 4);
  };
  std::string movie;
  std::string index;
  for (const int picture : pictures) {
    const auto n = static_cast<std::size_t>(picture);
    const std::string chunk = picture < 0 ? "00dc" + word(0) : avi.substr(chunks[n], chunks[n + 1] - chunks[n]);
    index += "00dc" + word(16) + word(4 + movie.size()) + chunk.substr(4, 4);
    movie += chunk;
  }
  std::string whole = avi.substr(0, chunks[0]) + movie + "idx1" + word(index.size()) + index;
  whole.replace(chunks[0] - 8, 4, word(movie.size() + 4));
  whole.replace(4, 4, word(whole.size() - 8));
  whole.replace(whole.find("strh") + 8 + 32, 4, word(pictures.size()));
  return whole;
}

TEST(BadVideos, FramesLeftOutRepeatTheOneBefore) {
  // A capture that lost frames stores empty chunks in their place.
  const std::vector<int> pictures = {0, 1, 2, -1, -1, 3, 4, 5, 6, -1, 7, 8, 9, 10, 11, -1};
  const auto file = OpenedVideo(FileWith("dropped.avi", WithEmptyChunks(pictures)));
  ASSERT_EQ(file->Info().frameCount, 16);
  const int shown[] = {0, 1, 2, 2, 2, 3, 4, 5, 6, 6, 7, 8, 9, 10, 11, 11};
  for (int n = 15; n >= 0; --n) EXPECT_EQ(ReadNumber(file->Frame(n, 24)), shown[n]) << n;
}

TEST(BadVideos, AnEmptyChunkBehindEveryPictureIsNoFrame) {
  std::vector<int> pictures;
  for (int n = 0; n < 12; ++n) pictures.insert(pictures.end(), {n, -1});
  const auto file = OpenedVideo(FileWith("doubled.avi", WithEmptyChunks(pictures)));
  ASSERT_EQ(file->Info().frameCount, 12);
  EXPECT_EQ(file->Info().rate / file->Info().scale, 15);
  EXPECT_NEAR(file->SampleToTime(12), 24 * 1000 / 30.0, 0.1);
  for (int n = 11; n >= 0; --n) EXPECT_EQ(ReadNumber(file->Frame(n, 24)), n);
}

}  // namespace
}  // namespace kinalyx::test
