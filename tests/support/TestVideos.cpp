#include "support/TestVideos.h"

#include <fmt/format.h>

#include <cstdlib>
#include <map>
#include <stdexcept>

#include "support/TempFolder.h"

namespace kinalyx::test {
namespace {

// The code: 20 columns of cells over the left three quarters of the picture. Cell 0 is white and cell 1
// black, which tells a picture from noise; then 16 bits of the number, lowest first; then two bits that
// count the ones, so that a blend of two pictures is not taken for a third.
constexpr int kBits = 16;
constexpr int kCells = kBits + 4;

unsigned CodeOf(int number) {
  const unsigned value = static_cast<unsigned>(number) & 0xFFFFu;
  const unsigned ones = static_cast<unsigned>(__builtin_popcount(value)) & 3u;
  return 1u | value << 2 | ones << (2 + kBits);
}

int CellLeft(int cell, int width) { return cell * (width * 3 / 4) / kCells; }

void PaintRow(std::uint8_t* row, int width, int y, int number) {
  const unsigned code = CodeOf(number);
  for (int cell = 0; cell < kCells; ++cell) {
    const std::uint8_t grey = (code >> cell) & 1u ? 230 : 25;
    for (int x = CellLeft(cell, width); x < CellLeft(cell + 1, width); ++x) {
      row[4 * x] = row[4 * x + 1] = row[4 * x + 2] = grey;
      row[4 * x + 3] = 255;
    }
  }
  for (int x = CellLeft(kCells, width); x < width; ++x) {
    row[4 * x] = static_cast<std::uint8_t>(40 + (x * 2 + number * 3) % 160);
    row[4 * x + 1] = static_cast<std::uint8_t>(60 + (y + number * 5) % 120);
    row[4 * x + 2] = static_cast<std::uint8_t>(200 - (x + y) % 128);
    row[4 * x + 3] = 255;
  }
}

struct Cache {
  /// What the program remembers of videos goes where they go.
  Cache() { setenv("XDG_CACHE_HOME", folder.Path("cache").c_str(), 1); }
  TempFolder folder;
  std::map<std::string, std::string> made;  ///< paths of the videos by what they are
};

Cache& TheCache() {
  static Cache cache;
  return cache;
}

TestVideo VideoOf(VideoFormat::Codec codec, int width, int height, int frames) {
  TestVideo video;
  video.format.codec = codec;
  video.format.width = width;
  video.format.height = height;
  video.frames = frames;
  return video;
}

}  // namespace

TestVideo DvVideo(int frames) {
  TestVideo video = VideoOf(VideoFormat::Codec::Dv, 720, 480, frames);
  video.fieldsDiffer = true;
  video.format.rate = 30000;
  video.format.scale = 1001;
  video.format.bottomFieldFirst = true;
  return video;
}

TestVideo MjpegVideo(int frames) { return VideoOf(VideoFormat::Codec::Mjpeg, 320, 240, frames); }
TestVideo H264Video(int frames) { return VideoOf(VideoFormat::Codec::H264, 320, 240, frames); }
TestVideo RawVideo(int frames) { return VideoOf(VideoFormat::Codec::RawRgb, 90, 60, frames); }

void PaintTestPicture(const TestVideo& video, int number, std::vector<std::uint8_t>& pixels) {
  const int width = video.format.width;
  pixels.resize(static_cast<std::size_t>(width) * 4 * video.format.height);
  for (int y = 0; y < video.format.height; ++y) {
    const int shown = video.fieldsDiffer ? 2 * number + y % 2 : number;
    PaintRow(pixels.data() + static_cast<std::size_t>(y) * width * 4, width, y, shown);
  }
}

std::string MakeTestVideo(const TestVideo& video) {
  const VideoFormat& f = video.format;
  const std::string name =
      fmt::format("{}{}-{}x{}-{}-{}-g{}b{}q{}{}{}-{}.avi", f.fourCC, static_cast<int>(f.codec), f.width, f.height,
                  f.rate, f.scale, f.keyInterval, f.bFrames, f.quality, f.bottomFieldFirst ? "-bff" : "",
                  video.fieldsDiffer ? "-fields" : "", video.frames);
  if (const auto made = TheCache().made.find(name); made != TheCache().made.end()) return made->second;

  const std::string path = TestPath(name);
  auto writer = VideoWriter::Create(path, f);
  if (!writer) return {};
  std::vector<std::uint8_t> pixels;
  for (int number = 0; number < video.frames; ++number) {
    PaintTestPicture(video, number, pixels);
    if (!(*writer)->Write({pixels.data(), f.width, f.height, f.width * 4, 32, false})) return {};
  }
  if (!(*writer)->Close()) return {};
  TheCache().made[name] = path;
  return path;
}

std::string TestPath(const std::string& name) { return TheCache().folder.Path(name); }

std::optional<int> ReadNumber(const FrameRows& rows, int field) {
  if (!rows) return std::nullopt;
  const int pixelBytes = rows.bitCount / 8;
  const int step = field < 0 ? 1 : 2;
  unsigned code = 0;
  for (int cell = 0; cell < kCells; ++cell) {
    // The middle of the cell, over the middle half of the picture.
    const int left = CellLeft(cell, rows.width);
    const int right = CellLeft(cell + 1, rows.width);
    const int x = (left + right) / 2;
    long sum = 0;
    int count = 0;
    const int first = rows.height / 4;
    for (int y = field < 0 ? first : first + (first + field) % 2; y < rows.height * 3 / 4; y += step) {
      const std::uint8_t* row = rows.bits + static_cast<std::ptrdiff_t>(rows.height - 1 - y) * rows.rowBytes;
      sum += row[x * pixelBytes + 1];
      ++count;
    }
    if (count && sum / count > 127) code |= 1u << cell;
  }
  const int number = static_cast<int>((code >> 2) & 0xFFFFu);
  if (CodeOf(number) != code) return std::nullopt;
  return number;
}

std::unique_ptr<VideoFile> OpenedVideo(const std::string& path) {
  auto opened = VideoFile::Open(path);
  if (!opened) throw std::runtime_error(path + ": " + std::string(opened.Why()));
  return std::move(*opened);
}

}  // namespace kinalyx::test
