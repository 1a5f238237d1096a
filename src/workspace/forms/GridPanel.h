#pragma once

#include "workspace/edits/DrawingEdits.h"
#include "workspace/forms/FloatCard.h"

class QLabel;
class QPushButton;
class QSlider;

namespace kinalyx {

/// `GridPanel`: how many squares of the grid go across the picture.
class GridPanel : public FloatCard {
  Q_OBJECT

 public:
  GridPanel(DrawingEdits& edits, QWidget* stage);

  /// Shows the size that is set, and opens.
  void Begin();
  /// The current window or its grid is another one.
  void Update();

 private:
  void ShowSize(int divisions);
  void Dress() override;

  DrawingEdits& edits_;
  QWidget* content_ = nullptr;
  QSlider* HScroll3_ = nullptr;
  QLabel* size_ = nullptr;
  QPushButton* show_ = nullptr;
};

}  // namespace kinalyx
