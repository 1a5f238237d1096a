#include "workspace/edits/RulerCalibration.h"

#include "core/Numbers.h"

namespace kinalyx {

void RulerCalibration::ToggleCalibration() {
  if (shown_) {
    CancelCalibration();
    return;
  }
  shown_ = true;
  Label4_.clear();
  view_.ShowCalibration(true);
  if (!tools_.Drawing() || tools_.DrawKind() != kLine) tools_.TakeTool(kLine);
}

void RulerCalibration::ShowLength(const std::string& length) {
  // The length holds for the size that the picture has now.
  Label4_ = length;
  width_ = drawing_.PictureWidth(tools_.MeasuredWindow());
  height_ = drawing_.PictureHeight(tools_.MeasuredWindow());
  view_.SetCalibrationLength(length);
}

void RulerCalibration::Calibrate(double typed, LengthUnit input, LengthUnit output) {
  if (!shown_) return;
  const auto pixels = ReadInt32(Label4_);
  settings_.Set(settings_.CalibNumber, pixels);
  if (const auto scale = PixelsPerInch(pixels, typed, input)) {
    settings_.Set(settings_.CalibNumberOut, *scale);
    settings_.Set(settings_.CalibWidth, width_);
    settings_.Set(settings_.CalibHeight, height_);
  }
  settings_.Set(settings_.CalibInput, input);
  settings_.Set(settings_.CalibOutput, output);
  Close();
}

void RulerCalibration::CancelCalibration() {
  if (shown_) Close();
}

void RulerCalibration::Close() {
  shown_ = false;
  Label4_.clear();
  // A line that is still being drawn goes with the tool.
  tools_.PutToolDown();
  tools_.RemoveMeasuringLine();
  tools_.DropMeasure();
  view_.ShowCalibration(false);
  stage_.News().Note(kCommandsChanged);
}

}  // namespace kinalyx
