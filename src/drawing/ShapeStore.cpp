#include "drawing/ShapeStore.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace kinalyx {
namespace {

constexpr std::int16_t kMost = std::numeric_limits<std::int16_t>::max();

const char* BoolText(bool value) { return value ? "True" : "False"; }

}  // namespace

std::string ShapeEngine::GetShapeName(int Kind) const {
  Log.Tell("Calling GetShapeName({})", Kind);
  return std::string(InfOf(Kind).Name);
}

bool ShapeEngine::LOPShape(int Kind) const {
  Log.Tell("Calling LOPShape({})", Kind);
  return InfOf(Kind).NumPoints == kOpenPoints;
}

void ShapeEngine::KillShape(ShapeList& List, int Index) const {
  Log.Tell("Calling KillShape({})", Index);
  if (List.NumShapes <= 0) return;
  if (Index >= 0 && Index < List.NumShapes - 1)
    std::move(List.Shapes.begin() + Index + 1, List.Shapes.begin() + List.NumShapes, List.Shapes.begin() + Index);
  --List.NumShapes;
  if (List.NumShapes > 0) List.Shapes.resize(static_cast<std::size_t>(List.NumShapes));
}

Shape* ShapeEngine::AddShape(ShapeList& List, int Kind, Colour Colour) {
  Log.Tell("Calling AddShape({})", Kind);
  if (List.NumShapes == kMost) return nullptr;
  List.Shapes.resize(static_cast<std::size_t>(List.NumShapes) + 1);
  Shape& shape = List.Shapes.back();
  shape = {};
  shape.Id = NewId();
  shape.Kind = static_cast<std::int16_t>(Kind);
  const int points = InfOf(Kind).NumPoints;
  shape.Pts.resize(points == kOpenPoints ? 1 : static_cast<std::size_t>(points) + 1);
  shape.Colour = Colour != 0 ? Colour : CadColor;
  List.Adding = true;
  ++List.NumShapes;
  return &shape;
}

bool ShapeEngine::AddPoint(Shape& shape, POINTAPI Point, bool Bind) {
  Log.Tell("Calling AddPoint(({}, {}), {})", Point.x, Point.y, BoolText(Bind));
  const auto bound = BoundPoints(shape);
  if (!bound.empty() && bound.back() == Point) return false;
  if (shape.Locked || shape.NumBound == kMost) return false;
  const auto place = static_cast<std::size_t>(shape.NumBound);
  // A freehand line grows with each point; the others have their places from the start.
  const bool open = LOPShape(shape.Kind);
  if (open || shape.Pts.size() <= place) shape.Pts.resize(place + 1);
  shape.Pts[place] = Point;
  shape.NumPts = static_cast<std::int16_t>(shape.NumBound + 1);
  if (!Bind) return false;
  shape.NumBound = shape.NumPts;
  if (shape.NumBound != InfOf(shape.Kind).NumPoints || open) return false;
  LockShape(shape);
  return true;
}

void ShapeEngine::LockShape(Shape& shape) {
  Log.Tell("Calling LockShape()");
  shape.Locked = true;
  shape.NumPts = shape.NumBound;
  StraightMode = false;
  StraightAnchor.Set = false;
  if (!listener_) return;
  listener_->AnnouncementOver();
  listener_->DrawingOff();
}

void ShapeEngine::CopyShapeInto(const ShapeList& SourceList, ShapeList& DestList, int Index) {
  if (Index < 0 || static_cast<std::size_t>(Index) >= ShapesOf(SourceList).size()) return;
  // By value: source and destination may be the same list, which grows.
  const Shape source = SourceList.Shapes[static_cast<std::size_t>(Index)];
  Shape* copy = AddShape(DestList, source.Kind, source.Colour);
  if (!copy) return;
  copy->Text = source.Text;
  copy->Width = source.Width;
  for (const POINTAPI& point : BoundPoints(source)) AddPoint(*copy, point, true);
  if (!source.Locked) return;
  LockShape(*copy);
  DestList.Adding = false;
}

std::string ShapeEngine::DrawShapeError(const Shape& shape) const {
  return fmt::format("Error drawing '{}' object with {} points, and {} unbound points", GetShapeName(shape.Kind),
                     shape.NumBound, shape.NumPts - shape.NumBound);
}

POINTAPI ShapeEngine::ConstrainPoint(POINTAPI Point) {
  if (!StraightMode) return Point;
  if (!StraightAnchor.Set) {
    StraightAnchor = {Point.x, Point.y, true};
    return Point;
  }
  const auto dx = std::llabs(std::int64_t{StraightAnchor.x} - Point.x);
  const auto dy = std::llabs(std::int64_t{StraightAnchor.y} - Point.y);
  return dx <= dy ? POINTAPI{StraightAnchor.x, Point.y} : POINTAPI{Point.x, StraightAnchor.y};
}

}  // namespace kinalyx
