#include "workspace/compare/ZoomPan.h"

#include <algorithm>
#include <cmath>

#include "workspace/stage/PlayerPlace.h"

namespace kinalyx {
namespace {

constexpr int kRepeatDelay = 300;    // milliseconds before a held button repeats
constexpr int kRepeatInterval = 40;  // milliseconds between two steps
constexpr float kClick = 4;          // pixels that a click may move

/// The pan that brings a picture of `size` at `corner` into a cell so that it leaves no gap.
double Inside(double corner, double size, double cell) { return std::clamp(corner, std::min(0.0, cell - size), 0.0); }

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
  byHand_ = false;
  dragX_ = x;
  dragY_ = y;
}

void ZoomPan::DragMove(float x, float y) {
  if (dragSlot_ == 0 || !stage_.HasVideo(dragSlot_)) return DragEnd();
  Slot& at = stage_.At(dragSlot_);
  if (byHand_) {
    moved_ = moved_ || std::abs(x - dragX_) + std::abs(y - dragY_) >= kClick;
    const double unit = kTwipsPerPixel / PixelRatio(at);
    if (moved_) Move(dragSlot_, (x - dragX_) * unit, (y - dragY_) * unit);
    return;
  }
  // The picture comes along, and with it the point that was taken hold of: it is under the pointer again.
  const double twips = kTwipsPerPixel / PixelRatio(at);
  at.PanX += (x - dragX_) * twips / at.VideoZoom;
  at.PanY += (y - dragY_) * twips / at.VideoZoom;
  stage_.MPResize(dragSlot_);
}

void ZoomPan::HandDown(int slot, float x, float y) {
  if (!stage_.HasVideo(slot) || !ReachesOver(stage_.At(slot))) return;
  DragBegin(slot, x, y);
  byHand_ = true;
  moved_ = false;
}

bool ZoomPan::HandUp() {
  const bool moved = dragSlot_ != 0 && byHand_ && moved_;
  if (byHand_) DragEnd();
  return moved;
}

void ZoomPan::PanBy(int slot, double dx, double dy) {
  if (stage_.HasVideo(slot)) Move(slot, dx * kTwipsPerPixel, dy * kTwipsPerPixel);
}

/// Moves a picture by twips of its cell, where it is larger than that.
void ZoomPan::Move(int slot, double twipsX, double twipsY) {
  Slot& at = stage_.At(slot);
  const TwipRect place = PlayerPlace(at);
  const auto pan = [&](double& panned, double by, int corner, int size, int cell) {
    if (size > cell) panned += (Inside(corner + by, size, cell) - corner) / at.VideoZoom;
  };
  pan(at.PanX, twipsX, place.Left, place.Width, at.panel.Width);
  pan(at.PanY, twipsY, place.Top, place.Height, at.panel.Height);
  stage_.MPResize(slot);
}

}  // namespace kinalyx
