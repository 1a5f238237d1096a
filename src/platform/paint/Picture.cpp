#include "platform/paint/Picture.h"

#include <QPainter>
#include <QTransform>
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <utility>

#include "platform/paint/PictureContent.h"

namespace kinalyx {
namespace {

constexpr int kLongestSide = 32767;

QImage::Format FormatOf(PictureKind kind) {
  switch (kind) {
    case PictureKind::Indexed8: return QImage::Format_Indexed8;
    case PictureKind::Rgb24: return QImage::Format_BGR888;
    case PictureKind::Rgb32: return QImage::Format_RGB32;
    case PictureKind::Argb32: return QImage::Format_ARGB32;
  }
  return QImage::Format_ARGB32;
}

int PixelBytes(PictureKind kind) {
  return kind == PictureKind::Indexed8 ? 1 : kind == PictureKind::Rgb24 ? 3 : 4;
}

bool IsSize(int width, int height) {
  return width >= 1 && height >= 1 && width <= kLongestSide && height <= kLongestSide;
}

}  // namespace

Picture PictureFrom(QImage image) {
  auto content = std::make_unique<Picture::Content>();
  if (image.format() == QImage::Format_Indexed8 || image.format() == QImage::Format_BGR888) {
    content->image = std::move(image);
  } else if (image.depth() <= 8 && !image.isNull() && image.format() != QImage::Format_Alpha8) {
    content->image = image.convertToFormat(QImage::Format_Indexed8);
  } else {
    const auto format = image.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32;
    content->image = std::move(image).convertToFormat(format);
  }
  return Picture(std::move(content));
}

Picture::Picture() : content_(std::make_unique<Content>()) {}
Picture::Picture(std::unique_ptr<Content> content) : content_(std::move(content)) {
  if (!content_) content_ = std::make_unique<Content>();
}
Picture::Picture(const Surface& surface) : Picture() {
  if (surface.Empty()) return;
  content_->image = QImage(surface.Width(), surface.Height(), QImage::Format_RGB32);
  for (int y = 0; y < content_->image.height(); ++y)
    std::memcpy(content_->image.scanLine(y), surface.Row(y), static_cast<std::size_t>(surface.Stride()));
}
Picture::Picture(const Picture& other) : content_(std::make_unique<Content>(*other.content_)) {}
Picture::Picture(Picture&& other) noexcept : Picture() { std::swap(content_, other.content_); }
Picture& Picture::operator=(const Picture& other) {
  *content_ = *other.content_;
  return *this;
}
Picture& Picture::operator=(Picture&& other) noexcept {
  std::swap(content_, other.content_);
  return *this;
}
Picture::~Picture() = default;

Picture Picture::Blank(PictureKind kind, int width, int height) {
  Picture picture;
  if (!IsSize(width, height)) return picture;
  QImage& image = picture.content_->image;
  image = QImage(width, height, FormatOf(kind));
  if (kind == PictureKind::Indexed8) image.setColorTable({qRgb(0, 0, 0)});
  image.fill(kind == PictureKind::Rgb32 ? 0xFF000000u : 0u);
  return picture;
}

Picture Picture::FromRows(PictureKind kind, int width, int height, int rowBytes, const std::uint8_t* bits) {
  if (!bits || !IsSize(width, height) || std::abs(std::int64_t{rowBytes}) < std::int64_t{width} * PixelBytes(kind))
    return {};
  Picture picture = Blank(kind, width, height);
  QImage& image = picture.content_->image;
  if (image.isNull()) return picture;
  if (kind == PictureKind::Indexed8) {
    // Until it is given a palette of its own.
    QList<QRgb> greys;
    for (int i = 0; i < 256; ++i) greys.append(qRgb(i, i, i));
    image.setColorTable(greys);
  }
  for (int y = 0; y < height; ++y) {
    std::uint8_t* row = image.scanLine(y);
    std::memcpy(row, bits + std::ptrdiff_t{y} * rowBytes, static_cast<std::size_t>(width) * PixelBytes(kind));
    if (kind != PictureKind::Rgb32) continue;
    for (int x = 0; x < width; ++x) row[x * 4 + 3] = 255;
  }
  return picture;
}

bool Picture::Empty() const { return content_->image.isNull(); }
int Picture::Width() const { return content_->image.width(); }
int Picture::Height() const { return content_->image.height(); }

PictureKind Picture::Kind() const {
  switch (content_->image.format()) {
    case QImage::Format_Indexed8: return PictureKind::Indexed8;
    case QImage::Format_BGR888: return PictureKind::Rgb24;
    case QImage::Format_RGB32: return PictureKind::Rgb32;
    default: return PictureKind::Argb32;
  }
}

Argb Picture::PixelAt(int x, int y) const {
  const QImage& image = content_->image;
  if (!image.valid(x, y)) return 0;
  if (Kind() != PictureKind::Indexed8) return image.pixel(x, y);
  const int index = image.pixelIndex(x, y);
  return index < image.colorCount() ? image.color(index) : 0;
}

bool Picture::SetPalette(std::span<const Argb> palette) {
  if (Empty() || Kind() != PictureKind::Indexed8 || palette.empty() || palette.size() > 256) return false;
  content_->image.setColorTable(QList<QRgb>(palette.begin(), palette.end()));
  // Pixels beyond a short palette would otherwise be read past its end.
  content_->image.setColorCount(256);
  return true;
}

std::vector<Argb> Picture::Palette() const {
  const QList<QRgb> table = content_->image.colorTable();
  return {table.begin(), table.end()};
}

void Picture::MakeTransparent(Colour colour) {
  if (Empty()) return;
  QImage& image = content_->image;
  image = image.convertToFormat(QImage::Format_ARGB32);
  const QRgb key = qRgb(Red(colour), Green(colour), Blue(colour));
  for (int y = 0; y < image.height(); ++y) {
    auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
    std::replace(row, row + image.width(), key, QRgb{0});
  }
}

void Picture::Turn(int quarters, bool mirror) {
  if (Empty()) return;
  QImage& image = content_->image;
  if (quarters & 3) image = image.transformed(QTransform().rotate(90.0 * (quarters & 3)));
  if (mirror) image = image.mirrored(true, false);
}

Picture Picture::Scaled(int width, int height) const {
  if (Empty() || !IsSize(width, height)) return {};
  return PictureFrom(content_->image.scaled(width, height, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

Picture Picture::Part(int x, int y, int width, int height) const {
  if (Empty() || width < 1 || height < 1) return {};
  const std::int64_t right = std::min<std::int64_t>(std::int64_t{x} + width, Width());
  const std::int64_t bottom = std::min<std::int64_t>(std::int64_t{y} + height, Height());
  x = std::max(x, 0);
  y = std::max(y, 0);
  if (right <= x || bottom <= y) return {};
  return PictureFrom(content_->image.copy(x, y, static_cast<int>(right - x), static_cast<int>(bottom - y)));
}

Surface Picture::On(Colour ground) const {
  Surface surface(Width(), Height());
  if (surface.Empty()) return surface;
  surface.Clear(ground);
  QImage over = ImageOver(surface);
  QPainter(&over).drawImage(0, 0, content_->image);
  return surface;
}

}  // namespace kinalyx
