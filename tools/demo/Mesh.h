#pragma once

#include <array>
#include <span>
#include <vector>

#include "Vec3.h"
#include "platform/paint/Geometry.h"

namespace kinalyx::demo {

struct Material {
  Colour colour = 0;
  double gloss = 0;  ///< 0 cloth to 1 polished
};

/// A ring of skin about a bone: the ellipse of two radius vectors.
struct Ring {
  Vec3 centre;
  Vec3 u;
  Vec3 v;
};

/// A surface of triangles with smooth normals, in metres.
class Mesh {
 public:
  struct Vertex {
    Vec3 position;
    Vec3 normal;
    int material = 0;
  };
  using Triangle = std::array<int, 3>;

  void Clear();
  /// Skin over at least two rings, closed at both ends.
  void AddSkin(std::span<const Ring> rings, const Material& material, int sides = 14);
  /// A limb with a round cross section and round ends; `radii` are spread evenly from end to end.
  void AddLimb(Vec3 from, Vec3 to, std::span<const double> radii, const Material& material, int sides = 14);
  /// An ellipsoid with these radii along the axes. `from` and `to`, -1 to 1, cut it across `up`.
  void AddBall(Vec3 centre, const Axes& axes, Vec3 radii, const Material& material, double from = -1, double to = 1);

  const std::vector<Vertex>& Vertices() const { return vertices_; }
  const std::vector<Triangle>& Triangles() const { return triangles_; }
  const std::vector<Material>& Materials() const { return materials_; }

 private:
  void SmoothNormals(std::size_t firstVertex, std::size_t firstTriangle);

  std::vector<Vertex> vertices_;
  std::vector<Triangle> triangles_;
  std::vector<Material> materials_;
};

}  // namespace kinalyx::demo
