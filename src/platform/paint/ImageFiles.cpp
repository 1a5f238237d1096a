#include "platform/paint/ImageFiles.h"

#include <QFileInfo>
#include <QImage>
#include <QImageReader>
#include <QImageWriter>
#include <QPainter>
#include <QSaveFile>
#include <algorithm>

#include "platform/files/Tr.h"

namespace kinalyx {
namespace {

Outcome Failure(const QString& why) { return Outcome::Failed(why.toStdString()); }

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

Outcome Save(const PixelRows& rows, const std::string& path, const char* format, int quality) {
  const QImage image = ImageOf(rows);
  if (image.isNull()) return Outcome::Failed(Tr("There is no picture to save."));
  // Renaming over it would put a file in the place of a device or a pipe.
  const QFileInfo old(QString::fromStdString(path));
  if (old.exists() && !old.isFile()) return Outcome::Failed(Tr("That name is not a file's."));
  QSaveFile file(QString::fromStdString(path));
  if (!file.open(QIODevice::WriteOnly)) return Failure(file.errorString());
  QImageWriter writer(&file, format);
  writer.setQuality(quality);
  if (!writer.write(image)) {
    const QString reason = file.error() != QFileDevice::NoError ? file.errorString() : writer.errorString();
    file.cancelWriting();
    return Failure(reason);
  }
  if (!file.commit()) return Failure(file.errorString());
  return {};
}

}  // namespace

Outcome SaveJpeg(const PixelRows& rows, const std::string& path, int quality) {
  if (quality < 0 || quality > 100) return Outcome::Failed(Tr("The quality must be 0 to 100."));
  return Save(rows, path, "jpg", quality);
}

Outcome SavePng(const PixelRows& rows, const std::string& path) { return Save(rows, path, "png", -1); }

Outcome SaveBmp(const PixelRows& rows, const std::string& path) { return Save(rows, path, "bmp", -1); }

Result<Surface> LoadPicture(const std::string& path, int longest, Colour ground) {
  QImageReader reader(QString::fromStdString(path));
  reader.setAutoTransform(true);
  reader.setDecideFormatFromContent(true);
  if (const QSize size = reader.size(); size.isValid() && (size.width() > longest || size.height() > longest))
    reader.setScaledSize(size.scaled(longest, longest, Qt::KeepAspectRatio).expandedTo({1, 1}));
  QImage image = reader.read();
  if (image.isNull()) return Failure(reader.errorString());
  if (image.width() > longest || image.height() > longest)
    image = image.scaled(longest, longest, Qt::KeepAspectRatio, Qt::SmoothTransformation);
  Surface surface(image.width(), image.height());
  if (surface.Empty()) return Outcome::Failed(Tr("The picture is too large."));
  surface.Clear(ground);
  QImage target(surface.Row(0), surface.Width(), surface.Height(), surface.Stride(), QImage::Format_RGB32);
  QPainter(&target).drawImage(0, 0, image);
  return surface;
}

}  // namespace kinalyx
