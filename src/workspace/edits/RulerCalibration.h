#pragma once

#include <string>

#include "drawing/DrawingTools.h"
#include "drawing/Measurement.h"
#include "workspace/edits/IStudyView.h"
#include "workspace/stage/Stage.h"

namespace kinalyx {

/// The calibration panel: the user draws a line along something of known length and types the length;
/// from then on lines read in inches, feet, centimetres or metres.
class RulerCalibration {
 public:
  RulerCalibration(Settings& settings, DrawingTools& tools, IDrawingWorkspace& drawing, Stage& stage, IStudyView& view)
      : settings_(settings), tools_(tools), drawing_(drawing), stage_(stage), view_(view) {}

  /// Opens the panel and takes up the line tool.
  void ToggleCalibration();
  bool Shown() const { return shown_; }
  /// The measuring line has this length: "123.4pts"; empty when there is none any more.
  void ShowLength(const std::string& length);

  /// Stores the calibration and closes the panel. The measuring line goes and the tool ends; a drawing that
  /// was there before may be measured too, and stays. A length of 0 stores everything but the scale.
  /// @param typed   the known length in the unit `input`
  /// @param output  the unit of the display
  void Calibrate(double typed, LengthUnit input, LengthUnit output);
  /// Closes the panel in the same way and leaves the calibration as it was. Nothing when it is not shown.
  void CancelCalibration();

 private:
  void Close();

  Settings& settings_;
  DrawingTools& tools_;
  IDrawingWorkspace& drawing_;
  Stage& stage_;
  IStudyView& view_;
  bool shown_ = false;
  std::string Label4_;
  int width_ = 0;  ///< of the picture when the length was taken, pixels
  int height_ = 0;
};

}  // namespace kinalyx
