#pragma once

#include "workspace/forms/StagePanel.h"

class QToolButton;
class QVBoxLayout;

namespace kinalyx {

/// A small card that floats over the stage: a heading by which it is dragged, a button that closes it, and
/// a body. It stays inside its parent, within the margins that the parent may have.
class FloatCard : public StagePanel {
  Q_OBJECT

 public:
  FloatCard(const QString& name, const QString& title, QWidget* parent);

  QVBoxLayout* Body() { return body_; }
  enum class Place { Middle, TopRight, BottomRight };
  /// Shows it, at first at a place of its parent, and once the user has moved it, where it was left.
  void Open(Place first = Place::Middle);

 signals:
  void CloseWanted();

 protected:
  bool Movable() const override { return true; }
  void MovedTo(QPoint corner) override;
  void Dress() override;

 private:
  /// Moves below, or else above, the cards that are shown where this one was put; where the user has put
  /// it, it stays.
  void MakeRoom();

  QVBoxLayout* body_;
  QToolButton* close_ = nullptr;
  bool moved_ = false;
};

}  // namespace kinalyx
