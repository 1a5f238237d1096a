#include "video/cGraphics.h"

#include <cmath>

namespace kinalyx {

bool cGraphics::Done(GdipStatus status) {
  status_ = status;
  return status == GdipStatus::Ok;
}

GdipStatus cGraphics::Ready() const {
  if (!painter_) return GdipStatus::InvalidParameter;
  return canvas_ ? GdipStatus::ObjectBusy : GdipStatus::Ok;
}

bool cGraphics::CreateFromHdc(Surface& surface) {
  Dispose();
  if (surface.Empty()) return Done(GdipStatus::InvalidParameter);
  surface_ = &surface;
  painter_.emplace(surface);
  return true;
}

bool cGraphics::GetGraphicsContext(cBitmap& image) {
  Dispose();
  if (image.FrameCount() == 0) return Done(GdipStatus::InvalidParameter);
  // A palette has no room for the colours that drawing mixes.
  if (image.PixelFormat() == PixelFormatId::Indexed8) return Done(GdipStatus::WrongState);
  painter_.emplace(image.Handle());
  return true;
}

void cGraphics::Dispose() {
  canvas_.reset();
  painter_.reset();
  surface_ = nullptr;
  status_ = GdipStatus::Ok;
}

bool cGraphics::Clear(Argb colour) {
  if (!Done(Ready())) return false;
  return Done(painter_->Clear(colour) ? GdipStatus::Ok : GdipStatus::GenericError);
}

bool cGraphics::DrawImageI(const cBitmap& image, int x, int y) {
  return DrawImageRectI(image, x, y, image.Width(), image.Height());
}

bool cGraphics::DrawImageRectI(const cBitmap& image, int x, int y, int Width, int Height) {
  return DrawImageRectRectI(image, {x, y, Width, Height}, {0, 0, image.Width(), image.Height()});
}

bool cGraphics::DrawImageRectRectI(const cBitmap& image, const PictureBox& to, const PictureBox& from) {
  return DrawImageRectRectIAttr(image, to, from, {});
}

bool cGraphics::DrawImageRectRectIAttr(const cBitmap& image, const PictureBox& to, const PictureBox& from,
                                       const PictureLook& look) {
  if (!Done(Ready())) return false;
  return Done(painter_->Draw(image.Handle(), to, from, look) ? GdipStatus::Ok : GdipStatus::InvalidParameter);
}

bool cGraphics::DrawString(const std::string& text, const cFont& font, Argb colour, const PictureBox& box) {
  if (!Done(Ready())) return false;
  if (!font.Handle()) return Done(GdipStatus::InvalidParameter);
  return Done(painter_->Text(text, *font.Handle(), colour, box) ? GdipStatus::Ok : GdipStatus::GenericError);
}

Canvas* cGraphics::GetDC() {
  if (!Done(Ready())) return nullptr;
  if (!surface_) {
    Done(GdipStatus::NotImplemented);
    return nullptr;
  }
  return &canvas_.emplace(*surface_);
}

bool cGraphics::ReleaseDC() {
  if (!canvas_) return Done(GdipStatus::InvalidParameter);
  canvas_.reset();
  return Done(GdipStatus::Ok);
}

bool cGraphics::ResetTransform() {
  if (!Done(Ready())) return false;
  painter_->ResetTransform();
  return true;
}

bool cGraphics::RotateTransform(double angle) {
  if (!Done(Ready())) return false;
  if (!std::isfinite(angle)) return Done(GdipStatus::InvalidParameter);
  painter_->Rotate(angle);
  return true;
}

bool cGraphics::TranslateTransform(double dx, double dy) {
  if (!Done(Ready())) return false;
  if (!std::isfinite(dx) || !std::isfinite(dy)) return Done(GdipStatus::InvalidParameter);
  painter_->Translate(dx, dy);
  return true;
}

bool cGraphics::SetInterpolationMode(int mode) {
  if (!Done(Ready())) return false;
  if (mode < 0 || mode > 7) return Done(GdipStatus::InvalidParameter);
  painter_->SetSmooth(mode != kInterpolationNearest);
  return true;
}

bool cGraphics::SetTextRenderingHint(int hint) {
  if (!Done(Ready())) return false;
  if (hint < 0 || hint > 5) return Done(GdipStatus::InvalidParameter);
  painter_->SetSoftText(hint != kTextSingleBitHinted && hint != kTextSingleBit);
  return true;
}

}  // namespace kinalyx
