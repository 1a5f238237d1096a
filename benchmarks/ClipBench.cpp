// What it costs to make a clip with drawings, against FFmpeg's own tool making the same cut without them.

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "Bench.h"
#include "BenchStage.h"
#include "PhoneClips.h"
#include "distribution/clips/ClipJob.h"
#include "platform/host/ChildProcess.h"

namespace kinalyx::bench {
namespace {

constexpr int kRounds = 3;
constexpr int kPatienceMs = 100;

void ByTool(const std::string& from, const std::string& to) {
  auto tool = ChildProcess::Start(
      "/usr/bin/env", {"ffmpeg",  "-nostdin", "-loglevel", "error",     "-y",         "-i",  from, "-c:v",
                       "libx264", "-preset",  "veryfast",  "-crf",      "21",         "-g",  "60", "-profile:v",
                       "high",    "-pix_fmt", "yuv420p",   "-movflags", "+faststart", "-an", to});
  if (!tool) throw std::runtime_error(tool.Why());
  while ((*tool)->Poll(kPatienceMs, {})) {
  }
  if ((*tool)->ExitCode() != 0) throw std::runtime_error("ffmpeg: " + (*tool)->Errors());
}

void ByUs(const ClipOrder& order) {
  ClipJob job(order);
  while (job.Step()) {
  }
  if (!job.Outcome()) throw std::runtime_error(job.Outcome().Why());
}

void Draw(AnalysisWorkspace& section, int slot) {
  section.Stage().SelectWindow(slot);
  const auto width = static_cast<float>(section.Stage().MP(slot).ControlWidthPixels());
  const auto height = static_cast<float>(section.Stage().MP(slot).ControlHeightPixels());
  for (const int tool : {3, 4, 5, 10}) {
    section.Tools().TakeTool(tool);
    for (const float at : {0.2F, 0.5F, 0.8F}) {
      const float y = height * (at + static_cast<float>(tool) / 100);
      section.MouseDown(1, 0, width * at, y, slot);
      section.MouseUp(1, 0, width * at, y, slot);
    }
  }
  section.PutToolDown();
}

/// All windows with a few drawings each, at 1080 lines.
ClipOrder OrderOf(BenchStage& stage, int windows, const std::string& path) {
  for (int slot = 1; slot <= windows; ++slot) {
    stage.Open(slot, path);
    Draw(stage.Section(), slot);
  }
  ClipOrder order;
  order.Scene = TakeScene(stage.Section(), true);
  order.Path = ScratchFolder() + "/clip.mp4";
  const POINTAPI size = PixelsOf(order.Scene, ClipSize::Lines1080);
  order.Width = size.x;
  order.Height = size.y;
  order.Stretch.Last = stage.Section().Stage().MP(1).VideoLength() - 1;
  return order;
}

Figure Measure(int windows, const std::string& layout) {
  const std::string source = MakePhoneClip(kH264p1080);
  BenchStage stage("clips" + layout, layout, {1280, 800});
  const ClipOrder order = OrderOf(stage, windows, source);
  std::vector<double> our;
  std::vector<double> their;
  for (int round = 0; round < kRounds; ++round) {
    their.push_back(MeasureMs([&] { ByTool(source, ScratchFolder() + "/made.mp4"); }));
    our.push_back(MeasureMs([&] { ByUs(order); }));
  }
  return Figure{Median(our), "ms", Median(their)};
}

const Register kClip1080({"clip_export_1080p", {Target::Of::Ratio, 1.3, 1.1}, [] { return Measure(1, "1"); }});
const Register kClipGrid({"clip_export_grid", {Target::Of::Ratio, 2.0, 1.5}, [] { return Measure(4, "4"); }});

}  // namespace
}  // namespace kinalyx::bench
