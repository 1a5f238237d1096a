#include "workspace/forms/TakenHalo.h"

#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include "workspace/forms/StageLook.h"

namespace kinalyx {
namespace {

constexpr double kGlow = 5;    // pixels of the halo on either side of a line and its rim
constexpr double kRim = 2.5;   // of a line, left free
constexpr double kHandle = 5;  // radius

}  // namespace

TakenHalo::TakenHalo(QWidget* stage) : QWidget(stage) {
  setObjectName("TakenHalo");
  setAttribute(Qt::WA_TransparentForMouseEvents);
  hide();
}

QPointF TakenHalo::OnStage(POINTAPI point) const {
  return corner_ + QPointF(point.x + 0.5, point.y + 0.5) / devicePixelRatioF();
}

void TakenHalo::ShowMarks(const TakenMarks& marks, const QRect& room, QPointF corner) {
  const bool moved = corner != corner_ || room != room_;
  if (!moved && marks == marks_ && !isHidden()) return;
  marks_ = marks;
  corner_ = corner;
  room_ = room;
  QRectF all;
  const auto add = [&](POINTAPI point) { all = all.united(QRectF(OnStage(point) - QPointF(1, 1), QSizeF(2, 2))); };
  for (const Polyline& line : marks_.lines)
    for (const POINTAPI& point : line) add(point);
  for (const POINTAPI& point : marks_.handles) add(point);
  const int edge = static_cast<int>(kGlow + kRim + kHandle) + marks_.width;
  // It covers what is painted and no more: what lies over a video is composed anew with each of its frames.
  const QRect place = all.toAlignedRect().adjusted(-edge, -edge, edge, edge) & room_;
  setVisible(!place.isEmpty());
  if (place != geometry()) setGeometry(place);
  update();
}

void TakenHalo::paintEvent(QPaintEvent*) {
  const StageLook look = StageLook::Current();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(-geometry().topLeft());
  QPainterPath lines;
  for (const Polyline& line : marks_.lines) {
    if (line.empty()) continue;
    lines.moveTo(OnStage(line.front()));
    for (const POINTAPI& point : line) lines.lineTo(OnStage(point));
  }
  // The halo runs beside the line, whose colour stays what it is: the line is cut out of it.
  const double ratio = devicePixelRatioF();
  const double line = marks_.width / ratio + 2 * kRim;
  QImage halo(size() * ratio, QImage::Format_ARGB32_Premultiplied);
  halo.setDevicePixelRatio(ratio);
  halo.fill(Qt::transparent);
  {
    QPainter on(&halo);
    on.setRenderHint(QPainter::Antialiasing);
    on.translate(-geometry().topLeft());
    const auto stroke = [&](double width, int alpha) {
      QColor colour = look.accent;
      colour.setAlpha(alpha);
      on.strokePath(lines, QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    };
    on.setCompositionMode(QPainter::CompositionMode_Source);
    stroke(line + 2 * kGlow, 110);
    stroke(line + kGlow, 190);
    stroke(line, 0);
  }
  painter.drawImage(geometry().topLeft(), halo);
  painter.setPen(QPen(QColor(0, 0, 0, 170), 1));
  for (const POINTAPI& point : marks_.handles) {
    painter.setBrush(Qt::white);
    painter.drawEllipse(OnStage(point), kHandle, kHandle);
  }
  painter.setPen(QPen(look.accent, 2));
  painter.setBrush(Qt::NoBrush);
  for (const POINTAPI& point : marks_.handles) painter.drawEllipse(OnStage(point), kHandle - 1.5, kHandle - 1.5);
}

}  // namespace kinalyx
