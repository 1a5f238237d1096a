// What a printed page costs: from "Print All Windows" over the preview to the finished PDF file.

#include <QApplication>
#include <filesystem>
#include <stdexcept>

#include "Bench.h"
#include "BenchStage.h"
#include "platform/print/Printer.h"
#include "printing/AnalysisPrintouts.h"

namespace kinalyx::bench {
namespace {

constexpr int kShapes = 20;  // in each window
constexpr int kPreviewDots = 65;
constexpr std::uintmax_t kLeastBytes = 20'000;  // of a file with both pictures in it

void Draw(AnalysisWorkspace& analysis, int slot) {
  ShapeEngine& engine = analysis.Tools().Engine();
  ShapeList& list = engine.ShapeLists(slot);
  for (int i = 0; i < kShapes; ++i) {
    Shape& shape = *engine.AddShape(list, i % 2 == 0 ? kLine : kEllipse, Rgb(255, 255, 0));
    for (const POINTAPI& point : {POINTAPI{40 + i * 20, 60}, POINTAPI{90 + i * 22, 260}})
      if (!shape.Locked) engine.AddPoint(shape, point, true);
    list.Adding = false;
  }
  analysis.Stage().MP(slot).Refresh();
}

RichText PageOfNotes() {
  RichText notes;
  for (int line = 0; line < 25; ++line)
    notes.runs.push_back(
        {"Weight on the left, hips first, and the hands ahead of the ball through impact. ", line % 4 == 0});
  return notes;
}

Figure PrintPage() {
  constexpr int kRounds = 15;
  const std::string video = StageVideo(20);
  BenchStage stage("print", "2", {1280, 800});
  AnalysisWorkspace& analysis = stage.Section();
  for (const int slot : {1, 2}) stage.Open(slot, video);
  QApplication::processEvents();
  for (const int slot : {1, 2}) Draw(analysis, slot);
  StagePictures pictures(analysis.Stage(), analysis.Compare());
  AnalysisPrintouts printouts(stage.Host(), stage.OwnSettings(), analysis.Stage(), pictures);
  const RichText notes = PageOfNotes();
  const std::string path = ScratchFolder() + "/page.pdf";
  std::vector<double> samples;
  for (int round = 0; round < kRounds; ++round) {
    std::filesystem::remove(path);
    samples.push_back(MeasureMs([&] {
      const AnalysisPrintout page = printouts.PrintAll(notes);
      const auto sheets = PicturesOf(page, Paper::A4, kPreviewDots);
      Keep(sheets.data());
      if (!PrintToPdf(page, Paper::A4, path)) throw std::runtime_error("the page could not be printed");
    }));
    if (std::filesystem::file_size(path) < kLeastBytes) throw std::runtime_error("the file lacks its pictures");
  }
  return {Percentile(samples, 0.95), "ms"};
}

const Register kPrintPage({"print_page", {Target::Of::AtMost, 500, 150}, PrintPage});

}  // namespace
}  // namespace kinalyx::bench
