#pragma once
#include <QWidget>
namespace kinalyx {
class SoundMeter : public QWidget {
  Q_OBJECT
 public:
  void SetLevel(double) {}
  void Flash() {}
  void SetThreshold(int) {}
  void SetInputLevel(int) {}
 signals:
  void ThresholdChanged(int percent);
  void InputLevelChanged(int percent);
};
}  // namespace kinalyx
