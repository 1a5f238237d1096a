#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "platform/paint/PixelOps.h"
#include "platform/paint/Surface.h"
#include "video/FramePipeline.h"

namespace kinalyx {

/// Copies the source over what is there.
constexpr std::uint32_t kSourceCopy = 0xCC0020;

/// One off-screen bitmap of 24 bits per pixel, bottom row first, with direct access to its pixels.
class cDIBSection {
 public:
  /// Black, of this size; false, and no bitmap, for sides outside 1 to 32767.
  bool Create(int Width, int Height);
  /// The pixels and their header; Create is all that callers need.
  bool CreateDIB(int Width, int Height);
  /// Takes the size and the pixels of a surface.
  bool CreateFromPicture(const Surface& Picture);
  void ClearUp();

  int Width() const { return header_.width; }
  int Height() const { return header_.height; }
  /// Width times 3, rounded up to a multiple of 4.
  int BytesPerScanLine() const;
  /// The header of the bitmap; all zero without one.
  const FormatHeader& hDib() const { return header_; }
  /// The bitmap as a source for painting; good until its size changes.
  PixelRows hDC() const;
  /// The bottom row of the pixels; null without a bitmap.
  std::uint8_t* DIBSectionBitsPtr() { return bits_.empty() ? nullptr : bits_.data(); }
  const std::uint8_t* DIBSectionBitsPtr() const { return bits_.empty() ? nullptr : bits_.data(); }

  /// Joins a part of `SourceDC`, from its point (X, Y), with the top left corner of this bitmap; -1
  /// takes the bitmap's full width or height. What lies outside either is left out. The raster
  /// operation is a code such as kSourceCopy; where one asks for a brush, the brush is white. False
  /// for an unusable source.
  bool LoadPictureBlt(const PixelRows& SourceDC, int X = 0, int Y = 0, int Width = -1, int Height = -1,
                      std::uint32_t RasterOp = kSourceCopy);
  /// Joins a part of this bitmap, from (SourceX, SourceY), with `TargetDC` at (X, Y), in the same way.
  bool PaintPicture(Surface& TargetDC, int X = 0, int Y = 0, int Width = -1, int Height = -1, int SourceX = 0,
                    int SourceY = 0, std::uint32_t RasterOp = kSourceCopy) const;

  /// The same picture in another size, bilinear; nothing without a bitmap or for an impossible size.
  std::optional<cDIBSection> Resample(int NewHeight, int NewWidth) const;

 private:
  FormatHeader header_;
  std::vector<std::uint8_t> bits_;
};

}  // namespace kinalyx
