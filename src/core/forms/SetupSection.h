#pragma once

#include <QScrollArea>
#include <QSlider>
#include <initializer_list>
#include <type_traits>
#include <utility>

#include "core/Settings.h"

class QButtonGroup;
class QHBoxLayout;
class QLineEdit;
class QVBoxLayout;

namespace kinalyx {

/// A slider that tells where it has come to rest.
class SettlingSlider : public QSlider {
  Q_OBJECT

 public:
  explicit SettlingSlider(const QString& name);

 signals:
  /// The user has let go, or stepped; not sent while it is dragged.
  void Settled(int value);
};

/// One section of the setup page: two columns of panels that scroll together. Its controls write their key
/// as soon as they change; there is nothing to confirm.
class SetupSection : public QScrollArea {
  Q_OBJECT

 public:
  SetupSection(const QString& name, Settings& settings, QWidget* parent = nullptr);

  /// Shows what the settings hold. Called with `Loading` set.
  virtual void SetupProgram() = 0;

 protected:
  /// Keeps a setting and writes its key, unless controls are being filled. False when it did not.
  template <typename T>
  bool Store(T& setting, std::type_identity_t<T> value) {
    if (settings_.Loading) return false;
    settings_.Set(setting, std::move(value));
    return true;
  }

  /// A panel with a heading in column 0 or 1; the layout is its body, with margins.
  QVBoxLayout* AddPanel(int column, const QString& title);
  /// Ends the columns; call it last.
  void Finish();
  /// Puts a panel that comes from elsewhere beneath those of a finished column, and becomes its parent.
  void AddGuest(int column, QWidget* panel);

  /// A caption over a box for text.
  static QLineEdit* AddText(QVBoxLayout& rows, const QString& name, const QString& caption);
  /// A slider with its value beside it.
  static SettlingSlider* AddSlider(QVBoxLayout& rows, const QString& name, const QString& caption, int low, int high,
                                   const QString& unit);
  /// Radio buttons named `name` and the number.
  /// @param captions  marked by TrLater
  static QButtonGroup* AddRadios(QVBoxLayout& rows, const QString& name, std::initializer_list<const char*> captions);

  /// Sliders and lists are passed over by the wheel: it turns the page, and must not change what happens to
  /// pass under the pointer.
  bool eventFilter(QObject* watched, QEvent* event) override;

  Settings& settings_;

 private:
  void GuardWheel(QWidget& part);

  QVBoxLayout* columns_[2] = {nullptr, nullptr};
};

}  // namespace kinalyx
