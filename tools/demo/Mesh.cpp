#include "Mesh.h"

#include <cstddef>

namespace kinalyx::demo {

void Mesh::Clear() {
  vertices_.clear();
  triangles_.clear();
  materials_.clear();
}

void Mesh::AddSkin(std::span<const Ring> rings, const Material& material, int sides) {
  const std::size_t firstVertex = vertices_.size(), firstTriangle = triangles_.size();
  const int first = static_cast<int>(firstVertex), count = static_cast<int>(rings.size());
  const int skin = static_cast<int>(materials_.size());
  materials_.push_back(material);
  for (const Ring& ring : rings)
    for (int s = 0; s < sides; ++s) {
      const double a = 2 * kPi * s / sides;
      vertices_.push_back({ring.centre + ring.u * std::cos(a) + ring.v * std::sin(a), {}, skin});
    }
  vertices_.push_back({rings.front().centre, {}, skin});
  vertices_.push_back({rings.back().centre, {}, skin});
  const int start = first + count * sides, end = start + 1;
  for (int s = 0; s < sides; ++s) {
    const int next = (s + 1) % sides;
    triangles_.push_back({start, first + next, first + s});
    for (int r = 0; r + 1 < count; ++r) {
      const int a = first + r * sides, b = a + sides;
      triangles_.push_back({a + s, a + next, b + s});
      triangles_.push_back({a + next, b + next, b + s});
    }
    const int last = first + (count - 1) * sides;
    triangles_.push_back({end, last + s, last + next});
  }
  SmoothNormals(firstVertex, firstTriangle);
  // Rings may run either way round; outward is away from the ring's middle.
  double outward = 0;
  for (int r = 0; r < count; ++r)
    for (int s = 0; s < sides; ++s) {
      const Vertex& vertex = vertices_[firstVertex + r * sides + s];
      outward += Dot(vertex.normal, vertex.position - rings[r].centre);
    }
  if (outward < 0)
    for (std::size_t i = firstVertex; i < vertices_.size(); ++i) vertices_[i].normal = -vertices_[i].normal;
}

void Mesh::SmoothNormals(std::size_t firstVertex, std::size_t firstTriangle) {
  for (std::size_t i = firstTriangle; i < triangles_.size(); ++i) {
    const Triangle& corners = triangles_[i];
    const Vec3 a = vertices_[corners[0]].position;
    const Vec3 normal = Cross(vertices_[corners[1]].position - a, vertices_[corners[2]].position - a);
    for (int corner : corners) vertices_[corner].normal += normal;
  }
  for (std::size_t i = firstVertex; i < vertices_.size(); ++i) vertices_[i].normal = Unit(vertices_[i].normal);
}

void Mesh::AddLimb(Vec3 from, Vec3 to, std::span<const double> radii, const Material& material, int sides) {
  const Vec3 along = Unit(to - from);
  const Vec3 u = Across(std::abs(along.y) < 0.9 ? Vec3{0, 1, 0} : Vec3{1, 0, 0}, along), v = Cross(along, u);
  std::vector<Ring> rings;
  const auto add = [&](Vec3 centre, double radius) { rings.push_back({centre, u * radius, v * radius}); };
  for (double a : {-80.0, -55.0, -28.0})
    add(from + along * (radii.front() * std::sin(Radians(a))), radii.front() * std::cos(Radians(a)));
  for (std::size_t i = 0; i < radii.size(); ++i)
    add(Lerp(from, to, static_cast<double>(i) / static_cast<double>(radii.size() - 1)), radii[i]);
  for (double a : {28.0, 55.0, 80.0})
    add(to + along * (radii.back() * std::sin(Radians(a))), radii.back() * std::cos(Radians(a)));
  AddSkin(rings, material, sides);
}

void Mesh::AddBall(Vec3 centre, const Axes& axes, Vec3 radii, const Material& material, double from, double to) {
  constexpr int kSteps = 10;
  const double start = std::asin(std::clamp(from, -0.985, 0.985)), end = std::asin(std::clamp(to, -0.985, 0.985));
  std::vector<Ring> rings;
  for (int i = 0; i <= kSteps; ++i) {
    const double a = start + (end - start) * i / kSteps;
    rings.push_back({centre + axes.up * (radii.y * std::sin(a)), axes.side * (radii.x * std::cos(a)),
                     axes.front * (radii.z * std::cos(a))});
  }
  AddSkin(rings, material, 18);
}

}  // namespace kinalyx::demo
