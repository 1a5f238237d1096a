#include "drawing/ShapeStore.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "platform/paint/Canvas.h"

namespace kinalyx {
namespace {

POINTAPI RoundPoint(double x, double y) { return {Round(x), Round(y)}; }

/// Grows the points of a shape by one fixed point.
void Append(Shape& shape, double x, double y) {
  shape.Pts.resize(static_cast<std::size_t>(shape.NumBound) + 1);
  shape.Pts.back() = RoundPoint(x, y);
  shape.NumPts = ++shape.NumBound;
}

/// Sets each fixed point from its saved one: turned about the centre by `turn` radians, its distance
/// times `factor`.
void TransformFromSaved(Shape& shape, POINTAPI centre, double turn, double factor) {
  const auto points = BoundPoints(shape);
  const std::size_t count = std::min(points.size(), shape.SavedPts.size());
  for (std::size_t i = 0; i < count; ++i) {
    const double radius = Distance(centre, shape.SavedPts[i]) * factor;
    const double angle = PointAngle(centre, shape.SavedPts[i]) + turn;
    points[i] = RoundPoint(std::cos(angle) * radius + centre.x, std::sin(angle) * radius + centre.y);
  }
}

void AddTo(ShapeBox& box, const Shape& shape, bool fromCentre) {
  const auto points = BoundPoints(shape);
  for (const POINTAPI& point : points) box.Add(point);
  const auto around = [&box](POINTAPI middle, int dx, int dy) {
    box.Add({middle.x - dx, middle.y - dy});
    box.Add({middle.x + dx, middle.y + dy});
  };
  if (IsText(shape) && !points.empty()) {
    const POINTAPI size = Canvas::TextSize(shape.Text, LetterHeight(shape));
    around(points[0], size.x / 2, size.y / 2);
  } else if (shape.Kind == kFlag && !points.empty()) {
    around(points[0], kFlagReach, kFlagReach);
  }
  if (points.size() < 2) return;
  const POINTAPI span{points[1].x - points[0].x, points[1].y - points[0].y};
  if ((shape.Kind == kEllipse || shape.Kind == kClock) && fromCentre) {
    around(points[0], span.x, span.y);
  } else if (shape.Kind == kParallelogram && points.size() > 2) {
    box.Add({points[2].x - span.x, points[2].y - span.y});
  }
}

}  // namespace

void ShapeEngine::MoveShape(Shape& shape, int dx, int dy) const {
  Log.Tell("Calling MoveShape({}, {})", dx, dy);
  if (!shape.Locked) return;
  for (POINTAPI& point : BoundPoints(shape))
    point = RoundPoint(static_cast<double>(point.x) + dx, static_cast<double>(point.y) + dy);
}

void ShapeEngine::PrepTrans(Shape& shape) const {
  Log.Tell("Calling PrepTrans()");
  if (!shape.Locked) return;
  const auto points = BoundPoints(shape);
  shape.SavedPts.assign(points.begin(), points.end());
  shape.SavedPts.resize(points.size() + 1);
  if (IsText(shape)) shape.SavedPts.back().x = LetterHeight(shape);
}

void ShapeEngine::DoneTrans(Shape& shape) const {
  Log.Tell("Calling DoneTrans()");
  shape.SavedPts.assign(1, POINTAPI{});
}

void ShapeEngine::RotateShape(Shape& shape, double Angle, POINTAPI Centre) const {
  Log.Tell("Calling RotateShape({}, ({}, {}))", Angle, Centre.x, Centre.y);
  if (!shape.Locked || IsText(shape)) return;  // letters stay upright
  if (shape.Kind == kFlag || shape.Kind == kSquare || shape.Kind == kEllipse) {
    RenderShape(shape);
    DoneTrans(shape);
    PrepTrans(shape);
  }
  if (shape.Kind == kClock) {
    // Only the ticks turn; thirty degrees bring each onto the next.
    if (shape.Pts.size() < 3) shape.Pts.resize(3);
    std::int32_t turn = Round(Angle);
    if (turn > 30) turn -= 30;
    if (turn < -30) turn += 30;
    shape.Pts[2].x = turn;
    return;
  }
  TransformFromSaved(shape, Centre, DegToRad(Round16(Angle)), 1);
}

void ShapeEngine::ScaleShape(Shape& shape, double Factor, POINTAPI Centre) const {
  Log.Tell("Calling ScaleShape({}, ({}, {}))", Factor, Centre.x, Centre.y);
  if (!shape.Locked) return;
  if (IsText(shape)) {
    const double height = shape.SavedPts.empty() ? LetterHeight(shape) : shape.SavedPts.back().x;
    shape.Width = Round16(std::clamp(height * Factor, 1.0 * kLeastLetters, 1.0 * kMostLetters));
  } else if (shape.Kind == kFlag) {
    RenderShape(shape);
    PrepTrans(shape);
  }
  TransformFromSaved(shape, Centre, 0, Factor);
}

void ShapeEngine::RenderShape(Shape& shape) const {
  Log.Tell("Calling RenderShape()");
  const auto points = BoundPoints(shape);
  if (IsText(shape)) return;
  if (shape.Kind == kFlag && !points.empty()) {
    const double x = points[0].x;
    const double y = points[0].y;
    shape.Kind = kFreehand;
    for (const auto& [dx, dy] : {std::pair{-kFlagReach, 0}, {kFlagReach, 0}, {0, 0}, {0, -kFlagReach}, {0, kFlagReach}})
      Append(shape, x + dx, y + dy);
  } else if (shape.Kind == kSquare && points.size() >= 2) {
    const POINTAPI a = points[0];
    const POINTAPI b = points[1];
    shape.Kind = kParallelogram;
    // The spare slot of the new kind goes with it.
    shape.Pts = {{a.x, b.y}, b, {b.x, a.y}, {}};
    shape.NumBound = shape.NumPts = 3;
  } else if (shape.Kind == kEllipse && points.size() >= 2) {
    const POINTAPI a = points[0];
    const POINTAPI b = points[1];
    const auto middle = [](double p, double q) { return Round(std::abs(p - q) / 2 + std::min(p, q)); };
    const POINTAPI centre = EllipseFromCentre ? a : POINTAPI{middle(a.x, b.x), middle(a.y, b.y)};
    const double rx = static_cast<double>(b.x) - centre.x;
    const double ry = static_cast<double>(b.y) - centre.y;
    constexpr int kSteps = 37;
    shape.Kind = kFreehand;
    shape.Pts.assign(kSteps + 1, POINTAPI{});
    for (int i = 0; i < kSteps; ++i) {
      const double angle = DegToRad(static_cast<std::int16_t>(i * 10));
      shape.Pts[static_cast<std::size_t>(i)] =
          RoundPoint(std::cos(angle) * rx + centre.x, std::sin(angle) * ry + centre.y);
    }
    shape.Pts[kSteps - 1] = shape.Pts[0];
    shape.NumBound = shape.NumPts = kSteps;
  } else {
    return;
  }
  shape.Locked = true;
}

POINTAPI ShapeEngine::GetMid(const Shape& shape) const {
  Log.Tell("Calling GetMid()");
  const auto points = BoundPoints(shape);
  if (points.empty()) return {};
  if (shape.Kind == kClock || (shape.Kind == kEllipse && EllipseFromCentre)) return points[0];
  ShapeBox box;
  for (const POINTAPI& point : points) box.Add(point);
  return RoundPoint((static_cast<double>(box.most.x) - box.least.x) / 2 + box.least.x,
                    (static_cast<double>(box.most.y) - box.least.y) / 2 + box.least.y);
}

ShapeBox ShapeEngine::BoxOf(std::span<const Shape> shapes) const {
  ShapeBox box;
  for (const Shape& shape : shapes) AddTo(box, shape, EllipseFromCentre);
  return box;
}

void ShapeEngine::MultiMoveShape(ShapeList& list, int dx, int dy) const {
  for (Shape& shape : ShapesOf(list)) MoveShape(shape, dx, dy);
}

void ShapeEngine::MultiPrepTrans(ShapeList& list) const {
  for (Shape& shape : ShapesOf(list)) PrepTrans(shape);
}

void ShapeEngine::MultiDoneTrans(ShapeList& list) const {
  for (Shape& shape : ShapesOf(list)) DoneTrans(shape);
}

void ShapeEngine::MultiRotateShape(ShapeList& list, double Angle, POINTAPI Centre) const {
  for (Shape& shape : ShapesOf(list)) RotateShape(shape, Angle, Centre);
}

void ShapeEngine::MultiScaleShape(ShapeList& list, double Factor, POINTAPI Centre) const {
  for (Shape& shape : ShapesOf(list)) ScaleShape(shape, Factor, Centre);
}

POINTAPI ShapeEngine::MultiGetMid(const ShapeList& list) const {
  const auto shapes = ShapesOf(list);
  if (shapes.empty()) return {};
  std::int64_t x = 0;
  std::int64_t y = 0;
  for (const Shape& shape : shapes) {
    const POINTAPI middle = GetMid(shape);
    x += middle.x;
    y += middle.y;
  }
  const auto count = static_cast<std::int64_t>(shapes.size());
  return {static_cast<std::int32_t>(x / count), static_cast<std::int32_t>(y / count)};
}

}  // namespace kinalyx
