#include "workspace/forms/StagePanel.h"

#include <QEvent>
#include <QMouseEvent>
#include <algorithm>

namespace kinalyx {

StagePanel::StagePanel(const QString& name, QWidget* stage) : QFrame(stage) {
  setObjectName(name);
  setCursor(Qt::ArrowCursor);
}

void StagePanel::FirstDress() {
  complete_ = true;
  Dress();
}

void StagePanel::MoveInside(QPoint corner) {
  const QRect room = parentWidget()->contentsRect();
  move(std::clamp(corner.x(), room.left(), std::max(room.left(), room.right() + 1 - width())),
       std::clamp(corner.y(), room.top(), std::max(room.top(), room.bottom() + 1 - height())));
}

void StagePanel::mousePressEvent(QMouseEvent* event) {
  grab_ = event->pos();
  if (Movable()) raise();
}

void StagePanel::mouseMoveEvent(QMouseEvent* event) {
  if (Movable() && event->buttons() & Qt::LeftButton) MovedTo(mapToParent(event->pos() - grab_));
}

void StagePanel::changeEvent(QEvent* event) {
  QFrame::changeEvent(event);
  if (event->type() == QEvent::StyleChange && complete_) Dress();
}

}  // namespace kinalyx
