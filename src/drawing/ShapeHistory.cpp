#include "drawing/ShapeHistory.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace kinalyx {
namespace {

std::vector<Shape> FinishedShapes(const ShapeList& list) {
  std::vector<Shape> result;
  for (const Shape& shape : ShapesOf(list)) {
    if (!shape.Locked || shape.Measuring) continue;
    result.push_back(shape);
    result.back().SavedPts.clear();
  }
  return result;
}

}  // namespace

std::vector<Shape> DrawnShapes::In(const DrawingView& other) const {
  if (view == other) return shapes;
  ShapeList list;
  list.Shapes = shapes;
  list.NumShapes = static_cast<std::int16_t>(shapes.size());
  if (view.mirrored != other.mirrored && view.width > 0) FlipShapes(list, view.width);
  StretchShapes(list, view.width, view.height, other.width, other.height);
  return std::move(list.Shapes);
}

void ShapeHistory::Reset(const ShapeList& list, const DrawingView& view) {
  view_ = view;
  states_.assign(1, {FinishedShapes(list), view_});
  present_ = 0;
}

void ShapeHistory::Note(const ShapeList& list) {
  std::vector<Shape> now = FinishedShapes(list);
  if (now == states_[present_].In(view_)) return;
  states_.resize(present_ + 1);
  states_.push_back({std::move(now), view_});
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
  if (FinishedShapes(list) != states_[present_].In(view_)) Reset(list, view_);
}

void ShapeHistory::ViewChanged(const ShapeList& list, const DrawingView& view) {
  view_ = view;
  // The list may have come to its present form by another road, and be rounded otherwise.
  DrawnShapes& present = states_[present_];
  std::vector<Shape> now = FinishedShapes(list);
  if (now != present.In(view_)) present = {std::move(now), view_};
}

std::optional<DrawnShapes> ShapeHistory::AsDrawn(const ShapeList& list) const {
  const DrawnShapes& present = states_[present_];
  const auto settled = [](const Shape& shape) { return shape.Locked || shape.Measuring; };
  const bool noted = std::ranges::all_of(ShapesOf(list), settled) && FinishedShapes(list) == present.In(view_);
  if (!noted || present.view.width <= 0) return std::nullopt;
  const DrawingView view{present.view.width, present.view.height, view_.mirrored};
  return DrawnShapes{present.In(view), view};
}

void ShapeHistory::Restore(ShapeList& list) const {
  std::vector<Shape> shapes = states_[present_].In(view_);
  std::ranges::copy_if(ShapesOf(list), std::back_inserter(shapes), &Shape::Measuring);
  list.Shapes = std::move(shapes);
  list.NumShapes = static_cast<std::int16_t>(list.Shapes.size());
  list.Adding = false;
  list.CurShape = static_cast<std::int16_t>(std::min<int>(list.CurShape, list.NumShapes - 1));
}

}  // namespace kinalyx
