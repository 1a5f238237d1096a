#pragma once

#include <QObject>
#include <QPointer>

class QVariantAnimation;
class QWidget;

namespace kinalyx {

/// Shows who watches a lesson where the mouse was pressed: a soft ring round the pointer that grows and goes. It lies
/// over all windows of the program and takes no clicks.
class ClickRing : public QObject {
 public:
  explicit ClickRing(QObject* parent);
  ~ClickRing() override;

  void SetOn(bool on);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  class Ring;
  void ShowAt(QWidget* window, QPoint at);

  QPointer<Ring> ring_;
  bool on_ = false;
};

}  // namespace kinalyx
