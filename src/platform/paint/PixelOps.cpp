#include "platform/paint/PixelOps.h"

#include <libyuv/convert_argb.h>
#include <libyuv/planar_functions.h>
#include <libyuv/scale_argb.h>

#include <utility>

#include "platform/paint/RasterModes.h"

namespace kinalyx {
namespace {

libyuv::FilterMode FilterFor(const PixelRows& rows, const Surface& target) {
  const bool quarter = rows.width >= target.Width() * 4 && rows.height >= target.Height() * 4;
  return quarter ? libyuv::kFilterBox : libyuv::kFilterBilinear;
}

bool Scale(const std::uint8_t* from, int stride, const PixelRows& rows, bool bottomUp, Surface& target) {
  return libyuv::ARGBScale(from, stride, rows.width, bottomUp ? -rows.height : rows.height, target.Row(0),
                           target.Stride(), target.Width(), target.Height(), FilterFor(rows, target)) == 0;
}

/// The fourth byte of 32-bit rows may hold anything, and the filter's short fractions let a 255 fade.
void FillFourth(Surface& target) {
  MergeRun(target.Row(0), 0xFF000000u, static_cast<std::size_t>(target.Width()) * target.Height());
}

}  // namespace

PixelRows RowsOf(const Surface& surface) {
  if (surface.Empty()) return {};
  return {surface.Row(0), surface.Width(), surface.Height(), surface.Stride(), 32, false};
}

bool StretchRows(const PixelRows& rows, Surface& target, ScaleScratch& scratch) {
  if (!rows.bits || rows.width < 1 || rows.height < 1 || target.Empty()) return false;
  if (rows.bitCount != 24 && rows.bitCount != 32) return false;
  if (rows.rowBytes < static_cast<std::int64_t>(rows.width) * (rows.bitCount / 8)) return false;
  const int height = rows.bottomUp ? -rows.height : rows.height;
  const bool sameSize = rows.width == target.Width() && rows.height == target.Height();
  bool done = false;
  if (rows.bitCount == 24 && sameSize)
    return libyuv::RGB24ToARGB(rows.bits, rows.rowBytes, target.Row(0), target.Stride(), rows.width, height) == 0;
  if (rows.bitCount == 24) {
    // Widening first and scaling four bytes at a time beats scaling three at nearly every size.
    const int stride = rows.width * 4;
    std::uint8_t* wide = scratch.Take(static_cast<std::size_t>(stride) * rows.height);
    done = libyuv::RGB24ToARGB(rows.bits, rows.rowBytes, wide, stride, rows.width, height) == 0 &&
           Scale(wide, stride, rows, false, target);
  } else if (sameSize) {
    done = libyuv::ARGBCopy(rows.bits, rows.rowBytes, target.Row(0), target.Stride(), rows.width, height) == 0;
  } else {
    done = Scale(rows.bits, rows.rowBytes, rows, rows.bottomUp, target);
  }
  if (done) FillFourth(target);
  return done;
}

void MirrorHorizontal(Surface& surface, Surface& scratch) {
  if (surface.Empty()) return;
  if (scratch.Width() != surface.Width() || scratch.Height() != surface.Height())
    scratch = Surface(surface.Width(), surface.Height());
  libyuv::ARGBMirror(surface.Row(0), surface.Stride(), scratch.Row(0), scratch.Stride(), surface.Width(),
                     surface.Height());
  std::swap(surface, scratch);
}

}  // namespace kinalyx
