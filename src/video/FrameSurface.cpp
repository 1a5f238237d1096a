#include "video/FrameSurface.h"

#include <algorithm>
#include <cstddef>

namespace kinalyx {

void FrameSurface::CreateSurfaces(int width, int height) {
  if (MainSurface_.Width() == width && MainSurface_.Height() == height) return;
  MainSurface_ = Surface(width, height);
  ScratchSurface_ = Surface();
  DropKept();
}

void FrameSurface::UpdatePenBrush(const Pen& pen, Rop2 mode) {
  FrameGraphics_.SetPen(pen);
  FrameGraphics_.SetROP2(mode);
  FrameGraphics_.SetBrush(std::nullopt);
}

void FrameSurface::Compose(const PixelRows& picture, bool flip, ScaleScratch& scratch) {
  StretchRows(picture, MainSurface_, scratch);
  if (flip) MirrorHorizontal(MainSurface_, ScratchSurface_);
}

void FrameSurface::Composed(const Content& content) {
  isKept_ = composed_ == content;
  if (isKept_) Kept_ = MainSurface_;
  composed_ = content;
}

bool FrameSurface::BringBack(const Content& content) {
  if (!isKept_ || composed_ != content) return false;
  std::copy_n(Kept_.Row(0), static_cast<std::size_t>(Kept_.Stride()) * Kept_.Height(), MainSurface_.Row(0));
  return true;
}

void FrameSurface::DropKept() {
  ForgetComposed();
  Kept_ = {};
  isKept_ = false;
}

}  // namespace kinalyx
