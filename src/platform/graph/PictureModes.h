#pragma once

#include <optional>
#include <vector>

#include "platform/graph/GstHandles.h"
#include "platform/graph/IDevices.h"

namespace kinalyx {

/// The modes that a camera's capabilities promise: each size and format once, with the highest rate; small sizes first.
/// Where a camera takes any size within limits, those that people know. Only for the sources of this room.
std::vector<PictureMode> ModesOf(const GstCaps& caps);

/// Which mode of a camera serves best: the size that comes nearest, then the format, then the rate. Of two that serve
/// alike, compressed pictures where raw ones would be larger than 640 x 480.
/// @param wanted  its rate may be 0 (the highest) and its format empty; null for the fastest of those nearest to
///                1280 x 720
/// @return none of a camera that tells no modes
std::optional<PictureMode> NearestMode(const std::vector<PictureMode>& modes, const PictureMode* wanted);

/// What has a camera give a mode of its own.
/// @param rate  pictures a second; the nearest that the camera has in this mode is taken, 0 for the highest
/// @return none when it has no such mode
GstCapsRef CapsFor(const GstCaps& caps, const PictureMode& mode, double rate);

}  // namespace kinalyx
