#include "core/forms/SplashForm.h"

#include <QApplication>
#include <QBoxLayout>
#include <QEvent>
#include <QEventLoop>
#include <QLabel>
#include <QPainter>
#include <QScreen>
#include <algorithm>

#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

SplashForm::SplashForm(const QString& version, QWidget* parent)
    : QWidget(parent, Qt::SplashScreen | Qt::FramelessWindowHint) {
  setObjectName("SplashForm");
  FixSize(this, {560, 320});

  const Theme theme = CurrentTheme();
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(Px(44), Px(40), Px(44), Px(34));
  rows->setSpacing(2);
  const auto add = [&](const char* name, const QString& text, int pixels, int weight, const QColor& ink) {
    QLabel* label = MakeLabel(name, text);
    FixFont(label, pixels, weight);
    label->setStyleSheet(QString("color: %1;").arg(ink.name()));
    rows->addWidget(label);
  };
  const QColor soft = Readable(Mix(theme.accentText, theme.accent, 0.2), theme.accent);
  rows->addStretch(1);
  add("ProductLbl", "Kinalyx", 46, 700, theme.accentText);
  add("SubtitleLbl", tr("Motion Analysis"), 20, 300, soft);
  rows->addStretch(2);
  add("Label1", tr("Software Version %1").arg(version), 12, 400, soft);
}

void SplashForm::Appear(IHost& host) {
  if (const QScreen* screen = QGuiApplication::primaryScreen()) {
    move(screen->geometry().center() - rect().center());
  }
  since_ = host.timeGetTime();
  show();
  raise();
  host.DoEvents();
}

int SplashForm::LeftMs(IHost& host, int milliseconds) const {
  return static_cast<int>(std::max<std::int64_t>(0, since_ + milliseconds - host.timeGetTime()));
}

void SplashForm::Stay(IHost& host, int milliseconds) {
  while (const int left = LeftMs(host, milliseconds)) {
    QEventLoop turn;
    const HostTimer wake(host, left, false, [&turn] { turn.quit(); });
    turn.exec(QEventLoop::ExcludeUserInputEvents);
  }
}

void SplashForm::LeaveLater(IHost& host, int milliseconds) {
  raise();
  qApp->installEventFilter(this);
  leaving_ = HostTimer(host, LeftMs(host, milliseconds), false, [this] { hide(); });
}

/// Whoever begins to work has seen it.
bool SplashForm::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::KeyPress) hide();
  return QWidget::eventFilter(watched, event);
}

void SplashForm::paintEvent(QPaintEvent*) {
  const Theme theme = CurrentTheme();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  QLinearGradient ground(rect().topLeft(), rect().bottomRight());
  ground.setColorAt(0, Mix(theme.accent, Qt::black, 0.35));
  ground.setColorAt(0.55, theme.accent);
  ground.setColorAt(1, Mix(theme.accent, theme.panel, 0.3));
  painter.fillRect(rect(), ground);
  painter.scale(width() / 560.0, height() / 320.0);

  // The trace of a swing: the same arc again and again, each a moment later.
  const QPointF pivot(420, 214);
  for (int i = 0; i < 9; ++i) {
    QColor ink = theme.panel;
    ink.setAlphaF(0.08 + 0.055 * i);
    const double radius = 168 - i * 3.5;
    const QRectF circle(pivot.x() - radius, pivot.y() - radius, 2 * radius, 2 * radius);
    painter.setPen(QPen(ink, 1.4, Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(circle, (40 + i * 9) * 16, (150 - i * 13) * 16);
    const QLineF club = QLineF::fromPolar(radius, 40 + i * 18).translated(pivot);
    painter.drawLine(club.pointAt(0.3), club.p2());
    painter.setBrush(ink);
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(club.p2(), 3.2, 3.2);
    painter.setBrush(Qt::NoBrush);
  }
}

}  // namespace kinalyx
