// Reads any bytes as a sidecar; what was read must survive being written and read again.

#include <array>

#include "InputFile.h"
#include "library/Sidecar.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
  using namespace kinalyx;
  static const fuzz::InputFolder folder;
  constexpr std::array<Colour, 13> kColours{};
  VideoInfo video;
  video.width = 720;
  video.height = 480;
  video.compressor = "dvsd";

  const std::string path = folder.Write("x.ved", bytes, count);
  (void)ReadSidecarMarks(path);
  SlotData first = ReadVideoData(path, video, kColours);
  first.Unread = false;  // or each would be kept beside
  const auto written = WriteVideoData(path, first);
  if (!written) return 0;
  const SlotData again = ReadVideoData(path, video, kColours);
  fuzz::Require(again.Wide == first.Wide && again.SplitFields == first.SplitFields);
  fuzz::Require(again.Shapes.NumShapes == first.Shapes.NumShapes);
  if (written->empty()) fuzz::Require(again.Notes == first.Notes);
  fuzz::Require(!again.Unread);
  return 0;
}
