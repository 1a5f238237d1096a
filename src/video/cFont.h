#pragma once

#include <string>

#include "platform/paint/Fonts.h"
#include "video/cGDIP.h"

namespace kinalyx {

/// Bits of a font's style.
enum FontStyle : int { kFontRegular = 0, kFontBold = 1, kFontItalic = 2, kFontUnderline = 4, kFontStrikeOut = 8 };

/// What a font's size is counted in.
enum class FontUnit : int { World = 0, Pixel = 2, Point = 3 };

/// A font by its family, size and style. Needs a cGDIP, or the program's own windows.
class cFont {
 public:
  /// False, and no font, for an unknown family, a size not above 0 or a unit other than FontUnit's. A
  /// point is 1/72 inch at 96 pixels to the inch; a world unit is a pixel.
  bool CreateFont(const std::string& Name, double Size, int Style = kFontRegular, FontUnit Unit = FontUnit::Point);
  /// The font in which a canvas writes lines of `height` pixels.
  bool CreateFromHdc(int height);
  void Dispose();
  GdipStatus CurErr() const { return status_; }

  bool Bold() const { return (style_ & kFontBold) != 0; }
  bool Italic() const { return (style_ & kFontItalic) != 0; }
  bool Underline() const { return (style_ & kFontUnderline) != 0; }
  bool StrikeOut() const { return (style_ & kFontStrikeOut) != 0; }
  int Style() const { return style_; }
  const std::string& Name() const { return face_.family; }
  double Size() const { return size_; }
  FontUnit Unit() const { return unit_; }
  /// Pixels from one line to the next; 0 without a font.
  double Height() const;
  /// Null without a font; good until the font is made anew or disposed of.
  const FontFace* Handle() const { return made_ ? &face_ : nullptr; }

 private:
  FontFace face_;
  double size_ = 0;
  int style_ = kFontRegular;
  FontUnit unit_ = FontUnit::Point;
  bool made_ = false;
  GdipStatus status_ = GdipStatus::Ok;
};

}  // namespace kinalyx
