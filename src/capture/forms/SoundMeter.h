#pragma once

#include <QWidget>

class QLabel;
class QSlider;

namespace kinalyx {

class LevelBar;
class ThresholdHandle;

/// How loud the microphone is, and how loud an impact has to be: a bar with a handle on it, over one scale, so that one
/// sees the peak cross the line that fires. Below it how sensitive the microphone is taken.
class SoundMeter : public QWidget {
  Q_OBJECT

 public:
  explicit SoundMeter(QWidget* parent = nullptr);

  /// As often as one likes; drawn when it makes a difference.
  /// @param level  as IAudioTriggerFilter::Level
  void ShowLevel(double level);
  /// An impact has fired: the bar lights up for a moment.
  void ShowFired();

  /// `TriggerLevelSlider`, 0 to 100 on the scale of the bar; 100: nothing fires. Set without a signal.
  void SetTriggerLevel(int percent);
  int TriggerLevel() const;
  /// `SoundLevelSlider`, 0 to 100. Set without a signal.
  void SetSoundLevel(int percent);
  int SoundLevel() const;

 signals:
  /// The user has moved a slider; while it is dragged too.
  void TriggerLevelChanged(int percent);
  void SoundLevelChanged(int percent);

 private:
  void ShowSensitivity();

  LevelBar* SoundLevelProgressBar_;
  ThresholdHandle* TriggerLevelSlider_;
  QSlider* SoundLevelSlider_;
  QLabel* sensitivity_;
};

}  // namespace kinalyx
