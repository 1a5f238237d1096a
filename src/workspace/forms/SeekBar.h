#pragma once

#include <QWidget>
#include <vector>

namespace kinalyx {

/// The line along which a video is dragged: a track with a knob and the marks of the video. A press
/// jumps there, a drag follows, a notch of the wheel moves by one.
class SeekBar : public QWidget {
  Q_OBJECT

 public:
  explicit SeekBar(QWidget* parent = nullptr);

  // What is set here is told to nobody.
  void SetRange(int minimum, int maximum);
  void SetValue(int value);
  void SetBounds(int minimum, int maximum, int value);
  void SetMarks(std::vector<int> marks);
  /// The part that is played; what reaches over the ends of the bar is the whole.
  void SetPlayRange(int first, int last);
  int Value() const { return value_; }
  int Minimum() const { return minimum_; }
  int Maximum() const { return maximum_; }

  QSize sizeHint() const override { return {200, 24}; }
  QSize minimumSizeHint() const override { return {60, 20}; }

 signals:
  /// The user wants this position.
  void Sought(int position);
  /// The pointer is over a position, `x` pixels from the left end; or it has gone.
  void Hovered(int position, int x);
  void Left();

 protected:
  void paintEvent(QPaintEvent*) override;
  void mousePressEvent(QMouseEvent*) override;
  void mouseMoveEvent(QMouseEvent*) override;
  void mouseReleaseEvent(QMouseEvent*) override;
  void wheelEvent(QWheelEvent*) override;
  void leaveEvent(QEvent*) override { emit Left(); }

 private:
  double XOf(int position) const;
  int PositionAt(double x) const;
  void SeekTo(double x);

  int minimum_ = 0;
  int maximum_ = 0;
  int value_ = 0;
  int playFirst_ = 0;
  int playLast_ = 0;
  bool dragging_ = false;
  int turned_ = 0;  ///< of the wheel, eighths of a degree that make no notch yet
  std::vector<int> marks_;
};

}  // namespace kinalyx
