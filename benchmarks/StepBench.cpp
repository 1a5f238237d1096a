#include <algorithm>
#include <random>
#include <vector>

#include "BareDecoder.h"
#include "Bench.h"
#include "BenchPlayer.h"

namespace kinalyx::bench {
namespace {

constexpr int kSteps = 200;
/// Steps behind a far seek during which the decoder still works itself up to where it led.
constexpr int kFirstSteps = 10;

/// Steps from the middle of a video, one after the other without a pause; milliseconds of each.
std::vector<double> Steps(const std::string& path, int frames, int direction) {
  BenchPlayer player;
  player.Load(path);
  int n = frames / 2;
  player->DrawFrame(n);
  std::vector<double> samples;
  for (int i = 0; i < kSteps; ++i) {
    n += direction;
    samples.push_back(MeasureMs([&] { player->DrawFrame(n); }));
  }
  return samples;
}

Figure StepBack(const test::TestVideo& video) {
  const std::string path = MakeTestVideo(video);
  Figure figure{1e9, "ms", 1e9};
  // In turn, so that a busy moment of the machine strikes both.
  for (int round = 0; round < 3; ++round) {
    figure.value = std::min(figure.value, Percentile(Steps(path, video.frames, -1), 0.95));
    figure.baseline = std::min(figure.baseline, Percentile(Steps(path, video.frames, 1), 0.95));
  }
  return figure;
}

/// The median of the steps back, the first ones after the far seek aside.
Figure StepBackMedian() {
  const test::TestVideo video = BenchH264();
  std::vector<double> samples = Steps(MakeTestVideo(video), video.frames, -1);
  samples.erase(samples.begin(), samples.begin() + kFirstSteps);
  return {Median(samples), "ms"};
}

/// Random places in a video with one key picture in 250; both go to the same places.
Figure SeekRandom() {
  const test::TestVideo video = BenchH264();
  const std::string path = MakeTestVideo(video);
  std::mt19937 random(20);
  std::vector<int> places;
  for (int i = 0; i < kSteps; ++i) places.push_back(static_cast<int>(random() % static_cast<unsigned>(video.frames)));

  BenchPlayer player;
  player.Load(path);
  BareDecoder bare(path);
  std::vector<double> ours;
  std::vector<double> theirs;
  // By turns of some seconds, so that a busy moment of the machine strikes both.
  constexpr std::size_t kTurn = 25;
  for (std::size_t turn = 0; turn < places.size(); turn += kTurn) {
    for (std::size_t i = turn; i < turn + kTurn; ++i) ours.push_back(MeasureMs([&] { player->DrawFrame(places[i]); }));
    for (std::size_t i = turn; i < turn + kTurn; ++i) {
      theirs.push_back(MeasureMs([&] {
        bare.SeekTo(places[i]);
        bare.Convert();
      }));
    }
  }
  return {Percentile(ours, 0.95), "ms", Percentile(theirs, 0.95)};
}

const Target kStep{Target::Of::Ratio, 2.0, 1.1};
const Register kDv({"step_back_dv", kStep, [] { return StepBack(BenchDv()); }});
const Register kMjpeg({"step_back_mjpeg", kStep, [] { return StepBack(BenchMjpeg()); }});
const Register kH264({"step_back_h264_gop250", kStep, [] { return StepBack(BenchH264()); }});
const Register kMedian({"step_back_h264_gop250_median", {Target::Of::AtMost, 10, 2}, [] { return StepBackMedian(); }});
const Register kSeek({"seek_random_h264_gop250", {Target::Of::Ratio, 1.2, 0.6}, [] { return SeekRandom(); }});

}  // namespace
}  // namespace kinalyx::bench
