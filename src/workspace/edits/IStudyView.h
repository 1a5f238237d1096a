#pragma once

#include <string>

#include "workspace/stage/Layout.h"

namespace kinalyx {

/// What notes and ruler ask of the window with their panels.
class IStudyView {
 public:
  virtual ~IStudyView() = default;
  /// The notes of the current video, under its picture; `place` is relative to `MainPanel`.
  virtual void ShowNotesPnl(const TwipRect& place, const std::string& notes) = 0;
  virtual void HideNotesPnl() = 0;
  /// The calibration panel; it comes with the units of the settings and empty fields.
  virtual void ShowCalibration(bool shown) = 0;
  virtual void SetCalibrationLength(const std::string& length) = 0;
  /// What the current video's own ruler says; empty: it has none.
  virtual void SetVideoRuler(const std::string& words) = 0;
  /// A sentence over the picture of a slot that runs a command when it is clicked; without words there is none.
  virtual void ShowHint(int slot, const std::string& words, const std::string& command) = 0;
};

}  // namespace kinalyx
