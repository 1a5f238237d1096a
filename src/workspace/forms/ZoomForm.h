#pragma once

#include "workspace/compare/ZoomPan.h"
#include "workspace/forms/FloatCard.h"

namespace kinalyx {

/// `ZoomForm`, "Zoom": a small floating tool with the zoom buttons and the pan buttons around their centre.
/// Keys pass through it to the workspace.
class ZoomForm : public FloatCard {
  Q_OBJECT

 public:
  ZoomForm(ZoomPan& zoom, QWidget* parent);

 protected:
  void hideEvent(QHideEvent* event) override;

 private:
  void Dress() override;

  ZoomPan& zoom_;
  QWidget* content_ = nullptr;
};

}  // namespace kinalyx
