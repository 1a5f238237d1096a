#pragma once

#include <QToolButton>

namespace kinalyx {

/// The speed of a play as a figure, "1/4\u00D7". A press opens the list of speeds; a notch of the wheel takes the next.
class SpeedButton : public QToolButton {
  Q_OBJECT

 public:
  explicit SpeedButton(QWidget* parent);

  /// What is set here is told to nobody.
  void SetSpeed(int percent);

 signals:
  /// The user wants this speed, percent.
  void Chosen(int percent);

 protected:
  void wheelEvent(QWheelEvent* event) override;

 private:
  void Open();

  int percent_ = 0;
};

}  // namespace kinalyx
