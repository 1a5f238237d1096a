#include "drawing/ShapeHand.h"

#include <algorithm>
#include <utility>

#include "drawing/DrawingTools.h"
#include "drawing/ShapeGeometry.h"

namespace kinalyx {
namespace {

constexpr int kLeftButton = 1;
constexpr int kRightButton = 2;
constexpr double kHandleReach = 9;  // pixels from the middle of a handle
constexpr double kLineReach = 7;    // from the edge of a line
constexpr float kTremble = 3;       // pixels that are no drag yet
constexpr int kBeside = 16;         // of a copy
constexpr int kUsualWidth = 5;      // of a line beside which letters have their usual size
constexpr int kUsualLetters = 28;

}  // namespace

std::optional<std::size_t> ShapeHand::Index() const {
  if (id_ == 0) return std::nullopt;
  const auto shapes = ShapesOf(std::as_const(tools_).List(window_));
  const auto found = std::ranges::find(shapes, id_, &Shape::Id);
  if (found == shapes.end() || !found->Locked) return std::nullopt;
  return static_cast<std::size_t>(found - shapes.begin());
}

Shape* ShapeHand::Mutable() {
  const auto index = Index();
  return index ? &tools_.List(window_).Shapes[*index] : nullptr;
}

const Shape* ShapeHand::Taken() const {
  const auto index = Index();
  return index ? &ShapesOf(std::as_const(tools_).List(window_))[*index] : nullptr;
}

bool ShapeHand::TakenIsSeen() const {
  const Shape* shape = Taken();
  return shape && tools_.IsSeen(*shape, window_);
}

std::optional<TakenMarks> ShapeHand::MarksIn(int window) const {
  const Shape* shape = window == window_ ? Taken() : nullptr;
  if (!shape || tools_.Hidden() || shape->Time.OpacityOn(workspace_.FrameOf(window)) == 0) return std::nullopt;
  return tools_.MarksOf(*shape);
}

std::optional<std::size_t> ShapeHand::HandleAt(POINTAPI at, int window) const {
  const Shape* shape = window == window_ ? Taken() : nullptr;
  if (!shape || !tools_.IsSeen(*shape, window)) return std::nullopt;
  const auto handles = HandlesOf(*shape);
  std::optional<std::size_t> nearest;
  double least = kHandleReach;
  for (std::size_t i = 0; i < handles.size(); ++i) {
    const double distance = Distance(handles[i], at);
    if (distance > least) continue;
    least = distance;
    nearest = i;
  }
  return nearest;
}

std::optional<std::size_t> ShapeHand::ShapeUnder(POINTAPI at, int window) const {
  return ShapeAt(ShapesOf(std::as_const(tools_).List(window)), at, kLineReach + tools_.UsualWidth() / 2.0,
                 tools_.Engine().EllipseFromCentre, [&](const Shape& shape) { return tools_.IsSeen(shape, window); });
}

HandPointer ShapeHand::PointerAt(POINTAPI at, int window) const {
  if (HandleAt(at, window)) return HandPointer::Point;
  return ShapeUnder(at, window) ? HandPointer::Shape : HandPointer::Nothing;
}

bool ShapeHand::Press(int button, POINTAPI at, int window) {
  if (button != kLeftButton && button != kRightButton) return false;
  const auto handle = button == kLeftButton ? HandleAt(at, window) : std::nullopt;
  if (!handle) {
    const auto index = ShapeUnder(at, window);
    if (!index) {
      LetGo();
      return false;
    }
    if (window != workspace_.ActiveWindow()) workspace_.SetActiveWindow(window);
    Take(window, *index);
  }
  if (button == kRightButton) {
    workspace_.ShowShapeMenu(window, at);
    return true;
  }
  grip_ = Grip{handle, at, false};
  return true;
}

bool ShapeHand::Move(POINTAPI at, bool even, int window) {
  if (!grip_ || window != window_) return false;
  Shape* shape = Mutable();
  if (!shape) {
    grip_.reset();
    return true;
  }
  if (!grip_->moving) {
    if (Distance(grip_->from, at) < kTremble) return true;
    grip_->moving = true;
    Begin();
  }
  if (grip_->handle) {
    MoveHandle(*shape, *grip_->handle, at, even);
  } else {
    tools_.Engine().MoveShape(*shape, at.x - grip_->from.x, at.y - grip_->from.y);
    grip_->from = at;
  }
  tools_.SetShapeCaption();
  workspace_.Refresh(window_);
  return true;
}

bool ShapeHand::Release() {
  if (!grip_) return false;
  const bool moved = std::exchange(grip_, std::nullopt)->moving;
  if (moved && Taken()) Changed();
  return true;
}

void ShapeHand::PressTwice(POINTAPI at, int window) {
  const Shape* shape = window == window_ ? Taken() : nullptr;
  if (!shape || !IsText(*shape) || ShapeUnder(at, window) != Index()) return;
  grip_.reset();
  workspace_.AskText(window, PointsOf(*shape)[0], shape->Text);
}

void ShapeHand::Take(int window, std::size_t index) {
  ShapeList& list = tools_.List(window);
  if (index >= ShapesOf(list).size()) return;
  Shape& shape = list.Shapes[index];
  if (shape.Id == 0) shape.Id = tools_.Engine().NewId();
  const bool another = window != window_ || shape.Id != id_;
  window_ = window;
  id_ = shape.Id;
  list.CurShape = static_cast<std::int16_t>(index);
  tools_.SetDrawWindow(window);
  if (!another) return;
  tools_.SetShapeCaption();
  workspace_.ShapeTaken();
}

void ShapeHand::LetGo() {
  grip_.reset();
  if (std::exchange(id_, 0) == 0) return;
  tools_.DropMeasure();
  workspace_.ShapeTaken();
}

void ShapeHand::Begin() const { tools_.BeforeChange(window_); }

void ShapeHand::Changed() {
  if (Shape* shape = Mutable()) tools_.KeepInside(*shape, window_);
  tools_.NoteChange(window_);
  tools_.SetShapeCaption();
  workspace_.Refresh(window_);
  workspace_.DrawingsChanged(window_);
  workspace_.ShapeTaken();
}

void ShapeHand::SetColour(Colour colour) {
  Shape* shape = Mutable();
  if (!shape || shape->Colour == colour) return;
  Begin();
  shape->Colour = colour;
  Changed();
}

void ShapeHand::SetWidth(int pixels) {
  Shape* shape = Mutable();
  if (!shape) return;
  Begin();
  const double letters = kUsualLetters * (0.5 + 0.5 * pixels / kUsualWidth);
  shape->Width = Round16(IsText(*shape) ? letters : pixels);
  Changed();
}

void ShapeHand::SetText(const std::string& text) {
  Shape* shape = Mutable();
  if (!shape || !IsText(*shape) || shape->Text == text) return;
  if (text.empty()) return Remove();
  Begin();
  shape->Text = text;
  Changed();
}

void ShapeHand::Nudge(int dx, int dy) {
  Shape* shape = Mutable();
  if (!shape || grip_) return;
  Begin();
  tools_.Engine().MoveShape(*shape, dx, dy);
  Changed();
}

void ShapeHand::Duplicate() {
  const Shape* shape = Taken();
  ShapeList& list = tools_.List(window_);
  if (!shape || grip_ || list.Adding || list.NumShapes == INT16_MAX) return;
  Begin();
  Shape copy = *shape;
  copy.Id = tools_.Engine().NewId();
  tools_.Engine().MoveShape(copy, kBeside, kBeside);
  list.Shapes.resize(static_cast<std::size_t>(list.NumShapes));
  list.Shapes.push_back(std::move(copy));
  ++list.NumShapes;
  Take(window_, static_cast<std::size_t>(list.NumShapes - 1));
  Changed();
}

void ShapeHand::BringToFront() {
  const auto index = Index();
  if (!index || grip_ || tools_.List(window_).Adding) return;
  Begin();
  const auto shapes = ShapesOf(tools_.List(window_));
  std::rotate(shapes.begin() + static_cast<std::ptrdiff_t>(*index),
              shapes.begin() + static_cast<std::ptrdiff_t>(*index) + 1, shapes.end());
  Take(window_, shapes.size() - 1);
  Changed();
}

void ShapeHand::Remove() {
  const auto index = Index();
  if (!index || grip_) return;
  tools_.RemoveShape(window_, static_cast<int>(*index));
  LetGo();
}

}  // namespace kinalyx
