#include "drawing/ShapeOutline.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

#include "drawing/ShapeGeometry.h"
#include "drawing/ShapePainting.h"
#include "platform/paint/Canvas.h"

namespace kinalyx {
namespace {

constexpr int kRoundSides = 48;
/// A stroke of so many points was drawn by hand, and has no corners that anybody would want to move.
constexpr std::size_t kMostCorners = 64;

bool IsBox(const Shape& shape) { return shape.Kind == kSquare || shape.Kind == kEllipse || shape.Kind == kClock; }

Polyline Closed(Polyline points) {
  if (!points.empty()) points.push_back(points.front());
  return points;
}

Polyline BoxLine(POINTAPI a, POINTAPI b) { return Closed({a, {b.x, a.y}, b, {a.x, b.y}}); }

Polyline RoundLine(double x, double y, double rx, double ry) {
  Polyline line;
  for (int i = 0; i <= kRoundSides; ++i) {
    const double turn = kTwoPi * i / kRoundSides;
    line.push_back({Round(x + std::cos(turn) * rx), Round(y + std::sin(turn) * ry)});
  }
  return line;
}

Polyline RoundLine(std::span<const POINTAPI> points, bool fromCentre, double part) {
  const double x0 = points[0].x, y0 = points[0].y, x1 = points[1].x, y1 = points[1].y;
  if (fromCentre) return RoundLine(x0, y0, (x1 - x0) * part, (y1 - y0) * part);
  return RoundLine((x0 + x1) / 2, (y0 + y1) / 2, (x1 - x0) / 2 * part, (y1 - y0) / 2 * part);
}

double DistanceToSegment(POINTAPI a, POINTAPI b, POINTAPI point) {
  const double dx = static_cast<double>(b.x) - a.x, dy = static_cast<double>(b.y) - a.y;
  const double px = static_cast<double>(point.x) - a.x, py = static_cast<double>(point.y) - a.y;
  const double length = dx * dx + dy * dy;
  const double t = length > 0 ? std::clamp((px * dx + py * dy) / length, 0.0, 1.0) : 0.0;
  return std::hypot(px - t * dx, py - t * dy);
}

/// Whether a closed line goes round a point.
bool Within(const Polyline& line, POINTAPI point) {
  bool within = false;
  for (std::size_t i = 1; i < line.size(); ++i) {
    const POINTAPI& a = line[i - 1];
    const POINTAPI& b = line[i];
    if ((a.y > point.y) == (b.y > point.y)) continue;
    const double x = a.x + (static_cast<double>(point.y) - a.y) / (static_cast<double>(b.y) - a.y) * (b.x - a.x);
    within ^= point.x < x;
  }
  return within;
}

}  // namespace

std::vector<Polyline> OutlineOf(const Shape& shape, bool fromCentre) {
  const auto points = PointsOf(shape);
  if (points.empty() || !InfOf(shape.Kind).Drawable) return {};
  const POINTAPI first = points[0];
  if (IsText(shape)) {
    const POINTAPI size = Canvas::TextSize(shape.Text, LetterHeight(shape));
    return {BoxLine({first.x - size.x / 2, first.y - size.y / 2}, {first.x + size.x / 2, first.y + size.y / 2})};
  }
  if (shape.Kind == kFlag)
    return {{{first.x - kFlagReach, first.y}, {first.x + kFlagReach, first.y}},
            {{first.x, first.y - kFlagReach}, {first.x, first.y + kFlagReach}}};
  if (shape.Kind == kStickMan) return StickManLines(points);
  if (points.size() < 2) return {};
  Polyline line(points.begin(), points.end());
  switch (shape.Kind) {
    case kSquare: return {BoxLine(line[0], line[1])};
    case kEllipse: return {RoundLine(points, fromCentre, 1)};
    case kZone: return {Closed(std::move(line))};
    case kParallelogram:
      if (line.size() > 2) line.push_back({line[2].x - line[1].x + line[0].x, line[2].y - line[1].y + line[0].y});
      return {Closed(std::move(line))};
    case kClock: return {RoundLine(points, fromCentre, 0.9)};
    case kArrow: {
      const auto head = ArrowHead(line[0], line[1]);
      return head.empty() ? std::vector<Polyline>{} : std::vector{std::move(line), head};
    }
    case kSwingPath: return {line.size() > 2 ? SmoothedPath(shape) : line};
    default: return {std::move(line)};
  }
}

bool IsTakenWithin(const Shape& shape) { return shape.Kind == kZone || IsText(shape); }

double DistanceTo(const Shape& shape, POINTAPI point, bool fromCentre) {
  double least = HUGE_VAL;
  for (const Polyline& line : OutlineOf(shape, fromCentre)) {
    if (IsTakenWithin(shape) && Within(line, point)) return 0;
    for (std::size_t i = 1; i < line.size(); ++i)
      least = std::min(least, DistanceToSegment(line[i - 1], line[i], point));
  }
  return least;
}

std::optional<std::size_t> ShapeAt(std::span<const Shape> shapes, POINTAPI point, double reach, bool fromCentre,
                                   const std::function<bool(const Shape&)>& isSeen) {
  std::optional<std::size_t> nearest;
  double least = reach;
  for (std::size_t i = 0; i < shapes.size(); ++i) {
    if (!shapes[i].Locked || shapes[i].Measuring || !isSeen(shapes[i])) continue;
    const double distance = DistanceTo(shapes[i], point, fromCentre);
    if (distance > least) continue;
    least = distance;
    nearest = i;
  }
  return nearest;
}

std::vector<POINTAPI> HandlesOf(const Shape& shape) {
  const auto points = BoundPoints(shape);
  if (!shape.Locked || points.size() < 2 || IsText(shape) || points.size() > kMostCorners) return {};
  if (shape.Kind == kFreehand && points.size() > 2) return {};
  if (IsBox(shape)) return {points[0], {points[1].x, points[0].y}, points[1], {points[0].x, points[1].y}};
  return {points.begin(), points.end()};
}

void MoveHandle(Shape& shape, std::size_t handle, POINTAPI to, bool even) {
  const auto handles = HandlesOf(shape);
  if (handle >= handles.size()) return;
  const auto points = BoundPoints(shape);
  if (IsBox(shape)) {
    if (even) to = OnSquare(handles[(handle + 2) % 4], to);
    POINTAPI& a = points[0];
    POINTAPI& b = points[1];
    (handle == 0 || handle == 3 ? a.x : b.x) = to.x;
    (handle < 2 ? a.y : b.y) = to.y;
    return;
  }
  if (even) to = OnEighth(handles[handle > 0 ? handle - 1 : 1], to);
  points[handle] = to;
}

POINTAPI OnEighth(POINTAPI from, POINTAPI point) {
  const double dx = static_cast<double>(point.x) - from.x;
  const double dy = static_cast<double>(point.y) - from.y;
  constexpr double kHalfEighth = 0.41421356237;  // the tangent of 22.5 degrees
  if (std::abs(dy) <= std::abs(dx) * kHalfEighth) return {point.x, from.y};
  if (std::abs(dx) <= std::abs(dy) * kHalfEighth) return {from.x, point.y};
  const double side = (std::abs(dx) + std::abs(dy)) / 2;
  return {Round(from.x + std::copysign(side, dx)), Round(from.y + std::copysign(side, dy))};
}

POINTAPI OnSquare(POINTAPI from, POINTAPI point) {
  const double dx = static_cast<double>(point.x) - from.x;
  const double dy = static_cast<double>(point.y) - from.y;
  const double side = std::max(std::abs(dx), std::abs(dy));
  return {Round(from.x + std::copysign(side, dx)), Round(from.y + std::copysign(side, dy))};
}

}  // namespace kinalyx
