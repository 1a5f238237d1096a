#include "drawing/MultiShapes.h"

#include "drawing/ShapeGeometry.h"

namespace kinalyx {

void MultiMoveShape(ShapeList& list, int dx, int dy, const ShapeRules& rules) {
  for (Shape& shape : ShapesOf(list)) MoveShape(shape, dx, dy, rules);
}

void MultiPrepTrans(ShapeList& list, const ShapeRules& rules) {
  for (Shape& shape : ShapesOf(list)) PrepTrans(shape, rules);
}

void MultiDoneTrans(ShapeList& list, const ShapeRules& rules) {
  for (Shape& shape : ShapesOf(list)) DoneTrans(shape, rules);
}

void MultiRotateShape(ShapeList& list, double Angle, POINTAPI Centre, const ShapeRules& rules) {
  for (Shape& shape : ShapesOf(list)) RotateShape(shape, Angle, Centre, rules);
}

void MultiScaleShape(ShapeList& list, double Factor, POINTAPI Centre, const ShapeRules& rules) {
  for (Shape& shape : ShapesOf(list)) ScaleShape(shape, Factor, Centre, rules);
}

POINTAPI MultiGetMid(const ShapeList& list, const ShapeRules& rules) {
  const auto shapes = ShapesOf(list);
  if (shapes.empty()) return {};
  std::int64_t x = 0;
  std::int64_t y = 0;
  for (const Shape& shape : shapes) {
    const POINTAPI middle = GetMid(shape, rules);
    x += middle.x;
    y += middle.y;
  }
  const auto count = static_cast<std::int64_t>(shapes.size());
  return {static_cast<std::int32_t>(x / count), static_cast<std::int32_t>(y / count)};
}

}  // namespace kinalyx
