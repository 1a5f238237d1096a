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
  void Paint(Canvas& canvas, std::span<const ShapeLabel> labels);

 private:
  struct Plate {
    ShapeLabel label;
    Layer layer;
  };

  int width_ = 0;  ///< of the frames for which the plates are
  int height_ = 0;
  std::vector<Plate> plates_;
};

}  // namespace kinalyx
