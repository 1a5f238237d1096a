#pragma once

#include "drawing/Shape.h"
#include "drawing/ShapeLog.h"

namespace kinalyx {

// The transforms of a single shape, done to all shapes of a window as if they were one.

void MultiMoveShape(ShapeList& list, int dx, int dy, const ShapeRules& rules = {});
void MultiPrepTrans(ShapeList& list, const ShapeRules& rules = {});
void MultiDoneTrans(ShapeList& list, const ShapeRules& rules = {});
void MultiRotateShape(ShapeList& list, double Angle, POINTAPI Centre, const ShapeRules& rules = {});
void MultiScaleShape(ShapeList& list, double Factor, POINTAPI Centre, const ShapeRules& rules = {});
/// The mean of the middles of all shapes, cut to whole pixels; the origin for an empty list.
POINTAPI MultiGetMid(const ShapeList& list, const ShapeRules& rules = {});

}  // namespace kinalyx
