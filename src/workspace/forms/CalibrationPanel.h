#pragma once

#include <array>

#include "core/Settings.h"
#include "workspace/edits/RulerCalibration.h"
#include "workspace/forms/FloatCard.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace kinalyx {

/// The calibration panel: the length of the line that is drawn, the length that it stands for, and the
/// units of both sides.
class CalibrationPanel : public FloatCard {
  Q_OBJECT

 public:
  CalibrationPanel(RulerCalibration& ruler, const Settings& settings, QWidget* parent);

  /// Empty fields, and the units of the settings.
  void Begin();
  void SetLength(const QString& length);
  /// Empty: the video has none of its own.
  void SetVideoRuler(const QString& words);

 private:
  QLayout* Units(const QString& title, int first);
  int UnitFrom(int first) const;
  void Enable();
  void Calibrate();

  RulerCalibration& ruler_;
  const Settings& settings_;
  QLabel* length_;
  QLineEdit* typed_;
  QPushButton* ok_;
  QLabel* rulerWords_;
  QPushButton* remove_;
  std::array<QRadioButton*, 8> units_{};  ///< 0 to 3 of the typed length, 4 to 7 of the display
};

}  // namespace kinalyx
