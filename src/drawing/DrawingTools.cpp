#include "drawing/DrawingTools.h"

#include <algorithm>
#include <utility>

#include "drawing/ShapeGeometry.h"
#include "platform/files/Folders.h"

namespace kinalyx {
namespace {

constexpr int kGridEntry = 11;  // of the Draw menu and of the tool colours
constexpr int kLeftButton = 1;
constexpr Colour kSelected = 65280;  // green
constexpr Colour kOthers = 255;      // red, while one shape is selected

}  // namespace

DrawingTools::DrawingTools(ShapeEngine& engine, Settings& settings, IDrawingWorkspace& workspace)
    : engine_(engine), settings_(settings), workspace_(workspace) {
  engine_.SetLockListener(this);
  engine_.Log.path = JoinPath(settings_.AppPath, "Kinalyx_Log.txt");
  engine_.Log.LogEnabled = settings_.LogEnabled;
}

DrawingTools::~DrawingTools() { engine_.SetLockListener(nullptr); }

bool DrawingTools::HasShapes(int window) const { return engine_.ShapeLists(window).NumShapes > 0; }

// ---------------------------------------------------------------- commands

void DrawingTools::TakeTool(int Index) {
  if (InfOf(Index).ToolCaption.empty() || !workspace_.HasVideo(workspace_.ActiveWindow())) return;
  if (Drawing_ && Index == DrawKind_) {
    PutDown();
    return;
  }
  EndConstruction();
  workspace_.MouseWanted();
  workspace_.ReleaseLoopButton();
  Drawing_ = true;
  HideDrawings(false);  // who draws wants to see it
  NewShapePending_ = true;
  DrawKind_ = Index;
  measure_.reset();
  if (Index == kLine && workspace_.CalibrationShown()) RemoveMeasuringLine();
  VectorColorUpdate(Index);
  if (Index != kLine && Index != kArrow) engine_.StraightMode = false;
}

void DrawingTools::ChooseFromMenu(int Index) {
  if (Index == kGridEntry) {
    SetGridMode(!List(workspace_.ActiveWindow()).GridOn);
  } else {
    TakeTool(Index);
  }
}

void DrawingTools::TakeStraightLine() { StraightTool(kLine); }
void DrawingTools::TakeStraightArrow() { StraightTool(kArrow); }

void DrawingTools::StraightTool(int kind) {
  // The free line in hand gives way to the straight one instead of being put down by the same kind.
  if (Drawing_ && DrawKind_ == kind && !engine_.StraightMode) PutDown();
  TakeTool(kind);
  if (Drawing_ && DrawKind_ == kind) engine_.StraightMode = true;
}

void DrawingTools::PutToolDown() {
  if (Drawing_) TakeTool(DrawKind_);
}

void DrawingTools::DeleteLast() {
  const int window = workspace_.ActiveWindow();
  if (!workspace_.HasVideo(window)) return;
  DeleteLastCAD(window);
  RedrawCanvas(window);
  workspace_.DrawingsChanged(window);
}

void DrawingTools::DeleteAll() {
  const int window = workspace_.ActiveWindow();
  if (!workspace_.HasVideo(window)) return;
  DeleteAllCAD(window);
  RedrawCanvas(window);
  workspace_.DrawingsChanged(window);
}

void DrawingTools::ChooseColour(int Index) {
  if (Index < 0 || Index >= static_cast<int>(kColorChoices.size())) return;
  engine_.CadColor = kColorChoices[static_cast<std::size_t>(Index)];
  workspace_.SetColorButton(Index);
  if (Drawing_) workspace_.ShowVectorColor(engine_.CadColor);
}

void DrawingTools::SetGridMode(bool Value) {
  const int window = workspace_.ActiveWindow();
  List(window).GridOn = Value;
  workspace_.Refresh(window);
  workspace_.DrawingsChanged(window);
}

void DrawingTools::SetGridSize(int Value) {
  settings_.Set(settings_.GridSize, static_cast<std::int16_t>(std::clamp(Value, kGridSizeLeast, kGridSizeMost)));
  const int window = workspace_.ActiveWindow();
  if (!List(window).GridOn) return;
  workspace_.Refresh(window);
  workspace_.DrawingsChanged(window);
}

bool DrawingTools::CloneStart(int windowsShown) {
  if (windowsShown > 2) return false;
  const int source = workspace_.ActiveWindow();
  const int target = source == 1 ? 2 : 1;
  CopyShapes(source, target);
  workspace_.SetActiveWindow(target);
  SetEditBar();
  workspace_.Refresh(target);
  return true;
}

void DrawingTools::AnnouncementOver() {
  RandomColorIndex_ = (RandomColorIndex_ + 1) % static_cast<int>(kColorChoices.size());
  EndAnnouncement();
}

void DrawingTools::VectorColorUpdate(int Kind) {
  int button = RandomColorIndex_;
  if (settings_.RandomColor == 1 && Kind != kSwingPath && Kind != kZone) {
    engine_.CadColor = kColorChoices[static_cast<std::size_t>(button)];
  } else {
    engine_.CadColor = settings_.NewColors[static_cast<std::size_t>(Kind)];
    const auto found = std::ranges::find(kColorChoices, engine_.CadColor);
    button = found == kColorChoices.end() ? -1 : static_cast<int>(found - kColorChoices.begin());
  }
  workspace_.SetColorButton(button);
  Announce(Kind);
}

void DrawingTools::Announce(int kind) {
  workspace_.ShowToolCaption("                 Drawing " + std::string(InfOf(kind).ToolCaption) + " in Color       ");
  workspace_.ShowVectorColor(engine_.CadColor);
}

void DrawingTools::EndAnnouncement() {
  measure_.reset();
  workspace_.HideVectorColor();
  workspace_.ShowToolCaption("");
  workspace_.DisplayData("");
  workspace_.SetColorButton(-1);
}

void DrawingTools::DrawingOff() {
  Drawing_ = false;
  NewShapePending_ = false;
}

void DrawingTools::PutDown() {
  const bool announced = !EndConstruction();
  workspace_.MouseWanted();
  DrawingOff();
  DrawKind_ = 0;
  engine_.StraightMode = false;
  engine_.StraightAnchor.Set = false;
  if (announced) AnnouncementOver();
}

bool DrawingTools::UnderConstruction() const {
  for (int window = 1; window <= ShapeLists::kWindows; ++window)
    if (engine_.ShapeLists(window).Adding) return true;
  return false;
}

/// Ends what is under construction in any window. True when a shape was finished by it, which has ended
/// the tool's announcement.
bool DrawingTools::EndConstruction() {
  bool finished = false;
  for (int window = 1; window <= ShapeLists::kWindows; ++window) {
    ShapeList& list = List(window);
    if (!list.Adding) continue;
    const Shape* shape = LastShape(list);
    if (shape && engine_.LOPShape(shape->Kind) && shape->NumBound > 1) {
      FinishOpenShape(list);
      finished = true;
    } else {
      if (shape) engine_.KillShape(list, list.NumShapes - 1);
      list.Adding = false;
      engine_.StraightAnchor.Set = false;
    }
    ShapeFinished(window);
  }
  return finished;
}

/// Finishes a freehand line or a path; one of a single point shows nothing and is not kept.
void DrawingTools::FinishOpenShape(ShapeList& list) {
  Shape& shape = *LastShape(list);
  engine_.LockShape(shape);
  list.Adding = false;
  if (shape.NumBound < 2) engine_.KillShape(list, list.NumShapes - 1);
}

// ---------------------------------------------------------------- mouse

bool DrawingTools::MouseDown(int Button, int /*Shift*/, float X, float Y, int Window) {
  if (workspace_.IsPlaying(workspace_.ActiveWindow())) {
    workspace_.StopClick(Window);
    EndConstruction();
    workspace_.MouseWanted();
    DrawingOff();
    EndAnnouncement();
    return true;
  }
  if (!Drawing_ || !workspace_.HasVideo(Window)) return false;
  if (Window != workspace_.ActiveWindow()) workspace_.SetActiveWindow(Window);
  const POINTAPI point{Round(X), Round(Y)};
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
    shape->Measuring = DrawKind_ == kLine && workspace_.CalibrationShown();
  }
  // A new shape may begin where the last one was pressed.
  if (!begins && point == LastDown_) return true;
  if (list.Adding) {
    Shape& shape = *LastShape(list);
    if (Button == kLeftButton) {
      if (engine_.AddPoint(shape, engine_.ConstrainPoint(point), false)) list.Adding = false;
    } else if (engine_.LOPShape(shape.Kind) && shape.NumPts > 1) {
      FinishOpenShape(list);
      ShapeFinished(Window);
    }
  }
  LastDown_ = point;
  DrawWindow_ = Window;
  SetEditBar();
  return true;
}

bool DrawingTools::MouseMove(int /*Button*/, int /*Shift*/, float X, float Y, int Window) {
  if (!Drawing_ || Window != DrawWindow_) return false;
  ShapeList& list = List(DrawWindow_);
  if (!list.Adding) return false;
  Shape& shape = *LastShape(list);
  const POINTAPI point = engine_.ConstrainPoint({Round(X), Round(Y)});
  if (engine_.AddPoint(shape, point, shape.Kind == kFreehand)) {
    list.Adding = false;
    SetEditBar();
  }
  list.CurShape = static_cast<std::int16_t>(list.NumShapes - 1);
  workspace_.Refresh(DrawWindow_);
  SetShapeCaption();
  return true;
}

bool DrawingTools::MouseUp(int Button, int /*Shift*/, float X, float Y, int Window) {
  const POINTAPI point{Round(X), Round(Y)};
  if (!Drawing_) {
    if (!bar_ || !bar_->Shown()) return false;
    if (Window != workspace_.ActiveWindow()) {
      workspace_.SetActiveWindow(Window);
    } else if (Button == kLeftButton) {
      Select(Window, point);
    }
    return true;
  }
  if (!workspace_.HasVideo(Window)) return false;

  ShapeList& list = List(Window);
  list.CanvasWidth = workspace_.PictureWidth(Window) * kTwipsPerPixel;
  list.CanvasHeight = workspace_.PictureHeight(Window) * kTwipsPerPixel;
  if (const Shape* last = LastShape(list);
      last && ((last->Kind == kAngle && last->NumPts >= 2) || (last->Kind == kLine && last->NumPts >= 1)))
    workspace_.HideVectorColor();
  if (Button == kLeftButton && list.Adding) BindPoint(list, point, Window);
  if (list.Adding) return true;
  ShapeFinished(Window);
  // The measure outlives the tool, whose end has cleared the display.
  if (Window == DrawWindow_ && (DrawKind_ == kLine || DrawKind_ == kAngle)) SetShapeCaption();
  return true;
}

void DrawingTools::BindPoint(ShapeList& list, POINTAPI point, int window) {
  Shape& shape = *LastShape(list);
  list.CurShape = static_cast<std::int16_t>(list.NumShapes - 1);
  if (engine_.AddPoint(shape, engine_.ConstrainPoint(point), true)) list.Adding = false;
  if (shape.Kind == kFreehand) {
    // One stroke is one shape.
    FinishOpenShape(list);
  } else if (shape.Kind == kSwingPath) {
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

void DrawingTools::Select(int window, POINTAPI point) {
  ShapeList& list = List(window);
  DrawWindow_ = window;
  int nearest = -1;
  std::int32_t least = HitRadius + 1;
  int index = 0;
  for (const Shape& shape : ShapesOf(list)) {
    const std::int32_t distance = Round(Distance(engine_.GetMid(shape), point));
    if (distance < least) {
      least = distance;
      nearest = index;
    }
    ++index;
  }
  list.CurShape = static_cast<std::int16_t>(nearest);
  workspace_.Refresh(window);
  SetEditBar();
}

void DrawingTools::SetEditBar() {
  if (bar_) bar_->SetEditBar();
}

// ---------------------------------------------------------------- frame

void DrawingTools::ChooseColours(const ShapeList& list) {
  const bool marks = bar_ && bar_->Shown();
  const bool all = marks && bar_->MultiEdit();
  colours_.clear();
  int index = 0;
  for (const Shape& shape : ShapesOf(list)) {
    const bool selected = all || index == list.CurShape;
    colours_.push_back(!marks || !shape.Locked ? shape.Colour : selected ? kSelected : kOthers);
    ++index;
  }
}

/// None where all are seen in full.
void DrawingTools::ChooseOpacities(const ShapeList& list, int frame) {
  opacities_.clear();
  const auto seen = [&](const Shape& shape) { return shape.Locked ? shape.Time.OpacityOn(frame) : 255; };
  const auto shapes = ShapesOf(list);
  if (!hidden_ && std::ranges::all_of(shapes, [](const Shape& shape) { return shape.Time.Always(); })) return;
  for (const Shape& shape : shapes)
    opacities_.push_back(static_cast<std::uint8_t>(hidden_ && shape.Locked ? 0 : seen(shape)));
}

void DrawingTools::HideDrawings(bool hidden) {
  if (std::exchange(hidden_, hidden) != hidden) RefreshAll();
}

void DrawingTools::ToggleLabels() {
  settings_.Set(settings_.ShapeLabels, LabelsShown() ? 0 : 1);
  RefreshAll();
}

void DrawingTools::RefreshAll() {
  for (int window = 1; window <= ShapeLists::kWindows; ++window)
    if (workspace_.HasVideo(window)) workspace_.Refresh(window);
}

void DrawingTools::PreDrawFrame(Canvas& hDC, int Window) {
  const ShapeList& list = List(Window);
  const auto shapes = ShapesOf(list);
  ChooseColours(list);
  const GridLook grid{list.GridOn, settings_.GridSize, settings_.NewColors[kGridEntry]};
  const ShapeLook look{settings_.CadWidth, settings_.CadOutline, engine_.PathHighlight, engine_.EllipseFromCentre,
                       &engine_.Log};
  ChooseOpacities(list, workspace_.FrameOf(Window));
  const auto failed =
      painters_[static_cast<std::size_t>(Window - 1)].Paint(hDC, shapes, colours_, grid, look, opacities_);
  TellFailure(Window, failed ? &shapes[*failed] : nullptr);

  const auto finishedPath = [](const Shape& shape) {
    return shape.Kind == kSwingPath && shape.Locked && shape.NumPts >= 2;
  };
  if (!engine_.PathHighlight) engine_.PathHighlight = std::ranges::any_of(shapes, finishedPath);
  // A tool that has only been taken up announces itself; the measure comes with its first point.
  const bool measures = (bar_ && bar_->Shown()) || (Drawing_ && !NewShapePending_);
  if (Window == DrawWindow_ && measures) {
    if (std::ranges::any_of(shapes, &Shape::Locked)) SetShapeCaption();
  } else if (measure_ && Window == measure_->window) {
    FollowMeasure();
  }
}

void DrawingTools::TellFailure(int window, const Shape* failed) {
  std::string& told = failures_[static_cast<std::size_t>(window - 1)];
  if (!failed) {
    told.clear();
    return;
  }
  std::string text = engine_.DrawShapeError(*failed);
  if (text == told) return;
  told = std::move(text);
  workspace_.ShowDrawError(told);
}

/// The ruler for a window's picture at its present size: a picture that is shown twice as large as the one
/// that was calibrated has twice as many pixels to an inch.
Calibration DrawingTools::CalibrationOf(int window) const {
  const auto ratio = [](int now, int then) { return now > 0 && then > 0 ? static_cast<double>(now) / then : 1; };
  Calibration calibration;
  calibration.pal = settings_.NTSCorPAL != "0";
  calibration.perSecond = workspace_.PositionsPerSecond(window);
  const int height = workspace_.PictureHeight(window);
  if (const auto ruler = workspace_.RulerOf(window)) {
    calibration.CalibNumber = ruler->Height;
    calibration.CalibNumberOut = static_cast<float>(ruler->PixelsPerInch * ratio(height, ruler->Height));
    calibration.CalibOutput = ruler->Unit;
  } else if (settings_.RulerPerVideo == 0) {
    // Pictures of one layout share their height, whatever their proportion. Older settings know only the width.
    const double grown = settings_.CalibHeight > 0 ? ratio(height, settings_.CalibHeight)
                                                   : ratio(workspace_.PictureWidth(window), settings_.CalibWidth);
    calibration.CalibNumber = settings_.CalibNumber;
    calibration.CalibNumberOut = static_cast<float>(settings_.CalibNumberOut * grown);
    calibration.CalibOutput = settings_.CalibOutput;
  }
  return calibration;
}

MeasureScale DrawingTools::ScaleOf(int window) const {
  const Calibration calibration = CalibrationOf(window);
  const bool calibrated = calibration.CalibNumber != 0 && calibration.CalibNumberOut > 0;
  return {calibrated ? calibration.CalibNumberOut : 0.0, calibration.CalibOutput, calibration.perSecond,
          settings_.AngleFrom == kFromUpright, settings_.SpeedUnit};
}

void DrawingTools::SetShapeCaption() {
  const ShapeList& list = List(DrawWindow_);
  const Shape* shape = SelectedShape(list);
  auto text = shape ? ShapeCaption(*shape, CalibrationOf(DrawWindow_)) : std::nullopt;
  if (text) return ShowMeasure({DrawWindow_, static_cast<std::size_t>(list.CurShape), *shape, std::move(*text)});
  if (Drawing_) return;
  measure_.reset();
  workspace_.DisplayData("");
}

void DrawingTools::ShowMeasure(Measure measure) {
  measure_ = std::move(measure);
  const auto points = PointsOf(measure_->shape);
  if (measure_->shape.Kind == kLine && workspace_.CalibrationShown())
    workspace_.ShowCalibrationLength(NumberText(LineLength(points[0], points[1])) + "pts");
  workspace_.DisplayData(measure_->text);
}

/// Takes the measure anew where its shape, or the size of its picture, is another one, and drops it where
/// its shape is no more.
void DrawingTools::FollowMeasure() {
  const auto shapes = ShapesOf(List(measure_->window));
  if (measure_->index >= shapes.size() || shapes[measure_->index] != measure_->shape) {
    const auto found = std::ranges::find(shapes, measure_->shape);
    if (found == shapes.end()) return DropMeasure();
    measure_->index = static_cast<std::size_t>(found - shapes.begin());
  }
  auto text = ShapeCaption(measure_->shape, CalibrationOf(measure_->window));
  if (!text) return DropMeasure();
  if (*text == measure_->text) return;
  Measure anew = *std::exchange(measure_, std::nullopt);
  anew.text = std::move(*text);
  ShowMeasure(std::move(anew));
}

void DrawingTools::DropMeasure() {
  if (!std::exchange(measure_, std::nullopt)) return;
  if (workspace_.CalibrationShown()) workspace_.ShowCalibrationLength("");
  Drawing_ ? Announce(DrawKind_) : workspace_.DisplayData("");
}

void DrawingTools::RemoveMeasuringLine() {
  for (int window = 1; window <= ShapeLists::kWindows; ++window) {
    ShapeList& list = List(window);
    const auto shapes = ShapesOf(list);
    const auto line = std::ranges::find_if(shapes, &Shape::Measuring);
    if (line == shapes.end()) continue;
    const auto index = static_cast<int>(line - shapes.begin());
    if (!line->Locked) list.Adding = false;
    engine_.KillShape(list, index);
    if (list.CurShape >= index) --list.CurShape;
    SetEditBar();
    workspace_.Refresh(window);
  }
}

// ---------------------------------------------------------------- shapes of a window

void DrawingTools::DeleteCurShape() {
  ShapeList& list = List(DrawWindow_);
  if (list.NumShapes <= 0 || list.CurShape < 0) return;
  BeforeChange(DrawWindow_);
  if (list.CurShape == list.NumShapes - 1 && list.Adding) {
    list.Adding = false;
    NewShapePending_ = Drawing_;
  }
  engine_.KillShape(list, list.CurShape);
  if (list.CurShape >= list.NumShapes) --list.CurShape;
  NoteChange(DrawWindow_);
}

void DrawingTools::DeleteLastCAD(int Window) {
  ShapeList& list = List(Resolve(Window));
  BeforeChange(Resolve(Window));
  if (list.NumShapes != 0) {
    // The shape under construction goes; the tool stays in hand for another one.
    if (list.Adding) NewShapePending_ = Drawing_;
    list.Adding = false;
    engine_.KillShape(list, list.NumShapes - 1);
  }
  // Goes below -1 on an empty list, which selects as little as -1 does.
  if (list.CurShape > -kShapeKinds) --list.CurShape;
  NoteChange(Resolve(Window));
  SetEditBar();
}

void DrawingTools::DeleteAllCAD(int Window) {
  ShapeList& list = List(Resolve(Window));
  if (list.NumShapes <= 0) return;
  BeforeChange(Resolve(Window));
  if (list.Adding) NewShapePending_ = Drawing_;
  list.CurShape = -1;
  list.Adding = false;
  list.NumShapes = 0;
  list.Shapes.clear();
  NoteChange(Resolve(Window));
  SetEditBar();
}

void DrawingTools::RedrawCanvas(int Window) { workspace_.Refresh(Resolve(Window)); }

void DrawingTools::CopyShapes(int FromWindow, int ToWindow) {
  if (FromWindow == ToWindow || !HasShapes(FromWindow)) return;
  EndConstruction();
  const ShapeList& source = List(FromWindow);
  ShapeList& target = List(ToWindow);
  BeforeChange(ToWindow);
  target.Shapes.clear();
  target.NumShapes = 0;
  target.CurShape = -1;
  for (int i = 0; i < source.NumShapes; ++i)
    if (!ShapesOf(source)[static_cast<std::size_t>(i)].Measuring) engine_.CopyShapeInto(source, target, i);
  target.CanvasWidth = workspace_.PictureWidth(ToWindow) * kTwipsPerPixel;
  target.CanvasHeight = workspace_.PictureHeight(ToWindow) * kTwipsPerPixel;
  NoteChange(ToWindow);
  workspace_.Refresh(ToWindow);
}

void DrawingTools::ForgetPast(int window, const DrawingView& view) {
  History(window).Reset(List(window), view);
  if (measure_ && measure_->window == window) DropMeasure();
}

void DrawingTools::ViewChanged(int window, const DrawingView& view) {
  ShapeList& list = List(window);
  History(window).ViewChanged(list, view);
  if (const auto shapes = ShapesOf(list); measure_ && measure_->window == window && measure_->index < shapes.size())
    measure_->shape = shapes[measure_->index];
  const Shape* last = LastShape(list);
  if (!list.Adding || !engine_.StraightAnchor.Set || !last || last->NumPts == 0) return;
  engine_.StraightAnchor.x = last->Pts[0].x;
  engine_.StraightAnchor.y = last->Pts[0].y;
}

void DrawingTools::Undo(int window) {
  if (List(window).Adding) {
    const int before = List(window).NumShapes;
    PutDown();
    if (List(window).NumShapes < before) return;
  }
  StepHistory(window, &ShapeHistory::Undo);
}

void DrawingTools::Redo(int window) {
  if (List(window).Adding) PutDown();
  StepHistory(window, &ShapeHistory::Redo);
}

void DrawingTools::StepHistory(int window, bool (ShapeHistory::*step)(ShapeList&)) {
  BeforeChange(window);
  if (!(History(window).*step)(List(window))) return;
  SetEditBar();
  workspace_.Refresh(window);
  workspace_.DrawingsChanged(window);
}

}  // namespace kinalyx
