#include "workspace/forms/PositionLine.h"

#include <QPainter>

namespace kinalyx {

QString FittingLine(const QFontMetrics& metrics, int width, const QString& line) {
  const QString whole = line.trimmed();
  QString brief = whole;
  brief.replace(" seconds", " s").remove(" frames");
  const QString time = brief.section(" | ", 0, 0);
  for (const QString& form : {whole, brief, time})
    if (FiguresWidth(metrics, form) <= width) return form;
  QString cut = time;
  while (!cut.isEmpty() && FiguresWidth(metrics, cut + QChar(0x2026)) > width) cut.chop(1);
  return cut.isEmpty() ? cut : cut + QChar(0x2026);
}

void PositionLine::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
  DrawFigures(painter, contentsRect(), alignment(), FittingLine(painter.fontMetrics(), contentsRect().width(), text()));
}

}  // namespace kinalyx
