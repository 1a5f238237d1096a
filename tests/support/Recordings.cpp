#include "support/Recordings.h"

#include <gtest/gtest.h>

#include <cmath>
#include <span>

#include "platform/paint/ImageFiles.h"
#include "support/TempFolder.h"
#include "support/TestVideos.h"

namespace kinalyx::test {

using Codec = RecordingFormat::Codec;

RecordingFormat CameraFormat(Codec codec, double promised) { return {codec, 90, 60, promised}; }

std::string CameraPicture(Codec codec, int number) {
  std::vector<std::uint8_t> pixels;
  PaintTestPicture(RawVideo(1), number, pixels);
  const PixelRows rows{pixels.data(), 90, 60, 360, 32, false};
  if (codec == Codec::Mjpeg) {
    const TempFolder folder;
    EXPECT_TRUE(SaveJpeg(rows, folder.Path("x.jpg"), 90));
    return folder.Get("x.jpg");
  }
  std::string bytes;
  for (int y = 0; y < 60; ++y) {
    for (int x = 0; x < 90; ++x) bytes.append(reinterpret_cast<const char*>(&pixels[360 * y + 4 * x]), 3);
    bytes.append(2, '\0');
  }
  return bytes;
}

Outcome Record(RecordingFile& file, Codec codec, int number, double seconds) {
  const std::string bytes = CameraPicture(codec, number);
  return file.Write(std::as_bytes(std::span(bytes)), 5'000'000'000 + std::llround(seconds * 1e9));
}

std::vector<int> NumbersOf(const std::string& path) {
  const auto video = OpenedVideo(path);
  std::vector<int> numbers(static_cast<std::size_t>(video->Info().frameCount));
  for (int n = video->Info().frameCount; n-- > 0;)
    numbers[static_cast<std::size_t>(n)] = ReadNumber(video->Frame(n, 32)).value_or(-1);
  return numbers;
}

}  // namespace kinalyx::test
