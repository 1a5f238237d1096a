#include <algorithm>

#include "BareDecoder.h"
#include "Bench.h"
#include "BenchPlayer.h"

namespace kinalyx::bench {
namespace {

/// Going forward through a video, once with the player and once with the bare library; milliseconds
/// per picture. The best of several rounds each, in turn, so that a busy moment of the machine strikes both.
Figure RenderForward(const test::TestVideo& video) {
  const std::string path = MakeTestVideo(video);
  const int frames = std::min(video.frames, 400);
  Figure figure{1e9, "ms", 1e9};
  for (int round = 0; round < 4; ++round) {
    BenchPlayer player;
    player.Load(path);
    player->DrawFrame(0);
    const double ours = MeasureMs([&] {
      for (int n = 1; n <= frames; ++n) player->DrawFrame(std::min(n, video.frames - 1));
    });
    BareDecoder bare(path);
    bare.Next();
    const double theirs = MeasureMs([&] {
      for (int n = 1; n <= frames; ++n)
        if (bare.Next()) bare.Convert();
    });
    figure.value = std::min(figure.value, ours / frames);
    figure.baseline = std::min(figure.baseline, theirs / frames);
  }
  return figure;
}

const Target kTarget{Target::Of::Ratio, 1.5, 1.1};
const Register kDv({"render_dv_720x480", kTarget, [] { return RenderForward(BenchDv()); }});
const Register kMjpeg({"render_mjpeg_640x480", kTarget, [] { return RenderForward(BenchMjpeg()); }});
const Register kH264({"render_h264_1280x720", kTarget, [] { return RenderForward(BenchH264()); }});

}  // namespace
}  // namespace kinalyx::bench
