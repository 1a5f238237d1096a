#pragma once

#include <QWidget>

namespace kinalyx {

/// Tells when Ctrl was pressed and let go with no other key, no button and no wheel in between: as a key of its own it
/// must not come in the way of Ctrl+Z, nor of a click that is held with it.
class LoneCtrl : public QObject {
  Q_OBJECT

 public:
  /// @param page  outlives this; only while the keys are in it
  explicit LoneCtrl(QWidget* page);

 signals:
  void Tapped();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool KeysAreHere() const;
  bool Dragging() const;

  QWidget* page_;
  bool alone_ = false;  ///< Ctrl is down, and nothing else has happened since
  bool held_ = false;   ///< a button of the mouse
};

}  // namespace kinalyx
