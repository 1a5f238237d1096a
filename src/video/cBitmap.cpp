#include "video/cBitmap.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "video/cDIBSection.h"

namespace kinalyx {
namespace {

std::optional<PictureKind> KindOf(PixelFormatId format) {
  switch (format) {
    case PixelFormatId::Indexed8: return PictureKind::Indexed8;
    case PixelFormatId::Rgb24: return PictureKind::Rgb24;
    case PixelFormatId::Rgb32: return PictureKind::Rgb32;
    case PixelFormatId::Argb32: return PictureKind::Argb32;
    default: return std::nullopt;
  }
}

void Append(std::vector<std::uint8_t>& bytes, std::uint32_t value, int count) {
  for (int i = 0; i < count; ++i) bytes.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
}

}  // namespace

bool cBitmap::Done(GdipStatus status) {
  status_ = status;
  return status == GdipStatus::Ok;
}

bool cBitmap::Take(const ImageResult& result) {
  if (!result) Dispose();
  current_ = 0;
  return Done(StatusOf(result.fault));
}

bool cBitmap::CreateFromScan0(int Width, int Height, int Stride, PixelFormatId PixelFormat, const std::uint8_t* Bits) {
  Dispose();
  const std::optional<PictureKind> kind = KindOf(PixelFormat);
  if (!kind) return Done(GdipStatus::InvalidParameter);
  setHandle(Bits ? kinalyx::Picture::FromRows(*kind, Width, Height, Stride, Bits)
                 : kinalyx::Picture::Blank(*kind, Width, Height));
  return status_ == GdipStatus::Ok;
}

bool cBitmap::CreateFromStream(std::span<const std::uint8_t> bytes) {
  Dispose();
  return Take(DecodeImage(bytes, image_));
}

bool cBitmap::CreateFromHBitmap(const cDIBSection& section) {
  const PixelRows rows = section.hDC();
  if (!rows.bits) {
    Dispose();
    return Done(GdipStatus::InvalidParameter);
  }
  const std::uint8_t* top = rows.bits + static_cast<std::ptrdiff_t>(rows.height - 1) * rows.rowBytes;
  return CreateFromScan0(rows.width, rows.height, -rows.rowBytes, PixelFormatId::Rgb24, top);
}

bool cBitmap::CreateFromGraphics(int Width, int Height) {
  return CreateFromScan0(Width, Height, 0, PixelFormatId::Argb32, nullptr);
}

bool cBitmap::CreateFromClone(const cBitmap& source) {
  if (source.FrameCount() == 0) {
    Dispose();
    return Done(GdipStatus::InvalidParameter);
  }
  image_ = source.image_;
  current_ = source.current_;
  return Done(GdipStatus::Ok);
}

bool cBitmap::CreateFromResource(const std::string& name) { return LoadFromFile(":/" + name); }

bool cBitmap::CreateThumbFromImage(int Width, int Height, const cBitmap& Image) {
  if (Width == 0 && Height == 0) Width = Height = 120;
  kinalyx::Picture small = Image.Handle().Scaled(Width, Height);
  Dispose();
  setHandle(std::move(small));
  return status_ == GdipStatus::Ok;
}

bool cBitmap::LoadFromFile(const std::string& FileName) {
  Dispose();
  return Take(LoadImageFile(FileName, image_));
}

void cBitmap::Dispose() {
  image_ = {};
  current_ = 0;
  status_ = GdipStatus::Ok;
}

PixelFormatId cBitmap::PixelFormat() const {
  if (FrameCount() == 0) return PixelFormatId::Undefined;
  switch (Handle().Kind()) {
    case PictureKind::Indexed8: return PixelFormatId::Indexed8;
    case PictureKind::Rgb24: return PixelFormatId::Rgb24;
    case PictureKind::Rgb32: return PixelFormatId::Rgb32;
    case PictureKind::Argb32: return PixelFormatId::Argb32;
  }
  return PixelFormatId::Undefined;
}

bool cBitmap::SelectActiveFrame(int frame) {
  if (frame < 0 || frame >= FrameCount()) return Done(GdipStatus::InvalidParameter);
  current_ = static_cast<std::size_t>(frame);
  return Done(GdipStatus::Ok);
}

int cBitmap::GetDelay(int frame) const {
  return frame >= 0 && frame < std::ssize(image_.delays) ? image_.delays[static_cast<std::size_t>(frame)] : 0;
}

int cBitmap::GetLoopCount() const {
  if (image_.delays.empty()) return 1;
  return image_.loopCount < 0 ? 0 : image_.loopCount + 1;
}

std::optional<std::vector<std::uint8_t>> cBitmap::GetPropertyItem(int id) {
  if (image_.delays.empty() || (id != kPropertyFrameDelay && id != kPropertyLoopCount)) {
    Done(GdipStatus::PropertyNotFound);
    return std::nullopt;
  }
  std::vector<std::uint8_t> bytes;
  if (id == kPropertyLoopCount) {
    Append(bytes, static_cast<std::uint32_t>(GetLoopCount()), 2);
  } else {
    for (const int delay : image_.delays) Append(bytes, static_cast<std::uint32_t>(delay / 10), 4);
  }
  Done(GdipStatus::Ok);
  return bytes;
}

std::uint32_t cBitmap::GetPixelLong(int x, int y) {
  const bool inside = x >= 0 && y >= 0 && x < Width() && y < Height();
  Done(inside ? GdipStatus::Ok : GdipStatus::InvalidParameter);
  return Handle().PixelAt(x, y);
}

bool cBitmap::MakeTransparent(Colour colour) {
  for (kinalyx::Picture& frame : image_.frames) frame.MakeTransparent(colour);
  return Done(FrameCount() > 0 ? GdipStatus::Ok : GdipStatus::InvalidParameter);
}

bool cBitmap::SetTransColor(int entry) {
  std::vector<Argb> palette = Handle().Palette();
  if (entry < 0 || entry >= std::ssize(palette)) return Done(GdipStatus::InvalidParameter);
  palette[static_cast<std::size_t>(entry)] &= 0xFFFFFF;
  return SetPalette(palette);
}

bool cBitmap::SetPalette(std::span<const std::uint32_t> palette) {
  return Done(Handle().SetPalette(palette) ? GdipStatus::Ok : GdipStatus::InvalidParameter);
}

bool cBitmap::RotateFlip(int type) {
  if (type < 0 || type > 7 || FrameCount() == 0) return Done(GdipStatus::InvalidParameter);
  for (kinalyx::Picture& frame : image_.frames) frame.Turn(type & 3, (type & 4) != 0);
  return Done(GdipStatus::Ok);
}

const kinalyx::Picture& cBitmap::Handle() const { return image_.frames.empty() ? none_ : image_.frames[current_]; }
kinalyx::Picture& cBitmap::Handle() { return image_.frames.empty() ? none_ : image_.frames[current_]; }

void cBitmap::setHandle(kinalyx::Picture picture) {
  Dispose();
  if (picture.Empty()) {
    Done(GdipStatus::InvalidParameter);
    return;
  }
  image_.frames.push_back(std::move(picture));
}

}  // namespace kinalyx
