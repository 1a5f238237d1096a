#include "video/cDIBSection.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace kinalyx {
namespace {

constexpr int kLongestSide = 32767;

/// Somewhere in memory that rows go to or come from; row 0 is the top of the picture.
template <typename Byte>
struct Plane {
  Byte* top = nullptr;
  std::ptrdiff_t rowBytes = 0;
  int pixelBytes = 0;
  int width = 0;
  int height = 0;

  Byte* At(int x, int y) const { return top + y * rowBytes + std::ptrdiff_t{x} * pixelBytes; }
};

std::optional<Plane<const std::uint8_t>> PlaneOf(const PixelRows& rows) {
  if (!rows.bits || rows.width < 1 || rows.height < 1 || (rows.bitCount != 24 && rows.bitCount != 32))
    return std::nullopt;
  const int pixelBytes = rows.bitCount / 8;
  if (rows.rowBytes < std::int64_t{rows.width} * pixelBytes) return std::nullopt;
  const std::ptrdiff_t step = rows.rowBytes;
  const std::uint8_t* top = rows.bottomUp ? rows.bits + step * (rows.height - 1) : rows.bits;
  return Plane<const std::uint8_t>{top, rows.bottomUp ? -step : step, pixelBytes, rows.width, rows.height};
}

/// The byte of a raster operation that says what becomes of a source bit and a target bit under a white
/// brush: bit 4 + 2 * source + target of the code's third byte.
std::uint8_t JoinBytes(std::uint8_t source, std::uint8_t target, unsigned table) {
  unsigned result = 0;
  if (table & 1) result |= ~source & ~target;
  if (table & 2) result |= ~source & target;
  if (table & 4) result |= source & ~target;
  if (table & 8) result |= source & target;
  return static_cast<std::uint8_t>(result);
}

struct Span {
  int from = 0;
  int to = 0;
  int count = 0;
};

/// Cuts one direction of a copy to what both sides have.
Span Cut(std::int64_t from, std::int64_t fromSize, std::int64_t to, std::int64_t toSize, std::int64_t count) {
  const std::int64_t skip = std::max<std::int64_t>({0, -from, -to});
  from += skip;
  to += skip;
  count = std::min({count - skip, fromSize - from, toSize - to});
  if (count <= 0) return {};
  return {static_cast<int>(from), static_cast<int>(to), static_cast<int>(count)};
}

void Join(const Plane<const std::uint8_t>& source, Span across, Span down, const Plane<std::uint8_t>& target,
          std::uint32_t rasterOp) {
  const unsigned table = (rasterOp >> 20) & 15;
  const bool plainCopy = table == 12 && source.pixelBytes == target.pixelBytes && source.pixelBytes == 3;
  for (int y = 0; y < down.count; ++y) {
    const std::uint8_t* from = source.At(across.from, down.from + y);
    std::uint8_t* to = target.At(across.to, down.to + y);
    if (plainCopy) {
      std::memmove(to, from, static_cast<std::size_t>(across.count) * 3);
      continue;
    }
    for (int x = 0; x < across.count; ++x, from += source.pixelBytes, to += target.pixelBytes)
      for (int c = 0; c < 3; ++c) to[c] = JoinBytes(from[c], to[c], table);
  }
}

}  // namespace

bool cDIBSection::Create(int Width, int Height) {
  ClearUp();
  if (CreateDIB(Width, Height)) return true;
  ClearUp();
  return false;
}

bool cDIBSection::CreateDIB(int Width, int Height) {
  if (Width < 1 || Height < 1 || Width > kLongestSide || Height > kLongestSide) return false;
  header_ = {40, Width, Height, 1, 24, 0, 0};
  header_.imageSize = std::int64_t{Height} * BytesPerScanLine();
  bits_.assign(static_cast<std::size_t>(header_.imageSize), 0);
  return true;
}

bool cDIBSection::CreateFromPicture(const Surface& Picture) {
  return Create(Picture.Width(), Picture.Height()) && LoadPictureBlt(RowsOf(Picture));
}

void cDIBSection::ClearUp() {
  header_ = {};
  bits_.clear();
}

int cDIBSection::BytesPerScanLine() const { return ScanLineBytes(header_.width, 24); }

PixelRows cDIBSection::hDC() const {
  if (bits_.empty()) return {};
  return {bits_.data(), Width(), Height(), BytesPerScanLine(), 24, true};
}

bool cDIBSection::LoadPictureBlt(const PixelRows& SourceDC, int X, int Y, int Width, int Height,
                                 std::uint32_t RasterOp) {
  const auto source = PlaneOf(SourceDC);
  if (!source || bits_.empty()) return false;
  const Plane<std::uint8_t> target{bits_.data() + std::ptrdiff_t{BytesPerScanLine()} * (this->Height() - 1),
                                   -std::ptrdiff_t{BytesPerScanLine()}, 3, this->Width(), this->Height()};
  const Span across = Cut(X, source->width, 0, target.width, Width == -1 ? target.width : Width);
  const Span down = Cut(Y, source->height, 0, target.height, Height == -1 ? target.height : Height);
  Join(*source, across, down, target, RasterOp);
  return true;
}

bool cDIBSection::PaintPicture(Surface& TargetDC, int X, int Y, int Width, int Height, int SourceX, int SourceY,
                               std::uint32_t RasterOp) const {
  const auto source = PlaneOf(hDC());
  if (!source || TargetDC.Empty()) return false;
  const Plane<std::uint8_t> target{TargetDC.Row(0), TargetDC.Stride(), 4, TargetDC.Width(), TargetDC.Height()};
  const Span across = Cut(SourceX, source->width, X, target.width, Width == -1 ? source->width : Width);
  const Span down = Cut(SourceY, source->height, Y, target.height, Height == -1 ? source->height : Height);
  Join(*source, across, down, target, RasterOp);
  return true;
}

std::optional<cDIBSection> cDIBSection::Resample(int NewHeight, int NewWidth) const {
  cDIBSection result;
  if (bits_.empty() || !result.Create(NewWidth, NewHeight)) return std::nullopt;
  if (NewWidth == Width() && NewHeight == Height()) {
    result.LoadPictureBlt(hDC());
    return result;
  }
  Surface scaled(NewWidth, NewHeight);
  ScaleScratch scratch;
  if (!StretchRows(hDC(), scaled, scratch)) return std::nullopt;
  StoreRows(scaled, result.DIBSectionBitsPtr(), result.BytesPerScanLine());
  return result;
}

}  // namespace kinalyx
