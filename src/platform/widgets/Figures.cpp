#include "platform/widgets/Figures.h"

#include <QPainter>

namespace kinalyx {

namespace {

int DigitWidth(const QFontMetrics& metrics) {
  int widest = 0;
  for (char digit = '0'; digit <= '9'; ++digit) widest = qMax(widest, metrics.horizontalAdvance(QLatin1Char(digit)));
  return widest;
}

bool IsDigit(QChar c) { return c >= u'0' && c <= u'9'; }

// Calls `draw(piece, x, width)` for every digit and every run of other characters.
template <typename Draw>
int ForEachPiece(const QFontMetrics& metrics, const QString& text, Draw draw) {
  const int digit = DigitWidth(metrics);
  int x = 0;
  for (int i = 0; i < text.size();) {
    int end = i + 1;
    if (!IsDigit(text[i])) {
      while (end < text.size() && !IsDigit(text[end])) ++end;
    }
    const QString piece = text.mid(i, end - i);
    const int width = IsDigit(text[i]) ? digit : metrics.horizontalAdvance(piece);
    draw(piece, x, width);
    x += width;
    i = end;
  }
  return x;
}

}  // namespace

int FiguresWidth(const QFontMetrics& metrics, const QString& text) {
  return ForEachPiece(metrics, text, [](const QString&, int, int) {});
}

void DrawFigures(QPainter& painter, const QRect& room, Qt::Alignment alignment, const QString& text) {
  const QFontMetrics metrics = painter.fontMetrics();
  const int width = FiguresWidth(metrics, text);
  int left = room.left();
  if (alignment & Qt::AlignRight) left = room.right() + 1 - width;
  if (alignment & Qt::AlignHCenter) left = room.left() + (room.width() - width) / 2;
  const int base = room.top() + (room.height() - metrics.height()) / 2 + metrics.ascent();
  ForEachPiece(metrics, text, [&](const QString& piece, int x, int cell) {
    const int inset = piece.size() == 1 ? (cell - metrics.horizontalAdvance(piece)) / 2 : 0;
    painter.drawText(left + x + inset, base, piece);
  });
}

FigureLabel::FigureLabel(const QString& name, const QString& text, QWidget* parent) : QLabel(text, parent) {
  setObjectName(name);
  setTextFormat(Qt::PlainText);
}

QSize FigureLabel::sizeHint() const {
  const QMargins margins = contentsMargins();
  return QSize(FiguresWidth(fontMetrics(), text()) + margins.left() + margins.right(),
               fontMetrics().height() + margins.top() + margins.bottom());
}

QSize FigureLabel::minimumSizeHint() const { return QSize(qMin(sizeHint().width(), 24), sizeHint().height()); }

void FigureLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
  DrawFigures(painter, contentsRect(), alignment(), text());
}

}  // namespace kinalyx
