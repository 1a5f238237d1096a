#include "support/Pictures.h"

#include <QImage>
#include <cstring>

namespace kinalyx::test {

Surface LoadPicture(const std::string& path) {
  const QImage image = QImage(QString::fromStdString(path)).convertToFormat(QImage::Format_RGB32);
  Surface surface(image.width(), image.height());
  for (int y = 0; y < image.height(); ++y)
    std::memcpy(surface.Row(y), image.constScanLine(y), static_cast<std::size_t>(surface.Stride()));
  return surface;
}

}  // namespace kinalyx::test
