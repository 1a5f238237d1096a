#include "workspace/edits/RulerCalibration.h"

#include <fmt/format.h>

#include <algorithm>
#include <string_view>
#include <utility>

#include "core/Numbers.h"
#include "platform/files/Tr.h"

namespace kinalyx {
namespace {

constexpr std::string_view kPoints = "pts";

}  // namespace

void RulerCalibration::ToggleCalibration() {
  if (shown_) {
    CancelCalibration();
    return;
  }
  shown_ = true;
  Label4_.clear();
  view_.ShowCalibration(true);
  view_.SetVideoRuler(RulerWords());
  if (!tools_.Drawing() || tools_.DrawKind() != kLine) tools_.TakeTool(kLine);
}

void RulerCalibration::ShowLength(const std::string& length) {
  // The length holds for the size that the picture has now.
  Label4_ = length;
  width_ = drawing_.PictureWidth(tools_.MeasuredWindow());
  height_ = drawing_.PictureHeight(tools_.MeasuredWindow());
  // As the display says it; of old the panel has a word of its own.
  const bool points = length.ends_with(kPoints) && tools_.Editor();
  view_.SetCalibrationLength(points ? length.substr(0, length.size() - kPoints.size()) + " px" : length);
}

void RulerCalibration::Calibrate(double typed, LengthUnit input, LengthUnit output) {
  if (!shown_) return;
  const auto pixels = ReadInt32(Label4_);
  settings_.Set(settings_.CalibNumber, pixels);
  if (const auto scale = PixelsPerInch(pixels, typed, input)) {
    settings_.Set(settings_.CalibNumberOut, *scale);
    settings_.Set(settings_.CalibWidth, width_);
    settings_.Set(settings_.CalibHeight, height_);
    SetRuler(tools_.MeasuredWindow(), VideoRuler{*scale, width_, height_, output});
  }
  settings_.Set(settings_.CalibInput, input);
  settings_.Set(settings_.CalibOutput, output);
  Close();
}

void RulerCalibration::CancelCalibration() {
  if (shown_) Close();
}

void RulerCalibration::SetRuler(int window, const std::optional<VideoRuler>& ruler) {
  if (!stage_.HasVideo(window)) return;
  stage_.At(window).data.Study.Ruler = ruler;
  keeping_.FieldsChanged(window);
  stage_.MP(window).Refresh();
  stage_.News().Note(kCommandsChanged);
}

void RulerCalibration::RemoveRuler() {
  SetRuler(stage_.CurrentWindow, std::nullopt);
  view_.SetVideoRuler(RulerWords());
}

std::string RulerCalibration::RulerWords() const {
  const auto& ruler = stage_.Current().data.Study.Ruler;
  if (!ruler) return {};
  constexpr double kInchesPerUnit[] = {1, 12, 1 / 2.54, 100 / 2.54};
  constexpr const char* kUnits[] = {TrLater("inch"), TrLater("foot"), TrLater("centimeter"), TrLater("meter")};
  const auto unit = static_cast<std::size_t>(std::clamp(ruler->Unit, 0, 3));
  return Tr("In this video 1 {} is {:.4g} pixels.", Tr(kUnits[unit]), ruler->PixelsPerInch * kInchesPerUnit[unit]);
}

void RulerCalibration::DrawingFinished(int window) {
  auto& asked = asked_[static_cast<std::size_t>(window)];
  if (asked || shown_ || settings_.RulerPerVideo == 0 || settings_.CalibNumberOut <= 0 || settings_.CalibHeight <= 0 ||
      !stage_.HasVideo(window) || stage_.At(window).data.Study.Ruler)
    return;
  const ShapeList& list = tools_.List(window);
  const auto shapes = ShapesOf(list);
  if (list.Adding || shapes.empty()) return;
  const int kind = shapes.back().Kind;
  if (kind != kLine && kind != kArrow && kind != kSwingPath) return;
  asked = true;
  hint_.Show(window, Tr("No ruler here yet. Measure with the one used last?"), "LastRuler");
}

void RulerCalibration::PathFinished(int window) {
  const ShapeList& list = tools_.List(window);
  const auto shapes = ShapesOf(list);
  if (list.Adding || shapes.empty() || shown_ || !stage_.HasVideo(window)) return;
  const Shape& path = shapes.back();
  if (settings_.CalibNumberOut > 0) return;  // the last one has been offered
  if (path.Kind != kSwingPath || tools_.Calibrated(window) || std::exchange(told_, path.Id) == path.Id) return;
  hint_.Show(window, Tr("Set the ruler for speeds along the path."), "TCal");
}

void RulerCalibration::TakeLastRuler() {
  if (settings_.CalibNumberOut <= 0 || settings_.CalibHeight <= 0) return;
  hint_.Hide(stage_.CurrentWindow);
  SetRuler(stage_.CurrentWindow,
           VideoRuler{settings_.CalibNumberOut, settings_.CalibWidth, settings_.CalibHeight, settings_.CalibOutput});
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
