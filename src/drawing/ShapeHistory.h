#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <vector>

#include "drawing/Shape.h"

namespace kinalyx {

/// The past of one window's drawings, fifty changes deep. A change is whatever differs between two notes,
/// so it does not matter which command made it. Shapes under construction and the selection are no part.
class ShapeHistory {
 public:
  static constexpr std::size_t kSteps = 50;

  /// Begins anew: what the list holds now cannot be undone.
  void Reset(const ShapeList& list);
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
  /// Does to the whole past what was done to `list` without being a change of its drawings: it was
  /// stretched with its window, or mirrored with its picture.
  void Apply(const ShapeList& list, const std::function<void(ShapeList&)>& transform);

 private:
  void Restore(ShapeList& list) const;

  std::deque<std::vector<Shape>> states_{1};
  std::size_t present_ = 0;
};

}  // namespace kinalyx
