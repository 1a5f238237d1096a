#pragma once

#include "platform/paint/Geometry.h"
#include "workspace/stage/Stage.h"

namespace kinalyx {

/// Where a slot's video stands, as its zoom and pan put it; the slot must hold a video.

/// Width by height of the picture, before it is fitted to whole pixels; 0 without a video.
double ProportionOf(const Slot& slot);
/// The place of the player in its cell's clip area.
TwipRect PlayerPlace(const Slot& slot);
/// The picture is larger than its clip area, by more than a rounding.
bool ReachesOver(const Slot& slot);
/// Pixels of the player's surface to one pixel of the layout: 2 on a screen of double density.
double PixelRatio(const Slot& slot);
/// Twips of the layout as pixels of surfaces, rounded down.
int SurfacePixels(const Slot& slot, double twips);
/// The player's corner in its clip area, in pixels of surfaces.
POINTAPI PlayerCorner(const Slot& slot);
/// The same on the stage.
POINTAPI PlayerCornerOnStage(const Slot& slot);

}  // namespace kinalyx
