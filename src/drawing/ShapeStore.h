#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "drawing/Shape.h"
#include "drawing/ShapeGeometry.h"
#include "drawing/ShapeLog.h"

namespace kinalyx {

/// What finishing a shape causes beside the store.
class IShapeLocked {
 public:
  virtual ~IShapeLocked() = default;
  /// The tool's caption ends and the random colour steps on.
  virtual void AnnouncementOver() = 0;
  virtual void DrawingOff() = 0;
};

/// The state of the shape engine and its operations on shapes and lists, each of which the log tells of.
/// Made once; everybody who draws is handed a reference. What needs neither state nor log is plain
/// functions over the records.
class ShapeEngine {
 public:
  kinalyx::ShapeLists ShapeLists;
  bool StraightMode = false;  ///< the next Line or Arrow is held level or upright
  struct {
    std::int32_t x = 0;
    std::int32_t y = 0;
    bool Set = false;
  } StraightAnchor;
  /// False: the two points of an Ellipse or Clock are opposite corners of its box; true: the first is its centre.
  bool EllipseFromCentre = false;
  Colour CadColor = 0;         ///< the current vector colour
  bool PathHighlight = false;  ///< set by the first finished path that is painted
  ShapeLog Log;

  /// Who is told of finished shapes; not owned, may be null.
  void SetLockListener(IShapeLocked* listener) { listener_ = listener; }

  /// A number that no shape has had yet.
  std::uint32_t NewId() { return ++lastId_; }

  std::string GetShapeName(int Kind) const;
  /// True for a kind with an open list of points.
  bool LOPShape(int Kind) const;
  /// Appends an empty shape, marks the list as adding and returns the shape. Colour 0 stands for the
  /// current vector colour. A list of 32767 shapes takes no more: null.
  Shape* AddShape(ShapeList& List, int Kind, Colour Colour);
  /// Fixes the next point of a shape, or floats it under the mouse.
  /// @param Bind  true fixes the point; false replaces the floating one
  /// @return true when this call finished the shape; a locked or full shape, or a point equal to the
  ///         last fixed one, is refused with false and no change
  bool AddPoint(Shape& shape, POINTAPI Point, bool Bind);
  /// Finishes a shape: a floating point is dropped, straight mode ends, the listener is told.
  void LockShape(Shape& shape);
  /// Removes one shape; the last that goes leaves its stale slot in the array. NumShapes falls by one also
  /// for an index beyond the end; an empty list stays as it is. CurShape is left to the caller.
  void KillShape(ShapeList& List, int Index) const;
  /// Appends a copy of a shape's fixed points; a clock's rotation is not copied. A locked shape is
  /// finished like any other, listener and all. Indexes outside the list do nothing.
  void CopyShapeInto(const ShapeList& SourceList, ShapeList& DestList, int Index);
  /// In straight mode the first point becomes the anchor, and each later one is put on the level or the
  /// upright line through it, whichever is nearer; a tie is upright.
  POINTAPI ConstrainPoint(POINTAPI Point);
  /// What to tell the user when a shape could not be drawn.
  std::string DrawShapeError(const Shape& shape) const;

  // Transforms: only finished shapes are changed.

  void MoveShape(Shape& shape, int dx, int dy) const;
  /// Keeps the points from which RotateShape and ScaleShape compute, so that a whole drag is one transform.
  void PrepTrans(Shape& shape) const;
  void DoneTrans(Shape& shape) const;
  /// Turns by `Angle` degrees from where PrepTrans found the shape. A plus sign, square or ellipse becomes
  /// a kind that can be turned; a clock turns its ticks alone.
  void RotateShape(Shape& shape, double Angle, POINTAPI Centre) const;
  void ScaleShape(Shape& shape, double Factor, POINTAPI Centre) const;
  /// Replaces a kind that two points cannot turn by its explicit points: a plus sign or ellipse becomes a
  /// freehand line, a square a parallelogram. Others stay.
  void RenderShape(Shape& shape) const;
  /// The point about which a shape turns and scales: the middle of its box, a clock's first point.
  POINTAPI GetMid(const Shape& shape) const;
  /// The box of all that shapes show, which for some kinds is more than their points; pens are not counted.
  ShapeBox BoxOf(std::span<const Shape> shapes) const;

  // The same, done to all shapes of a window as if they were one.

  void MultiMoveShape(ShapeList& list, int dx, int dy) const;
  void MultiPrepTrans(ShapeList& list) const;
  void MultiDoneTrans(ShapeList& list) const;
  void MultiRotateShape(ShapeList& list, double Angle, POINTAPI Centre) const;
  void MultiScaleShape(ShapeList& list, double Factor, POINTAPI Centre) const;
  /// The mean of the middles of all shapes, cut to whole pixels; the origin for an empty list.
  POINTAPI MultiGetMid(const ShapeList& list) const;

 private:
  IShapeLocked* listener_ = nullptr;
  std::uint32_t lastId_ = 0;
};

}  // namespace kinalyx
