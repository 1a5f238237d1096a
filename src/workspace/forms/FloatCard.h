#pragma once

#include "workspace/forms/StagePanel.h"

class QPropertyAnimation;
class QToolButton;
class QVBoxLayout;

namespace kinalyx {

class CardDesk;

/// A small card that floats over the stage: a heading by which it is dragged, a button that closes it, and
/// a body. It stays inside its parent, within the margins that the parent may have. It opens beside the athlete, or
/// where the user has put it last, and slides in where the desktop moves what opens.
class FloatCard : public StagePanel {
  Q_OBJECT

 public:
  FloatCard(const QString& name, const QString& title, QWidget* parent);

  QVBoxLayout* Body() { return body_; }
  /// Who knows the places of the cards; must outlive this one.
  void LieOn(CardDesk& desk) { desk_ = &desk; }

  enum class Place { Middle, Top, Bottom };
  /// Shows it: where the user has put it, and until he has, in the middle of its parent or at that side of it on
  /// which it covers less of the athlete, at the top or the bottom.
  void Open(Place first = Place::Middle);

 signals:
  void CloseWanted();

 protected:
  bool Movable() const override { return true; }
  void MovedTo(QPoint corner) override;
  void Dress() override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  QPoint FirstCorner(Place first) const;
  void SlideIn();
  /// Moves below, or else above, the cards that are shown where this one was put; where the user has put
  /// it, it stays.
  void MakeRoom();

  QVBoxLayout* body_;
  QToolButton* close_ = nullptr;
  CardDesk* desk_ = nullptr;
  QPropertyAnimation* slide_ = nullptr;
  bool moved_ = false;    ///< by the user
  bool dragged_ = false;  ///< since the press
};

}  // namespace kinalyx
