#include "platform/paint/FigureClip.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace kinalyx {
namespace {

/// Cuts one segment to the box; false when nothing of it is inside.
bool ClipSegment(RealPoint& from, RealPoint& to, const RealBox& box) {
  const double dx = to.x - from.x;
  const double dy = to.y - from.y;
  double enter = 0;
  double leave = 1;
  const auto cut = [&](double step, double room) {
    if (step == 0) return room >= 0;
    const double t = room / step;
    if (step < 0) {
      enter = std::max(enter, t);
    } else {
      leave = std::min(leave, t);
    }
    return enter <= leave;
  };
  if (!cut(-dx, from.x - box.left) || !cut(dx, box.right - from.x) || !cut(-dy, from.y - box.top) ||
      !cut(dy, box.bottom - from.y))
    return false;
  const RealPoint start = from;
  if (leave < 1) to = {start.x + leave * dx, start.y + leave * dy};
  if (enter > 0) from = {start.x + enter * dx, start.y + enter * dy};
  return true;
}

bool Same(RealPoint a, RealPoint b) { return a.x == b.x && a.y == b.y; }

/// Keeps the part of a polygon on one side of a line; `depth` is not negative on that side.
template <typename Depth>
void CutSide(std::vector<RealPoint>& area, std::vector<RealPoint>& scratch, Depth depth) {
  scratch.clear();
  for (std::size_t i = 0; i < area.size(); ++i) {
    const RealPoint a = area[i];
    const RealPoint b = area[(i + 1) % area.size()];
    const double depthA = depth(a);
    const double depthB = depth(b);
    if (depthA >= 0) scratch.push_back(a);
    if ((depthA >= 0) != (depthB >= 0)) {
      const double t = depthA / (depthA - depthB);
      scratch.push_back({a.x + t * (b.x - a.x), a.y + t * (b.y - a.y)});
    }
  }
  area.swap(scratch);
}

struct EllipseWalk {
  RealPoint centre;
  double radiusX;
  double radiusY;
  RealBox view;
  std::vector<RealPoint>& result;

  RealPoint At(double angle) const {
    return {centre.x + radiusX * std::cos(angle), centre.y + radiusY * std::sin(angle)};
  }

  /// Adds the arc after its first point. An arc inside one quarter lies in the box of its ends, so a
  /// box outside the view needs no more than its chord.
  void Arc(double angle, RealPoint from, double endAngle, RealPoint to, int depth) {
    const bool outside = std::max(from.x, to.x) < view.left || std::min(from.x, to.x) > view.right ||
                         std::max(from.y, to.y) < view.top || std::min(from.y, to.y) > view.bottom;
    const double middleAngle = (angle + endAngle) / 2;
    const RealPoint middle = At(middleAngle);
    const double sag = std::hypot(middle.x - (from.x + to.x) / 2, middle.y - (from.y + to.y) / 2);
    if (outside || depth == 0 || sag < 0.05) {
      result.push_back(to);
      return;
    }
    Arc(angle, from, middleAngle, middle, depth - 1);
    Arc(middleAngle, middle, endAngle, to, depth - 1);
  }
};

}  // namespace

std::span<const RealPoint> LinePieces::Piece(std::size_t i) const {
  const std::size_t end = i + 1 < starts.size() ? starts[i + 1] : points.size();
  return std::span(points).subspan(starts[i], end - starts[i]);
}

void ClipLine(std::span<const RealPoint> line, const RealBox& box, LinePieces& result) {
  result.Clear();
  if (std::all_of(line.begin(), line.end(), [&](RealPoint p) { return box.Holds(p); })) {
    result.points.assign(line.begin(), line.end());
    if (!line.empty()) result.starts.push_back(0);
    return;
  }
  for (std::size_t i = 0; i + 1 < line.size(); ++i) {
    RealPoint from = line[i];
    RealPoint to = line[i + 1];
    if (!ClipSegment(from, to, box)) continue;
    // A segment that begins where the last one ended goes on with its piece, so that they are joined.
    const bool goesOn = i > 0 && Same(from, line[i]) && !result.points.empty() && Same(result.points.back(), from);
    if (!goesOn) {
      result.starts.push_back(result.points.size());
      result.points.push_back(from);
    }
    result.points.push_back(to);
  }
}

void ClipArea(std::vector<RealPoint>& area, const RealBox& box) {
  if (std::all_of(area.begin(), area.end(), [&](RealPoint p) { return box.Holds(p); })) return;
  std::vector<RealPoint> scratch;
  CutSide(area, scratch, [&](RealPoint p) { return p.x - box.left; });
  CutSide(area, scratch, [&](RealPoint p) { return box.right - p.x; });
  CutSide(area, scratch, [&](RealPoint p) { return p.y - box.top; });
  CutSide(area, scratch, [&](RealPoint p) { return box.bottom - p.y; });
}

void FlattenEllipse(const RealBox& ellipse, const RealBox& view, std::vector<RealPoint>& result) {
  result.clear();
  EllipseWalk walk{{(ellipse.left + ellipse.right) / 2, (ellipse.top + ellipse.bottom) / 2},
                   (ellipse.right - ellipse.left) / 2,
                   (ellipse.bottom - ellipse.top) / 2,
                   view,
                   result};
  result.push_back(walk.At(0));
  for (int quarter = 0; quarter < 4; ++quarter) {
    const double angle = quarter * std::numbers::pi / 2;
    const double endAngle = angle + std::numbers::pi / 2;
    walk.Arc(angle, walk.At(angle), endAngle, walk.At(endAngle), 40);
  }
}

}  // namespace kinalyx
