#include "core/forms/Choices.h"

#include <QPainter>
#include <QPainterPath>

#include "platform/widgets/Scale.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

namespace {
constexpr int kSide = 10;  // blank at the ends of a button
constexpr int kBetween = 9;
}  // namespace

SampleButton::SampleButton(const QString& name, const QString& caption, QWidget* parent) : QAbstractButton(parent) {
  setObjectName(name);
  setText(caption);
  setCursor(Qt::PointingHandCursor);
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_Hover);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QSize SampleButton::sizeHint() const {
  const int words = text().isEmpty() ? 0 : kBetween + fontMetrics().horizontalAdvance(text()) + 2;
  return QSize(2 * kSide + SampleWidth() + words, Px(kButtonHeight));
}

void SampleButton::enterEvent(QEnterEvent*) { update(); }
void SampleButton::leaveEvent(QEvent*) { update(); }

void SampleButton::paintEvent(QPaintEvent*) {
  const Theme theme = CurrentTheme();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const double ring = isChecked() || hasFocus() ? 2 : 1;
  const QRectF box = QRectF(rect()).adjusted(ring / 2, ring / 2, -ring / 2, -ring / 2);
  const bool hovered = underMouse() && isEnabled();
  painter.setPen(QPen(isChecked()  ? theme.accent
                      : hasFocus() ? theme.ring
                      : hovered    ? theme.accent
                                   : theme.outline,
                      ring));
  painter.setBrush(isChecked() ? theme.panel : isDown() ? theme.panel : hovered ? theme.selection : theme.field);
  painter.drawRoundedRect(box, 7, 7);

  QRectF sample(kSide, 0, SampleWidth(), height());
  if (text().isEmpty()) sample.moveCenter(QRectF(rect()).center());
  painter.save();
  PaintSample(painter, sample);
  painter.restore();
  if (text().isEmpty()) return;
  painter.setPen(isEnabled() ? theme.text : theme.faint);
  const QRect words = rect().adjusted(kSide + SampleWidth() + kBetween, 0, -4, 0);
  painter.drawText(words, Qt::AlignLeft | Qt::AlignVCenter,
                   painter.fontMetrics().elidedText(text(), Qt::ElideRight, words.width()));
}

void ColourButton::SetColour(const QColor& colour) {
  colour_ = colour;
  update();
}

void ColourButton::PaintSample(QPainter& painter, const QRectF& room) {
  const QRectF patch(room.left(), room.center().y() - 8, room.width(), 16);
  painter.setPen(QPen(Mix(colour_, CurrentTheme().text, 0.35), 1));
  painter.setBrush(colour_);
  painter.drawRoundedRect(patch, 4, 4);
}

SchemeButton::SchemeButton(const QString& name, const QString& caption, const std::array<QColor, 4>& colours,
                           QWidget* parent)
    : SampleButton(name, caption, parent), colours_(colours) {}

void SchemeButton::PaintSample(QPainter& painter, const QRectF& room) {
  // A page in small: heading, rail and backdrop.
  const QRectF page(room.left(), room.center().y() - 10, room.width(), 20);
  QPainterPath outline;
  outline.addRoundedRect(page, 4, 4);
  painter.setClipPath(outline);
  painter.fillRect(page, colours_[3]);
  painter.fillRect(QRectF(page.left(), page.top(), 11, page.height()), colours_[1]);
  painter.fillRect(QRectF(page.left(), page.top(), page.width(), 6), colours_[0]);
  painter.setClipping(false);
  painter.setPen(QPen(Mix(colours_[3], colours_[0], 0.45), 1));
  painter.setBrush(Qt::NoBrush);
  painter.drawPath(outline);
}

WidthButton::WidthButton(const QString& name, int pixels, QWidget* parent)
    : SampleButton(name, {}, parent), pixels_(pixels) {
  setCheckable(true);
  setToolTip(pixels == 1 ? tr("1 pixel") : tr("%1 pixels").arg(pixels));
  setAccessibleName(toolTip());
}

void WidthButton::PaintSample(QPainter& painter, const QRectF& room) {
  painter.setPen(QPen(CurrentTheme().text, pixels_, Qt::SolidLine, Qt::RoundCap));
  const double half = pixels_ / 2.0;
  painter.drawLine(QPointF(room.left() + half, room.center().y() + 5),
                   QPointF(room.right() - half, room.center().y() - 5));
}

Gauge::Gauge(const QString& name, QWidget* parent) : QProgressBar(parent) {
  setObjectName(name);
  setRange(0, 100);
  setTextVisible(false);
  FixHeight(this, 14);
  setValue(0);
}

void Gauge::Show(const QColor& colour, int percent) {
  colour_ = colour;
  setValue(percent);
  setAccessibleName(tr("%1 percent").arg(percent));
  update();
}

void Gauge::paintEvent(QPaintEvent*) {
  const Theme theme = CurrentTheme();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF box = QRectF(rect()).adjusted(0, 1, 0, -1);
  painter.setPen(Qt::NoPen);
  painter.setBrush(Mix(theme.panel, theme.line, 0.4));
  painter.drawRoundedRect(box, box.height() / 2, box.height() / 2);
  if (value() <= 0) return;
  painter.setBrush(colour_);
  QRectF filled = box;
  filled.setWidth(qMax(box.height(), box.width() * value() / 100));
  painter.drawRoundedRect(filled, box.height() / 2, box.height() / 2);
}

}  // namespace kinalyx
