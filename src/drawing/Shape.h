#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/Twips.h"
#include "platform/files/Tr.h"
#include "platform/paint/Geometry.h"

namespace kinalyx {

/// The kinds of shape, in the order of the table and of the drawing files.
enum ShapeKind : std::int16_t {
  kFreehand,
  kFlag,
  kSquare,
  kLine,
  kEllipse,
  kAngle,
  kSwingPath,
  kParallelogram,
  kZone,
  kClock,
  kArrow,
  kStickMan
};

/// One kind of shape.
struct ShapeInf {
  std::string_view Name;
  std::int16_t NumPoints = 0;    ///< points that complete the shape; kOpenPoints: any number
  bool Drawable = true;          ///< false: never painted
  std::string_view ToolCaption;  ///< as the tool is announced; empty for a kind without a tool
};

constexpr std::int16_t kOpenPoints = 999;
constexpr int kShapeKinds = 12;

inline constexpr std::array<ShapeInf, kShapeKinds> ShapeInfs{{
    {TrLater("Freehand"), kOpenPoints, true, TrLater("Freehand")},
    {TrLater("Flag"), 1, true, TrLater("a Plus Sign")},
    {TrLater("Square"), 2, true, TrLater("a Square")},
    {TrLater("Line"), 2, true, TrLater("a Line")},
    {TrLater("Ellipse"), 2, true, TrLater("a Circle")},
    {TrLater("Angle"), 3, true, TrLater("a Angle")},
    {TrLater("Swing path"), kOpenPoints, true, TrLater("a Path Trace")},
    {TrLater("Parallelogram"), 3, true, TrLater("a Parallelogram")},
    {TrLater("Shaft & path"), 3, true, TrLater("a Zone")},
    {TrLater("Clock"), 2, true, TrLater("a Clock Grid")},
    {TrLater("Arrow"), 2, true, TrLater("a Arrow")},
    {TrLater("Stick man"), 13, true, ""},
}};

/// The row of a kind. Numbers outside the table (they can come from a file) give a nameless kind that
/// is never painted.
const ShapeInf& InfOf(int Kind);

/// The frames on which a drawing is seen.
struct ShapeTime {
  int First = 0;  ///< frames, from 0
  int Last = -1;  ///< before First: on all of them
  int Fade = 0;   ///< frames before First over which it comes, and behind Last over which it goes

  bool Always() const { return Last < First; }
  /// 0 where it is not seen, 255 where it is seen in full.
  int OpacityOn(int frame) const;
  friend bool operator==(const ShapeTime&, const ShapeTime&) = default;
};

/// When the points of a path were drawn, one position of the player after the other.
struct PathTime {
  int First = 0;        ///< position of the first point; may be below 0 where the video was cut
  bool Fields = false;  ///< positions are fields, not frames

  friend bool operator==(const PathTime&, const PathTime&) = default;
};

/// One drawn object. Points are pixels of the window's picture, y downward.
struct Shape {
  std::int16_t NumBound = 0;  ///< points that the user has fixed
  std::int16_t NumPts = 0;    ///< points that exist: the fixed ones and at most one that follows the mouse
  std::int16_t Kind = 0;
  bool Locked = false;  ///< finished: takes no more points; only now it can be moved, turned and scaled
  /// The ruler's line: it lies on the picture while a length is taken and is no drawing, so it is neither
  /// kept nor copied nor undone.
  bool Measuring = false;
  /// One slot more than a fixed kind needs; a clock keeps its rotation in degrees in the spare slot's x.
  std::vector<POINTAPI> Pts;
  /// The copy from which a running rotation or scaling computes.
  std::vector<POINTAPI> SavedPts;
  kinalyx::Colour Colour = 0;
  /// By which a shape is known again after it was moved, copied into the past or brought back; 0 when nobody
  /// has given it one. No file holds it, and what is equal may differ in it.
  std::uint32_t Id = 0;

  // What the records of the sidecar and of shape files have no place for.

  ShapeTime Time;
  std::string Text;               ///< UTF-8; stands where the first point is, in place of the figure
  std::int16_t Width = 0;         ///< pixels of its line, or of the height of its letters; 0: as the settings say
  std::optional<PathTime> Steps;  ///< of a path, where it is known
  std::string Unknown;            ///< what a later version has written of this drawing, as JSON; only carried along

  friend bool operator==(const Shape& a, const Shape& b) {
    return IsSameDrawing(a, b) && a.Measuring == b.Measuring && a.SavedPts == b.SavedPts;
  }
  /// The same but for what has no meaning outside a running transform.
  friend bool IsSameDrawing(const Shape& a, const Shape& b) {
    return IsSameRecord(a, b) && a.Time == b.Time && a.Text == b.Text && a.Width == b.Width && a.Steps == b.Steps &&
           a.Unknown == b.Unknown;
  }
  /// The same in all that a record holds.
  friend bool IsSameRecord(const Shape& a, const Shape& b) {
    return a.NumBound == b.NumBound && a.NumPts == b.NumPts && a.Kind == b.Kind && a.Locked == b.Locked &&
           a.Pts == b.Pts && a.Colour == b.Colour;
  }
};

constexpr int kLeastLetters = 6;  ///< pixels of height
constexpr int kMostLetters = 400;
/// Letters in place of the figure.
inline bool IsText(const Shape& shape) { return !shape.Text.empty(); }
/// Pixels from the top to the foot of a line of letters; any shape.
int LetterHeight(const Shape& shape);

/// The points that exist, also when the counts of a damaged file promise more.
std::span<const POINTAPI> PointsOf(const Shape& shape);
/// The fixed points, likewise.
std::span<POINTAPI> BoundPoints(Shape& shape);
std::span<const POINTAPI> BoundPoints(const Shape& shape);
/// Degrees by which a clock is turned; 0 for one that never was.
int ClockRotation(const Shape& shape);

/// The shapes of one video window.
struct ShapeList {
  std::vector<Shape> Shapes;   ///< may hold one stale shape behind the last
  std::int16_t NumShapes = 0;  ///< shapes that count
  bool Adding = false;         ///< the last shape is under construction
  std::int16_t CurShape = -1;  ///< the selected shape; below 0: none
  bool GridOn = false;
  /// Size of the window when something was last drawn, in twips (15 to a pixel of the picture); 0: unknown.
  std::int32_t CanvasWidth = 0;
  std::int32_t CanvasHeight = 0;

  friend bool operator==(const ShapeList&, const ShapeList&) = default;
};

/// The shapes that count.
std::span<Shape> ShapesOf(ShapeList& list);
std::span<const Shape> ShapesOf(const ShapeList& list);
/// Those of them that are drawings: all but the ruler's line.
std::vector<Shape> DrawingsOf(const ShapeList& list);
/// The last shape, null when there is none; good until the list changes.
Shape* LastShape(ShapeList& list);
/// The selected shape, null when none is.
Shape* SelectedShape(ShapeList& list);
const Shape* SelectedShape(const ShapeList& list);

/// The eight lists of the workspace; windows count from 1.
class ShapeLists {
 public:
  static constexpr int kWindows = 8;
  /// Numbers outside 1 to 8 are a fault of the caller; they give the nearest window.
  ShapeList& operator()(int window);
  const ShapeList& operator()(int window) const;

 private:
  std::array<ShapeList, kWindows> lists_;
};

/// Mirrors all fixed points in a picture of this width (pixels): x becomes width - x.
void FlipShapes(ShapeList& list, int width);
/// Multiplies all points, rounded; a clock's rotation stays.
void StretchShapes(ShapeList& list, double ScaleX, double ScaleY);
/// Fits the shapes of a picture of the old size to one of the new size. A side of 0 or less on either
/// hand, as of a window that is not shown, changes nothing.
void StretchShapes(ShapeList& list, int oldWidth, int oldHeight, int newWidth, int newHeight);

}  // namespace kinalyx
