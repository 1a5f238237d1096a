#pragma once

#include <QToolButton>

#include "platform/widgets/Figures.h"
#include "workspace/compare/ZoomPan.h"
#include "workspace/forms/FloatCard.h"

namespace kinalyx {

/// `ZoomForm`, "Zoom": a small floating tool with the zoom buttons and the pan buttons around their centre.
/// Keys pass through it to the workspace.
class ZoomForm : public FloatCard {
  Q_OBJECT

 public:
  ZoomForm(ZoomPan& zoom, QWidget* parent);

  /// How the current picture stands in its window.
  void ShowZoom(double zoom, bool fits);

 protected:
  void hideEvent(QHideEvent* event) override;

 private:
  void Dress() override;

  ZoomPan& zoom_;
  QWidget* content_ = nullptr;
  FigureLabel* figure_ = nullptr;
  QToolButton* fit_ = nullptr;
};

}  // namespace kinalyx
