#include "workspace/forms/PositionLine.h"

#include <QPainter>

namespace kinalyx {

QString FittingLine(const QFontMetrics& metrics, int width, const QString& line) {
  const QString whole = line.trimmed();
  // Numbers stand first on either side of the bar, in every language.
  const bool apart = whole.contains(" | ");
  const QString time = apart ? whole.section(' ', 0, 0) + " s" : whole;
  const QString brief = apart ? time + " | " + whole.section(" | ", 1).section(' ', 0, 0) : whole;
  for (const QString& form : {whole, brief, time})
    if (FiguresWidth(metrics, form) <= width) return form;
  QString cut = time;
  while (!cut.isEmpty() && FiguresWidth(metrics, cut + QChar(0x2026)) > width) cut.chop(1);
  return cut.isEmpty() ? cut : cut + QChar(0x2026);
}

QString PlainLine(const QString& line) {
  const QString time = line.section(' ', 0, 0);
  const QString places = line.section(" | ", 1).section(' ', 0, 0);
  bool seconds = false, position = false, last = false;
  const double at = time.toDouble(&seconds);
  const int picture = places.section('/', 0, 0).toInt(&position) + 1;
  const int pictures = places.section('/', 1).toInt(&last) + 1;
  if (!seconds || !position || !last) return {};
  return QObject::tr("%1 s, picture %2 of %3").arg(at, 0, 'f', 1).arg(picture).arg(pictures);
}

void PositionLine::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
  DrawFigures(painter, contentsRect(), alignment(), FittingLine(painter.fontMetrics(), contentsRect().width(), text()));
}

}  // namespace kinalyx
