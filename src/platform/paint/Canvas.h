#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string_view>

#include "platform/paint/Geometry.h"
#include "platform/paint/Surface.h"

namespace kinalyx {

/// Raster modes: how a pen's pixels join those that are there. By their old numbers, of which there are 16.
enum class Rop2 {
  CopyPen = 13,
  MergePen = 15,  ///< a bit is set that either of the two has
};

class IFigureRecorder;

struct Pen {
  Colour colour = 0;
  int width = 1;      ///< pixels, 1 to 1000; other values count as the nearest
  int style = 0;      ///< 0 solid, 1 dash, 2 dot, 3 dash dot, 4 dash dot dot, 5 none; others are solid
  int opacity = 255;  ///< of lines and fillings in copy mode; 0 shows nothing
};

/// Draws lines and figures on a surface that it does not own and that must outlive it. In copy mode
/// strokes are antialiased with round ends and joints; merging touches whole pixels. A point means the middle of its
/// pixel; a line of even width lies one half pixel up and left of it, so that upright lines stay crisp. Coordinates are
/// pixels, any 32-bit value, clipped to the surface. Each figure returns false when it could not be drawn (an empty
/// surface); too few points draw nothing and count as drawn. The surface may be read, written and
/// given another size between two figures.
class Canvas {
 public:
  explicit Canvas(Surface& surface);
  Canvas(Canvas&&) noexcept;
  Canvas& operator=(Canvas&&) noexcept;
  ~Canvas();

  void SetPen(const Pen& pen);
  const Pen& CurrentPen() const;
  /// A number that is no mode counts as copying.
  void SetROP2(Rop2 mode);
  Rop2 CurrentROP2() const;
  /// The colour that fills polygons and ellipses; none leaves them hollow.
  void SetBrush(std::optional<Colour> brush);

  /// One stroke, however often it crosses itself. Points that all coincide draw a dot.
  bool Polyline(std::span<const POINTAPI> points);
  /// The last point is joined to the first; where the outline crosses itself the filling alternates.
  bool Polygon(std::span<const POINTAPI> points);
  /// The ellipse inside the box of two opposite corners, in any order; a flat box gives a line, one
  /// without any extent a dot.
  bool Ellipse(POINTAPI corner, POINTAPI opposite);
  bool Line(POINTAPI from, POINTAPI to);
  /// One line of letters round their middle, in the pen's colour; what the pen is wider than one pixel makes them
  /// fatter. `height` as in TextSize.
  bool Text(POINTAPI middle, std::string_view words, int height);
  /// Width and height in pixels of one line of letters; `height` is that of the line. UTF-8. An estimate where the
  /// program has no fonts, and nothing is drawn there.
  static POINTAPI TextSize(std::string_view words, int height);

  Surface& Target();

 private:
  friend class Layer;
  struct Engine;
  /// For drawings that are kept: `surface` begins and stays transparent where nothing is drawn.
  Canvas(Surface& surface, IFigureRecorder& recorder);

  std::unique_ptr<Engine> engine_;
};

}  // namespace kinalyx
