#include <algorithm>

#include "BareDecoder.h"
#include "Bench.h"
#include "BenchPlayer.h"

namespace kinalyx::bench {
namespace {

/// From the click to the first picture of an hour of MJPEG, 108,000 pictures, against the bare
/// library's open, stream info and first picture. The best of several.
Figure OpenVideo() {
  test::TestVideo video = test::MjpegVideo(108000);
  video.format.width = 160;
  video.format.height = 120;
  video.format.quality = 12;
  const std::string path = MakeTestVideo(video);
  Figure figure{1e9, "ms", 1e9};
  for (int round = 0; round < 7; ++round) {
    figure.baseline = std::min(figure.baseline, MeasureMs([&] { BareDecoder(path).Next(); }));
    BenchPlayer player;
    figure.value = std::min(figure.value, MeasureMs([&] {
                              player.Load(path);
                              player->DrawFrame(0);
                            }));
  }
  return figure;
}

const Register kOpen({"open_video", {Target::Of::Ratio, 3, 1.2}, OpenVideo});

}  // namespace
}  // namespace kinalyx::bench
