#pragma once

#include <optional>
#include <vector>

#include "platform/graph/IDevices.h"

namespace kinalyx {

/// Which mode of a camera serves best: the size that comes nearest, then the rate, then the format. Of two that serve
/// alike, compressed pictures where raw ones would be larger than 640 x 480.
/// @param wanted  its rate may be 0 (the highest) and its format empty; null for the fastest of those up to 1280 x 720
/// @return none of a camera that tells no modes
std::optional<PictureMode> NearestMode(const std::vector<PictureMode>& modes, const PictureMode* wanted);

}  // namespace kinalyx
