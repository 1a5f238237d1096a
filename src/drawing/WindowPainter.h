#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
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
  int opacity = 255;

  friend bool operator==(const GridLook&, const GridLook&) = default;
};

/// Paints the drawings of one window over every frame that it shows. A shape that has not changed since
/// the last frame is kept as a layer and only laid over; change is found by comparing content, so nobody
/// needs to tell. A shape that follows the mouse is painted directly until it comes to rest.
class WindowPainter {
 public:
  /// Paints the grid and the shapes, first to last, with `colours[i]` for shape i. The canvas's pen is
  /// left as it was. `opacities[i]` is 0 for a shape that is not seen now, 255 for one that is seen in full; none
  /// mean that all are. Returns the index of the first shape that could not be drawn; an empty surface takes
  /// nothing and is no error.
  std::optional<std::size_t> Paint(Canvas& canvas, std::span<const Shape> shapes, std::span<const Colour> colours,
                                   const GridLook& grid, const ShapeLook& look,
                                   std::span<const std::uint8_t> opacities = {});
  /// Bytes held for the next frames.
  std::size_t Bytes() const { return bytes_; }

 private:
  /// What a shape looks like, all of it: two that are equal give the same pixels.
  struct Content {
    std::int16_t kind = 0;
    bool locked = false;
    Colour colour = 0;
    int rotation = 0;
    std::int16_t width = 0;
    std::string text;
    std::vector<POINTAPI> points;

    bool Shows(const Shape& shape, Colour ink) const;
    void Take(const Shape& shape, Colour ink);
  };
  struct Entry {
    Content content;
    Layer layer;
    bool kept = false;
  };
  /// What all shapes of a frame share; another one makes every layer stale.
  struct Frame {
    int width = 0;
    int height = 0;
    int penWidth = 0;
    int penStyle = 0;
    ShapeLook look;

    friend bool operator==(const Frame&, const Frame&) = default;
  };

  /// What one call of Paint is about.
  struct Job {
    std::span<const Shape> shapes;
    std::span<const Colour> colours;
    std::span<const std::uint8_t> opacities;
    const ShapeLook& look;
    Pen pen;
  };

  void Begin(const Frame& frame);
  void Align(std::span<const Shape> shapes, std::span<const Colour> colours);
  /// Every shape is kept and has not changed.
  bool AllRest(const Job& job) const;
  Layer Record(const Job& job, const std::function<void(Canvas&)>& paint) const;
  bool LayWhole(const Job& job, Surface& surface);
  bool PaintOne(const Job& job, std::size_t i, Canvas& canvas, int& mayKeep);
  void DropWhole();
  void PaintGrid(Canvas& canvas, const GridLook& grid);

  Frame frame_;
  std::vector<Entry> entries_;
  std::vector<Entry> spare_;
  Layer whole_;  ///< all shapes of a long list at rest; empty when there is none
  int framesAtRest_ = 0;
  GridLook gridLook_;
  Layer grid_;
  std::size_t bytes_ = 0;
};

}  // namespace kinalyx
