#include "workspace/ZoomPan.h"

#include <array>

#include "video/KeyCodes.h"
#include "workspace/PlayerPlace.h"

namespace kinalyx {
namespace {

constexpr int kRepeatDelay = 300;    // milliseconds before a held button repeats
constexpr int kRepeatInterval = 40;  // milliseconds between two steps

/// The keys behind the pan buttons: up, right, down, left, centre.
constexpr std::array kPanKeys{kKeyNumpad0 + 8, kKeyNumpad0 + 6, kKeyNumpad0 + 2, kKeyNumpad0 + 4, kKeyNumpad0 + 5};
constexpr int kCentre = 4;

}  // namespace

ZoomPan::ZoomPan(IHost& host, Workspace& workspace, std::function<void(int KeyCode)> keyDown,
                 std::function<void(int KeyAscii)> keyPress)
    : host_(host), workspace_(workspace), keyDown_(std::move(keyDown)), keyPress_(std::move(keyPress)) {}

void ZoomPan::ZoomBtn_Click(int Index) {
  if (Index == 0) keyPress_('-');
  if (Index == 1) keyPress_('+');
  if (Index == 2) keyDown_(kKeyNumpad0 + 5);
}

void ZoomPan::PanBtn_MouseDown(int Index) {
  if (Index < 0 || Index >= static_cast<int>(kPanKeys.size())) return;
  held_ = Index;
  pantimer_Timer();
  if (Index == kCentre) return;
  pantimer_ = HostTimer(host_, kRepeatDelay, false, [this] {
    pantimer_ = HostTimer(host_, kRepeatInterval, true, [this] { pantimer_Timer(); });
    pantimer_Timer();
  });
}

void ZoomPan::pantimer_Timer() { keyDown_(kPanKeys[static_cast<std::size_t>(held_)]); }

void ZoomPan::Wheel(int slot, float x, float y, int notches) {
  if (!workspace_.HasVideo(slot) || notches == 0) return;
  Slot& at = workspace_.At(slot);
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
  workspace_.MPResize(slot);
}

void ZoomPan::DragBegin(int slot, float x, float y) {
  if (!workspace_.HasVideo(slot)) return;
  dragSlot_ = slot;
  dragX_ = x;
  dragY_ = y;
}

void ZoomPan::DragMove(float x, float y) {
  if (dragSlot_ == 0 || !workspace_.HasVideo(dragSlot_)) return DragEnd();
  Slot& at = workspace_.At(dragSlot_);
  // The picture comes along, and with it the point that was taken hold of: it is under the pointer again.
  const double twips = kTwipsPerPixel / PixelRatio(at);
  at.PanX += (x - dragX_) * twips / at.VideoZoom;
  at.PanY += (y - dragY_) * twips / at.VideoZoom;
  workspace_.MPResize(dragSlot_);
}

}  // namespace kinalyx
