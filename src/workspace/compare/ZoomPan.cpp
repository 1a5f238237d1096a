#include "workspace/compare/ZoomPan.h"

#include "workspace/stage/PlayerPlace.h"

namespace kinalyx {
namespace {

constexpr int kRepeatDelay = 300;    // milliseconds before a held button repeats
constexpr int kRepeatInterval = 40;  // milliseconds between two steps

}  // namespace

void ZoomPan::Zoom(ZoomMove move) {
  const double zoom = stage_.Current().VideoZoom;
  switch (move) {
    case ZoomMove::Out: return stage_.SetZoom(zoom - kZoomStep);
    case ZoomMove::In: return stage_.SetZoom(zoom + kZoomStep);
    case ZoomMove::Whole: return stage_.ResetZoom();
  }
}

void ZoomPan::BeginPan(PanMove move) {
  held_ = move;
  PanOnce();
  if (move == PanMove::Centre) return;
  pantimer_ = HostTimer(host_, kRepeatDelay, false, [this] {
    pantimer_ = HostTimer(host_, kRepeatInterval, true, [this] { PanOnce(); });
    PanOnce();
  });
}

void ZoomPan::PanOnce() {
  switch (held_) {
    case PanMove::Up: return stage_.Pan(0, -kPanStep);
    case PanMove::Right: return stage_.Pan(kPanStep, 0);
    case PanMove::Down: return stage_.Pan(0, kPanStep);
    case PanMove::Left: return stage_.Pan(-kPanStep, 0);
    case PanMove::Centre: return stage_.ResetZoom();
  }
}

void ZoomPan::Wheel(int slot, float x, float y, int notches) {
  if (!stage_.HasVideo(slot) || notches == 0) return;
  Slot& at = stage_.At(slot);
  const double zoom = NearestZoom(at.VideoZoom + notches * 0.1);
  if (zoom == at.VideoZoom) return;
  const TwipRect before = PlayerPlace(at);
  if (before.Width <= 0 || before.Height <= 0) return;
  // Where the pointer is in the video, and where it is in the cell.
  const double twips = kTwipsPerPixel / PixelRatio(at);
  const double partX = x * twips / before.Width;
  const double partY = y * twips / before.Height;
  const double cellX = before.Left + x * twips;
  const double cellY = before.Top + y * twips;
  at.VideoZoom = zoom;
  const TwipRect after = PlayerPlace(at);
  at.PanX += (cellX - partX * after.Width - after.Left) / zoom;
  at.PanY += (cellY - partY * after.Height - after.Top) / zoom;
  stage_.MPResize(slot);
}

void ZoomPan::DragBegin(int slot, float x, float y) {
  if (!stage_.HasVideo(slot)) return;
  dragSlot_ = slot;
  dragX_ = x;
  dragY_ = y;
}

void ZoomPan::DragMove(float x, float y) {
  if (dragSlot_ == 0 || !stage_.HasVideo(dragSlot_)) return DragEnd();
  Slot& at = stage_.At(dragSlot_);
  // The picture comes along, and with it the point that was taken hold of: it is under the pointer again.
  const double twips = kTwipsPerPixel / PixelRatio(at);
  at.PanX += (x - dragX_) * twips / at.VideoZoom;
  at.PanY += (y - dragY_) * twips / at.VideoZoom;
  stage_.MPResize(dragSlot_);
}

}  // namespace kinalyx
