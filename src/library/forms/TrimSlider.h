#pragma once

#include <QWidget>

namespace kinalyx {

/// A bar over the frames of a video with two ends, which mark what is kept, and a mark between them at the
/// frame that is shown. Frames count from 0. The last kept frame is never 0, nor before the first.
class TrimSlider : public QWidget {
  Q_OBJECT

 public:
  explicit TrimSlider(const QString& name, QWidget* parent = nullptr);

  /// Another video: all of it is kept.
  void SetFrames(int count);
  int Frames() const { return frames_; }
  int Start() const { return start_; }
  int End() const { return end_; }
  int Position() const { return position_; }
  void SetStart(int frame);
  void SetEnd(int frame);
  /// Moves the mark without a signal.
  void SetPosition(int frame);
  /// True while nothing is cut off.
  bool KeepsAll() const { return start_ == 0 && end_ >= frames_ - 1; }

  QSize sizeHint() const override { return {300, 44}; }
  QSize minimumSizeHint() const override { return {120, 44}; }

 signals:
  /// The user wants to see a frame.
  void Sought(int frame);
  void RangeChanged();
  /// A key: the present frame shall be the first, or the last, that is kept.
  void StartWanted();
  void EndWanted();
  /// The space bar.
  void PlayWanted();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent*) override { held_ = Part::None; }
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent*) override;

 private:
  enum class Part { None, Start, End, Position };

  double XOf(int frame) const;
  int FrameAt(double x) const;
  Part PartAt(double x) const;
  void Drag(double x);
  void Seek(int frame);

  int frames_ = 0;
  int start_ = 0;
  int end_ = 0;
  int position_ = 0;
  Part held_ = Part::None;
};

}  // namespace kinalyx
