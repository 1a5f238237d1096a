#include "workspace/PlayerPlace.h"

#include <cmath>

namespace kinalyx {
namespace {

int Pixels(int twips) { return static_cast<int>(std::floor(twips / double{kTwipsPerPixel})); }

}  // namespace

TwipRect PlayerPlace(const Slot& slot) {
  return PlaceVideo({slot.MP->VideoWidth(), slot.MP->VideoHeight(), slot.data.Wide, slot.VideoZoom, slot.PanX,
                     slot.PanY},
                    slot.panel.Width, slot.panel.Height);
}

POINTAPI PlayerCorner(const Slot& slot) {
  const TwipRect place = PlayerPlace(slot);
  return {Pixels(place.Left), Pixels(place.Top)};
}

POINTAPI PlayerCornerOnStage(const Slot& slot) {
  const TwipRect place = PlayerPlace(slot);
  return {Pixels(slot.cell.Left + slot.panel.Left + place.Left), Pixels(slot.cell.Top + slot.panel.Top + place.Top)};
}

}  // namespace kinalyx
