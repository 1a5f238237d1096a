#include "drawing/ShapeHistory.h"

#include <algorithm>
#include <utility>

namespace kinalyx {
namespace {

std::vector<Shape> FinishedShapes(const ShapeList& list) {
  std::vector<Shape> result;
  for (const Shape& shape : ShapesOf(list)) {
    if (!shape.Locked) continue;
    result.push_back(shape);
    result.back().SavedPts.clear();
  }
  return result;
}

}  // namespace

void ShapeHistory::Reset(const ShapeList& list) {
  states_.assign(1, FinishedShapes(list));
  present_ = 0;
}

void ShapeHistory::Note(const ShapeList& list) {
  std::vector<Shape> now = FinishedShapes(list);
  if (now == states_[present_]) return;
  states_.resize(present_ + 1);
  states_.push_back(std::move(now));
  ++present_;
  if (present_ <= kSteps) return;
  states_.pop_front();
  --present_;
}

bool ShapeHistory::Undo(ShapeList& list) {
  if (!CanUndo()) return false;
  --present_;
  Restore(list);
  return true;
}

bool ShapeHistory::Redo(ShapeList& list) {
  if (!CanRedo()) return false;
  ++present_;
  Restore(list);
  return true;
}

void ShapeHistory::BeforeChange(const ShapeList& list) {
  if (FinishedShapes(list) != states_[present_]) Reset(list);
}

void ShapeHistory::Apply(const ShapeList& list, const std::function<void(ShapeList&)>& transform) {
  for (std::vector<Shape>& state : states_) {
    ShapeList past;
    past.NumShapes = static_cast<std::int16_t>(state.size());
    past.Shapes = std::move(state);
    transform(past);
    state = std::move(past.Shapes);
  }
  // The list may have come to its present form by another road, and be rounded otherwise.
  states_[present_] = FinishedShapes(list);
}

void ShapeHistory::Restore(ShapeList& list) const {
  list.Shapes = states_[present_];
  list.NumShapes = static_cast<std::int16_t>(list.Shapes.size());
  list.Adding = false;
  list.CurShape = static_cast<std::int16_t>(std::min<int>(list.CurShape, list.NumShapes - 1));
}

}  // namespace kinalyx
