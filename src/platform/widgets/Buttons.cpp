#include "platform/widgets/Buttons.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyle>
#include <QTextLayout>
#include <QTextOption>

#include "platform/widgets/Icons.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

namespace {

const char* LookName(Look look) {
  switch (look) {
    case Look::Quiet: return "quiet";
    case Look::Flat: return "flat";
    case Look::Stage: return "stage";
    case Look::Section: return "section";
    case Look::Filled: break;
  }
  return "filled";
}

/// Return, or the Enter of the number pad. Holding it presses once.
bool PressesButton(const QKeyEvent& event) {
  return (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) && !event.isAutoRepeat();
}

}  // namespace

Button::Button(const QString& name, const QString& caption, const QString& icon, Look look, QWidget* parent)
    : QPushButton(caption, parent), icon_(icon), look_(look) {
  setObjectName(name);
  setProperty("look", LookName(look));
  setProperty("square", caption.isEmpty());
  FixIcon(this, 20);
  setCursor(Qt::PointingHandCursor);
  setAutoDefault(false);
  Tint();
}

void Button::SetIcon(const QString& icon) {
  if (icon_ == icon) return;
  icon_ = icon;
  Tint();
}

void Button::changeEvent(QEvent* event) {
  QPushButton::changeEvent(event);
  if (event->type() == QEvent::StyleChange) Tint();
}

/// The button that has the keys is the one that Return presses, also where a form has a default button.
void Button::keyPressEvent(QKeyEvent* event) {
  if (PressesButton(*event)) click();
  else QPushButton::keyPressEvent(event);
}

void Button::Tint() {
  if (icon_.isEmpty()) {
    setIcon(QIcon());
    return;
  }
  const Theme theme = CurrentTheme();
  switch (look_) {
    case Look::Filled: setIcon(Icon(icon_, theme.accentText)); break;
    case Look::Stage: setIcon(Icon(icon_, theme.stageText, theme.stageText, QColor(0x62, 0x6d, 0x77))); break;
    default: setIcon(Icon(icon_, theme.heading, theme.accentText)); break;
  }
}

Button* IconButton(const QString& name, const QString& icon, const QString& tip, Look look, QWidget* parent) {
  auto* button = new Button(name, {}, icon, look, parent);
  button->setToolTip(tip);
  button->setAccessibleName(tip);
  return button;
}

TileButton::TileButton(const QString& name, const QString& caption, const QString& icon, Place place, QWidget* parent)
    : QPushButton(caption, parent), icon_(icon), place_(place) {
  setObjectName(name);
  setProperty("look", "tile");
  setCursor(Qt::PointingHandCursor);
  setAutoDefault(false);
  setAttribute(Qt::WA_Hover);
  setSizePolicy(place == Place::Rail ? QSizePolicy::Fixed : QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize TileButton::sizeHint() const { return place_ == Place::Rail ? QSize(Px(116), Px(74)) : QSize(Px(150), Px(132)); }

QSize TileButton::minimumSizeHint() const {
  return place_ == Place::Rail ? QSize(Px(116), Px(58)) : QSize(Px(96), Px(108));
}

void TileButton::keyPressEvent(QKeyEvent* event) {
  if (PressesButton(*event)) click();
  else QPushButton::keyPressEvent(event);
}

void TileButton::paintEvent(QPaintEvent*) {
  const Theme theme = CurrentTheme();
  const bool rail = place_ == Place::Rail;
  const bool chosen = isChecked() || isDown();
  const bool hovered = underMouse() && isEnabled();

  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  QColor ground = rail ? Qt::transparent : isEnabled() ? theme.panel : Mix(theme.panel, theme.line, 0.35);
  QColor ink = isEnabled() ? theme.heading : theme.faint;
  if (!rail) {
    // A hint of the picture shines through; the words are set for the worst that it can be.
    constexpr double kOpacity = 0.92;
    ink = Readable(ink, Mix(ground, theme.dark ? Qt::white : Qt::black, 1 - kOpacity));
    ground.setAlphaF(kOpacity);
  }
  if (hovered) ground = rail ? Mix(theme.panel, theme.line, 0.6) : Mix(theme.panel, Qt::white, theme.dark ? 0.1 : 0.75);
  if (chosen) {
    ground = theme.accent;
    ink = theme.accentText;
  }

  const QRectF box = QRectF(rect()).adjusted(1, 1, -1, -1);
  painter.setPen(Qt::NoPen);
  painter.setBrush(ground);
  painter.drawRoundedRect(box, rail ? kCorner : 12, rail ? kCorner : 12);
  if (hasFocus()) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(chosen ? Mix(theme.accentText, theme.accent, 0.35) : theme.accent, 2));
    painter.drawRoundedRect(box.adjusted(1, 1, -1, -1), rail ? 7 : 11, rail ? 7 : 11);
  }

  const int iconSide = Px(rail ? 26 : 36);
  const int gap = Px(rail ? 6 : 12);
  painter.setFont(UiFont(rail ? 12 : kTextPixels, isEnabled() ? 600 : 400));
  const int flags = Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap;
  const QRect room = rect().adjusted(6, 0, -6, 0);
  const QRect words = painter.fontMetrics().boundingRect(room, flags, text());
  const int top = (height() - iconSide - gap - words.height()) / 2;
  const QPixmap picture = IconPixmap(icon_, ink, iconSide, devicePixelRatioF());
  painter.drawPixmap(QPointF((width() - iconSide) / 2.0, top), picture);
  painter.setPen(ink);
  painter.drawText(QRect(room.left(), top + iconSide + gap, room.width(), words.height() + 2), flags, text());
}

void SetComing(QWidget* widget, bool coming) {
  widget->setEnabled(!coming);
  widget->setVisible(!coming);
}

}  // namespace kinalyx
