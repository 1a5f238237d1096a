#pragma once

#include <cstdint>
#include <vector>

#include "Backdrop.h"
#include "Light.h"
#include "Mesh.h"
#include "Raster.h"
#include "Skeleton.h"
#include "platform/paint/Surface.h"

namespace kinalyx::demo {

/// A golfer's swing as a camera sees it. Left-handers are filmed in a mirror.
class SwingMovie {
 public:
  /// @param stretch  width of what is seen over its height, for pictures whose pixels are not square
  SwingMovie(const SwingStyle& style, View view, int width, int height, double stretch, std::uint32_t seed);

  /// The moment of the finish, in seconds from the start of the swing.
  double SwingEnd() const { return skeleton_.PhaseTime(SwingPhase::Finish); }
  /// The picture of one moment, in seconds from the start of the swing; good until the next call.
  const Surface& At(double time);

 private:
  /// A pixel of the ground and where it falls on the map of shadows.
  struct GroundPixel {
    int x, y;
    Vec3 place;
  };

  void FindGround();
  void ShadeGround();
  void DrawMoving(double time);
  void DrawTrace(double time);

  SwingStyle style_;
  Skeleton skeleton_;
  Camera camera_;
  Surface backdrop_;
  Surface picture_;
  Surface spare_;
  Raster raster_;
  SunShadow shadow_;
  std::vector<GroundPixel> ground_;
  Mesh body_;
  Mesh club_;
  Mesh ball_;
};

}  // namespace kinalyx::demo
