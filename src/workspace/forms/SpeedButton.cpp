#include "workspace/forms/SpeedButton.h"

#include <QMenu>
#include <QStyle>
#include <QWheelEvent>

#include "workspace/transport/Speeds.h"

namespace kinalyx {
namespace {

QString Figure(int percent) { return QString::fromStdString(SpeedText(percent)) + QChar(0xD7); }

}  // namespace

SpeedButton::SpeedButton(QWidget* parent) : QToolButton(parent) {
  setObjectName("SpeedButton");
  setFocusPolicy(Qt::NoFocus);
  setToolButtonStyle(Qt::ToolButtonTextOnly);
  connect(this, &QToolButton::clicked, this, &SpeedButton::Open);
  SetSpeed(100);
}

void SpeedButton::SetSpeed(int percent) {
  if (percent == percent_) return;
  percent_ = percent;
  setText(Figure(percent));
  if (property("slow").toBool() == (percent != 100)) return;
  setProperty("slow", percent != 100);
  style()->unpolish(this);
  style()->polish(this);
}

void SpeedButton::Open() {
  QMenu menu(this);
  menu.setObjectName("SpeedMenu");
  for (const int percent : kPlaySpeeds) {
    QAction* action = menu.addAction(Figure(percent));
    action->setCheckable(true);
    action->setChecked(percent == percent_);
    action->setData(percent);
  }
  // Over the bar, which mostly stands at the foot of the window.
  const QPoint above = mapToGlobal(QPoint(0, -menu.sizeHint().height()));
  if (const QAction* chosen = menu.exec(above)) emit Chosen(chosen->data().toInt());
}

void SpeedButton::wheelEvent(QWheelEvent* event) {
  event->accept();
  if (!isEnabled() || event->angleDelta().y() == 0) return;
  emit Chosen(NextSpeed(percent_, event->angleDelta().y() > 0));
}

}  // namespace kinalyx
