#pragma once

#include <QToolButton>
#include <array>
#include <optional>

#include "workspace/edits/DrawingEdits.h"
#include "workspace/forms/StagePanel.h"

class QLabel;

namespace kinalyx {

/// `picEditBar`: the strip of handles over the lower edge of the current window. Move, scale and turn are
/// dragged, the others pressed. It is itself moved by its ground, and keeps that place in its window.
class EditStrip : public StagePanel {
  Q_OBJECT

 public:
  static constexpr int kHandles = 7;  ///< the highest index of a handle, and one

  explicit EditStrip(QWidget* stage);

  /// Before the first use: what the handles work on.
  void SetEdits(DrawingEdits& edits) { edits_ = &edits; }
  /// Puts it over a picture, pixels of the stage; another one takes back what the user moved.
  void PlaceOver(int window, const QRect& picture);
  void EnableHandle(EditHandle handle, bool enabled);
  bool HandleEnabled(EditHandle handle) const;
  void SetMultiButton(bool enabled, bool down);
  void SetWords(const QString& words);
  /// Middle of a handle on the stage.
  QPoint HandleCentre(EditHandle handle) const;
  QSize HandleSize(EditHandle handle) const;

 signals:
  /// The mouse on the turning handle while it is held, in pixels of the stage.
  void TurnedTo(QPoint mouse);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  bool Movable() const override { return true; }
  void MovedTo(QPoint corner) override;

 private:
  void AddHandle(EditHandle handle, const char* icon, const QString& tip);
  bool DragHandle(EditHandle handle, QEvent& event);
  void Arrange();
  void Dress() override;

  DrawingEdits* edits_ = nullptr;
  std::array<QToolButton*, kHandles> handles_{};
  QToolButton* multi_ = nullptr;
  QLabel* words_ = nullptr;
  int window_ = 0;
  QRect picture_;
  std::optional<QPoint> moved_;  ///< from the picture's corner, once the user has chosen a place
};

}  // namespace kinalyx
