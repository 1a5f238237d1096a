#pragma once

#include <QImage>
#include <memory>
#include <optional>
#include <string>

namespace kinalyx {

class DriveWatch;

/// Reads a picture file of the user, turned upright; a null image when the file holds no picture. One that is
/// larger than any screen is scaled down. May be called on any thread.
QImage ReadPicture(const std::string& file);
/// True when a file holds a picture that can be shown. May be called on any thread.
bool HoldsPicture(const std::string& file);

/// Reads a picture that may be long in coming, or lie on a drive that does not answer.
class PictureReader {
 public:
  /// The picture, as ReadPicture gives it; nothing when it is not here at once. The drive of its folder is silent
  /// then. What comes late is kept for the next call with the same file.
  std::optional<QImage> Read(DriveWatch& drives, const std::string& file);

 private:
  struct Reading;
  std::shared_ptr<Reading> late_;
};

}  // namespace kinalyx
