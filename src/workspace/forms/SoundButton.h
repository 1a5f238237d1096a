#pragma once

#include <QToolButton>

namespace kinalyx {

/// The loudspeaker of a bar: a press opens a slider, a notch of the wheel is ten percent louder or softer, a press
/// with the middle button mutes and brings the volume back.
class SoundButton : public QToolButton {
  Q_OBJECT

 public:
  explicit SoundButton(QWidget* parent);

  /// What is set here is told to nobody.
  void SetVolume(int percent);
  int Volume() const { return volume_; }
  void Dress();

 signals:
  void Chosen(int percent);

 protected:
  void wheelEvent(QWheelEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  void Open();
  void Choose(int percent);

  int volume_ = -1;
  int before_ = 80;  ///< it was muted
};

}  // namespace kinalyx
