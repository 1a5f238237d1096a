#include "capture/forms/LiveView.h"

#include <QMouseEvent>
#include <QPainter>
#include <utility>

#include "platform/widgets/Scale.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

namespace {

constexpr QColor kRecording(0xE5, 0x39, 0x35);
constexpr QColor kPlate(0, 0, 0, 150);

/// A short text on a dark plate; with a dot before it where one is wanted.
void PaintPlate(QPainter& painter, QPointF at, const QString& text, bool dot) {
  const QFontMetricsF metrics(painter.font());
  const double height = metrics.height() + Px(8);
  const double lead = dot ? Px(18) : Px(8);
  const QRectF plate(at, QSizeF(lead + metrics.horizontalAdvance(text) + Px(10), height));
  painter.setPen(Qt::NoPen);
  painter.setBrush(kPlate);
  painter.drawRoundedRect(plate, height / 2, height / 2);
  if (dot) {
    painter.setBrush(kRecording);
    painter.drawEllipse(QPointF(plate.left() + Px(11), plate.center().y()), Px(5), Px(5));
  }
  painter.setPen(Qt::white);
  painter.drawText(plate.adjusted(lead, 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft, text);
}

}  // namespace

LiveView::LiveView(const QString& name, QWidget* parent) : QWidget(parent) {
  setObjectName(name);
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void LiveView::ShowPicture(LivePicture picture) {
  picture_ = std::move(picture);
  update();
}

void LiveView::SetWords(const QString& words) {
  if (words_ == words) return;
  words_ = words;
  setAccessibleDescription(words);
  if (!words_.isEmpty()) picture_ = {};
  update();
}

void LiveView::SetBadge(const QString& badge) {
  if (badge_ == badge) return;
  badge_ = badge;
  update();
}

void LiveView::SetCaption(const QString& caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  update();
}

/// Where the picture stands in the widget, in its own proportions.
QRectF LiveView::PictureRoom() const {
  const double aspect = picture_.aspect > 0   ? picture_.aspect
                        : picture_.height > 0 ? static_cast<double>(picture_.width) / picture_.height
                                              : 4.0 / 3;
  const double width = std::min<double>(this->width(), height() * aspect);
  const QSizeF size(width, width / aspect);
  return {QPointF((this->width() - size.width()) / 2, (height() - size.height()) / 2), size};
}

void LiveView::paintEvent(QPaintEvent*) {
  const Theme theme = CurrentTheme();
  QPainter painter(this);
  painter.fillRect(rect(), theme.stage);
  if (picture_.pixels) {
    const QImage image(picture_.pixels.get(), picture_.width, picture_.height, picture_.stride, QImage::Format_RGB32);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(PictureRoom(), image);
  } else if (!words_.isEmpty()) {
    painter.setPen(theme.stageText);
    const QRect room = rect().adjusted(Px(24), Px(16), -Px(24), -Px(16));
    painter.drawText(room, Qt::AlignCenter | Qt::TextWordWrap, words_);
  }
  painter.setRenderHint(QPainter::Antialiasing);
  double y = Px(10);
  if (!badge_.isEmpty()) {
    PaintPlate(painter, QPointF(Px(10), y), badge_, true);
    y += QFontMetricsF(painter.font()).height() + Px(14);
  }
  if (!caption_.isEmpty()) PaintPlate(painter, QPointF(Px(10), y), caption_, false);
}

void LiveView::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) emit Pressed();
}

void LiveView::resizeEvent(QResizeEvent*) { emit RoomChanged(size() * devicePixelRatioF()); }

}  // namespace kinalyx
