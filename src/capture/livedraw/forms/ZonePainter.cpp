#include "capture/livedraw/forms/ZonePainter.h"

#include <QPainter>

#include "capture/livedraw/LiveDrawSession.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {
namespace {

constexpr QColor kHot(255, 106, 43);
constexpr QColor kIdle(255, 214, 102);
constexpr QColor kRim(0, 0, 0, 130);
constexpr double kRound = 5;

QRectF PlaceOf(const MotionRect& place, const QRectF& box) {
  return {box.left() + place.left * box.width(), box.top() + place.top * box.height(), place.width * box.width(),
          place.height * box.height()};
}

void Outline(QPainter& painter, const QRectF& at, const QColor& colour, double width, Qt::PenStyle style) {
  painter.setBrush(Qt::NoBrush);
  // Light or dark, the ground lets one of the two be seen.
  painter.setPen(QPen(kRim, width + 2));
  painter.drawRoundedRect(at, kRound, kRound);
  painter.setPen(QPen(colour, width, style));
  painter.drawRoundedRect(at, kRound, kRound);
}

void PaintNumber(QPainter& painter, const QRectF& at, int number, const QColor& colour) {
  const double side = Px(20);
  const QRectF plate(at.left() + 4, at.top() + 4, side, side);
  if (plate.right() > at.right() || plate.bottom() > at.bottom()) return;
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0, 0, 0, 165));
  painter.drawRoundedRect(plate, 4, 4);
  painter.setFont(UiFont(kTextPixels));
  painter.setPen(colour);
  painter.drawText(plate, Qt::AlignCenter, QString::number(number));
}

void PaintHandles(QPainter& painter, const QRectF& at) {
  constexpr double kRadius = 4.5;
  painter.setPen(QPen(QColor(0, 0, 0, 170), 1));
  painter.setBrush(Qt::white);
  for (const double x : {at.left(), at.center().x(), at.right()})
    for (const double y : {at.top(), at.center().y(), at.bottom()})
      if (QPointF(x, y) != at.center()) painter.drawEllipse(QPointF(x, y), kRadius, kRadius);
}

}  // namespace

void PaintZones(QPainter& painter, const QRectF& box, const LiveDrawSession& session) {
  painter.setRenderHint(QPainter::Antialiasing);
  for (const HotZone& zone : session.Zones().All()) {
    const QRectF at = PlaceOf(zone.place, box);
    const double glow = session.Glow(zone.id);
    const bool hot = session.Moves(zone.id) || glow > 0;
    const QColor colour = glow > 0 ? Mix(kIdle, kHot, std::min(1.0, glow * 1.6)) : hot ? kHot : kIdle;
    if (glow > 0) {
      QColor fill = kHot;
      fill.setAlphaF(static_cast<float>(0.38 * glow));
      painter.setPen(Qt::NoPen);
      painter.setBrush(fill);
      painter.drawRoundedRect(at, kRound, kRound);
      QColor halo = kHot;
      halo.setAlphaF(static_cast<float>(0.55 * glow));
      painter.setBrush(Qt::NoBrush);
      painter.setPen(QPen(halo, 3 + 9 * glow));
      painter.drawRoundedRect(at, kRound, kRound);
    }
    Outline(painter, at, colour, hot ? 3 : 2, Qt::SolidLine);
    if (session.WordsShown()) PaintNumber(painter, at, zone.id, colour);
    if (session.Zones().Taken() == zone.id) PaintHandles(painter, at);
  }
  if (const auto draft = session.Draft()) Outline(painter, PlaceOf(*draft, box), kIdle, 2, Qt::DashLine);
}

}  // namespace kinalyx
