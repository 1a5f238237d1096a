#pragma once

#include <cstddef>
#include <cstdint>

#include "platform/paint/Canvas.h"

namespace kinalyx {

/// The sixteen raster modes over whole 32-bit pixels (blue, green, red, 255). The fourth byte of every
/// pixel that is touched comes out as 255.

/// Joins `count` pixels of a pen with those of `target`; pen pixels whose fourth byte is 0 touch nothing.
void JoinPixels(Rop2 mode, std::uint8_t* target, const std::uint32_t* pen, std::size_t count);

/// Joins one pen pixel with `count` pixels of `target`.
void JoinRun(Rop2 mode, std::uint8_t* target, std::uint32_t pen, std::size_t count);

/// A figure as the raster modes take it: pen pixels inside a box of the picture, rows without a gap,
/// 0 where the figure touches nothing.
struct RasterFigure {
  Rop2 mode = Rop2::CopyPen;
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
  /// A figure of another mode; it is not drawn on the surface.
  virtual void Joined(const RasterFigure& figure) = 0;
};

}  // namespace kinalyx
