#pragma once

#include <cstddef>
#include <deque>
#include <optional>
#include <vector>

#include "drawing/Shape.h"

namespace kinalyx {

/// How a window shows its drawings.
struct DrawingView {
  int width = 0;  ///< of the picture, pixels; 0: not known
  int height = 0;
  bool mirrored = false;

  friend bool operator==(const DrawingView&, const DrawingView&) = default;
};

/// Finished shapes, and the view in which they were drawn.
struct DrawnShapes {
  std::vector<Shape> shapes;
  DrawingView view;

  /// The shapes as another view shows them. They are fitted in one go from where they were drawn, so that
  /// roundings do not add up.
  std::vector<Shape> In(const DrawingView& other) const;
};

/// The past of one window's drawings, fifty changes deep. A change is whatever differs between two notes,
/// so it does not matter which command made it. Shapes under construction, the ruler's line and
/// the selection are no part.
class ShapeHistory {
 public:
  static constexpr std::size_t kSteps = 50;

  /// Begins anew: what the list holds now, in this view, cannot be undone.
  void Reset(const ShapeList& list, const DrawingView& view);
  /// Takes note of what the list holds now; nothing happens when it is what it was. A change after an
  /// undo drops what could have been redone.
  void Note(const ShapeList& list);
  bool CanUndo() const { return present_ > 0; }
  bool CanRedo() const { return present_ + 1 < states_.size(); }
  /// Brings the shapes of a step back; the selection stays where it was, or on the last shape that is left.
  /// False when there is no such step.
  bool Undo(ShapeList& list);
  bool Redo(ShapeList& list);
  /// Begins anew when the list is not what was noted last: its drawings were exchanged with the video.
  void BeforeChange(const ShapeList& list);
  /// The window's picture has another size or was mirrored, and the list follows it, which is no change of
  /// its drawings.
  void ViewChanged(const ShapeList& list, const DrawingView& view);
  /// The list in the size in which it was drawn, mirrored as it is now; nothing when that is not known, or
  /// when the list holds something else than was noted last.
  std::optional<DrawnShapes> AsDrawn(const ShapeList& list) const;

 private:
  void Restore(ShapeList& list) const;

  std::deque<DrawnShapes> states_{1};
  std::size_t present_ = 0;
  DrawingView view_;
};

}  // namespace kinalyx
