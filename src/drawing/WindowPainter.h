#pragma once

#include <cstddef>
#include <vector>

#include "drawing/Shape.h"
#include "drawing/ShapePainting.h"
#include "platform/paint/Canvas.h"
#include "platform/paint/Layer.h"

namespace kinalyx {

/// The grid under the shapes of a window.
struct GridLook {
  bool on = false;
  int divisions = 0;
  Colour colour = 0;

  friend bool operator==(const GridLook&, const GridLook&) = default;
};

/// Paints the drawings of one window over every frame that it shows. What has not changed since the last
/// frame is kept as layers and only laid over; what has changed is found by comparing content, so nobody
/// needs to tell. A shape that follows the mouse is painted directly until it comes to rest.
class WindowPainter {
 public:
  /// Paints the grid and the shapes, first to last, with `colours[i]` for shape i. The canvas's pen and
  /// mode are left as they were. Returns the first shape that could not be drawn, null when all were;
  /// an empty surface takes nothing and is no error.
  const Shape* Paint(Canvas& canvas, const ShapeList& list, std::span<const Colour> colours, const GridLook& grid,
                     const ShapeLook& look, const ShapeRules& rules);
  /// Bytes held for the next frames.
  std::size_t Bytes() const;

 private:
  /// What a kept layer shows.
  struct Content {
    std::int16_t Kind = 0;
    bool Locked = false;
    Colour colour = 0;
    int rotation = 0;
    std::vector<POINTAPI> points;

    bool Shows(const Shape& shape, Colour colour) const;
    void Take(const Shape& shape, Colour colour);
  };
  struct Entry {
    Content content;
    Layer layer;
    bool kept = false;
  };

  void Forget();
  void Align(std::span<const Shape> shapes, std::span<const Colour> colours);

  std::vector<Entry> entries_;
  Layer grid_;
  GridLook gridLook_;
  bool gridKept_ = false;
  int width_ = 0;
  int height_ = 0;
  Pen pen_;
  ShapeLook look_;
  bool fromCentre_ = false;
  std::size_t bytes_ = 0;
};

}  // namespace kinalyx
