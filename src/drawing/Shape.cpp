#include "drawing/Shape.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

#include "drawing/ShapeGeometry.h"

namespace kinalyx {
namespace {

/// How many of `size` elements a count of a record may address.
std::size_t Usable(int count, std::size_t size) { return std::min(static_cast<std::size_t>(std::max(count, 0)), size); }

std::size_t WindowIndex(int window) {
  return static_cast<std::size_t>(std::clamp(window, 1, ShapeLists::kWindows) - 1);
}

template <typename List>
auto* Selected(List& list) {
  const auto shapes = ShapesOf(list);
  return list.CurShape >= 0 && static_cast<std::size_t>(list.CurShape) < shapes.size()
             ? &shapes[static_cast<std::size_t>(list.CurShape)]
             : nullptr;
}

}  // namespace

const ShapeInf& InfOf(int Kind) {
  static constexpr ShapeInf kUnknown{"", 0, false, ""};
  return Kind >= 0 && Kind < kShapeKinds ? ShapeInfs[static_cast<std::size_t>(Kind)] : kUnknown;
}

int ShapeTime::OpacityOn(int frame) const {
  constexpr int kFull = 255;
  if (Always()) return kFull;
  const std::int64_t away = std::max(std::int64_t{First} - frame, std::int64_t{frame} - Last);
  if (away <= 0) return kFull;
  const std::int64_t fade = std::max(0, Fade);
  return away > fade ? 0 : static_cast<int>(kFull * (fade + 1 - away) / (fade + 1));
}

int LetterHeight(const Shape& shape) {
  constexpr int kUsual = 28;
  return shape.Width > 0 ? std::clamp<int>(shape.Width, kLeastLetters, kMostLetters) : kUsual;
}

std::span<const POINTAPI> PointsOf(const Shape& shape) {
  return std::span(shape.Pts).first(Usable(shape.NumPts, shape.Pts.size()));
}

std::span<POINTAPI> BoundPoints(Shape& shape) {
  return std::span(shape.Pts).first(Usable(shape.NumBound, shape.Pts.size()));
}

std::span<const POINTAPI> BoundPoints(const Shape& shape) {
  return std::span(shape.Pts).first(Usable(shape.NumBound, shape.Pts.size()));
}

int ClockRotation(const Shape& shape) {
  return shape.Kind == kClock && shape.Pts.size() > 2 ? static_cast<std::int16_t>(shape.Pts[2].x) : 0;
}

std::span<Shape> ShapesOf(ShapeList& list) {
  return std::span(list.Shapes).first(Usable(list.NumShapes, list.Shapes.size()));
}

std::span<const Shape> ShapesOf(const ShapeList& list) {
  return std::span(list.Shapes).first(Usable(list.NumShapes, list.Shapes.size()));
}

std::vector<Shape> DrawingsOf(const ShapeList& list) {
  std::vector<Shape> drawings;
  std::ranges::copy_if(ShapesOf(list), std::back_inserter(drawings),
                       [](const Shape& shape) { return !shape.Measuring; });
  return drawings;
}

Shape* LastShape(ShapeList& list) {
  const auto shapes = ShapesOf(list);
  return shapes.empty() ? nullptr : &shapes.back();
}

Shape* SelectedShape(ShapeList& list) { return Selected(list); }
const Shape* SelectedShape(const ShapeList& list) { return Selected(list); }

ShapeList& ShapeLists::operator()(int window) { return lists_[WindowIndex(window)]; }
const ShapeList& ShapeLists::operator()(int window) const { return lists_[WindowIndex(window)]; }

void FlipShapes(ShapeList& list, int width) {
  for (Shape& shape : ShapesOf(list))
    for (POINTAPI& point : BoundPoints(shape)) point.x = Round(static_cast<double>(width) - point.x);
}

void StretchShapes(ShapeList& list, double ScaleX, double ScaleY) {
  for (Shape& shape : ShapesOf(list)) {
    const std::size_t count = PointsOf(shape).size();
    for (POINTAPI& point : std::span(shape.Pts).first(count))
      point = {Round(point.x * ScaleX), Round(point.y * ScaleY)};
    // Letters grow with the picture, as figures do; the pen does not.
    if (IsText(shape))
      shape.Width = Round16(std::clamp(LetterHeight(shape) * ScaleY, 1.0 * kLeastLetters, 1.0 * kMostLetters));
  }
}

void StretchShapes(ShapeList& list, int oldWidth, int oldHeight, int newWidth, int newHeight) {
  if (oldWidth <= 0 || oldHeight <= 0 || newWidth <= 0 || newHeight <= 0) return;
  if (oldWidth == newWidth && oldHeight == newHeight) return;
  StretchShapes(list, static_cast<double>(newWidth) / oldWidth, static_cast<double>(newHeight) / oldHeight);
}

}  // namespace kinalyx
