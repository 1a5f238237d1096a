// A click on one of a hundred drawings, in the real window: from the press to the picture with halo and handles.

#include <QApplication>
#include <QMouseEvent>
#include <stdexcept>

#include "Bench.h"
#include "BenchStage.h"

namespace kinalyx::bench {
namespace {

constexpr int kColumns = 10;
constexpr int kRows = 10;
constexpr POINTAPI kFirst{60, 60};
constexpr POINTAPI kStep{50, 40};

/// Lines, circles, squares, arrows and angles in rows.
void DrawHundred(AnalysisWorkspace& analysis) {
  constexpr int kKinds[] = {kLine, kEllipse, kSquare, kArrow, kAngle};
  ShapeEngine& engine = analysis.Tools().Engine();
  ShapeList& list = engine.ShapeLists(1);
  for (int i = 0; i < kColumns * kRows; ++i) {
    const POINTAPI at{kFirst.x + i % kColumns * kStep.x, kFirst.y + i / kColumns * kStep.y};
    Shape& shape = *engine.AddShape(list, kKinds[i % 5], Rgb(255, 255, 0));
    for (const POINTAPI& point : {at, POINTAPI{at.x + 32, at.y + 24}, POINTAPI{at.x, at.y + 30}})
      if (!shape.Locked) engine.AddPoint(shape, point, true);
    list.Adding = false;
  }
}

Figure PickShape() {
  const std::string path = StageVideo(20);
  BenchStage stage("pick", "1", {1280, 800});
  AnalysisForm& form = stage.Form();
  AnalysisWorkspace& analysis = stage.Section();
  stage.Open(1, path);
  QApplication::processEvents();
  DrawHundred(analysis);
  for (int i = 0; i < 20; ++i) {
    analysis.Stage().MP(1).Refresh();
    QApplication::processEvents();
  }

  auto* view = form.findChild<QWidget*>("MP1");
  auto* halo = form.findChild<QWidget*>("TakenHalo");
  const auto send = [view](QEvent::Type type, QPointF at, Qt::MouseButtons held) {
    QMouseEvent event(type, at, view->mapToGlobal(at), Qt::LeftButton, held, Qt::NoModifier);
    QApplication::sendEvent(view, &event);
  };
  std::vector<double> samples;
  for (int i = 0; i < 100; ++i) {
    const int which = i * 37 % 100;  // to and fro over the picture
    const QPointF at(kFirst.x + which % kColumns * kStep.x, kFirst.y + which / kColumns * kStep.y);
    // A circle and a square are met at their lines as well.
    const QPointF on = which % 5 == 1 ? at + QPointF(16, 0) : at + QPointF(1, 0);
    samples.push_back(MeasureMs([&] {
      send(QEvent::MouseButtonPress, on, Qt::LeftButton);
      send(QEvent::MouseButtonRelease, on, Qt::NoButton);
      QApplication::processEvents();
    }));
    if (!analysis.Tools().Hand().Taken() || !halo->isVisible()) throw std::runtime_error("nothing was taken");
  }
  return {Percentile(samples, 0.95), "ms", 0};
}

const Register kPick({"pick_shape", {Target::Of::AtMost, 8, 4}, PickShape});

}  // namespace
}  // namespace kinalyx::bench
