#pragma once

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

  friend bool operator==(const ShapeLook&, const ShapeLook&) = default;
};

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
