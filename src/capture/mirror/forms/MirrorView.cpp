#include "capture/mirror/forms/MirrorView.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {
namespace {

constexpr QColor kPlate(0, 0, 0, 150);
constexpr QColor kVeil(0, 0, 0, 165);
/// Of the height of a pane, and of the window: letters that are read from ten metres on a large screen.
constexpr int kBadgeOfPane = 8;
constexpr int kBadgeOfWindow = 11;
constexpr int kLeastBadge = 22;
constexpr int kFrame = 3;

QFont PlateFont(int pixels) {
  QFont font = UiFont(kTextPixels, 600);
  font.setPixelSize(pixels);
  return font;
}

}  // namespace

QSizeF PlateSize(const QString& text, int pixels) {
  const QFontMetricsF metrics(PlateFont(pixels));
  return {metrics.horizontalAdvance(text) + pixels, metrics.height() + pixels * 0.3};
}

void PaintPlate(QPainter& painter, QPointF at, const QString& text, int pixels) {
  const QRectF plate(at, PlateSize(text, pixels));
  painter.setFont(PlateFont(pixels));
  painter.setPen(Qt::NoPen);
  painter.setBrush(kPlate);
  painter.drawRoundedRect(plate, plate.height() * 0.3, plate.height() * 0.3);
  painter.setPen(Qt::white);
  painter.drawText(plate, Qt::AlignCenter, text);
}

MirrorView::MirrorView(int pane, QWidget* parent) : QWidget(parent), pane_(pane) {
  setObjectName(QString("MirrorView%1").arg(pane + 1));
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
}

void MirrorView::ShowSight(MirrorPane::Sight sight) {
  sight_ = std::move(sight);
  update();
}

void MirrorView::SetBadge(const QString& badge) {
  if (badge_ == badge) return;
  badge_ = badge;
  setAccessibleName(badge);
  update();
}

void MirrorView::SetNote(const PaneNote& note) {
  if (note_ == note) return;
  note_ = note;
  setAccessibleDescription(Q(note.text));
  update();
}

void MirrorView::SetChosen(bool chosen) {
  if (chosen_ == chosen) return;
  chosen_ = chosen;
  update();
}

void MirrorView::SetWindowHeight(int height) { windowHeight_ = height; }

QRectF MirrorView::PictureRoom() const {
  const double aspect = sight_.picture.aspect > 0 ? sight_.picture.aspect : 16.0 / 9;
  const double width = std::min<double>(this->width(), height() * aspect);
  const QSizeF size(width, width / aspect);
  return {QPointF((this->width() - size.width()) / 2, (height() - size.height()) / 2), size};
}

void MirrorView::paintEvent(QPaintEvent*) {
  const Theme theme = CurrentTheme();
  QPainter painter(this);
  painter.fillRect(rect(), Qt::black);
  const LivePicture& picture = sight_.picture;
  QRectF room = PictureRoom();
  if (picture.pixels) {
    QImage image(picture.pixels.get(), picture.width, picture.height, picture.stride, QImage::Format_RGB32);
    const qreal ratio = devicePixelRatioF();
    // It has been made for this room: whole pixels need no smoothing.
    const QSizeF made = QSizeF(image.size()) / ratio;
    if (std::abs(made.width() - room.width()) < 1 && std::abs(made.height() - room.height()) < 1) {
      image.setDevicePixelRatio(ratio);
      room = QRectF(room.toRect().topLeft(), made);
      painter.drawImage(room.topLeft(), image);
    } else {
      painter.setRenderHint(QPainter::SmoothPixmapTransform);
      painter.drawImage(room, image);
    }
  } else {
    room = rect();
  }
  painter.setRenderHint(QPainter::Antialiasing);
  if (picture.pixels && (sight_.standIn || note_.instead)) painter.fillRect(room, kVeil);
  PaintNote(painter, room);
  PaintBadge(painter, room);
  if (!chosen_) return;
  painter.setPen(QPen(theme.stageFrame, kFrame));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5));
}

void MirrorView::PaintBadge(QPainter& painter, const QRectF& room) const {
  // The picture behind words is not what the badge says.
  if (badge_.isEmpty() || note_.instead || !sight_.picture.pixels) return;
  int pixels = std::max(kLeastBadge, std::min(height() / kBadgeOfPane, windowHeight_ / kBadgeOfWindow));
  const double most = room.width() * 0.8;
  if (const double width = PlateSize(badge_, pixels).width(); width > most)
    pixels = std::max(1, static_cast<int>(pixels * most / width));
  PaintPlate(painter, room.topLeft() + QPointF(pixels * 0.35, pixels * 0.35), badge_, pixels);
}

void MirrorView::PaintNote(QPainter& painter, const QRectF& room) const {
  if (note_.text.empty()) return;
  const QString text = Q(note_.text);
  if (!note_.instead) {
    int pixels = std::max(Px(14), height() / 26);
    if (const double width = PlateSize(text, pixels).width(); width > room.width() - 16)
      pixels = std::max(1, static_cast<int>(pixels * (room.width() - 16) / width));
    const QSizeF size = PlateSize(text, pixels);
    PaintPlate(painter, {room.center().x() - size.width() / 2, room.bottom() - size.height() - pixels * 3.5}, text,
               pixels);
    return;
  }
  QFont font = UiFont(kTextPixels, 600);
  font.setPixelSize(std::max(Px(15), std::min(height() / 12, width() / 22)));
  painter.setFont(font);
  painter.setPen(Qt::white);
  const double margin = room.width() * 0.06;
  painter.drawText(room.adjusted(margin, 0, -margin, 0), Qt::AlignCenter | Qt::TextWordWrap, text);
}

void MirrorView::resizeEvent(QResizeEvent*) { emit RoomChanged(pane_, size() * devicePixelRatioF()); }

void MirrorView::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) emit Clicked(pane_);
}

void MirrorView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) emit DoubleClicked(pane_);
}

}  // namespace kinalyx
