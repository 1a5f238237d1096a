#include "video/cFont.h"

namespace kinalyx {
namespace {

constexpr double kPixelsPerPoint = 96.0 / 72.0;

}  // namespace

bool cFont::CreateFont(const std::string& Name, double Size, int Style, FontUnit Unit) {
  Dispose();
  const bool knownUnit = Unit == FontUnit::World || Unit == FontUnit::Pixel || Unit == FontUnit::Point;
  if (!HasFonts()) {
    status_ = GdipStatus::GdiplusNotInitialized;
  } else if (!(Size > 0) || !knownUnit || Name.empty() || Style < 0 || Style > 15) {
    status_ = GdipStatus::InvalidParameter;
  } else if (!FontFamilyExists(Name)) {
    status_ = GdipStatus::FontFamilyNotFound;
  } else {
    style_ = Style;
    size_ = Size;
    unit_ = Unit;
    face_ = {Name, Unit == FontUnit::Point ? Size * kPixelsPerPoint : Size, Bold(), Italic(), Underline(), StrikeOut()};
    made_ = true;
  }
  return made_;
}

bool cFont::CreateFromHdc(int height) {
  Dispose();
  if (!HasFonts()) {
    status_ = GdipStatus::GdiplusNotInitialized;
  } else if (height < 1) {
    status_ = GdipStatus::InvalidParameter;
  } else {
    face_ = CanvasFont(height);
    size_ = face_.pixels;
    unit_ = FontUnit::Pixel;
    made_ = true;
  }
  return made_;
}

void cFont::Dispose() { *this = cFont(); }

double cFont::Height() const { return made_ ? FontLineHeight(face_) : 0; }

}  // namespace kinalyx
