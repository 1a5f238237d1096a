#include "distribution/mail/forms/MailPicture.h"

#include <QPainter>

#include "platform/paint/ImageFiles.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

MailPicture::MailPicture(const QString& name, QWidget* parent) : QWidget(parent) {
  setObjectName(name);
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void MailPicture::ShowFile(const std::string& path) {
  picture_ = {};
  words_.clear();
  if (!path.empty()) {
    auto loaded = LoadPicture(path);
    if (loaded) picture_ = std::move(*loaded);
    else words_ = tr("This picture cannot be shown.") + '\n' + Q(loaded.Why());
  }
  update();
}

void MailPicture::paintEvent(QPaintEvent*) {
  const Theme theme = CurrentTheme();
  QPainter painter(this);
  painter.fillRect(rect(), theme.stage);
  if (picture_.Empty()) {
    painter.setPen(theme.stageText);
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, words_);
    return;
  }
  const QImage image(picture_.Row(0), picture_.Width(), picture_.Height(), picture_.Stride(), QImage::Format_RGB32);
  QSizeF shown = image.size();
  shown.scale(size(), Qt::KeepAspectRatio);
  const QRectF place(QPointF((width() - shown.width()) / 2, (height() - shown.height()) / 2), shown);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(place, image);
}

}  // namespace kinalyx
