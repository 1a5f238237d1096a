#include "drawing/ShapeGeometry.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

#include "drawing/ShapeStore.h"

namespace kinalyx {
namespace {


template <typename Integer>
Integer RoundInto(double value) {
  using Limits = std::numeric_limits<Integer>;
  if (std::isnan(value)) return 0;
  if (value <= Limits::min()) return Limits::min();
  if (value >= Limits::max()) return Limits::max();
  return static_cast<Integer>(std::nearbyint(value));
}

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

}  // namespace

std::int32_t Round(double value) { return RoundInto<std::int32_t>(value); }
std::int16_t Round16(double value) { return RoundInto<std::int16_t>(value); }

float Distance(double x1, double y1, double x2, double y2) {
  return static_cast<float>(std::sqrt((x2 - x1) * (x2 - x1) + (y2 - y1) * (y2 - y1)));
}

float Distance(POINTAPI a, POINTAPI b) { return Distance(a.x, a.y, b.x, b.y); }

double PointAngle(double x1, double y1, double x2, double y2) {
  const double dx = x2 - x1;
  const double dy = y2 - y1;
  if (dx == 0) return dy >= 0 ? 1.5707964 : 4.712389;
  double angle = std::atan(dy / dx);
  if (dx < 0) angle += 3.141592653;
  if (angle < 0) angle += kTwoPi;
  return angle;
}

double PointAngle(POINTAPI from, POINTAPI to) { return PointAngle(from.x, from.y, to.x, to.y); }

double DegToRad(std::int16_t Degrees) { return Degrees * kTwoPi / 360; }

std::int16_t RadToDeg(double Radians) { return Round16(Radians / kTwoPi * 360); }

double CubicInterp(double p0, double p1, double p2, double p3, double t) {
  const double a0 = p3 - p2 - p0 + p1;
  return a0 * t * t * t + ((p0 - p1) - a0) * t * t + (p2 - p0) * t + p1;
}

// ---------------------------------------------------------------- transforms

void MoveShape(Shape& shape, int dx, int dy, const ShapeRules& rules) {
  rules.Log("Calling MoveShape({}, {})", dx, dy);
  if (!shape.Locked) return;
  for (POINTAPI& point : BoundPoints(shape))
    point = RoundPoint(static_cast<double>(point.x) + dx, static_cast<double>(point.y) + dy);
}

void PrepTrans(Shape& shape, const ShapeRules& rules) {
  rules.Log("Calling PrepTrans()");
  if (!shape.Locked) return;
  const auto points = BoundPoints(shape);
  shape.SavedPts.assign(points.begin(), points.end());
  shape.SavedPts.resize(points.size() + 1);
}

void DoneTrans(Shape& shape, const ShapeRules& rules) {
  rules.Log("Calling DoneTrans()");
  shape.SavedPts.assign(1, POINTAPI{});
}

void RotateShape(Shape& shape, double Angle, POINTAPI Centre, const ShapeRules& rules) {
  rules.Log("Calling RotateShape({}, ({}, {}))", Angle, Centre.x, Centre.y);
  if (!shape.Locked) return;
  if (shape.Kind == kFlag || shape.Kind == kSquare || shape.Kind == kEllipse) {
    RenderShape(shape, rules);
    DoneTrans(shape, rules);
    PrepTrans(shape, rules);
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

void ScaleShape(Shape& shape, double Factor, POINTAPI Centre, const ShapeRules& rules) {
  rules.Log("Calling ScaleShape({}, ({}, {}))", Factor, Centre.x, Centre.y);
  if (!shape.Locked) return;
  if (shape.Kind == kFlag) {
    RenderShape(shape, rules);
    PrepTrans(shape, rules);
  }
  TransformFromSaved(shape, Centre, 0, Factor);
}

void RenderShape(Shape& shape, const ShapeRules& rules) {
  rules.Log("Calling RenderShape()");
  const auto points = BoundPoints(shape);
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
    const POINTAPI centre = rules.EllipseFromCentre ? a : POINTAPI{middle(a.x, b.x), middle(a.y, b.y)};
    const double rx = static_cast<double>(b.x) - centre.x;
    const double ry = static_cast<double>(b.y) - centre.y;
    constexpr int kSteps = 37;
    shape.Kind = kFreehand;
    shape.Pts.assign(kSteps + 1, POINTAPI{});
    for (int i = 0; i < kSteps; ++i) {
      const double angle = DegToRad(static_cast<std::int16_t>(i * 10));
      shape.Pts[static_cast<std::size_t>(i)] = RoundPoint(std::cos(angle) * rx + centre.x, std::sin(angle) * ry + centre.y);
    }
    shape.Pts[kSteps - 1] = shape.Pts[0];
    shape.NumBound = shape.NumPts = kSteps;
  } else {
    return;
  }
  shape.Locked = true;
}

POINTAPI GetMid(const Shape& shape, const ShapeRules& rules) {
  rules.Log("Calling GetMid()");
  const auto points = BoundPoints(shape);
  if (points.empty()) return {};
  if (shape.Kind == kClock || (shape.Kind == kEllipse && rules.EllipseFromCentre)) return points[0];
  ShapeBox box;
  for (const POINTAPI& point : points) box.Add(point);
  return RoundPoint((static_cast<double>(box.most.x) - box.least.x) / 2 + box.least.x,
                    (static_cast<double>(box.most.y) - box.least.y) / 2 + box.least.y);
}

void ShapeBox::Add(POINTAPI point) {
  least = {std::min(least.x, point.x), std::min(least.y, point.y)};
  most = {std::max(most.x, point.x), std::max(most.y, point.y)};
}

void ShapeBox::Add(const Shape& shape, const ShapeRules& rules) {
  const auto points = BoundPoints(shape);
  if (points.empty()) return;
  for (const POINTAPI& point : points) Add(point);
  const auto around = [this](POINTAPI middle, int dx, int dy) {
    Add(POINTAPI{middle.x - dx, middle.y - dy});
    Add(POINTAPI{middle.x + dx, middle.y + dy});
  };
  if (shape.Kind == kFlag) around(points[0], kFlagReach, kFlagReach);
  if (points.size() < 2) return;
  const POINTAPI span{points[1].x - points[0].x, points[1].y - points[0].y};
  if ((shape.Kind == kEllipse || shape.Kind == kClock) && rules.EllipseFromCentre) {
    around(points[0], span.x, span.y);
  } else if (shape.Kind == kParallelogram && points.size() > 2) {
    Add(POINTAPI{points[2].x - span.x, points[2].y - span.y});
  }
}

// ---------------------------------------------------------------- swing path

int LongestSegment(const Shape& shape) {
  const auto points = BoundPoints(shape);
  int longest = 0;
  std::int16_t length = points.size() >= 2 ? Round16(Distance(points[0], points[1])) : std::int16_t{0};
  for (std::size_t i = 1; i + 1 < points.size(); ++i) {
    const std::int16_t next = Round16(Distance(points[i], points[i + 1]));
    if (next <= length) continue;
    length = next;
    longest = static_cast<int>(i);
  }
  return longest;
}

LongStretch SmoothLine(Shape& shape, int Step, double Tension, bool FindLongest, const ShapeRules& rules) {
  rules.Log("Calling SmoothLine({}, {})", Step, Tension);
  LongStretch stretch;
  const auto bound = BoundPoints(shape);
  if (!LOPShape(shape.Kind) || bound.size() < 2 || Step < 2) return stretch;
  const int longest = FindLongest ? LongestSegment(shape) : -1;
  const std::vector<POINTAPI> clicks(bound.begin(), bound.end());
  const std::size_t last = clicks.size() - 1;

  struct RealXY {
    double x;
    double y;
  };
  const auto at = [&](std::size_t i) { return RealXY{static_cast<double>(clicks[i].x), static_cast<double>(clicks[i].y)}; };
  // The curve runs on beyond each end as far as it came in.
  const auto beyond = [&](std::size_t end, std::size_t inner) {
    return RealXY{2.0 * clicks[end].x - clicks[inner].x, 2.0 * clicks[end].y - clicks[inner].y};
  };
  const RealXY before = beyond(0, 1);
  const RealXY behind = beyond(last, last - 1);

  constexpr std::size_t kMostPoints = std::numeric_limits<std::int16_t>::max();
  std::vector<POINTAPI>& smooth = shape.Pts;
  smooth.clear();
  for (std::size_t i = 0; i < last; ++i) {
    if (static_cast<int>(i) == longest) stretch.LongStart = static_cast<int>(smooth.size());
    if (FindLongest && static_cast<int>(i) == longest + 1) stretch.LongEnd = static_cast<int>(smooth.size());
    smooth.push_back(clicks[i]);
    const int length = Round16(Distance(clicks[i], clicks[i + 1]));
    if (length <= Step) continue;
    const int between = Round(static_cast<double>(length) / Step);
    if (smooth.size() + static_cast<std::size_t>(between) + (last - i) > kMostPoints) continue;
    const RealXY p0 = i >= 1 ? at(i - 1) : before;
    const RealXY p1 = at(i);
    const RealXY p2 = at(i + 1);
    const RealXY p3 = i + 2 <= last ? at(i + 2) : behind;
    for (int j = 1; j <= between; ++j) {
      const double t = static_cast<double>(j) / (between + 1);
      const auto bent = [&](double a, double b, double c, double d) {
        return Round(Lerp(Round(CubicInterp(a, b, c, d, t)), Round(Lerp(b, c, t)), Tension));
      };
      smooth.push_back({bent(p0.x, p1.x, p2.x, p3.x), bent(p0.y, p1.y, p2.y, p3.y)});
    }
  }
  smooth.push_back(clicks[last]);
  if (FindLongest && stretch.LongEnd == 0) stretch.LongEnd = static_cast<int>(smooth.size()) - 1;
  shape.NumBound = shape.NumPts = static_cast<std::int16_t>(smooth.size());
  return stretch;
}

}  // namespace kinalyx
