#pragma once

#include <QWidget>
#include <optional>

#include "drawing/ShapeHand.h"

namespace kinalyx {

/// Shows which drawing is taken: a halo along its lines and a handle on each of its points. It lies over the
/// picture, so that nothing of it comes into pictures that are kept; the mouse goes through it.
class TakenHalo : public QWidget {
  Q_OBJECT

 public:
  explicit TakenHalo(QWidget* stage);

  /// @param room    the part of the stage in which the picture shows
  /// @param corner  the picture's corner on the stage
  void ShowMarks(const TakenMarks& marks, const QRect& room, QPointF corner);

 protected:
  void paintEvent(QPaintEvent*) override;

 private:
  QPointF OnStage(POINTAPI point) const;

  TakenMarks marks_;
  QPointF corner_;
  QRect room_;
};

}  // namespace kinalyx
