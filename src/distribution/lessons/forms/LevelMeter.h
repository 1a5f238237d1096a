#pragma once

#include <QWidget>

namespace kinalyx {

/// How loud the microphone is: a bar that grows with the voice and turns to red where it is too loud.
class LevelMeter : public QWidget {
 public:
  explicit LevelMeter(const QString& name, QWidget* parent = nullptr);
  /// @param level  0 silent to 1 full
  void SetLevel(double level);

 protected:
  void paintEvent(QPaintEvent*) override;

 private:
  double shown_ = 0;  ///< of the length
};

}  // namespace kinalyx
