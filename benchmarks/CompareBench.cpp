// What comparing two videos costs: the mix, the film strip, and locked steps and plays.

#include <chrono>
#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <thread>
#include <vector>

#include "Bench.h"
#include "workspace/AnalysisStage.h"
#include "workspace/compare/LockedVideos.h"
#include "workspace/compare/MultiPicture.h"
#include "workspace/compare/Transparency.h"

namespace kinalyx::bench {
namespace {

class NoTransparencyView final : public ITransparencyView {
  void ShowTransparency(bool) override {}
  void PresentMix(const Surface& picture) override { Keep(picture.Row(0)); }
  void SetTransScroll(int, bool) override {}
  void SelectOptShow(ShowOption) override {}
  void SetVideoScroll(int, int, int, int) override {}
  void SetVideoButtons(int, bool, bool, bool) override {}
};

class NoStripView final : public IMultiPictureView {
  void ShowMultiPicture(bool) override {}
  int StripWidth() override { return 1280; }
  void PresentStrip(const Surface& strip, int) override { Keep(strip.Row(0)); }
};

struct Nobody final : ICompareEvents {
  void GiveWay() override {}
  void TakeSquareTool() override {}
} nobody;

void Open(test::AnalysisStage& stage, int slot, const test::TestVideo& video, int position) {
  if (!stage.Open(slot, video, position)) throw std::runtime_error("the test video cannot be opened");
}

std::vector<double> Samples(int rounds, const std::function<void()>& work) {
  std::vector<double> samples;
  for (int i = 0; i < rounds; ++i) samples.push_back(MeasureMs(work));
  return samples;
}

double MedianOf(int rounds, const std::function<void()>& work) { return Median(Samples(rounds, work)); }

const Register kOverlayMix({"overlay_mix_640x480", {Target::Of::Ratio, 4, 1}, [] {
                              constexpr int kRounds = 400;
                              test::AnalysisStage stage("2", 1200, 600);
                              Open(stage, 1, test::MjpegVideo(30), 3);
                              Open(stage, 2, test::MjpegVideo(30), 20);
                              LockedVideos locks(stage.host, stage.scheduler, stage.Stage());
                              NoTransparencyView view;
                              Transparency overlay(stage.host, stage.settings, stage.Stage(), locks, view, nobody);
                              overlay.Resize(640, 480);
                              overlay.ToggleTransparency();
                              for (const int slot : {1, 2}) stage.MP(slot).Resize(640, 480);
                              overlay.SlideMix(100);
                              const double mix = MedianOf(kRounds, [&] { overlay.CMDDISAct(); });

                              const Surface pictures[] = {stage.MP(1).Picture(), stage.MP(2).Picture()};
                              Surface copies[] = {Surface(640, 480), Surface(640, 480)};
                              const double copy = MedianOf(kRounds, [&] {
                                for (int i = 0; i < 2; ++i)
                                  std::memcpy(copies[i].Row(0), pictures[i].Row(0), std::size_t{640} * 480 * 4);
                                Keep(copies[0].Row(0));
                                Keep(copies[1].Row(0));
                              });
                              return Figure{mix, "ms", copy};
                            }});

/// One more picture in a strip of nine, against one move of the strip's memory.
const Register kStripRefresh({"strip_refresh", {Target::Of::Ratio, 4, 1.5}, [] {
                                constexpr int kRounds = 300;
                                test::AnalysisStage stage("1", 1200, 600);
                                Open(stage, 1, test::MjpegVideo(120), 100);
                                NoStripView view;
                                MultiPicture strip(stage.host, stage.Stage(), view, nobody);
                                strip.ToggleStrip();
                                if (strip.PictureCount() != MultiPicture::kMostPictures)
                                  throw std::runtime_error("the strip has not nine pictures");
                                const double refresh = MedianOf(kRounds, [&] { strip.MFNextFrame(); });
                                Surface moved = strip.Strip();
                                const double move = MedianOf(kRounds, [&] {
                                  std::memmove(moved.Row(0), moved.Row(0) + 4,
                                               static_cast<std::size_t>(moved.Stride()) * moved.Height() - 4);
                                  Keep(moved.Row(0));
                                });
                                return Figure{refresh, "ms", move};
                              }});

/// Ten seconds of real time at 60 fields a second.
const Register kLockedPlaySkew(
    {"locked_play_skew", {Target::Of::AtMost, 0, 0}, [] {
       using std::chrono::steady_clock;
       constexpr int kOffset = 17;
       test::AnalysisStage stage("2", 1200, 600);
       for (const int slot : {1, 2}) {
         Open(stage, slot, test::DvVideo(330), 0);
         stage.Stage().CurrentWindow = slot;
         if (!stage.MP(slot).SplitFields()) stage.Videos().ToggleSplitFields();
       }
       stage.MP(2).DrawFrame(kOffset);
       LockedVideos locks(stage.host, stage.scheduler, stage.Stage());
       locks.DualLock(1);
       int drawn = 0;
       stage.signalled = [&](int) { ++drawn; };
       locks.PlayTogether();
       int skew = 0;
       const auto start = steady_clock::now();
       const std::int64_t zero = stage.host.now;
       for (std::int64_t elapsed = 0; elapsed < 10'000;) {
         elapsed = std::chrono::duration_cast<std::chrono::milliseconds>(steady_clock::now() - start).count();
         stage.host.Advance(zero + elapsed - stage.host.now);
         skew = std::max(skew, std::abs(stage.At(2) - stage.At(1) - kOffset));
         std::this_thread::sleep_for(std::chrono::milliseconds(1));
       }
       if (drawn < 200 || stage.At(1) < 590) throw std::runtime_error("the videos have not played for ten seconds");
       return Figure{static_cast<double>(skew), "fields"};
     }});

const Register kDualStep({"dual_step", {Target::Of::Ratio, 2.2, 2.05}, [] {
                            constexpr int kSteps = 25;
                            test::AnalysisStage stage("2", 1200, 600);
                            LockedVideos locks(stage.host, stage.scheduler, stage.Stage());
                            Open(stage, 1, test::DvVideo(120), 0);
                            Open(stage, 2, test::DvVideo(120), 10);
                            stage.Stage().CurrentWindow = 1;
                            const auto forward = [&] { locks.DualControlStep(true); };
                            // The first field of a picture has it converted, the second finds that done: only two steps
                            // together cost the same each time. The median of single ones would lie in the gap between
                            // the two costs.
                            const auto picture = [&] {
                              forward();
                              forward();
                            };
                            std::vector<double> both;
                            std::vector<double> single;
                            // In turn, so that a busy moment of the machine strikes both; the first turn has the
                            // pictures decoded.
                            for (int turn = 0; turn < 9; ++turn) {
                              stage.MP(1).DrawFrame(0);
                              stage.MP(2).DrawFrame(10);
                              locks.DualLock(1);
                              const auto together = Samples(kSteps, picture);
                              locks.DualUnlock(1);
                              stage.MP(1).DrawFrame(0);
                              const auto alone = Samples(kSteps, picture);
                              if (turn == 0) continue;
                              both.insert(both.end(), together.begin(), together.end());
                              single.insert(single.end(), alone.begin(), alone.end());
                            }
                            return Figure{Median(both) / 2, "ms", Median(single) / 2};
                          }});

}  // namespace
}  // namespace kinalyx::bench
