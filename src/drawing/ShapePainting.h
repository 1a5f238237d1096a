#pragma once

#include <span>
#include <vector>

#include "drawing/Shape.h"
#include "drawing/ShapeLog.h"
#include "platform/paint/Canvas.h"

namespace kinalyx {

/// How the shapes of the program look.
struct ShapeLook {
  int CadWidth = 5;                ///< pixels; the width of the highlight of a path
  bool CadOutline = true;          ///< a black rim under every line
  bool PathHighlight = false;      ///< finished paths show their fastest stretch
  bool EllipseFromCentre = false;  ///< the first point of an ellipse or clock is its centre
  const ShapeLog* Log = nullptr;   ///< told of what is drawn; not owned
  /// Zones and grid are laid on as glass, arrow heads grow with their line, strokes of the free hand run smoothly.
  bool Soft = false;

  friend bool operator==(const ShapeLook&, const ShapeLook&) = default;
};

// What figures are made of.

/// A line through both barbs, the tip and the notch of an arrow, from the notch and back to it; nothing for an arrow
/// without any length. `length` is that of the barbs in pixels, `spread` half the angle between them in degrees.
std::vector<POINTAPI> ArrowHead(POINTAPI tail, POINTAPI tip, double length = 30, double spread = 20);
/// Head, neck and limbs of a stick man.
std::vector<std::vector<POINTAPI>> StickManLines(std::span<const POINTAPI> points);
/// The curve through the clicks of a path, as it is painted.
std::vector<POINTAPI> SmoothedPath(const Shape& path);

/// Draws one shape with the canvas's pen in its current colour and width; never changes the shape.
/// False when the canvas refused a figure.
bool DrawShape(const Shape& shape, Canvas& hDC, const ShapeLook& look);
/// Draws one shape in a colour, with the black rim under it when the look asks for one; a zone never
/// has a rim. The pen is left as it was.
bool PaintShape(const Shape& shape, Colour colour, Canvas& hDC, const ShapeLook& look);
/// Square cells of width / divisions: upright lines are centred, level ones start at the top. The pen is
/// the canvas's. Fewer than one division, or more than there are pixels, draw nothing.
bool DrawGrid(Canvas& hDC, int Width, int Height, int Divisions);

}  // namespace kinalyx
