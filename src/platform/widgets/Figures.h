#pragma once

#include <QFontMetrics>
#include <QLabel>
#include <QRect>
#include <QString>

class QPainter;

namespace kinalyx {

/// Text whose digits all take the same width, so that figures that change do not tremble.

int FiguresWidth(const QFontMetrics& metrics, const QString& text);
/// One line in the painter's font and pen; horizontal alignment left, right or centre.
void DrawFigures(QPainter& painter, const QRect& room, Qt::Alignment alignment, const QString& text);

/// A one-line label that draws its text so.
class FigureLabel : public QLabel {
 public:
  explicit FigureLabel(const QString& name, const QString& text = {}, QWidget* parent = nullptr);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent*) override;
};

}  // namespace kinalyx
