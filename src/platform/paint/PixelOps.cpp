#include "platform/paint/PixelOps.h"

#include <libyuv/convert_argb.h>
#include <libyuv/planar_functions.h>
#include <libyuv/scale_argb.h>

#include <algorithm>
#include <cstdint>
#include <utility>

#include "platform/paint/RasterModes.h"

namespace kinalyx {
namespace {

/// Rows that are worked on at a time: few enough for the processor to have them still at hand in the next step.
constexpr int kBand = 32;

/// The fourth byte of 32-bit rows may hold anything, and the filter's short fractions let a 255 fade.
void FillFourth(std::uint8_t* pixels, std::size_t count) { MergeRun(pixels, 0xFF000000u, count); }

int PixelBytes(const PixelRows& rows) { return rows.bitCount / 8; }

/// The nth row from the top, and the way to the one below it.
const std::uint8_t* RowFromTop(const PixelRows& rows, int n) {
  return rows.bits + static_cast<std::ptrdiff_t>(rows.bottomUp ? rows.height - 1 - n : n) * rows.rowBytes;
}
int WayDown(const PixelRows& rows) { return rows.bottomUp ? -rows.rowBytes : rows.rowBytes; }

/// Bilinear scaling band by band, so that nothing of the picture's whole size stands between the rows and the target.
class BandScaler {
 public:
  BandScaler(const PixelRows& rows, Surface& target, ScaleScratch& scratch) : rows_(rows), target_(target) {
    constexpr std::size_t kRows = kBand + 1;
    const std::size_t widest = kRows * 4 * static_cast<std::size_t>(std::max(rows.width, target.Width()));
    mixed_ = scratch.Take(2 * widest);
    wide_ = mixed_ + widest;
  }

  bool Scale() { return target_.Height() >= rows_.height ? Higher() : Lower(); }

 private:
  /// A place between two rows, in 65536ths of one.
  struct Place {
    explicit Place(std::int64_t at) : row(static_cast<int>(at >> 16)), part(static_cast<int>(at >> 8 & 255)) {}
    int row;
    int part;  ///< of the next row, in 256ths
  };

  bool Higher();
  bool Lower();
  const std::uint8_t* Widened(const std::uint8_t* from, int& stride, int count);
  bool Columns(const std::uint8_t* from, int stride, std::uint8_t* to, int count);

  const PixelRows& rows_;
  Surface& target_;
  std::uint8_t* mixed_;
  std::uint8_t* wide_;
};

/// The columns first: each row of the picture is needed for more than one of the target.
bool BandScaler::Higher() {
  const int height = target_.Height();
  const std::int64_t step = height > 1 ? ((std::int64_t{rows_.height} << 16) - 65537) / (height - 1) : 0;
  int first = 0;
  int end = 0;
  for (int y = 0; y < height; ++y) {
    const Place place(std::max<std::int64_t>(0, y * step));
    const int next = std::min(place.row + 1, rows_.height - 1);
    if (next >= end) {
      first = place.row;
      end = std::min(rows_.height, first + kBand + 1);
      if (!Columns(RowFromTop(rows_, first), WayDown(rows_), mixed_, end - first)) return false;
    }
    const auto mixed = [&](int row) { return mixed_ + static_cast<std::ptrdiff_t>(row - first) * target_.Stride(); };
    if (libyuv::InterpolatePlane(mixed(place.row), 0, mixed(next), 0, target_.Row(y), 0, target_.Stride(), 1,
                                 place.part) != 0)
      return false;
  }
  return true;
}

/// The rows first: there will be fewer of them.
bool BandScaler::Lower() {
  const int height = target_.Height();
  const int rowBytes = rows_.width * PixelBytes(rows_);
  const std::int64_t step = (std::int64_t{rows_.height} << 16) / height;
  for (int y = 0; y < height; y += kBand) {
    const int count = std::min(kBand, height - y);
    for (int i = 0; i < count; ++i) {
      const Place place(step / 2 - 32768 + (y + i) * step);
      const int next = std::min(place.row + 1, rows_.height - 1);
      if (libyuv::InterpolatePlane(RowFromTop(rows_, place.row), 0, RowFromTop(rows_, next), 0,
                                   mixed_ + static_cast<std::ptrdiff_t>(i) * rowBytes, 0, rowBytes, 1, place.part) != 0)
        return false;
    }
    if (!Columns(mixed_, rowBytes, target_.Row(y), count)) return false;
  }
  return true;
}

/// The rows themselves where they have 32 bits.
const std::uint8_t* BandScaler::Widened(const std::uint8_t* from, int& stride, int count) {
  if (rows_.bitCount == 32) return from;
  const int wideStride = rows_.width * 4;
  const bool done = libyuv::RGB24ToARGB(from, stride, wide_, wideStride, rows_.width, count) == 0;
  stride = wideStride;
  return done ? wide_ : nullptr;
}

/// Gives rows the width of the target.
bool BandScaler::Columns(const std::uint8_t* from, int stride, std::uint8_t* to, int count) {
  const std::uint8_t* const wide = Widened(from, stride, count);
  if (!wide || libyuv::ARGBScale(wide, stride, rows_.width, count, to, target_.Stride(), target_.Width(), count,
                                 libyuv::kFilterLinear) != 0)
    return false;
  FillFourth(to, static_cast<std::size_t>(target_.Width()) * count);
  return true;
}

/// The mean of all pixels that become one, where these are many.
bool ScaleByMeans(const PixelRows& rows, Surface& target, ScaleScratch& scratch) {
  const std::uint8_t* from = rows.bits;
  int stride = rows.rowBytes;
  if (rows.bitCount == 24) {
    stride = rows.width * 4;
    std::uint8_t* const wide = scratch.Take(static_cast<std::size_t>(stride) * rows.height);
    if (libyuv::RGB24ToARGB(rows.bits, rows.rowBytes, wide, stride, rows.width, rows.height) != 0) return false;
    from = wide;
  }
  if (libyuv::ARGBScale(from, stride, rows.width, rows.bottomUp ? -rows.height : rows.height, target.Row(0),
                        target.Stride(), target.Width(), target.Height(), libyuv::kFilterBox) != 0)
    return false;
  FillFourth(target.Row(0), static_cast<std::size_t>(target.Width()) * target.Height());
  return true;
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
  if (rows.width != target.Width() || rows.height != target.Height()) {
    const bool quarter = rows.width >= target.Width() * 4 && rows.height >= target.Height() * 4;
    return quarter ? ScaleByMeans(rows, target, scratch) : BandScaler(rows, target, scratch).Scale();
  }
  const auto copy = rows.bitCount == 24 ? &libyuv::RGB24ToARGB : &libyuv::ARGBCopy;
  if (copy(rows.bits, rows.rowBytes, target.Row(0), target.Stride(), rows.width, height) != 0) return false;
  FillFourth(target.Row(0), static_cast<std::size_t>(rows.width) * rows.height);
  return true;
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
