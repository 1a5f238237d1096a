// A click on one of a hundred drawings, in the real window: from the press to the picture with halo and handles.

#include <QApplication>
#include <QMouseEvent>
#include <stdexcept>

#include "Bench.h"
#include "Nowhere.h"
#include "platform/files/Log.h"
#include "platform/host/QtHost.h"
#include "support/TestPrinter.h"
#include "support/TestVideos.h"
#include "video/PlayScheduler.h"
#include "workspace/forms/AnalysisForm.h"

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
  test::TestVideo video = test::MjpegVideo(20);
  video.format.width = 640;
  video.format.height = 480;
  const std::string path = test::MakeTestVideo(video);
  if (path.empty()) throw std::runtime_error("the test video could not be made");
  Log log(ScratchFolder() + "/bench.log");
  const auto host = MakeQtHost(log);
  Settings settings(*host, ScratchFolder() + "/pick", ScratchFolder());
  settings.LoadSettings();
  PlayScheduler scheduler(*host);
  PlayerServices players{*host, scheduler};
  LastStudentInfo remembered;
  test::TestPrinter printer;
  Nowhere nowhere;
  AnalysisForm form(*host, printer, settings, players, remembered, nowhere);
  form.resize(1280, 800);
  form.show();
  AnalysisWorkspace& analysis = form.Section();
  if (!analysis.Videos().OpenVideo(1, path)) throw std::runtime_error("the video could not be opened");
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
