// The mouse of the drawing tools: presses, drags and releases become points of shapes.

#include <algorithm>
#include <utility>

#include "drawing/DrawingTools.h"
#include "drawing/ShapeGeometry.h"

namespace kinalyx {
namespace {

constexpr int kLeftButton = 1;
constexpr int kShiftKey = 1;
constexpr float kDragReach = 6;      // pixels from press to release that draw a figure in one go
constexpr double kSelectReach = 12;  // pixels from a line to the click that selects it while the bar is up

/// A path knows its positions as long as its points have followed each other.
void NoteStep(Shape& path, const std::optional<PathTime>& now) {
  if (path.NumBound == 1) path.Steps = now;
  else if (path.Steps && now != PathTime{path.Steps->First + path.NumBound - 1, path.Steps->Fields}) path.Steps.reset();
}

}  // namespace

/// A point for a shape under construction: straight mode holds it to its line; Shift to an eighth of a turn, or to a
/// box that is as wide as high. A circle about its centre has its box laid round the first point.
POINTAPI DrawingTools::Aim(Shape& shape, POINTAPI point, bool even) {
  const auto bound = BoundPoints(shape);
  if (inHand_ == ToolInHand::CentreCircle && bound.size() == 1) {
    const POINTAPI corner = shape.Pts[0];
    const POINTAPI opposite = shape.NumPts > 1 ? shape.Pts[1] : corner;
    const POINTAPI centre{corner.x + (opposite.x - corner.x) / 2, corner.y + (opposite.y - corner.y) / 2};
    const int radius = Round(Distance(centre, point));
    shape.Pts[0] = {centre.x - radius, centre.y - radius};
    return {centre.x + radius, centre.y + radius};
  }
  if (engine_.StraightMode || !even || bound.empty()) return engine_.ConstrainPoint(point);
  switch (shape.Kind) {
    case kSquare:
    case kEllipse:
    case kClock: return OnSquare(bound.back(), point);
    case kFreehand:
    case kSwingPath: return point;
    default: return OnEighth(bound.back(), point);
  }
}

/// A stroke begins where the button went down, and so does a figure that is drawn by dragging. Clicks that hardly
/// move set one point each, where the button comes up.
void DrawingTools::BeginAtPress(Shape& shape, POINTAPI now) {
  if (!press_ || shape.NumBound > 0 || shape.Kind == kSwingPath || shape.Kind == kFlag) return;
  if (shape.Kind != kFreehand && Distance(*press_, now) < kDragReach) return;
  engine_.AddPoint(shape, engine_.ConstrainPoint(*press_), true);
}

bool DrawingTools::MouseDown(int Button, int Shift, float X, float Y, int Window) {
  if (workspace_.IsPlaying(workspace_.ActiveWindow())) {
    workspace_.StopClick(Window);
    EndConstruction();
    workspace_.MouseWanted();
    stays_ = false;
    DrawingOff();
    EndAnnouncement();
    return true;
  }
  const POINTAPI point{Round(X), Round(Y)};
  if (!Drawing_) return workspace_.HasVideo(Window) && !BarShown() && hand_.Press(Button, point, Window);
  if (!workspace_.HasVideo(Window)) return false;
  if (Window != workspace_.ActiveWindow()) workspace_.SetActiveWindow(Window);
  if (inHand_ == ToolInHand::Text) {
    press_ = point;
    return true;
  }
  ShapeList& list = List(Window);
  // What was under construction may have gone with its video.
  const bool begins = NewShapePending_ || !UnderConstruction();
  if (begins) {
    NewShapePending_ = false;
    BeforeChange(Window);
    Shape* const shape = engine_.AddShape(list, DrawKind_, 0);
    if (!shape) {
      PutDown();
      return true;
    }
    shape->Width = PenWidth_;
    shape->Measuring = DrawKind_ == kLine && workspace_.CalibrationShown();
  }
  if (Button == kLeftButton) press_ = point;
  // A new shape may begin where the last one was pressed; the other button ends a path wherever it is pressed.
  if (!begins && point == LastDown_ && Button == kLeftButton) return true;
  if (list.Adding) {
    Shape& shape = *LastShape(list);
    if (Button == kLeftButton) {
      if (engine_.AddPoint(shape, Aim(shape, point, Shift & kShiftKey), false)) list.Adding = false;
    } else if (engine_.LOPShape(shape.Kind) && shape.NumPts > 1) {
      EndOpenShape(Window);
    }
  }
  LastDown_ = point;
  DrawWindow_ = Window;
  SetEditBar();
  return true;
}

bool DrawingTools::MouseMove(int Button, int Shift, float X, float Y, int Window) {
  const POINTAPI at{Round(X), Round(Y)};
  if (!Drawing_) {
    if (hand_.Move(at, Shift & kShiftKey, Window)) return true;
    if (Button == 0 && workspace_.HasVideo(Window) && !BarShown())
      workspace_.ShowPointer(Window, hand_.PointerAt(at, Window));
    return false;
  }
  if (Window != DrawWindow_) return false;
  ShapeList& list = List(DrawWindow_);
  if (!list.Adding) return false;
  Shape& shape = *LastShape(list);
  BeginAtPress(shape, at);
  if (engine_.AddPoint(shape, Aim(shape, at, Shift & kShiftKey), shape.Kind == kFreehand)) {
    list.Adding = false;
    SetEditBar();
  }
  list.CurShape = static_cast<std::int16_t>(list.NumShapes - 1);
  workspace_.Refresh(DrawWindow_);
  SetShapeCaption();
  return true;
}

bool DrawingTools::MouseUp(int Button, int Shift, float X, float Y, int Window) {
  const POINTAPI point{Round(X), Round(Y)};
  if (!Drawing_) {
    press_.reset();
    if (hand_.Release()) return true;
    if (!BarShown()) return false;
    if (Window != workspace_.ActiveWindow()) {
      workspace_.SetActiveWindow(Window);
    } else if (Button == kLeftButton) {
      Select(Window, point);
    }
    return true;
  }
  if (!workspace_.HasVideo(Window)) return false;
  if (inHand_ == ToolInHand::Text) {
    if (Button == kLeftButton && std::exchange(press_, std::nullopt)) WantText(Window, point);
    return true;
  }

  ShapeList& list = List(Window);
  list.CanvasWidth = workspace_.PictureWidth(Window) * kTwipsPerPixel;
  list.CanvasHeight = workspace_.PictureHeight(Window) * kTwipsPerPixel;
  if (const Shape* last = LastShape(list);
      last && ((last->Kind == kAngle && last->NumPts >= 2) || (last->Kind == kLine && last->NumPts >= 1)))
    workspace_.HideVectorColor();
  const std::uint32_t drawn = list.Adding ? LastShape(list)->Id : 0;
  if (Button == kLeftButton && list.Adding) BindPoint(list, point, Shift & kShiftKey, Window);
  if (Button == kLeftButton) press_.reset();
  if (list.Adding) return true;
  ShapeFinished(Window);
  // The measure outlives the tool, whose end has cleared the display.
  if (Window == DrawWindow_ && (DrawKind_ == kLine || DrawKind_ == kAngle)) SetShapeCaption();
  GoOnDrawing();
  // A square that marked something for a zoom or a carve is no drawing any more.
  if (const Shape* last = LastShape(list); Editor() && !Drawing_ && last && last->Id == drawn && !last->Measuring)
    hand_.Take(Window, ShapesOf(list).size() - 1);
  return true;
}

void DrawingTools::EndOpenShape(int window) {
  FinishOpenShape(List(window));
  ShapeFinished(window);
  GoOnDrawing();
}

bool DrawingTools::TracingPath() const {
  const ShapeList& list = List(DrawWindow_);
  return Drawing_ && list.Adding && !ShapesOf(list).empty() && ShapesOf(list).back().Kind == kSwingPath;
}

void DrawingTools::EndPath() {
  if (TracingPath() && LastShape(List(DrawWindow_))->NumPts > 1) EndOpenShape(DrawWindow_);
}

bool DrawingTools::TakeBackPoint(int window) {
  if (window != DrawWindow_ || !TracingPath()) return false;
  ShapeList& list = List(window);
  Shape& path = *LastShape(list);
  if (path.NumBound < 1) return false;
  // The one that follows the mouse, if any, takes its place.
  path.Pts.erase(path.Pts.begin() + path.NumBound - 1);
  --path.NumBound;
  --path.NumPts;
  if (path.NumBound == 0) {
    engine_.KillShape(list, list.NumShapes - 1);
    list.Adding = false;
    list.CurShape = std::min<std::int16_t>(list.CurShape, static_cast<std::int16_t>(list.NumShapes - 1));
    NewShapePending_ = true;
  }
  workspace_.RetreatFrame(window);
  SetEditBar();
  workspace_.Refresh(window);
  SetShapeCaption();
  return true;
}

void DrawingTools::BindPoint(ShapeList& list, POINTAPI point, bool even, int window) {
  Shape& shape = *LastShape(list);
  list.CurShape = static_cast<std::int16_t>(list.NumShapes - 1);
  BeginAtPress(shape, point);
  if (engine_.AddPoint(shape, Aim(shape, point, even), true)) list.Adding = false;
  if (shape.Kind == kFreehand) {
    // One stroke is one shape.
    FinishOpenShape(list);
  } else if (shape.Kind == kSwingPath) {
    NoteStep(shape, workspace_.PositionNow(window));
    if (workspace_.OnLastFrame(window)) {
      FinishOpenShape(list);
    } else {
      workspace_.AdvanceFrame(window);
    }
  } else if (shape.Kind == kSquare && !list.Adding && workspace_.TakeSquare(window, shape)) {
    engine_.KillShape(list, list.NumShapes - 1);
  }
}

/// What follows when a window's list takes no more points: the picture shows it, and it can be undone.
void DrawingTools::ShapeFinished(int window) {
  ShapeList& list = List(window);
  list.CurShape = std::min<std::int16_t>(list.CurShape, static_cast<std::int16_t>(list.NumShapes - 1));
  NoteChange(window);
  SetEditBar();
  workspace_.Refresh(window);
  workspace_.DrawingsChanged(window);
}

/// A tool that stays in hand is ready for the next shape, in the colour that was chosen for the last one.
void DrawingTools::GoOnDrawing() {
  if (!stays_ || Drawing_) return;
  Drawing_ = true;
  NewShapePending_ = true;
  engine_.StraightMode = straight_;
  if (settings_.RandomColor == 1) return VectorColorUpdate(DrawKind_);
  const auto found = std::ranges::find(kColorChoices, engine_.CadColor);
  workspace_.SetColorButton(found == kColorChoices.end() ? -1 : static_cast<int>(found - kColorChoices.begin()));
  measure_ ? workspace_.ShowVectorColor(engine_.CadColor) : Announce(DrawKind_);
}

/// Letters are typed after the tool is down, so that its keys are free; one that stays comes back with them.
void DrawingTools::WantText(int window, POINTAPI at) {
  const bool stays = stays_;
  textColour_ = engine_.CadColor;
  PutDown();
  stays_ = stays;
  DrawWindow_ = window;
  workspace_.AskText(window, at, "");
}

void DrawingTools::WriteText(int window, POINTAPI at, const std::string& text, bool anew) {
  if (anew) {
    if (window == hand_.Window()) hand_.SetText(text);
    return;
  }
  if (text.empty() || !workspace_.HasVideo(window) || List(window).Adding) return;
  ShapeList& list = List(window);
  BeforeChange(window);
  Shape* const shape = engine_.AddShape(list, kFlag, textColour_);
  if (!shape) return;
  shape->Text = text;
  engine_.AddPoint(*shape, at, true);
  KeepInside(*shape, window);
  list.Adding = false;
  list.CanvasWidth = workspace_.PictureWidth(window) * kTwipsPerPixel;
  list.CanvasHeight = workspace_.PictureHeight(window) * kTwipsPerPixel;
  list.CurShape = static_cast<std::int16_t>(list.NumShapes - 1);
  ShapeFinished(window);
  if (stays_) return TakeTextTool();
  hand_.Take(window, ShapesOf(list).size() - 1);
}

/// While the bar is up. In the editor's way a click means the line under it, not the middle of a shape.
void DrawingTools::Select(int window, POINTAPI point) {
  ShapeList& list = List(window);
  DrawWindow_ = window;
  int nearest = -1;
  const auto seen = [&](const Shape& shape) { return IsSeen(shape, window); };
  if (Editor()) {
    const auto found = ShapeAt(ShapesOf(list), point, kSelectReach, engine_.EllipseFromCentre, seen);
    nearest = found ? static_cast<int>(*found) : -1;
  } else {
    std::int32_t least = HitRadius + 1;
    int index = 0;
    for (const Shape& shape : ShapesOf(list)) {
      const std::int32_t distance = Round(Distance(engine_.GetMid(shape), point));
      if (distance < least && seen(shape)) {
        least = distance;
        nearest = index;
      }
      ++index;
    }
  }
  list.CurShape = static_cast<std::int16_t>(nearest);
  workspace_.Refresh(window);
  SetEditBar();
}

void DrawingTools::SetEditBar() {
  if (bar_) bar_->SetEditBar();
}

}  // namespace kinalyx
