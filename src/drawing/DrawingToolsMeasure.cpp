// What the drawing tools measure: the ruler of a window, and the figure that is told of a shape.

#include <algorithm>
#include <utility>

#include "drawing/DrawingTools.h"
#include "drawing/ShapeGeometry.h"

namespace kinalyx {

/// The ruler for a window's picture at its present size: a picture that is shown twice as large as the one
/// that was calibrated has twice as many pixels to an inch.
Calibration DrawingTools::CalibrationOf(int window) const {
  const auto ratio = [](int now, int then) { return now > 0 && then > 0 ? static_cast<double>(now) / then : 1; };
  Calibration calibration;
  calibration.pal = settings_.NTSCorPAL != "0";
  calibration.perSecond = workspace_.PositionsPerSecond(window);
  const int height = workspace_.PictureHeight(window);
  if (const auto ruler = workspace_.RulerOf(window)) {
    calibration.CalibNumber = ruler->Height;
    calibration.CalibNumberOut = static_cast<float>(ruler->PixelsPerInch * ratio(height, ruler->Height));
    calibration.CalibOutput = ruler->Unit;
  } else if (settings_.RulerPerVideo == 0) {
    // Pictures of one layout share their height, whatever their proportion. Older settings know only the width.
    const double grown = settings_.CalibHeight > 0 ? ratio(height, settings_.CalibHeight)
                                                   : ratio(workspace_.PictureWidth(window), settings_.CalibWidth);
    calibration.CalibNumber = settings_.CalibNumber;
    calibration.CalibNumberOut = static_cast<float>(settings_.CalibNumberOut * grown);
    calibration.CalibOutput = settings_.CalibOutput;
  }
  return calibration;
}

MeasureScale DrawingTools::ScaleOf(int window) const {
  const Calibration calibration = CalibrationOf(window);
  const bool calibrated = calibration.CalibNumber != 0 && calibration.CalibNumberOut > 0;
  return {.Width = workspace_.PictureWidth(window),
          .Height = workspace_.PictureHeight(window),
          .Proportion = workspace_.Proportion(window),
          .PixelsPerInch = calibrated ? calibration.CalibNumberOut : 0.0,
          .Unit = calibration.CalibOutput,
          .PerSecond = calibration.perSecond,
          .Now = workspace_.PositionNow(window),
          .FromUpright = settings_.AngleFrom == kFromUpright,
          .Speed = settings_.SpeedUnit};
}

void DrawingTools::SetShapeCaption() {
  const ShapeList& list = List(DrawWindow_);
  const Shape* shape = SelectedShape(list);
  auto text = shape ? ShapeCaption(*shape, CalibrationOf(DrawWindow_)) : std::nullopt;
  if (text) return ShowMeasure({DrawWindow_, static_cast<std::size_t>(list.CurShape), *shape, std::move(*text)});
  if (Drawing_) return;
  measure_.reset();
  workspace_.DisplayData("");
}

void DrawingTools::ShowMeasure(Measure measure) {
  measure_ = std::move(measure);
  const auto points = PointsOf(measure_->shape);
  if (measure_->shape.Kind == kLine && workspace_.CalibrationShown())
    workspace_.ShowCalibrationLength(NumberText(LineLength(points[0], points[1])) + "pts");
  workspace_.DisplayData(measure_->text);
}

/// Takes the measure anew where its shape, or the size of its picture, is another one, and drops it where
/// its shape is no more.
void DrawingTools::FollowMeasure() {
  const auto shapes = ShapesOf(List(measure_->window));
  if (measure_->index >= shapes.size() || shapes[measure_->index] != measure_->shape) {
    const auto found = std::ranges::find(shapes, measure_->shape);
    if (found == shapes.end()) return DropMeasure();
    measure_->index = static_cast<std::size_t>(found - shapes.begin());
  }
  auto text = ShapeCaption(measure_->shape, CalibrationOf(measure_->window));
  if (!text) return DropMeasure();
  if (*text == measure_->text) return;
  Measure anew = *std::exchange(measure_, std::nullopt);
  anew.text = std::move(*text);
  ShowMeasure(std::move(anew));
}

void DrawingTools::DropMeasure() {
  if (!std::exchange(measure_, std::nullopt)) return;
  if (workspace_.CalibrationShown()) workspace_.ShowCalibrationLength("");
  Drawing_ ? Announce(DrawKind_) : workspace_.DisplayData("");
}

void DrawingTools::RemoveMeasuringLine() {
  for (int window = 1; window <= ShapeLists::kWindows; ++window) {
    ShapeList& list = List(window);
    const auto shapes = ShapesOf(list);
    const auto line = std::ranges::find_if(shapes, &Shape::Measuring);
    if (line == shapes.end()) continue;
    const auto index = static_cast<int>(line - shapes.begin());
    if (!line->Locked) list.Adding = false;
    engine_.KillShape(list, index);
    if (list.CurShape >= index) --list.CurShape;
    SetEditBar();
    workspace_.Refresh(window);
  }
}

}  // namespace kinalyx
