#include "Light.h"

#include <algorithm>
#include <cmath>

namespace kinalyx::demo {
namespace {

constexpr Vec3 kMiddle{0, 0.95, 0.35};
constexpr float kFar = -1e9f;
constexpr double kSlack = 0.022;  // a surface does not shade itself

/// With room for the texels around it.
bool InsideMap(Vec3 place, int size) {
  return place.x >= 2 && place.y >= 2 && place.x <= size - 4 && place.y <= size - 4;
}

}  // namespace

SunShadow::SunShadow()
    : across_(Unit(Cross({0, 1, 0}, kSun))),
      upward_(Cross(kSun, across_)),
      nearest_(kSize * kSize, kFar),
      used_{kSize, kSize, -1, -1} {}

void SunShadow::Clear() {
  std::fill(nearest_.begin(), nearest_.end(), kFar);
  used_ = {kSize, kSize, -1, -1};
}

Vec3 SunShadow::InMap(Vec3 point) const {
  const Vec3 way = point - kMiddle;
  const double scale = kSize / (2 * kReach);
  return {kSize / 2.0 + Dot(way, across_) * scale, kSize / 2.0 - Dot(way, upward_) * scale, Dot(way, kSun)};
}

void SunShadow::Cast(const Mesh& mesh) {
  std::vector<Vec3> points;
  points.reserve(mesh.Vertices().size());
  for (const Mesh::Vertex& vertex : mesh.Vertices()) points.push_back(InMap(vertex.position));
  for (const Mesh::Triangle& triangle : mesh.Triangles()) {
    const Vec3 a = points[triangle[0]], b = points[triangle[1]], c = points[triangle[2]];
    const double area = (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
    if (std::abs(area) < 1e-9) continue;
    const int left = std::max(0, static_cast<int>(std::ceil(std::min({a.x, b.x, c.x}))));
    const int right = std::min(kSize - 1, static_cast<int>(std::floor(std::max({a.x, b.x, c.x}))));
    const int top = std::max(0, static_cast<int>(std::ceil(std::min({a.y, b.y, c.y}))));
    const int bottom = std::min(kSize - 1, static_cast<int>(std::floor(std::max({a.y, b.y, c.y}))));
    if (left > right || top > bottom) continue;
    used_ = {std::min(used_.left, left), std::min(used_.top, top), std::max(used_.right, right),
             std::max(used_.bottom, bottom)};
    for (int y = top; y <= bottom; ++y)
      for (int x = left; x <= right; ++x) {
        const double v = ((x - a.x) * (c.y - a.y) - (y - a.y) * (c.x - a.x)) / area;
        const double w = ((b.x - a.x) * (y - a.y) - (b.y - a.y) * (x - a.x)) / area;
        if (v < 0 || w < 0 || v + w > 1) continue;
        const float depth = static_cast<float>(a.z + (b.z - a.z) * v + (c.z - a.z) * w);
        float& nearest = nearest_[y * kSize + x];
        nearest = std::max(nearest, depth);
      }
  }
}

bool SunShadow::Holds(Vec3 point) const { return InsideMap(InMap(point), kSize); }

double SunShadow::SunAt(Vec3 place) const {
  if (!InsideMap(place, kSize)) return 1;
  // Four by four texels, the outer ones weighted by the fraction, so that the edge runs smoothly.
  const int x = static_cast<int>(place.x) - 1, y = static_cast<int>(place.y) - 1;
  if (x > used_.right || y > used_.bottom || x + 3 < used_.left || y + 3 < used_.top) return 1;
  const float fx = static_cast<float>(place.x) - std::floor(static_cast<float>(place.x));
  const float fy = static_cast<float>(place.y) - std::floor(static_cast<float>(place.y));
  const float wx[4] = {1 - fx, 1, 1, fx}, wy[4] = {1 - fy, 1, 1, fy};
  const float depth = static_cast<float>(place.z + kSlack);
  const float* row = &nearest_[y * kSize + x];
  float lit = 0;
  for (int j = 0; j < 4; ++j, row += kSize) {
    float across = 0;
    for (int i = 0; i < 4; ++i) across += row[i] <= depth ? wx[i] : 0.0f;
    lit += across * wy[j];
  }
  return lit / 9;
}

}  // namespace kinalyx::demo
