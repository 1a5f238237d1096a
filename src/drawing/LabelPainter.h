#pragma once

#include <span>
#include <vector>

#include "drawing/ShapeLabels.h"
#include "platform/paint/Canvas.h"
#include "platform/paint/Layer.h"

namespace kinalyx {

/// Writes figures beside the drawings of one window over every frame that it shows: light letters on a dark plate,
/// which can be read on grass, mats and skies alike. A plate that has not changed is kept as a layer.
class LabelPainter {
 public:
  /// A label that would reach beyond the picture is moved inside.
  /// @param letters  pixels of a line of figures; 0: as suits a window of that height
  void Paint(Canvas& canvas, std::span<const ShapeLabel> labels, double letters = 0);
  /// Pixels of a line of figures in a window's picture of this height.
  static int LettersFor(int height);

 private:
  struct Plate {
    ShapeLabel label;
    Layer layer;
  };

  int width_ = 0;  ///< of the frames for which the plates are
  int height_ = 0;
  int letters_ = 0;
  std::vector<Plate> plates_;
};

}  // namespace kinalyx
