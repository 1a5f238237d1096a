#include "capture/livedraw/forms/LiveDrawPicture.h"

#include <QMouseEvent>
#include <QPainter>
#include <cmath>

#include "capture/livedraw/forms/ZonePainter.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"
#include "workspace/forms/LetterBox.h"
#include "workspace/forms/TakenHalo.h"

namespace kinalyx {
namespace {

int ButtonOf(Qt::MouseButtons buttons) {
  return buttons & Qt::LeftButton ? 1 : buttons & Qt::RightButton ? 2 : buttons & Qt::MiddleButton ? 4 : 0;
}

Qt::CursorShape CursorOf(LivePointer pointer) {
  switch (pointer) {
    case LivePointer::Shape: return Qt::OpenHandCursor;
    case LivePointer::Point: return Qt::PointingHandCursor;
    case LivePointer::Zone: return Qt::SizeAllCursor;
    case LivePointer::ZoneLevel: return Qt::SizeHorCursor;
    case LivePointer::ZoneUpright: return Qt::SizeVerCursor;
    case LivePointer::ZoneFalling: return Qt::SizeFDiagCursor;
    case LivePointer::ZoneRising: return Qt::SizeBDiagCursor;
    case LivePointer::NewZone: return Qt::CrossCursor;
    case LivePointer::Nothing: break;
  }
  return Qt::ArrowCursor;
}

}  // namespace

LiveDrawPicture::LiveDrawPicture(LiveDrawSession& session, QWidget* parent) : QWidget(parent), session_(session) {
  setObjectName("LiveDrawPicture");
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
  setFocusPolicy(Qt::ClickFocus);
  halo_ = new TakenHalo(this);
  letters_ = new LetterBox(this);
  connect(letters_, &LetterBox::Typed, this,
          [this](const QString& text) { session_.WriteText(asked_, Std(text), anew_); });
  connect(letters_, &LetterBox::Done, this, &LiveDrawPicture::KeysFree);
}

void LiveDrawPicture::SetWords(const QString& words) {
  if (words_ == words) return;
  words_ = words;
  setAccessibleDescription(words);
  update();
}

void LiveDrawPicture::ShowPointer(LivePointer pointer) { setCursor(CursorOf(pointer)); }

QRect LiveDrawPicture::PictureRect() const {
  const PictureBox box = session_.Box();
  const double ratio = devicePixelRatioF();
  return QRectF(box.left / ratio, box.top / ratio, box.width / ratio, box.height / ratio).toAlignedRect();
}

QPoint LiveDrawPicture::OnDesktop(POINTAPI at) const {
  const PictureBox box = session_.Box();
  return mapToGlobal((QPointF(box.left + at.x, box.top + at.y) / devicePixelRatioF()).toPoint());
}

void LiveDrawPicture::AskText(POINTAPI at, const QString& text) {
  asked_ = at;
  anew_ = !text.isEmpty();
  letters_->Ask(mapFromGlobal(OnDesktop(at)), PictureRect(), text);
}

void LiveDrawPicture::Renew() {
  ShowTaken();
  update();
}

void LiveDrawPicture::ShowTaken() {
  const auto marks = session_.Board().HasPicture() ? session_.Board().Hand().MarksIn(DrawingBoard::kWindow)
                                                   : std::optional<TakenMarks>();
  if (!marks) return halo_->hide();
  const PictureBox box = session_.Box();
  halo_->ShowMarks(*marks, PictureRect(), QPointF(box.left, box.top) / devicePixelRatioF());
}

void LiveDrawPicture::paintEvent(QPaintEvent*) {
  const Theme theme = CurrentTheme();
  QPainter painter(this);
  painter.fillRect(rect(), theme.stage);
  const Surface& surface = session_.Compose();
  if (!surface.Empty()) {
    QImage image(surface.Row(0), surface.Width(), surface.Height(), surface.Stride(), QImage::Format_RGB32);
    image.setDevicePixelRatio(devicePixelRatioF());
    const PictureBox box = session_.Box();
    const QPointF corner = QPointF(box.left, box.top) / devicePixelRatioF();
    painter.drawImage(corner, image);
    PaintZones(painter, QRectF(corner, QSizeF(box.width, box.height) / devicePixelRatioF()), session_);
  }
  if (words_.isEmpty()) return;
  painter.setFont(UiFont(kTextPixels));
  painter.setPen(theme.stageText);
  const QRect room = rect().adjusted(Px(24), Px(16), -Px(24), -Px(16));
  painter.drawText(room, Qt::AlignCenter | Qt::TextWordWrap, words_);
}

void LiveDrawPicture::resizeEvent(QResizeEvent*) {
  const QSize room = size() * devicePixelRatioF();
  session_.SetRoom(room.width(), room.height());
  ShowTaken();
}

POINTAPI LiveDrawPicture::OnScreen(const QMouseEvent& event) const {
  const QPointF at = event.position() * devicePixelRatioF();
  return {static_cast<int>(std::floor(at.x())), static_cast<int>(std::floor(at.y()))};
}

void LiveDrawPicture::mousePressEvent(QMouseEvent* event) {
  session_.MouseDown(ButtonOf(event->button()), event->modifiers() & Qt::ShiftModifier, OnScreen(*event));
}

void LiveDrawPicture::mouseMoveEvent(QMouseEvent* event) {
  session_.MouseMove(ButtonOf(event->buttons()), event->modifiers() & Qt::ShiftModifier, OnScreen(*event));
}

void LiveDrawPicture::mouseReleaseEvent(QMouseEvent* event) {
  session_.MouseUp(ButtonOf(event->button()), event->modifiers() & Qt::ShiftModifier, OnScreen(*event));
}

void LiveDrawPicture::mouseDoubleClickEvent(QMouseEvent* event) {
  mousePressEvent(event);
  session_.MouseTwice(OnScreen(*event));
}

}  // namespace kinalyx
