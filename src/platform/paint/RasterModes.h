#pragma once

#include <cstddef>
#include <cstdint>

namespace kinalyx {

/// Merging of whole 32-bit pixels (blue, green, red, 255): a bit is set that either side has. The fourth
/// byte of every pixel that is touched comes out as 255.

/// Merges `count` pixels of a pen into `target`; pen pixels whose fourth byte is 0 touch nothing.
void MergePixels(std::uint8_t* target, const std::uint32_t* pen, std::size_t count);

/// Merges one pen pixel into `count` pixels of `target`.
void MergeRun(std::uint8_t* target, std::uint32_t pen, std::size_t count);

/// A figure that is merged: pen pixels inside a box of the picture, rows without a gap, 0 where the figure
/// touches nothing.
struct RasterFigure {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
  const std::uint32_t* pixels = nullptr;
};

/// Follows a canvas that draws on a transparent surface.
class IFigureRecorder {
 public:
  virtual ~IFigureRecorder() = default;
  /// Something was drawn in copy mode on these rows.
  virtual void Drawn(int firstRow, int lastRow) = 0;
  /// A figure to be merged; it is not drawn on the surface.
  virtual void Merged(const RasterFigure& figure) = 0;
};

}  // namespace kinalyx
