#pragma once

#include <QElapsedTimer>
#include <QProgressBar>
#include <QSlider>
#include <QTimer>

namespace kinalyx {

/// A horizontal level meter, 0 to 100, which keeps a mark at the loudest of the last moments. Its ends stand a little
/// off those of the widget, where ThresholdHandle has the middle of its handle.
class LevelBar : public QProgressBar {
 public:
  explicit LevelBar(const QString& name, QWidget* parent = nullptr);

  /// @param level  0 to 1
  void ShowLevel(double level);
  /// From where on the bar is lit, 0 to 1.
  void SetThreshold(double level);
  /// Lights up for a moment.
  void Flash();

  /// Where a level stands in a widget of that width.
  static double XOf(double level, int width);
  static double LevelAt(double x, int width);

 protected:
  void paintEvent(QPaintEvent*) override;

 private:
  double level_ = 0;
  double threshold_ = 1;
  double peak_ = 0;
  QElapsedTimer peakSince_;
  QTimer flash_;
};

/// The handle over a LevelBar: a line across it, with a grip that is dragged. A slider in all else.
class ThresholdHandle : public QSlider {
 public:
  explicit ThresholdHandle(const QString& name, QWidget* parent = nullptr);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent*) override;
};

}  // namespace kinalyx
