#pragma once

#include <QRectF>

class QPainter;

namespace kinalyx {

class LiveDrawSession;

/// Lays the hot zones over the picture: an outline, and a number where words are wanted; one in which something moves
/// is bright, one that has fired glows and fades, and one that is taken has handles.
/// @param box  of the picture, where the painter paints
void PaintZones(QPainter& painter, const QRectF& box, const LiveDrawSession& session);

}  // namespace kinalyx
