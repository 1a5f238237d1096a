#include "video/forms/VideoView.h"

#include <QMouseEvent>
#include <QPainter>

namespace kinalyx {

int ButtonOf(Qt::MouseButton button) {
  switch (button) {
    case Qt::LeftButton: return 1;
    case Qt::RightButton: return 2;
    case Qt::MiddleButton: return 4;
    default: return 0;
  }
}

int ShiftOf(Qt::KeyboardModifiers modifiers) {
  return (modifiers & Qt::ShiftModifier ? 1 : 0) | (modifiers & Qt::ControlModifier ? 2 : 0) |
         (modifiers & Qt::AltModifier ? 4 : 0);
}

VideoView::VideoView(PlayerServices& services, QWidget* parent) : QWidget(parent), control_(services, this) {
  // Every pixel is ours: nothing is painted beneath the picture.
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
}

VideoView::~VideoView() = default;

void VideoView::Present(const Surface& picture) {
  picture_ = picture.Empty() ? nullptr : &picture;
  update();
}

void VideoView::SetBackColor(Colour colour) {
  backColor_ = QColor(Red(colour), Green(colour), Blue(colour));
  update();
}

void VideoView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  if (!picture_) {
    painter.fillRect(rect(), backColor_);
    return;
  }
  QImage image(picture_->Row(0), picture_->Width(), picture_->Height(), picture_->Stride(), QImage::Format_RGB32);
  image.setDevicePixelRatio(devicePixelRatioF());
  painter.drawImage(0, 0, image);
}

void VideoView::resizeEvent(QResizeEvent*) {
  const int wide = qRound(width() * devicePixelRatioF());
  const int high = qRound(height() * devicePixelRatioF());
  // Whoever places the widget may have told the player its size already: its picture stands.
  if (wide == control_.ControlWidthPixels() && high == control_.ControlHeightPixels()) return;
  picture_ = nullptr;  // the surface is about to be made anew
  control_.Resize(wide, high);
}

void VideoView::mousePressEvent(QMouseEvent* event) {
  if (auto* sink = control_.InputSink()) {
    const QPointF at = event->position() * devicePixelRatioF();
    sink->MouseDown(ButtonOf(event->button()), ShiftOf(event->modifiers()), static_cast<float>(at.x()),
                    static_cast<float>(at.y()), control_.ID());
  }
}

void VideoView::mouseMoveEvent(QMouseEvent* event) {
  if (auto* sink = control_.InputSink()) {
    const QPointF at = event->position() * devicePixelRatioF();
    const int buttons = (event->buttons() & Qt::LeftButton ? 1 : 0) | (event->buttons() & Qt::RightButton ? 2 : 0) |
                        (event->buttons() & Qt::MiddleButton ? 4 : 0);
    sink->MouseMove(buttons, ShiftOf(event->modifiers()), static_cast<float>(at.x()), static_cast<float>(at.y()),
                    control_.ID());
  }
}

void VideoView::mouseReleaseEvent(QMouseEvent* event) {
  if (auto* sink = control_.InputSink()) {
    const QPointF at = event->position() * devicePixelRatioF();
    sink->MouseUp(ButtonOf(event->button()), ShiftOf(event->modifiers()), static_cast<float>(at.x()),
                  static_cast<float>(at.y()), control_.ID());
  }
  // The sink may have gone, or been changed for another, in between.
  if (auto* sink = control_.InputSink(); sink && event->button() == Qt::LeftButton) sink->Click(control_.ID());
}

void VideoView::mouseDoubleClickEvent(QMouseEvent* event) {
  // The second press of a fast pair is a press like any other for the tools, and a double click besides.
  mousePressEvent(event);
  if (auto* sink = control_.InputSink()) sink->DblClick(control_.ID());
}

}  // namespace kinalyx
