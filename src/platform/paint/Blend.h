#pragma once

#include <array>
#include <cstdint>

#include "platform/paint/Surface.h"

namespace kinalyx {

/// A picture and where its top left corner stands on the surface that it is laid on. Not owned.
struct PlacedPicture {
  const Surface& picture;
  int left = 0;
  int top = 0;
};

/// Fills `target` with a mix of two pictures at a constant `alpha`: 0 shows `under` alone, 255 `over`
/// alone, anything between agrees with over * alpha / 255 + under * (1 - alpha / 255) within one step
/// per byte. Where a picture does not reach, it counts as black. `target` must be neither of the two.
void MixPictures(const PlacedPicture& under, const PlacedPicture& over, int alpha, Surface& target);

/// Copies the part of a picture from (`x`, `y`), `width` by `height` pixels, to (`toX`, `toY`) of
/// `target`. What lies outside either is left out. `source` must not be the target.
void CopyPart(const Surface& source, int x, int y, int width, int height, Surface& target, int toX, int toY);

/// Moves everything on a surface `columns` pixels to the left; the columns that come free keep what they
/// held. Less than 1 moves nothing.
void ShiftLeft(Surface& surface, int columns);

/// A pattern of 8 by 8 pixels: one byte per row, the leftmost pixel in the highest bit.
using DissolvePattern = std::array<std::uint8_t, 8>;

/// Levels of createDissolveBrush, from the full pattern (0) to the empty one.
constexpr int kDissolveLevels = 7;
/// The pattern of a level; levels outside the range count as the nearest.
DissolvePattern createDissolveBrush(int level);

/// Puts those pixels of `picture` on `target` on which the pattern, repeated over the whole, has a bit
/// set. A picture of another size is left out.
void DissolveOver(const Surface& picture, const DissolvePattern& pattern, Surface& target);

}  // namespace kinalyx
