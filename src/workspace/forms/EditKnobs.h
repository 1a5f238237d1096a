#pragma once

#include <QWidget>
#include <array>
#include <optional>

#include "workspace/edits/DrawingEdits.h"

namespace kinalyx {

/// The handles that lie on the picture: a dashed box round the selection, and on it a knob each to move,
/// scale and turn. While a knob is held it stays under the mouse.
class EditKnobs : public QWidget {
  Q_OBJECT

 public:
  explicit EditKnobs(QWidget* stage);

  void SetEdits(DrawingEdits& edits) { edits_ = &edits; }
  /// @param box     round the selection, in pixels of the stage
  /// @param pivot   about which it turns, likewise
  /// @param room    the part of the stage in which the picture shows
  /// @param corner  the picture's corner on the stage
  void ShowRound(const QRectF& box, QPointF pivot, const QRect& room, QPointF corner);
  void SetEnabled(EditHandle handle, bool enabled);
  void HideAll();
  /// A ring about a point of the stage with a pointer to another: how far a drag has turned.
  void ShowGuide(QPointF centre, QPointF pointer);
  void HideGuide();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent*) override;

 private:
  class Knob;

  QWidget* KnobOf(EditHandle handle) const { return knobs_[static_cast<std::size_t>(handle - kMoveHandle)]; }
  POINTAPI PicturePoint(QPointF onStage) const;
  void PlaceKnob(EditHandle handle, QPointF centre);
  void Cover();

  DrawingEdits* edits_ = nullptr;
  std::array<QWidget*, 3> knobs_{};
  std::array<bool, 3> enabled_{true, true, true};
  QRectF box_;
  QPointF stem_;  ///< the knob that turns
  QPointF pivot_;
  QRect room_;
  QPointF corner_;
  bool shown_ = false;
  std::optional<std::pair<QPointF, QPointF>> guide_;
  std::optional<EditHandle> held_;
  QPointF mouse_;  ///< while a knob is held, in pixels of the stage
};

}  // namespace kinalyx
