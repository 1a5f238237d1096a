#include "workspace/stage/PlayerPlace.h"

#include <cmath>

namespace kinalyx {

TwipRect PlayerPlace(const Slot& slot) {
  return PlaceVideo(
      {slot.MP->VideoWidth(), slot.MP->VideoHeight(), slot.data.Wide, slot.VideoZoom, slot.PanX, slot.PanY, slot.Fits},
      slot.panel.Width, slot.panel.Height);
}

double ProportionOf(const Slot& slot) {
  if (slot.path.empty() || slot.MP->VideoHeight() <= 0) return 0;
  return slot.data.Wide ? kWideProportion : static_cast<double>(slot.MP->VideoWidth()) / slot.MP->VideoHeight();
}

bool ReachesOver(const Slot& slot) {
  const TwipRect place = PlayerPlace(slot);
  return place.Width > slot.panel.Width + kTwipsPerPixel || place.Height > slot.panel.Height + kTwipsPerPixel;
}

double PixelRatio(const Slot& slot) {
  const TwipRect place = PlayerPlace(slot);
  if (place.Height <= 0 || slot.MP->ControlHeightPixels() <= 0) return 1;
  const double ratio = slot.MP->ControlHeightPixels() * double{kTwipsPerPixel} / place.Height;
  // The player's size is rounded; the screen's own ratio is a number of eighths.
  const double eighths = std::round(ratio * 8) / 8;
  return std::abs(ratio - eighths) < 0.01 * eighths ? eighths : ratio;
}

int SurfacePixels(const Slot& slot, double twips) {
  return static_cast<int>(std::floor(twips * PixelRatio(slot) / kTwipsPerPixel));
}

POINTAPI PlayerCorner(const Slot& slot) {
  const TwipRect place = PlayerPlace(slot);
  return {SurfacePixels(slot, place.Left), SurfacePixels(slot, place.Top)};
}

POINTAPI PlayerCornerOnStage(const Slot& slot) {
  const TwipRect place = PlayerPlace(slot);
  return {SurfacePixels(slot, slot.cell.Left + slot.panel.Left + place.Left),
          SurfacePixels(slot, slot.cell.Top + slot.panel.Top + place.Top)};
}

}  // namespace kinalyx
