#include "workspace/forms/LoneCtrl.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>

namespace kinalyx {

LoneCtrl::LoneCtrl(QWidget* page) : QObject(page), page_(page) { qApp->installEventFilter(this); }

bool LoneCtrl::KeysAreHere() const {
  const QWidget* focus = QApplication::focusWidget();
  return page_->isVisible() && focus && (focus == page_ || page_->isAncestorOf(focus)) &&
         !QApplication::activePopupWidget() && !QApplication::activeModalWidget();
}

/// A button that went down before the key is still down. Of a drag out of the program only the application hears the
/// end.
bool LoneCtrl::Dragging() const { return held_ && QApplication::mouseButtons() != Qt::NoButton; }

/// An event passes here once for each object that it is offered to, so each step may come several times.
bool LoneCtrl::eventFilter(QObject*, QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride: {
      const auto& key = *static_cast<QKeyEvent*>(event);
      if (key.key() != Qt::Key_Control) alone_ = false;
      else if (!key.isAutoRepeat() && event->type() == QEvent::KeyPress)
        alone_ = !(key.modifiers() & ~Qt::ControlModifier) && !Dragging() && KeysAreHere();
      break;
    }
    case QEvent::KeyRelease: {
      const auto& key = *static_cast<QKeyEvent*>(event);
      if (key.isAutoRepeat() || key.key() != Qt::Key_Control || !alone_) break;
      alone_ = false;
      if (KeysAreHere()) emit Tapped();
      break;
    }
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
      alone_ = false;
      held_ = static_cast<QMouseEvent*>(event)->buttons() != Qt::NoButton;
      break;
    case QEvent::Wheel:
    case QEvent::NativeGesture:
    case QEvent::TouchBegin:
    case QEvent::WindowDeactivate:
    case QEvent::ApplicationStateChange: alone_ = false; break;
    default: break;
  }
  return false;
}

}  // namespace kinalyx
