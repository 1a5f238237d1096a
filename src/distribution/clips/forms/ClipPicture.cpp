#include "distribution/clips/forms/ClipPicture.h"

#include <QPainter>
#include <algorithm>

namespace kinalyx {

ClipPicture::ClipPicture(const QString& name, QWidget* parent) : QWidget(parent) {
  setObjectName(name);
  setAttribute(Qt::WA_OpaquePaintEvent);
}

QSize ClipPicture::PixelsFor(double proportion) const {
  const double ratio = devicePixelRatioF();
  const double wide = std::max(2.0, width() * ratio);
  const double high = std::max(2.0, height() * ratio);
  const double shown = std::min(high, wide / std::max(0.01, proportion));
  return {std::max(2, static_cast<int>(shown * proportion)), std::max(2, static_cast<int>(shown))};
}

void ClipPicture::Show(Surface picture) {
  picture_ = std::move(picture);
  update();
}

void ClipPicture::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), QColor(12, 14, 18));
  if (picture_.Empty()) return;
  QImage image(picture_.Row(0), picture_.Width(), picture_.Height(), picture_.Stride(), QImage::Format_RGB32);
  const double ratio = devicePixelRatioF();
  image.setDevicePixelRatio(ratio);
  painter.drawImage(QPointF((width() - picture_.Width() / ratio) / 2, (height() - picture_.Height() / ratio) / 2),
                    image);
}

void ClipPicture::resizeEvent(QResizeEvent*) { emit Resized(); }

}  // namespace kinalyx
