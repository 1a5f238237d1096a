#pragma once

#include <cmath>
#include <cstdint>

#include "drawing/Shape.h"

namespace kinalyx {

// The constants of the drawings, a little off the true ones: stored drawings rest on them.
constexpr double kTwoPi = 6.283185306;
constexpr double kHalfPi = 1.5707963265;

/// To the nearest integer, ties to the even neighbour; values beyond 32 bits, and what is no number,
/// give the nearest end of the range or 0.
std::int32_t Round(double value);
/// The same into 16 bits.
std::int16_t Round16(double value);

float Distance(double x1, double y1, double x2, double y2);
float Distance(POINTAPI a, POINTAPI b);
/// Direction from the first point to the second, radians from 0 up to two pi, clockwise as y grows downward.
double PointAngle(double x1, double y1, double x2, double y2);
double PointAngle(POINTAPI from, POINTAPI to);
double DegToRad(std::int16_t Degrees);
std::int16_t RadToDeg(double Radians);
constexpr double Lerp(double a, double b, double t) { return (b - a) * t + a; }
/// The cubic through p1 (t = 0) and p2 (t = 1) with the neighbours p0 and p3.
double CubicInterp(double p0, double p1, double p2, double p3, double t);

/// Pixels from the middle of a plus sign to its ends.
constexpr int kFlagReach = 10;

/// An upright box of pixels; empty until something was added.
struct ShapeBox {
  POINTAPI least{INT32_MAX, INT32_MAX};
  POINTAPI most{INT32_MIN, INT32_MIN};

  bool Empty() const { return least.x > most.x; }
  void Add(POINTAPI point);
};

// The swing path.

/// The longest stretch of a smoothed path, as indexes of its points; equal when there is none.
struct LongStretch {
  int LongStart = 0;
  int LongEnd = 0;
};

/// Index of the longest stretch between two fixed points, the first among equals.
int LongestSegment(const Shape& shape);
/// Puts points between those of an open kind, about every `Step` pixels on a curve that `Tension` (0 to 1)
/// pulls back to the straight line. Shapes of other kinds and of less than two points stay. The result
/// has at most 32767 points; where that would be crossed, the rest runs straight.
LongStretch SmoothLine(Shape& shape, int Step, double Tension, bool FindLongest);

}  // namespace kinalyx
