#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>
#include <QTabBar>
#include <QTextEdit>
#include <QTimer>
#include <set>
#include <string>

namespace kinalyx::test {

/// Watches all forms that the tests show, and remembers the controls that a screen reader would have no words for: what
/// takes the keys or can be pressed, and gives itself no name.
class NamesWatch final : public QObject {
 public:
  explicit NamesWatch(QApplication& application) { application.installEventFilter(this); }

  /// "Playbar/PlayBarHScroll (QSlider)", each once.
  const std::set<std::string>& Nameless() const { return nameless_; }
  /// The same of those that say English words while another language is spoken.
  const std::set<std::string>& English() const { return english_; }

 protected:
  bool eventFilter(QObject* object, QEvent* event) override {
    // What a form shows first it may name a moment later, before anybody can listen.
    if (auto* widget = event->type() == QEvent::Show ? qobject_cast<QWidget*>(object) : nullptr;
        widget && (Heard(*widget) || qobject_cast<const QLabel*>(widget)))
      QTimer::singleShot(0, widget, [this, widget] { Look(*widget); });
    return false;
  }

 private:
  /// Parts of the toolkit's own controls are told by these.
  static bool IsPart(const QWidget& widget) {
    const QWidget* parent = widget.parentWidget();
    return widget.objectName().startsWith("qt_") || qobject_cast<const QScrollBar*>(&widget) ||
           qobject_cast<const QMenu*>(&widget) || (parent && parent->inherits("QComboBoxPrivateContainer")) ||
           qobject_cast<const QAbstractSpinBox*>(parent) || qobject_cast<const QComboBox*>(parent);
  }

  static bool Heard(const QWidget& widget) {
    if (IsPart(widget)) return false;
    return qobject_cast<const QAbstractButton*>(&widget) || qobject_cast<const QLineEdit*>(&widget) ||
           qobject_cast<const QComboBox*>(&widget) || qobject_cast<const QAbstractSlider*>(&widget) ||
           qobject_cast<const QAbstractSpinBox*>(&widget) || qobject_cast<const QAbstractItemView*>(&widget) ||
           qobject_cast<const QTextEdit*>(&widget) || qobject_cast<const QTabBar*>(&widget) ||
           (widget.focusPolicy() & Qt::TabFocus && !widget.isWindow());
  }

  void Look(QWidget& widget) {
    if (!widget.isVisible() || widget.window()->inherits("QMessageBox")) return;
    QAccessibleInterface* told = QAccessible::queryAccessibleInterface(&widget);
    const QString name = told ? told->text(QAccessible::Name).trimmed() : QString();
    if (name.isEmpty() && Heard(widget)) Note(nameless_, widget, {});
    // Words that are said in another way have not been asked for in the language.
    else if (!name.isEmpty() && QCoreApplication::translate("", name.toUtf8().constData()) != name)
      Note(english_, widget, name);
  }

  static void Note(std::set<std::string>& found, const QWidget& widget, const QString& words) {
    QString place = widget.objectName();
    for (const QWidget* over = widget.parentWidget(); over; over = over->parentWidget())
      if (!over->objectName().isEmpty() && !over->objectName().startsWith("qt_"))
        place.prepend(over->objectName() + "/");
    found.insert((place + " (" + widget.metaObject()->className() + ") " + words).toStdString());
  }

  std::set<std::string> nameless_;
  std::set<std::string> english_;
};

}  // namespace kinalyx::test
