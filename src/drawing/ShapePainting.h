#pragma once

#include <span>
#include <string>

#include "drawing/Shape.h"
#include "drawing/ShapeLog.h"
#include "platform/paint/Canvas.h"

namespace kinalyx {

/// How the shapes of the program look.
struct ShapeLook {
  int CadWidth = 5;            ///< pixels; the width of the highlight of a path
  bool CadOutline = true;      ///< a black rim under every line
  bool PathHighlight = false;  ///< finished paths show their fastest stretch

  friend bool operator==(const ShapeLook&, const ShapeLook&) = default;
};

/// Draws one shape with the canvas's pen in its current colour and width; never changes the shape.
/// False when the canvas refused a figure.
bool DrawShape(const Shape& shape, Canvas& hDC, const ShapeLook& look, const ShapeRules& rules = {});
/// Draws one shape in a colour, with the black rim under it when the look asks for one; a zone never
/// has a rim. The pen is left as it was.
bool PaintShape(const Shape& shape, Colour colour, Canvas& hDC, const ShapeLook& look, const ShapeRules& rules = {});
/// What to tell the user when DrawShape failed.
std::string DrawShapeError(const Shape& shape, const ShapeRules& rules = {});

/// A polygon, or an open line.
bool EvalDrawShape(Canvas& hDC, std::span<const POINTAPI> Points, bool ZoneFill, const ShapeRules& rules = {});
bool APILine(Canvas& hDC, POINTAPI P1, POINTAPI P2, const ShapeRules& rules = {});

/// Square cells of width / divisions: upright lines are centred, level ones start at the top. The pen is
/// the canvas's. Fewer than one division, or more than there are pixels, draw nothing.
bool DrawGrid(Canvas& hDC, int Width, int Height, int Divisions);

}  // namespace kinalyx
