#pragma once

#include <QFrame>

class QToolButton;
class QVBoxLayout;

namespace kinalyx {

/// A small card that floats over the stage: a heading by which it is dragged, a button that closes it, and
/// a body. It stays inside its parent, within the margins that the parent may have.
class FloatCard : public QFrame {
  Q_OBJECT

 public:
  FloatCard(const QString& name, const QString& title, QWidget* parent);

  QVBoxLayout* Body() { return body_; }
  enum class Place { Middle, TopRight, BottomRight };
  /// Shows it, at first at a place of its parent, and once the user has moved it, where it was left.
  void Open(Place first = Place::Middle);
  /// After the parent has another size or other margins.
  void KeepInside();

 signals:
  void CloseWanted();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  /// Moves below, or else above, the cards that are shown where this one was put; where the user has put
  /// it, it stays.
  void MakeRoom();
  void Dress();

  QVBoxLayout* body_;
  QToolButton* close_ = nullptr;
  QPoint grab_;
  bool moved_ = false;
};

}  // namespace kinalyx
