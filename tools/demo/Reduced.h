#pragma once

#include "platform/paint/Surface.h"

namespace kinalyx::demo {

/// A picture painted `factor` times too large, 1 to 8, at its proper size.
Surface Reduced(const Surface& large, int factor);

}  // namespace kinalyx::demo
