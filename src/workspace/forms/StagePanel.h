#pragma once

#include <QFrame>

namespace kinalyx {

/// A panel over the stage, or at its edge: dressed anew with every style, dragged by its ground where it can be
/// moved, and always within the margins of the stage, which is its parent.
class StagePanel : public QFrame {
  Q_OBJECT

 public:
  explicit StagePanel(const QString& name, QWidget* stage);

  /// After the stage has another size or other margins.
  void KeepInside() { MoveInside(pos()); }

 protected:
  void MoveInside(QPoint corner);
  /// The mouse drags it by its ground.
  virtual bool Movable() const { return false; }
  /// The user has put its corner here, inside the stage or not.
  virtual void MovedTo(QPoint corner) { MoveInside(corner); }
  /// Sheets and icons for the present style; called anew with every style, but not before FirstDress.
  virtual void Dress() = 0;
  /// For the end of the constructor of the last class, when everything is there to be dressed.
  void FirstDress();
  bool Dressed() const { return complete_; }

  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  QPoint grab_;
  bool complete_ = false;
};

}  // namespace kinalyx
