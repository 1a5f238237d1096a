#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "drawing/DrawingTools.h"
#include "drawing/Measurement.h"
#include "workspace/edits/IStudyView.h"
#include "workspace/edits/StageHint.h"
#include "workspace/keeping/Keeping.h"
#include "workspace/stage/Stage.h"

namespace kinalyx {

/// The calibration panel: the user draws a line along something of known length and types the length;
/// from then on lines read in inches, feet, centimetres or metres.
class RulerCalibration {
 public:
  RulerCalibration(Settings& settings, DrawingTools& tools, IDrawingWorkspace& drawing, Stage& stage, Keeping& keeping,
                   IStudyView& view, StageHint& hint)
      : settings_(settings),
        tools_(tools),
        drawing_(drawing),
        stage_(stage),
        keeping_(keeping),
        view_(view),
        hint_(hint) {}

  /// Opens the panel and takes up the line tool.
  void ToggleCalibration();
  bool Shown() const { return shown_; }
  /// The measuring line has this length: "123.4pts"; empty when there is none any more.
  void ShowLength(const std::string& length);

  /// Stores the calibration, for the video and as the one used last, and closes the panel. The measuring line goes and
  /// the tool ends; a drawing that was there before may be measured too, and stays. A length of 0 stores everything but
  /// the scale.
  /// @param typed   the known length in the unit `input`
  /// @param output  the unit of the display
  void Calibrate(double typed, LengthUnit input, LengthUnit output);
  /// Closes the panel in the same way and leaves the calibration as it was. Nothing when it is not shown.
  void CancelCalibration();

  /// The current video has no ruler any more.
  void RemoveRuler();
  /// The current video is measured by the ruler that was used last.
  void TakeLastRuler();
  /// A drawing of a window was finished. Where it cannot be measured for want of a ruler, the one used last is
  /// offered, once for each opening of a video.
  void DrawingFinished(int window);
  /// The same for a path, which has no speeds without a ruler: says so, once for each path.
  void PathFinished(int window);
  /// The next video of the slot is asked for anew.
  void VideoClosed(int slot) { asked_[static_cast<std::size_t>(slot)] = false; }

 private:
  void Close();
  void SetRuler(int window, const std::optional<VideoRuler>& ruler);
  std::string RulerWords() const;

  Settings& settings_;
  DrawingTools& tools_;
  IDrawingWorkspace& drawing_;
  Stage& stage_;
  Keeping& keeping_;
  IStudyView& view_;
  StageHint& hint_;
  std::array<bool, kSlots + 1> asked_{};
  std::uint32_t told_ = 0;  ///< the path of which it was said last that it has no speeds
  bool shown_ = false;
  std::string Label4_;
  int width_ = 0;  ///< of the picture when the length was taken, pixels
  int height_ = 0;
};

}  // namespace kinalyx
