#include "core/forms/PictureFile.h"

#include <QImageReader>
#include <algorithm>
#include <atomic>
#include <utility>

#include "platform/files/Folders.h"
#include "platform/host/DriveWatch.h"
#include "platform/widgets/Text.h"

namespace kinalyx {

namespace {

constexpr int kLongestSide = 4096;

}  // namespace

QImage ReadPicture(const std::string& file) {
  QImageReader reader(Q(file));
  reader.setAutoTransform(true);
  reader.setDecideFormatFromContent(true);
  const QSize size = reader.size();
  if (std::max(size.width(), size.height()) > kLongestSide)
    reader.setScaledSize(size.scaled(kLongestSide, kLongestSide, Qt::KeepAspectRatio));
  return reader.read();
}

bool HoldsPicture(const std::string& file) { return !ReadPicture(file).isNull(); }

struct PictureReader::Reading {
  std::string file;
  QImage picture;
  std::atomic<bool> done = false;  ///< the worker is through, and `picture` ours
};

std::optional<QImage> PictureReader::Read(DriveWatch& drives, const std::string& file) {
  const std::string place = FolderOf(file);
  if (late_ && late_->file == file) {
    if (late_->done) return std::exchange(late_, nullptr)->picture;
    if (drives.Silent(place)) return std::nullopt;
  }
  const auto reading = std::make_shared<Reading>();
  reading->file = file;
  late_ = reading;
  drives.AskAtOnce(place, [reading] {
    reading->picture = ReadPicture(reading->file);
    reading->done = true;
    return true;
  });
  if (!reading->done) return std::nullopt;
  late_.reset();
  return reading->picture;
}

}  // namespace kinalyx
