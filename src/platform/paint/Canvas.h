#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string>

#include "platform/paint/Geometry.h"
#include "platform/paint/Surface.h"

namespace kinalyx {

/// Raster modes, 1 to 16: how a pen's pixels join those that are there.
enum class Rop2 {
  Black = 1, NotMergePen, MaskNotPen, NotCopyPen, MaskPenNot, Not, XorPen, NotMaskPen,
  MaskPen, NotXorPen, Nop, MergeNotPen, CopyPen, MergePenNot, MergePen, White
};

struct Pen {
  Colour colour = 0;
  int width = 1;  ///< pixels, at least 1
  int style = 0;  ///< 0 solid, 1 dash, 2 dot, 3 dash dot, 4 dash dot dot, 5 none
};

/// Draws lines and figures on a surface that it does not own and that must outlive it. In copy mode
/// strokes are antialiased with round ends and joints; every other raster mode touches whole pixels.
/// Coordinates are pixels, clipped to the surface. Each figure returns false when it could not be
/// drawn (an empty surface); too few points draw nothing and count as drawn.
class Canvas {
 public:
  explicit Canvas(Surface& surface);
  Canvas(Canvas&&) noexcept;
  Canvas& operator=(Canvas&&) noexcept;
  ~Canvas();

  void SetPen(const Pen& pen);
  const Pen& CurrentPen() const;
  void SetROP2(Rop2 mode);
  Rop2 CurrentROP2() const;
  /// The colour that fills polygons and ellipses; none leaves them hollow.
  void SetBrush(std::optional<Colour> brush);

  bool Polyline(std::span<const POINTAPI> points);
  bool Polygon(std::span<const POINTAPI> points);
  /// The ellipse inside the box of two opposite corners, in any order.
  bool Ellipse(POINTAPI corner, POINTAPI opposite);
  bool Line(POINTAPI from, POINTAPI to);
  /// One line of text whose box has its top left corner at `at`; `height` in pixels.
  bool Text(POINTAPI at, int height, const std::string& text);

  Surface& Target();

 private:
  struct Engine;
  std::unique_ptr<Engine> engine_;
};

}  // namespace kinalyx
