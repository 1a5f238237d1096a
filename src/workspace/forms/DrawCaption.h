#pragma once

#include <QPointer>

#include "platform/paint/Geometry.h"
#include "workspace/forms/StagePanel.h"

class QLabel;
class QToolButton;

namespace kinalyx {

/// What the tool in hand says over the picture: its colour `VectorColorDisplay`, its caption or the measure
/// of the shape, and beside the colour the button `DrawOffBtn` that puts it down. But for that button the
/// mouse goes through it: what is to be drawn may lie just beneath.
class DrawCaption : public StagePanel {
  Q_OBJECT

 public:
  explicit DrawCaption(QWidget* parent);

  /// Blanks at both ends are left out; empty hides the caption.
  void SetText(const QString& text);
  void ShowColor(Colour colour);
  /// The button goes with the colour.
  void HideColor();

 signals:
  void Off();
  /// It has another size, or came or went.
  void Changed();

 protected:
  bool event(QEvent* event) override;

 private:
  void ShowParts(bool shown);
  void Dress() override;
  QWidget* Beneath(const QPoint& at);

  QFrame* swatch_;
  QLabel* text_;
  QToolButton* off_;
  QPointer<QWidget> pressed_;  ///< what lay beneath when a mouse button went down
};

}  // namespace kinalyx
