#pragma once

#include "platform/paint/Geometry.h"
#include "workspace/Workspace.h"

namespace kinalyx {

/// The place of a slot's player in its cell, as zoom and pan put it; the slot must hold a video.
TwipRect PlayerPlace(const Slot& slot);
/// The corner of the same in pixels, in the cell's clip area.
POINTAPI PlayerCorner(const Slot& slot);
/// The corner on the stage, in pixels.
POINTAPI PlayerCornerOnStage(const Slot& slot);

}  // namespace kinalyx
