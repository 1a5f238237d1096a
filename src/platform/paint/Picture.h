#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "platform/paint/Geometry.h"
#include "platform/paint/Surface.h"

namespace kinalyx {

enum class PictureKind {
  Indexed8,  ///< one byte per pixel into a palette
  Rgb24,
  Rgb32,
  Argb32,  ///< with transparency, colours not premultiplied
};

/// A pixel or palette entry as 0xAARRGGBB.
using Argb = std::uint32_t;

/// A still picture that may be transparent, as image files hold them. A value; copies share their
/// pixels until one of them changes.
class Picture {
 public:
  struct Content;

  Picture();
  explicit Picture(std::unique_ptr<Content> content);
  /// Opaque, of the kind Rgb32.
  explicit Picture(const Surface& surface);
  Picture(const Picture&);
  Picture(Picture&&) noexcept;
  Picture& operator=(const Picture&);
  Picture& operator=(Picture&&) noexcept;
  ~Picture();

  /// Black or, with transparency, clear; empty for sides outside 1 to 32767.
  static Picture Blank(PictureKind kind, int width, int height);
  /// Copies rows of pixels, blue byte first; `rowBytes` may be negative, with `bits` at the top row all
  /// the same. Empty when a row does not fit into its bytes.
  static Picture FromRows(PictureKind kind, int width, int height, int rowBytes, const std::uint8_t* bits);

  bool Empty() const;
  int Width() const;
  int Height() const;
  PictureKind Kind() const;
  /// Clear outside the picture.
  Argb PixelAt(int x, int y) const;
  /// At most 256 entries; false for pictures without a palette.
  bool SetPalette(std::span<const Argb> palette);
  std::vector<Argb> Palette() const;

  /// Makes every pixel of this colour clear; the picture becomes one with transparency.
  void MakeTransparent(Colour colour);
  /// Turns clockwise by quarters, then mirrors left to right.
  void Turn(int quarters, bool mirror);
  /// Smoothly scaled; empty for sides outside 1 to 32767.
  Picture Scaled(int width, int height) const;
  /// The part inside the picture.
  Picture Part(int x, int y, int width, int height) const;
  /// As it looks on a ground of one colour.
  Surface On(Colour ground) const;

  const Content& Inside() const { return *content_; }
  Content& Inside() { return *content_; }

 private:
  std::unique_ptr<Content> content_;
};

}  // namespace kinalyx
