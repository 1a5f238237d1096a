#pragma once

#include <cstdint>

namespace kinalyx {

struct PictureSize {
  int width = 0;
  int height = 0;
};

/// Larger pictures are taken for a damaged or hostile header: 8K has fewer pixels. They bound the memory of a
/// file, for a decoder needs up to twenty pictures.
constexpr std::int64_t kMostPixels = 8192 * 4320;
constexpr int kLongestSide = 16384;
inline bool IsLikelySize(PictureSize size) {
  return size.width >= 0 && size.height >= 0 && size.width <= kLongestSide && size.height <= kLongestSide &&
         std::int64_t{size.width} * size.height <= kMostPixels;
}

/// How a decoded picture becomes the upright one in square pixels: its rows are stretched, then mirrored, then
/// turned. Rows are never mixed with one another, since they may belong to two fields.
struct PictureShape {
  double pixelWidth = 1;  ///< in heights of a pixel
  bool mirrored = false;  ///< left and right change places
  int turns = 0;          ///< quarter turns clockwise, 0 to 3

  bool IsPlain() const { return pixelWidth == 1 && !mirrored && turns == 0; }
  /// Takes the turn and the mirror that come nearest to a display matrix of the library (9 numbers).
  void Obey(const std::int32_t* matrix);
  /// Takes a pixel of this width and height; numbers that make no sense are taken for a square.
  void TakePixel(int width, int height);
  /// The size of the picture that a decoded one of this size becomes.
  PictureSize SizeOf(int width, int height) const;
  /// The width of a decoded picture whose rows have been stretched.
  int StretchedWidth(int width) const;
};

}  // namespace kinalyx
