#pragma once

#include <optional>
#include <string>

#include "platform/paint/Canvas.h"
#include "platform/paint/PicturePainter.h"
#include "video/cBitmap.h"
#include "video/cFont.h"
#include "video/cGDIP.h"

namespace kinalyx {

/// How scaled and turned images are read: these values take the nearest pixel, all others interpolate.
constexpr int kInterpolationNearest = 5;
/// Letters without soft edges, with and without hinting; all other values draw soft ones.
constexpr int kTextSingleBitHinted = 1;
constexpr int kTextSingleBit = 2;

/// Draws images and text on a surface or an image, which must outlive it or its Dispose. Every
/// operation leaves its status in CurErr and tells by its result whether that is Ok.
class cGraphics {
 public:
  bool CreateFromHdc(Surface& surface);
  /// Draws on the current frame of an image.
  bool GetGraphicsContext(cBitmap& image);
  void Dispose();
  GdipStatus CurErr() const { return status_; }
  /// True between creation and Dispose.
  bool Handle() const { return painter_.has_value(); }

  /// 0xAARRGGBB.
  bool Clear(Argb colour);
  bool DrawImageI(const cBitmap& image, int x, int y);
  bool DrawImageRectI(const cBitmap& image, int x, int y, int Width, int Height);
  bool DrawImageRectRectI(const cBitmap& image, const PictureBox& to, const PictureBox& from);
  bool DrawImageRectRectIAttr(const cBitmap& image, const PictureBox& to, const PictureBox& from, const PictureLook& look);
  /// Text from the box's top left corner, wrapped to its width unless that is 0.
  bool DrawString(const std::string& text, const cFont& font, Argb colour, const PictureBox& box);

  /// A canvas on the surface. Until ReleaseDC every drawing operation is refused as busy. Null on an
  /// image, and when it is out already.
  Canvas* GetDC();
  bool ReleaseDC();

  bool ResetTransform();
  /// Degrees, clockwise.
  bool RotateTransform(double angle);
  bool TranslateTransform(double dx, double dy);
  /// 0 to 7.
  bool SetInterpolationMode(int mode);
  /// 0 to 5.
  bool SetTextRenderingHint(int hint);

 private:
  bool Done(GdipStatus status);
  /// Ok when drawing is allowed now.
  GdipStatus Ready() const;

  std::optional<PicturePainter> painter_;
  std::optional<Canvas> canvas_;
  Surface* surface_ = nullptr;
  GdipStatus status_ = GdipStatus::Ok;
};

}  // namespace kinalyx
