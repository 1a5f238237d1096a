// Opens any bytes as a video and looks at a few pictures, there and back: it may be refused, and must stay whole.

#include <algorithm>

#include "InputFile.h"
#include "platform/media/VideoFile.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
  using namespace kinalyx;
  static const fuzz::InputFolder folder;
  SetPictureBudget(std::size_t{16} << 20);
  const auto opened = VideoFile::Open(folder.Write("x", bytes, count));
  if (!opened) {
    fuzz::Require(opened.Kind() != Fault::None && !opened.Why().empty());
    return 0;
  }
  VideoFile& file = **opened;
  const VideoInfo& info = file.Info();
  fuzz::Require(info.frameCount > 0 && info.width >= 0 && info.height >= 0);
  const int last = info.frameCount - 1;
  for (const int n : {0, std::min(last, 3), last, last / 2, std::max(0, last / 2 - 1)}) {
    const FrameRows rows = file.Frame(n, n % 2 ? 24 : 32);
    if (rows) fuzz::Require(rows.width > 0 && rows.height > 0 && rows.rowBytes >= rows.width * rows.bitCount / 8);
    const double time = file.SampleToTime(n);
    fuzz::Require(time == time);
    const int there = file.FrameAtTime(time);
    fuzz::Require(there >= 0 && there <= last);
  }
  return 0;
}
