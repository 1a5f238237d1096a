#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "platform/paint/Geometry.h"

namespace kinalyx {

/// Cuts figures whose points lie anywhere in the 32-bit plane down to a box round the picture, in
/// double precision, so that what is behind works with small numbers only.

struct RealPoint {
  double x = 0;
  double y = 0;
};

struct RealBox {
  double left = 0;
  double top = 0;
  double right = 0;
  double bottom = 0;

  bool Holds(RealPoint p) const { return p.x >= left && p.x <= right && p.y >= top && p.y <= bottom; }
};

/// A line that clipping may have cut into several.
struct LinePieces {
  std::vector<RealPoint> points;
  std::vector<std::size_t> starts;  ///< index of each piece's first point

  void Clear() {
    points.clear();
    starts.clear();
  }
  std::span<const RealPoint> Piece(std::size_t i) const;
};

/// The parts of an open line inside `box`; `result` is emptied first.
void ClipLine(std::span<const RealPoint> line, const RealBox& box, LinePieces& result);

/// The part of a polygon inside `box`, which may run along its border. `area` is changed.
void ClipArea(std::vector<RealPoint>& area, const RealBox& box);

/// The ellipse inside a box as a closed polygon, to within a twentieth of a pixel where it crosses
/// `view` and coarsely elsewhere.
void FlattenEllipse(const RealBox& ellipse, const RealBox& view, std::vector<RealPoint>& result);

}  // namespace kinalyx
