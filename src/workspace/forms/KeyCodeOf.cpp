#include "workspace/forms/KeyCodeOf.h"

#include <QKeyEvent>
#include <QString>

#include "video/KeyCodes.h"

namespace kinalyx {

bool IsLetterWithCtrl(const QKeyEvent& event) {
  return event.key() >= Qt::Key_A && event.key() <= Qt::Key_Z && event.modifiers() & Qt::ControlModifier &&
         !(event.modifiers() & Qt::AltModifier);
}

int KeyCodeOf(const QKeyEvent& event) {
  const int key = event.key();
  if (key >= Qt::Key_0 && key <= Qt::Key_9)
    return (event.modifiers() & Qt::KeypadModifier ? kKeyNumpad0 : kKey0) + key - Qt::Key_0;
  if (key >= Qt::Key_F1 && key <= Qt::Key_F12) return kKeyF1 + key - Qt::Key_F1;
  if (IsLetterWithCtrl(event)) return key;
  switch (key) {
    case Qt::Key_Tab: return kKeyTab;
    case Qt::Key_Backspace: return kKeyBackspace;
    case Qt::Key_Return:
    case Qt::Key_Enter: return kKeyReturn;
    case Qt::Key_Space: return kKeySpace;
    case Qt::Key_Left: return kKeyLeft;
    case Qt::Key_Right: return kKeyRight;
    case Qt::Key_Up: return kKeyUp;
    case Qt::Key_Down: return kKeyDown;
    case Qt::Key_Home: return kKeyHome;
    case Qt::Key_End: return kKeyEnd;
    case Qt::Key_PageUp: return kKeyPageUp;
    case Qt::Key_PageDown: return kKeyPageDown;
    case Qt::Key_Delete: return kKeyDelete;
    case Qt::Key_Escape: return kKeyEscape;
    case Qt::Key_Control: return kKeyCtrl;
    // The five of the keypad without its digits.
    case Qt::Key_Clear: return kKeyNumpad0 + 5;
    default: return 0;
  }
}

int KeyAsciiOf(const QKeyEvent& event) {
  if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return 0;
  const QString text = event.text();
  return text.isEmpty() || text[0].unicode() >= 128 ? 0 : text[0].unicode();
}

bool RepeatsWhileHeld(const QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right: return true;
    default: break;
  }
  const int code = KeyCodeOf(event);
  if (code >= kKeyNumpad0 && code <= kKeyNumpad9) return true;
  return QString("ybgh+-=").contains(event.text().toLower()) && !event.text().isEmpty();
}

}  // namespace kinalyx
