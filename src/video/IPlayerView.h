#pragma once

#include "platform/paint/Geometry.h"
#include "platform/paint/Surface.h"

namespace kinalyx {

/// What shows a player's picture. The surface belongs to the player and changes with its next frame.
class IPlayerView {
 public:
  virtual ~IPlayerView() = default;
  /// A new picture stands on `picture`; an empty surface says that there is none.
  virtual void Present(const Surface& picture) = 0;
  /// The colour shown where there is no picture.
  virtual void SetBackColor(Colour colour) = 0;
};

}  // namespace kinalyx
