// What a studied video costs: figures beside its drawings, and the stage that comes back.

#include <QApplication>
#include <cstring>
#include <filesystem>
#include <stdexcept>
#include <vector>

#include "Bench.h"
#include "BenchStage.h"
#include "drawing/LabelPainter.h"

namespace kinalyx::bench {
namespace {

/// Twenty lines with their figures, laid over a frame as a window does for each.
Figure LabelCost() {
  constexpr int kWidth = 1280, kHeight = 720, kShapes = 20;
  std::vector<Shape> shapes;
  for (int i = 0; i < kShapes; ++i) {
    Shape line;
    line.Kind = i % 2 ? kLine : kArrow;
    line.NumBound = line.NumPts = 2;
    line.Locked = true;
    line.Pts = {{60 + 55 * i, 90 + 28 * i}, {160 + 50 * i, 60 + 25 * i}};
    shapes.push_back(line);
  }
  Surface frame(kWidth, kHeight);
  Surface surface = frame;
  Canvas canvas(surface);
  LabelPainter painter;
  std::vector<ShapeLabel> labels;
  const MeasureScale scale{.PixelsPerInch = 4, .Unit = kMetres, .PerSecond = 60};
  std::vector<double> samples;
  for (int i = 0; i < 220; ++i) {
    std::memcpy(surface.Row(0), frame.Row(0), static_cast<std::size_t>(surface.Stride()) * kHeight);
    const double ms = MeasureMs([&] {
      labels.clear();
      for (const Shape& shape : shapes)
        if (auto label = LabelOf(shape, scale)) labels.push_back(std::move(*label));
      painter.Paint(canvas, labels);
    });
    if (i >= 20) samples.push_back(ms);
  }
  return {Mean(samples), "ms"};
}

/// Eight videos come back at their pictures. Baseline: the same eight opened one by one, and shown there.
Figure SessionReopen() {
  const std::string made = StageVideo(300);
  std::vector<std::string> paths;
  for (int slot = 1; slot <= kSlots; ++slot) {
    paths.push_back(ScratchFolder() + "/session-" + std::to_string(slot) + ".avi");
    std::filesystem::copy_file(made, paths.back(), std::filesystem::copy_options::overwrite_existing);
  }
  BenchStage stage("session", "8", {1920, 1080});
  AnalysisWorkspace& analysis = stage.Section();
  std::vector<double> together, singly;
  for (int round = 0; round < 5; ++round) {
    singly.push_back(MeasureMs([&] {
      for (int slot = 1; slot <= kSlots; ++slot) {
        stage.Open(slot, paths[static_cast<std::size_t>(slot - 1)]);
        analysis.Stage().MP(slot).DrawFrame(100 + slot);
        QApplication::processEvents();
      }
    }));
    analysis.Videos().CloseAll();
    QApplication::processEvents();
    together.push_back(MeasureMs([&] {
      analysis.Videos().ReopenClosed();
      QApplication::processEvents();
    }));
    if (analysis.Stage().VideoCount() != kSlots) throw std::runtime_error("not all videos came back");
    analysis.Videos().CloseAll();
    QApplication::processEvents();
  }
  stage.Form().CloseAll();
  return {Median(together), "ms", Median(singly)};
}

const Register kLabels({"label_cost", {Target::Of::AtMost, 0.3, 0.1}, LabelCost});
const Register kSession({"session_reopen", {Target::Of::Ratio, 1.0, 1.0}, SessionReopen});

}  // namespace
}  // namespace kinalyx::bench
