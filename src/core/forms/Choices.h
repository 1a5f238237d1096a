#pragma once

#include <QAbstractButton>
#include <QColor>
#include <QProgressBar>
#include <array>

namespace kinalyx {

/// A button that shows what it chooses: a sample beside, or instead of, its words. Drawn like the quiet
/// buttons, filled with the accent's ring while it is checked.
class SampleButton : public QAbstractButton {
 public:
  SampleButton(const QString& name, const QString& caption, QWidget* parent = nullptr);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent*) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;
  /// Draws the sample into `room`.
  virtual void PaintSample(QPainter& painter, const QRectF& room) = 0;
  virtual int SampleWidth() const { return 22; }
};

/// A colour, with what it is for.
class ColourButton : public SampleButton {
 public:
  using SampleButton::SampleButton;
  void SetColour(const QColor& colour);
  QColor Colour() const { return colour_; }

 protected:
  void PaintSample(QPainter& painter, const QRectF& room) override;

 private:
  QColor colour_ = Qt::white;
};

/// One of the colour schemes.
class SchemeButton : public SampleButton {
 public:
  SchemeButton(const QString& name, const QString& caption, const std::array<QColor, 4>& colours,
               QWidget* parent = nullptr);

 protected:
  void PaintSample(QPainter& painter, const QRectF& room) override;
  int SampleWidth() const override { return 36; }

 private:
  std::array<QColor, 4> colours_;
};

/// A line of a certain width in pixels.
class WidthButton : public SampleButton {
 public:
  WidthButton(const QString& name, int pixels, QWidget* parent = nullptr);

 protected:
  void PaintSample(QPainter& painter, const QRectF& room) override;

 private:
  int pixels_;
};

/// A bar filled with a colour of its own. The value is a percentage.
class Gauge : public QProgressBar {
 public:
  explicit Gauge(const QString& name, QWidget* parent = nullptr);
  void Show(const QColor& colour, int percent);
  QColor Colour() const { return colour_; }
  QSize sizeHint() const override { return QSize(120, 14); }
  QSize minimumSizeHint() const override { return QSize(60, 14); }

 protected:
  void paintEvent(QPaintEvent*) override;

 private:
  QColor colour_;
};

}  // namespace kinalyx
