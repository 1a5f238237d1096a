#include "workspace/RulerCalibration.h"

#include <cmath>

#include "core/Numbers.h"

namespace kinalyx {

void RulerCalibration::TCal_Click() {
  if (shown_) {
    CalibBtn_Click(1);
    return;
  }
  shown_ = true;
  Label4_.clear();
  for (int window = 1; window <= ShapeLists::kWindows; ++window)
    shapesBefore_[static_cast<std::size_t>(window - 1)] = tools_.List(window).NumShapes;
  view_.ShowCalibration(true);
  if (!tools_.Drawing() || tools_.DrawKind() != kLine) tools_.CmdMakeShape_Click(kLine);
}

bool RulerCalibration::MeasuringLineSelected() {
  const ShapeList& list = tools_.List(tools_.DrawWindow());
  const Shape* selected = SelectedShape(list);
  return selected && selected->Kind == kLine && selected->Locked &&
         list.CurShape >= shapesBefore_[static_cast<std::size_t>(tools_.DrawWindow() - 1)];
}

void RulerCalibration::ShowLength(const std::string& length) {
  Label4_ = length;
  view_.SetCalibrationLength(length);
}

void RulerCalibration::CalibBtn_Click(int Index, double typed, LengthUnit input, LengthUnit output) {
  if (!shown_) return;
  if (Index == 0) {
    const auto pixels = ReadInt32(Label4_);
    settings_.Set(settings_.CalibNumber, pixels);
    if (const auto scale = PixelsPerInch(pixels, typed, input)) {
      settings_.Set(settings_.CalibNumberOut, *scale);
      settings_.Set(settings_.CalibWidth, tools_.MeasuredWidth());
    }
    settings_.Set(settings_.CalibInput, input);
    settings_.Set(settings_.CalibOutput, output);
  }
  shown_ = false;
  Label4_.clear();
  // A line that is still being drawn goes with the tool; a finished one is the selected shape.
  if (tools_.Drawing()) tools_.DrawOffBtn_Click();
  if (MeasuringLineSelected()) {
    tools_.DeleteCurShape();
    tools_.RedrawCanvas(tools_.DrawWindow());
  }
  tools_.ClearCaptionKept();
  view_.SetDisplayText("");
  view_.ShowCalibration(false);
  view_.CommandsChanged();
}

}  // namespace kinalyx
