#include "platform/paint/ImageFiles.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>
#include <QImageWriter>
#include <QSaveFile>
#include <algorithm>
#include <utility>

#include "platform/paint/PictureContent.h"

namespace kinalyx {
namespace {

constexpr int kMostMebibytes = 256;
constexpr qsizetype kMostFrames = 4096;

ImageResult Failure(ImageFault fault, const QString& message) { return {fault, message.toStdString()}; }

/// Formats that the program opens. Others that happen to be installed stay shut: files come from anywhere.
bool IsKnown(const QByteArray& format) {
  static const char* const kFormats[] = {"bmp", "gif", "ico", "jpg", "jpeg", "png"};
  return std::any_of(std::begin(kFormats), std::end(kFormats), [&](const char* known) { return format == known; });
}

ImageResult ReadFrames(QIODevice& device, ImageFrames& target) {
  QImageReader::setAllocationLimit(kMostMebibytes);
  QImageReader reader(&device);
  reader.setDecideFormatFromContent(true);
  reader.setAutoTransform(true);
  if (!reader.canRead() || !IsKnown(reader.format()))
    return Failure(ImageFault::UnknownFormat, QStringLiteral("This is not an image file that can be opened."));
  const QSize size = reader.size();
  if (size.isValid() && std::int64_t{size.width()} * size.height() * 4 > std::int64_t{kMostMebibytes} << 20)
    return Failure(ImageFault::TooLarge, QStringLiteral("The image is too large."));
  const bool moves = reader.supportsAnimation() && reader.imageCount() != 1;
  const int sizes = moves ? 0 : reader.imageCount();
  ImageFrames found;
  std::int64_t bytes = 0;
  for (int i = 0; std::ssize(found.frames) < kMostFrames; ++i) {
    if (sizes > 1 && (i >= sizes || !reader.jumpToImage(i))) break;
    QImage image = reader.read();
    // Frames behind a damaged one cannot be had; those before it can be shown.
    if (image.isNull()) break;
    bytes += image.sizeInBytes();
    if (bytes > std::int64_t{kMostMebibytes} << 20) break;
    found.frames.push_back(PictureFrom(std::move(image)));
    if (moves) found.delays.push_back(std::max(0, reader.nextImageDelay()));
    if (!moves && sizes <= 1) break;
  }
  if (found.frames.empty())
    return Failure(ImageFault::Damaged, QStringLiteral("The image file is damaged: ") + reader.errorString());
  if (found.frames.size() < 2) found.delays.clear();
  found.loopCount = moves ? reader.loopCount() : 0;
  target = std::move(found);
  return {};
}

/// A view, or a copy where the rows' order of bytes has no image format of its own.
QImage ImageOf(const PixelRows& rows) {
  if (!rows.bits || rows.width < 1 || rows.height < 1 || rows.width > 32767 || rows.height > 32767) return {};
  if (rows.bitCount != 24 && rows.bitCount != 32) return {};
  if (rows.rowBytes < std::int64_t{rows.width} * (rows.bitCount / 8)) return {};
  const QImage view(rows.bits, rows.width, rows.height, rows.rowBytes,
                    rows.bitCount == 24 ? QImage::Format_BGR888 : QImage::Format_RGB32);
  // The unused fourth byte may hold anything, and a copy must not take it for transparency.
  return rows.bottomUp ? view.mirrored() : view;
}

ImageResult Save(const PixelRows& rows, const std::string& path, const char* format, int quality) {
  const QImage image = ImageOf(rows);
  if (image.isNull()) return Failure(ImageFault::BadArgument, QStringLiteral("There is no picture to save."));
  // Renaming over it would put a file in the place of a device or a pipe.
  const QFileInfo old(QString::fromStdString(path));
  if (old.exists() && !old.isFile()) return Failure(ImageFault::NoAccess, QStringLiteral("That name is not a file's."));
  QSaveFile file(QString::fromStdString(path));
  if (!file.open(QIODevice::WriteOnly)) return Failure(ImageFault::NoAccess, file.errorString());
  QImageWriter writer(&file, format);
  writer.setQuality(quality);
  if (!writer.write(image)) {
    const QString reason = file.error() != QFileDevice::NoError ? file.errorString() : writer.errorString();
    file.cancelWriting();
    return Failure(ImageFault::DiskRefused, reason);
  }
  if (!file.commit()) return Failure(ImageFault::DiskRefused, file.errorString());
  return {};
}

}  // namespace

ImageResult LoadImageFile(const std::string& path, ImageFrames& target) {
  const QString name = QString::fromStdString(path);
  QFile file(name);
  if (!QFileInfo(name).isFile())
    return Failure(ImageFault::NotFound, QStringLiteral("There is no such file: ") + name);
  if (!file.open(QIODevice::ReadOnly)) return Failure(ImageFault::NoAccess, file.errorString());
  return ReadFrames(file, target);
}

ImageResult DecodeImage(std::span<const std::uint8_t> bytes, ImageFrames& target) {
  QByteArray view = QByteArray::fromRawData(reinterpret_cast<const char*>(bytes.data()), std::ssize(bytes));
  QBuffer buffer(&view);
  buffer.open(QIODevice::ReadOnly);
  return ReadFrames(buffer, target);
}

ImageResult LoadImageFile(const std::string& path, Surface& target, Colour ground) {
  ImageFrames image;
  const ImageResult result = LoadImageFile(path, image);
  if (!result) return result;
  // An animation begins with its first picture; an icon is best seen in its largest size.
  const auto smaller = [](const Picture& a, const Picture& b) { return a.Width() < b.Width(); };
  const Picture& picture =
      image.delays.empty() ? *std::max_element(image.frames.begin(), image.frames.end(), smaller) : image.frames.front();
  Surface surface = picture.On(ground);
  if (surface.Empty()) return Failure(ImageFault::TooLarge, QStringLiteral("The image is too large."));
  target = std::move(surface);
  return {};
}

ImageResult SaveJpeg(const PixelRows& rows, const std::string& path, int quality) {
  if (quality < 0 || quality > 100)
    return Failure(ImageFault::BadArgument, QStringLiteral("The quality must be 0 to 100."));
  return Save(rows, path, "jpg", quality);
}

ImageResult SavePng(const PixelRows& rows, const std::string& path) { return Save(rows, path, "png", -1); }

std::vector<std::string> EncoderExtensions() {
  static const std::pair<const char*, const char*> kPatterns[] = {
      {"bmp", "*.bmp;*.dib"}, {"jpeg", "*.jpg;*.jpeg;*.jpe;*.jfif"}, {"png", "*.png"}};
  const QList<QByteArray> writable = QImageWriter::supportedImageFormats();
  std::vector<std::string> result;
  for (const auto& [format, pattern] : kPatterns)
    if (writable.contains(format)) result.emplace_back(pattern);
  return result;
}

}  // namespace kinalyx
