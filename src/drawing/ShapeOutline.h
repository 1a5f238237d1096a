#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <vector>

#include "drawing/Shape.h"

namespace kinalyx {

// Where a shape can be taken: the lines that it shows, and the points that move one end or one corner of it.
// Everything is in pixels of the picture. `fromCentre` is the engine's EllipseFromCentre.

using Polyline = std::vector<POINTAPI>;

/// The lines that a shape shows, round ones as polygons; a box for letters. Nothing for what is not painted.
std::vector<Polyline> OutlineOf(const Shape& shape, bool fromCentre);
/// A zone and letters can be taken within their outline as well.
bool IsTakenWithin(const Shape& shape);
/// Pixels from a point to the nearest of a shape's lines; 0 inside what can be taken within its outline.
double DistanceTo(const Shape& shape, POINTAPI point, bool fromCentre);
/// The finished shape that a click means: of those that are seen the nearest within `reach` pixels, of equal ones the
/// uppermost. The ruler's line is none.
std::optional<std::size_t> ShapeAt(std::span<const Shape> shapes, POINTAPI point, double reach, bool fromCentre,
                                   const std::function<bool(const Shape&)>& isSeen);

/// The points by which a finished shape is changed: its own, the four corners of a box; none for a stroke of the
/// free hand and for what has only its place.
std::vector<POINTAPI> HandlesOf(const Shape& shape);
/// Moves one of them. `even`: a line keeps to the eighths of a turn, a box is as wide as high.
void MoveHandle(Shape& shape, std::size_t handle, POINTAPI to, bool even);

/// The point on the level, the upright or a diagonal through `from` that is nearest to `point`.
POINTAPI OnEighth(POINTAPI from, POINTAPI point);
/// The corner nearest to `point` of a box that is as wide as high, opposite to `from`.
POINTAPI OnSquare(POINTAPI from, POINTAPI point);

}  // namespace kinalyx
