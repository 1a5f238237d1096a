#pragma once

#include <cstdint>

#include "Camera.h"
#include "platform/paint/Surface.h"

namespace kinalyx::demo {

/// The two views from which coaches film.
enum class View {
  FaceOn,       ///< from the front, the target to the right
  DownTheLine,  ///< from behind, along the target line
};

/// Stands where a coach's tripod would.
Camera CameraFor(View view, int width, int height, double stretch = 1);

/// The practice ground without the golfer: sky, hills, trees, grass and the mat on which he stands.
/// @param ballLine  metres from the golfer's heels to the ball
/// @param seed      another seed, another place of the range
Surface PaintBackdrop(const Camera& camera, View view, double ballLine, std::uint32_t seed);

}  // namespace kinalyx::demo
