#include "drawing/ShapeGeometry.h"

#include <algorithm>
#include <limits>

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

void ShapeBox::Add(POINTAPI point) {
  least = {std::min(least.x, point.x), std::min(least.y, point.y)};
  most = {std::max(most.x, point.x), std::max(most.y, point.y)};
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

LongStretch SmoothLine(Shape& shape, int Step, double Tension, bool FindLongest) {
  LongStretch stretch;
  const auto bound = BoundPoints(shape);
  if (InfOf(shape.Kind).NumPoints != kOpenPoints || bound.size() < 2 || Step < 2) return stretch;
  const int longest = FindLongest ? LongestSegment(shape) : -1;
  const std::vector<POINTAPI> clicks(bound.begin(), bound.end());
  const std::size_t last = clicks.size() - 1;

  struct RealXY {
    double x;
    double y;
  };
  const auto at = [&](std::size_t i) {
    return RealXY{static_cast<double>(clicks[i].x), static_cast<double>(clicks[i].y)};
  };
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
