#include "drawing/EditBar.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "drawing/ShapeGeometry.h"

namespace kinalyx {
namespace {

constexpr double kScaleReach = 400;  // twips of a drag that double a shape, or let it vanish

}  // namespace

EditBar::EditBar(DrawingTools& tools, IDrawingWorkspace& workspace, IEditBarView& view)
    : tools_(tools), workspace_(workspace), view_(view) {
  tools_.AttachEditBar(this);
}

EditBar::~EditBar() { tools_.AttachEditBar(nullptr); }

void EditBar::SetEditBar() {
  const ShapeList& list = List();
  const bool selected = SelectedShape(list) != nullptr;
  for (const EditHandle handle : {kMoveHandle, kScaleHandle, kRotateHandle, kDeleteHandle})
    view_.EnableHandle(handle, selected);
  view_.EnableHandle(kNextHandle, list.NumShapes > 0);
  view_.EnableHandle(kEndHandle, true);
  MultiEdit_ = false;
  view_.SetMultiButton(list.NumShapes >= 2, false);
}

void EditBar::ToggleEditBar() {
  if (shown_) {
    UseHandle(kEndHandle);
    return;
  }
  const int window = workspace_.ActiveWindow();
  if (!workspace_.HasVideo(window)) return;
  tools_.PutToolDown();
  tools_.Hand().LetGo();
  tools_.HideDrawings(false);  // who edits wants to see
  ShapeList& list = List();
  if (!Selected()) list.CurShape = static_cast<std::int16_t>(list.NumShapes - 1);
  ChangeEBMode(true);
}

void EditBar::ChangeEBMode(bool Show) {
  shown_ = Show;
  dragged_.reset();
  const int window = workspace_.ActiveWindow();
  if (Show) {
    workspace_.MouseWanted();
    tools_.SetDrawWindow(window);
    SetEditBar();
    view_.PlaceEditBar(window);
  } else {
    MultiEdit_ = false;
    tools_.DropMeasure();
  }
  view_.ShowEditBar(Show);
  RefreshWindows();
  if (!Show) workspace_.DisplayData("");
}

void EditBar::MoveEditBar() {
  if (!shown_) return;
  tools_.SetDrawWindow(workspace_.ActiveWindow());
  SetEditBar();
  view_.PlaceEditBar(workspace_.ActiveWindow());
  RefreshWindows();
}

/// While the bar is up, the shapes of every window are marked, and none is when it is gone.
void EditBar::RefreshWindows() {
  for (int window = 1; window <= ShapeLists::kWindows; ++window)
    if (workspace_.HasVideo(window)) workspace_.Refresh(window);
}

void EditBar::EditAll(bool Value) {
  MultiEdit_ = Value;
  ShapeList& list = List();
  if (Value && !Selected() && list.NumShapes > 0) {
    list.CurShape = 0;
    for (const EditHandle handle : {kMoveHandle, kScaleHandle, kRotateHandle, kDeleteHandle})
      view_.EnableHandle(handle, true);
  }
  RefreshWindows();
}

void EditBar::UseHandle(EditHandle handle) {
  if (!shown_) return;
  tools_.SetDrawWindow(workspace_.ActiveWindow());
  switch (handle) {
    case kNextHandle: NextShape(); break;
    case kDeleteHandle:
      tools_.DeleteCurShape();
      SetEditBar();
      workspace_.Refresh(workspace_.ActiveWindow());
      workspace_.DrawingsChanged(workspace_.ActiveWindow());
      break;
    case kEndHandle:
      for (const EditHandle handle : {kNextHandle, kRotateHandle, kDeleteHandle}) view_.EnableHandle(handle, true);
      ChangeEBMode(false);
      break;
    default: break;
  }
}

void EditBar::NextShape() {
  ShapeList& list = List();
  if (list.NumShapes > 0) {
    const int next = std::max<int>(list.CurShape, -1) + 1;
    list.CurShape = static_cast<std::int16_t>(next < list.NumShapes ? next : 0);
  }
  SetEditBar();
  workspace_.Refresh(workspace_.ActiveWindow());
}

float EditBar::HandleAngle(EditHandle handle, float x, float y) {
  return static_cast<float>(PointAngle(view_.HandleWidth(handle) / 2.0, view_.HandleHeight(handle) / 2.0, x, y));
}

void EditBar::GrabHandle(EditHandle handle, float X, float Y) {
  if (!shown_ || handle < kMoveHandle || handle > kRotateHandle) return;
  Shape* shape = Selected();
  if (!shape) return;
  dragged_ = handle;
  dragWindow_ = workspace_.ActiveWindow();
  LastDown_ = {Round(X), Round(Y)};
  tools_.BeforeChange(dragWindow_);
  if (handle == kMoveHandle) return;
  const ShapeEngine& engine = tools_.Engine();
  if (MultiEdit_) {
    Pivot_ = engine.MultiGetMid(List());
    engine.MultiPrepTrans(List());
  } else {
    Pivot_ = engine.GetMid(*shape);
    engine.PrepTrans(*shape);
  }
  if (handle != kRotateHandle) return;
  StartAngle_ = HandleAngle(handle, X, Y);
  view_.ShowRotationGuide(true);
}

void EditBar::DragHandle(float X, float Y) {
  if (!shown_ || !dragged_) return;
  ShapeList& list = tools_.List(dragWindow_);
  Shape* shape = SelectedShape(list);
  if (!shape) return;
  const ShapeEngine& engine = tools_.Engine();
  if (dragged_ == kScaleHandle) {
    // Upward grows, downward shrinks; beyond nothing the drawing comes out on the other side.
    const double factor = std::abs(1 - (Y - LastDown_.y) / kScaleReach);
    MultiEdit_ ? engine.MultiScaleShape(list, factor, Pivot_) : engine.ScaleShape(*shape, factor, Pivot_);
  } else if (dragged_ == kRotateHandle) {
    const double degrees = RadToDeg(HandleAngle(*dragged_, X, Y) - StartAngle_);
    MultiEdit_ ? engine.MultiRotateShape(list, degrees, Pivot_) : engine.RotateShape(*shape, degrees, Pivot_);
  } else {
    const int dx = Round((X - LastDown_.x) / kTwipsPerPixel);
    const int dy = Round((Y - LastDown_.y) / kTwipsPerPixel);
    if (dx == 0 && dy == 0) return;
    MultiEdit_ ? engine.MultiMoveShape(list, dx, dy) : engine.MoveShape(*shape, dx, dy);
    // What was less than a pixel counts with the next event, so that a slow drag loses nothing.
    LastDown_ = {LastDown_.x + dx * kTwipsPerPixel, LastDown_.y + dy * kTwipsPerPixel};
  }
  workspace_.Refresh(dragWindow_);
}

void EditBar::ReleaseHandle() {
  if (!dragged_) return;
  const EditHandle handle = *std::exchange(dragged_, std::nullopt);
  ShapeList& list = tools_.List(dragWindow_);
  const ShapeEngine& engine = tools_.Engine();
  if (handle != kMoveHandle) {
    if (MultiEdit_) {
      engine.MultiDoneTrans(list);
    } else if (Shape* shape = SelectedShape(list)) {
      engine.DoneTrans(*shape);
    }
  }
  if (handle == kRotateHandle) view_.ShowRotationGuide(false);
  tools_.NoteChange(dragWindow_);
  workspace_.DrawingsChanged(dragWindow_);
}

void EditBar::EditWhole() {
  ChangeEBMode(true);
  MultiEdit_ = List().NumShapes > 0;
  view_.SetMultiButton(List().NumShapes >= 2, MultiEdit_);
  view_.EnableHandle(kNextHandle, false);
  view_.EnableHandle(kRotateHandle, false);
  workspace_.Refresh(workspace_.ActiveWindow());
}

}  // namespace kinalyx
