#pragma once

#include <optional>

#include "Vec3.h"

namespace kinalyx::demo {

/// Where a point falls in the picture, in pixels, y downward, and its distance along the view in metres.
struct Projected {
  double x = 0;
  double y = 0;
  double distance = 0;
};

/// A camera on the range. A value.
class Camera {
 public:
  /// @param fieldOfView  degrees, upright
  /// @param stretch      width of what is seen over its height, for pictures whose pixels are not square
  Camera(Vec3 position, Vec3 target, double fieldOfView, int width, int height, double stretch = 1)
      : position_(position),
        forward_(Unit(target - position)),
        right_(Unit(Cross(forward_, {0, 1, 0}))),
        down_(Cross(forward_, right_)),
        focal_(height / 2.0 / std::tan(Radians(fieldOfView / 2))),
        stretch_(stretch),
        width_(width),
        height_(height) {}

  Projected Project(Vec3 point) const {
    const Vec3 way = point - position_;
    const double distance = std::max(Dot(way, forward_), 0.05);
    return {width_ / 2.0 + focal_ * stretch_ * Dot(way, right_) / distance,
            height_ / 2.0 + focal_ * Dot(way, down_) / distance, distance};
  }
  /// Unit direction of what is seen at a place of the picture.
  Vec3 Ray(double x, double y) const {
    return Unit(forward_ * focal_ + right_ * ((x - width_ / 2.0) / stretch_) + down_ * (y - height_ / 2.0));
  }
  /// The place on the ground that is seen there; nothing above the horizon.
  std::optional<Vec3> Ground(double x, double y) const {
    const Vec3 ray = Ray(x, y);
    if (ray.y > -1e-4) return std::nullopt;
    return position_ + ray * (-position_.y / ray.y);
  }

  Vec3 Position() const { return position_; }
  Vec3 Forward() const { return forward_; }
  int Width() const { return width_; }
  int Height() const { return height_; }
  /// Pixels of a metre at this distance.
  double Scale(double distance) const { return focal_ / distance; }
  /// The same view in another size.
  Camera Resized(int factor) const {
    Camera camera = *this;
    camera.focal_ *= factor;
    camera.width_ *= factor;
    camera.height_ *= factor;
    return camera;
  }

 private:
  Vec3 position_;
  Vec3 forward_;
  Vec3 right_;
  Vec3 down_;
  double focal_;
  double stretch_;
  int width_;
  int height_;
};

}  // namespace kinalyx::demo
