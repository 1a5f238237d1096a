#pragma once

#include <cstdint>
#include <string>

#include "drawing/Shape.h"
#include "drawing/ShapeLog.h"

namespace kinalyx {

std::string GetShapeName(int Kind, const ShapeRules& rules = {});
/// True for a kind with an open list of points.
bool LOPShape(int Kind, const ShapeRules& rules = {});
/// Removes one shape; the last that goes leaves its stale slot in the array. NumShapes falls by one also
/// for an index beyond the end; an empty list stays as it is. CurShape is left to the caller.
void KillShape(ShapeList& List, int Index, const ShapeRules& rules = {});

/// What finishing a shape causes beside the store.
class IShapeLocked {
 public:
  virtual ~IShapeLocked() = default;
  /// 25: the tool's caption ends and the random colour steps on.
  virtual void VectorColorUpdate(int Kind) = 0;
  virtual void DrawingOff() = 0;
};

/// The state of the shape engine and the operations that need it. Made once; everybody who draws is
/// handed a reference. Everything else about shapes is plain functions over the records.
class ShapeEngine {
 public:
  kinalyx::ShapeLists ShapeLists;
  bool StraightMode = false;  ///< the next Line or Arrow is held level or upright
  struct {
    std::int32_t x = 0;
    std::int32_t y = 0;
    bool Set = false;
  } StraightAnchor;
  bool EllipseFromCentre = false;
  Colour CadColor = 0;         ///< the current vector colour
  bool PathHighlight = false;  ///< set by the first finished path that is painted
  ShapeLog Log;                ///< of every operation; off

  /// Who is told of finished shapes; not owned, may be null.
  void SetLockListener(IShapeLocked* listener) { listener_ = listener; }

  ShapeRules Rules() const { return {EllipseFromCentre, &Log}; }

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
  /// Appends a copy of a shape's fixed points; a clock's rotation is not copied. A locked shape is
  /// finished like any other, listener and all. Indexes outside the list do nothing.
  void CopyShapeInto(const ShapeList& SourceList, ShapeList& DestList, int Index);
  /// In straight mode the first point becomes the anchor, and each later one is put on the level or the
  /// upright line through it, whichever is nearer; a tie is upright.
  POINTAPI ConstrainPoint(POINTAPI Point);

 private:
  IShapeLocked* listener_ = nullptr;
};

}  // namespace kinalyx
