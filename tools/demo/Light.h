#pragma once

#include <cstdint>
#include <vector>

#include "Mesh.h"
#include "Vec3.h"

namespace kinalyx::demo {

/// Towards the sun; over the shoulder of both cameras.
inline const Vec3 kSun = Unit({-0.50, 0.74, 0.46});

/// What the sun does not reach: the depth of a figure as seen from the sun, in a square of the range
/// about the golfer.
class SunShadow {
 public:
  SunShadow();

  void Cast(const Mesh& mesh);
  void Clear();
  /// Where a point falls: across and down in texels, and its nearness to the sun.
  Vec3 InMap(Vec3 point) const;
  /// Whether a point lies in the part of the range that is followed.
  bool Holds(Vec3 point) const;
  /// 1 in full sun to 0 in full shadow, with a soft edge; for a place in the map.
  double SunAt(Vec3 place) const;

 private:
  static constexpr int kSize = 420;
  static constexpr double kReach = 1.9;  ///< metres from the middle to each side

  struct Box {
    int left, top, right, bottom;
  };

  Vec3 across_;
  Vec3 upward_;
  std::vector<float> nearest_;
  Box used_;  ///< what has been cast on, texels, right and bottom included
};

}  // namespace kinalyx::demo
