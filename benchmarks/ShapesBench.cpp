#include <cmath>
#include <cstring>
#include <random>
#include <vector>

#include "Bench.h"
#include "drawing/ShapePainting.h"
#include "drawing/ShapeStore.h"
#include "drawing/WindowPainter.h"
#include "platform/paint/Canvas.h"
#include "platform/paint/Surface.h"

namespace kinalyx::bench {
namespace {

constexpr int kWidth = 640;
constexpr int kHeight = 480;
constexpr int kShapes = 100;
const ShapeLook kLook{5, true, true};

/// A hundred finished shapes, every kind in turn, 80 to 240 pixels large, all over the picture.
std::vector<Shape> MakeShapes() {
  std::mt19937 random(2024);
  const auto between = [&](int low, int high) { return std::uniform_int_distribution<int>(low, high)(random); };
  ShapeEngine engine;
  ShapeList list;
  for (int i = 0; i < kShapes; ++i) {
    const int kind = i % kShapeKinds;
    const int size = between(80, 240);
    const int left = between(0, kWidth - size);
    const int top = between(0, kHeight - size);
    Shape& shape = *engine.AddShape(list, kind, Rgb(between(1, 255), between(0, 255), between(0, 255)));
    const int points = kind == kFreehand ? 60 : kind == kSwingPath ? 12 : InfOf(kind).NumPoints;
    for (int p = 0; p < points; ++p) {
      const double turn = 5.5 * p / points + 0.3;
      engine.AddPoint(shape,
                      {left + size / 2 + static_cast<int>(std::cos(turn) * size / 2) + p % 3,
                       top + size / 2 + static_cast<int>(std::sin(turn) * size / 2)},
                      true);
    }
    if (!shape.Locked) engine.LockShape(shape);
  }
  return list.Shapes;
}

/// A picture with something in every pixel, as a video has.
Surface MakeFrame() {
  Surface frame(kWidth, kHeight);
  for (int y = 0; y < kHeight; ++y)
    for (int x = 0; x < kWidth * 4; ++x) frame.Row(y)[x] = static_cast<std::uint8_t>(x % 4 == 3 ? 255 : x + y);
  return frame;
}

/// Paints over a fresh frame again and again; the frame's copy is not counted.
struct Stage {
  std::vector<Shape> shapes = MakeShapes();
  std::vector<Colour> colours;
  Surface frame = MakeFrame();
  Surface surface = frame;
  Canvas canvas{surface};
  WindowPainter painter;

  Stage() {
    for (const Shape& shape : shapes) colours.push_back(shape.Colour);
    canvas.SetPen({0, 5, 0});
  }
  double Frame(const std::function<void()>& paint) {
    std::memcpy(surface.Row(0), frame.Row(0), static_cast<std::size_t>(surface.Stride()) * kHeight);
    return MeasureMs(paint);
  }
  void Paint() { painter.Paint(canvas, shapes, colours, {}, kLook); }
  double PaintDirectly() {
    std::vector<double> samples;
    for (int i = 0; i < 20; ++i)
      samples.push_back(Frame([&] {
        for (std::size_t s = 0; s < shapes.size(); ++s) PaintShape(shapes[s], colours[s], canvas, kLook);
      }));
    return Median(samples);
  }
  void ComeToRest() {
    for (int i = 0; i < 20; ++i) Frame([&] { Paint(); });
  }
};

/// Baseline: every shape painted anew on each frame.
Figure UnchangedShapes() {
  Stage stage;
  stage.ComeToRest();
  std::vector<double> samples;
  for (int i = 0; i < 400; ++i) samples.push_back(stage.Frame([&] { stage.Paint(); }));
  return {Mean(samples), "ms", stage.PaintDirectly()};
}

Figure DraggedShape() {
  Stage stage;
  stage.ComeToRest();
  std::vector<double> samples;
  for (int i = 0; i < 200; ++i) {
    Shape& shape = stage.shapes[48];  // a freehand line in the middle of the list
    for (POINTAPI& point : shape.Pts) point = {point.x + (i % 40 < 20 ? 2 : -2), point.y + (i % 20 < 10 ? 1 : -1)};
    samples.push_back(stage.Frame([&] { stage.Paint(); }));
  }
  return {Mean(samples), "ms", stage.PaintDirectly()};
}

/// All shapes are turned at once; one mouse move turns, paints and shows them. Baseline: painting alone.
Figure RotatedShapes() {
  Stage stage;
  ShapeList list;
  list.Shapes = stage.shapes;
  list.NumShapes = kShapes;
  const ShapeEngine engine;
  const POINTAPI middle = engine.MultiGetMid(list);
  engine.MultiPrepTrans(list);
  std::vector<double> samples;
  for (int i = 1; i <= 60; ++i)
    samples.push_back(stage.Frame([&] {
      engine.MultiRotateShape(list, i, middle);
      stage.painter.Paint(stage.canvas, ShapesOf(list), stage.colours, {}, kLook);
    }));
  return {Mean(samples), "ms", stage.PaintDirectly()};
}

const Register kRotated({"edit_drag_100", {Target::Of::AtMost, 25, 15}, RotatedShapes});
const Register kUnchanged({"shapes_100", {Target::Of::AtMost, 0.5, 0.1}, UnchangedShapes});
const Register kDragged({"shapes_100_drag", {Target::Of::AtMost, 4, 1}, DraggedShape});

}  // namespace
}  // namespace kinalyx::bench
