#pragma once

#include <algorithm>
#include <cmath>

namespace kinalyx::demo {

constexpr double kPi = 3.14159265358979323846;
constexpr double Radians(double degrees) { return degrees * kPi / 180; }

/// A point or direction of the range, in metres: x towards the target of a right-hander, y up, z from
/// the golfer to the ball.
struct Vec3 {
  double x = 0;
  double y = 0;
  double z = 0;

  friend Vec3 operator+(Vec3 a, Vec3 b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
  friend Vec3 operator-(Vec3 a, Vec3 b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
  friend Vec3 operator*(Vec3 a, double f) { return {a.x * f, a.y * f, a.z * f}; }
  friend Vec3 operator-(Vec3 a) { return {-a.x, -a.y, -a.z}; }
  Vec3& operator+=(Vec3 b) { return *this = *this + b; }
};

inline double Dot(Vec3 a, Vec3 b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
inline Vec3 Cross(Vec3 a, Vec3 b) { return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x}; }
inline double Length(Vec3 a) { return std::sqrt(Dot(a, a)); }
inline Vec3 Lerp(Vec3 a, Vec3 b, double t) { return a + (b - a) * t; }

/// Unit vector; upward for a vector without length.
inline Vec3 Unit(Vec3 a) {
  const double length = Length(a);
  return length > 1e-12 ? a * (1 / length) : Vec3{0, 1, 0};
}

/// `a` turned round the unit vector `axis`, in radians, counter-clockwise as seen from its tip.
inline Vec3 Turned(Vec3 a, Vec3 axis, double angle) {
  const double c = std::cos(angle), s = std::sin(angle);
  return a * c + Cross(axis, a) * s + axis * (Dot(axis, a) * (1 - c));
}

/// The part of `a` at right angles to the unit vector `axis`, as a unit vector.
inline Vec3 Across(Vec3 a, Vec3 axis) { return Unit(a - axis * Dot(a, axis)); }

inline double Smooth(double from, double to, double x) {
  const double t = std::clamp((x - from) / (to - from), 0.0, 1.0);
  return t * t * (3 - 2 * t);
}

/// Directions of a part of the body: `side` to the golfer's target side, `up`, and `front`.
struct Axes {
  Vec3 side{1, 0, 0};
  Vec3 up{0, 1, 0};
  Vec3 front{0, 0, 1};
};

}  // namespace kinalyx::demo
