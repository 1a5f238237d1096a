#include "drawing/DrawingTools.h"

#include <algorithm>
#include <utility>

#include "drawing/ShapeGeometry.h"
#include "platform/files/Folders.h"
#include "platform/files/Tr.h"

namespace kinalyx {
namespace {

constexpr int kGridEntry = 11;       // of the Draw menu and of the tool colours
constexpr Colour kSelected = 65280;  // green
constexpr Colour kOthers = 255;      // red, while one shape is selected
constexpr int kGlassGrid = 110;      // opacity of a grid that is laid on as glass

/// The colours of the tools and the grid that a first run writes, and those that take their place in the editor's
/// way as long as nobody has chosen others: they stand out on grass and on mats.
constexpr std::array<Colour, 13> kFirstColours{0xC0C000, 0xFFFF,   0x8000, 0xFF0000, 0xFF,     0xFF00, 0xFFFF,
                                               0xFF,     0xFF0000, 0xFFFF, 0xFF,     0x800000, 0xFFFF};
constexpr Colour kYellow = kColorChoices[1], kOrange = kColorChoices[6], kCyan = kColorChoices[8],
                 kWhite = kColorChoices[9];
constexpr std::array<Colour, 13> kEditorColours{kYellow, kWhite,  kCyan,  kYellow, kOrange, kYellow, kYellow,
                                                kCyan,   kOrange, kWhite, kOrange, kWhite,  kYellow};

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
  if (Drawing_ && Index == DrawKind_ && inHand_ == ToolInHand::Plain) {
    PutDown();
    return;
  }
  EndConstruction();
  hand_.LetGo();
  workspace_.MouseWanted();
  workspace_.ReleaseLoopButton();
  inHand_ = ToolInHand::Plain;
  stays_ = false;
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

void DrawingTools::TakeCentreCircle() { Hold(ToolInHand::CentreCircle, kEllipse); }
void DrawingTools::TakeTextTool() { Hold(ToolInHand::Text, kFlag); }

/// Takes a tool of a kind up in another way than the plain one, or puts it down when it is held so already.
void DrawingTools::Hold(ToolInHand way, int kind) {
  if (Drawing_ && inHand_ == way) return PutDown();
  const bool stays = !Drawing_ && stays_;
  if (Drawing_) PutDown();
  TakeTool(kind);
  if (!Drawing_) return;
  inHand_ = way;
  stays_ = stays && way == ToolInHand::Text;
  Announce(kind);
}

void DrawingTools::PutToolDown() {
  if (Drawing_) PutDown();
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
  Drawing_ ? workspace_.ShowVectorColor(engine_.CadColor) : hand_.SetColour(engine_.CadColor);
}

void DrawingTools::ChooseWidth(int pixels) {
  if (Drawing_) {
    PenWidth_ = static_cast<std::int16_t>(std::clamp(pixels, 0, 100));
  } else {
    hand_.SetWidth(std::clamp(pixels, 1, 100));
  }
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

Colour DrawingTools::ToolColour(int index) const {
  static_assert(kShapeKinds <= std::tuple_size_v<decltype(Settings::NewColors)>, "every kind has its colour");
  const auto i = static_cast<std::size_t>(index);
  const Colour chosen = settings_.NewColors[i];
  return Editor() && chosen == kFirstColours[i] ? kEditorColours[i] : chosen;
}

void DrawingTools::VectorColorUpdate(int Kind) {
  int button = RandomColorIndex_;
  if (settings_.RandomColor == 1 && Kind != kSwingPath && Kind != kZone) {
    engine_.CadColor = kColorChoices[static_cast<std::size_t>(button)];
  } else {
    engine_.CadColor = ToolColour(Kind);
    const auto found = std::ranges::find(kColorChoices, engine_.CadColor);
    button = found == kColorChoices.end() ? -1 : static_cast<int>(found - kColorChoices.begin());
  }
  workspace_.SetColorButton(button);
  Announce(Kind);
}

void DrawingTools::Announce(int kind) {
  const std::string tool = inHand_ == ToolInHand::Text           ? Tr("Text")
                           : inHand_ == ToolInHand::CentreCircle ? Tr("a Circle from its Center")
                                                                 : Tr(std::string(InfOf(kind).ToolCaption));
  workspace_.ShowToolCaption("                 " + Tr("Drawing {} in Color", tool) + "       ");
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
  inHand_ = ToolInHand::Plain;
  stays_ = false;
  PenWidth_ = 0;
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

// ---------------------------------------------------------------- frame

void DrawingTools::ChooseColours(const ShapeList& list) {
  // An editor marks the selection by a halo and leaves every drawing its colour.
  const bool marks = BarShown() && !Editor();
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

std::vector<ShapeLabel> DrawingTools::LabelsOf(int window) {
  std::vector<ShapeLabel> labels;
  for (auto& measure : MeasuresOf(window)) labels.push_back(std::move(measure.second));
  return labels;
}

std::vector<std::pair<std::size_t, ShapeLabel>> DrawingTools::MeasuresOf(int window) {
  constexpr int kFull = 255;
  std::vector<std::pair<std::size_t, ShapeLabel>> measures;
  const ShapeList& list = List(window);
  const auto shapes = ShapesOf(list);
  if (shapes.empty()) return measures;
  ChooseOpacities(list, workspace_.FrameOf(window));
  const MeasureScale scale = ScaleOf(window);
  for (std::size_t i = 0; i < shapes.size(); ++i) {
    // The ruler's line has its length in its panel.
    if (shapes[i].Measuring || !HasLabel(shapes[i]) || (!opacities_.empty() && opacities_[i] < kFull)) continue;
    const auto exact = workspace_.ExactOf(window, shapes[i]);
    if (auto label = LabelOf(shapes[i], scale, exact ? &*exact : nullptr)) measures.emplace_back(i, std::move(*label));
  }
  return measures;
}

bool DrawingTools::ShowsSpeeds(int window) const {
  const auto isPath = [](const Shape& shape) { return shape.Kind == kSwingPath && shape.Locked; };
  return LabelsShown() && std::ranges::any_of(ShapesOf(List(window)), isPath) && ScaleOf(window).PixelsPerInch > 0;
}

void DrawingTools::HideDrawings(bool hidden) {
  if (std::exchange(hidden_, hidden) != hidden) RefreshAll();
}

bool DrawingTools::IsSeen(const Shape& shape, int window) const {
  return !shape.Locked || (!hidden_ && shape.Time.OpacityOn(workspace_.FrameOf(window)) > 0);
}

void DrawingTools::ToggleLabels() {
  settings_.Set(settings_.ShapeLabels, LabelsShown() ? 0 : 1);
  RefreshAll();
}

void DrawingTools::RefreshAll() {
  for (int window = 1; window <= ShapeLists::kWindows; ++window)
    if (workspace_.HasVideo(window)) workspace_.Refresh(window);
}

GridLook DrawingTools::GridOf(const ShapeList& list) const {
  return {list.GridOn, settings_.GridSize, ToolColour(kGridEntry), Editor() ? kGlassGrid : 255};
}

ShapeLook DrawingTools::LookOfShapes() {
  return {settings_.CadWidth,        settings_.CadOutline, engine_.PathHighlight,
          engine_.EllipseFromCentre, &engine_.Log,         Editor()};
}

FilmDrawings DrawingTools::FilmOf(int window) {
  const ShapeList& list = List(window);
  FilmDrawings film{
      .Drawings = {}, .Grid = GridOf(list), .Look = LookOfShapes(), .Labels = LabelsShown(), .Scale = ScaleOf(window)};
  film.Look.Log = nullptr;
  if (hidden_) return film;
  for (const Shape& shape : ShapesOf(list)) {
    if (!shape.Locked || shape.Measuring) continue;
    auto exact = workspace_.ExactOf(window, shape);
    film.Drawings.push_back(exact ? std::move(*exact) : ExactDrawing{shape, film.Scale.Width, film.Scale.Height});
  }
  return film;
}

void DrawingTools::PreDrawFrame(Canvas& hDC, int Window) {
  const ShapeList& list = List(Window);
  const auto shapes = ShapesOf(list);
  ChooseColours(list);
  const GridLook grid = GridOf(list);
  const ShapeLook look = LookOfShapes();
  ChooseOpacities(list, workspace_.FrameOf(Window));
  const auto failed =
      painters_[static_cast<std::size_t>(Window - 1)].Paint(hDC, shapes, colours_, grid, look, opacities_);
  TellFailure(Window, failed ? &shapes[*failed] : nullptr);
  if (LabelsShown()) labelPainters_[static_cast<std::size_t>(Window - 1)].Paint(hDC, LabelsOf(Window));

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

void DrawingTools::RemoveShape(int window, int index) {
  ShapeList& list = List(window);
  if (index < 0 || index >= list.NumShapes || list.Adding) return;
  BeforeChange(window);
  engine_.KillShape(list, index);
  if (list.CurShape >= index) --list.CurShape;
  NoteChange(window);
  SetEditBar();
  workspace_.Refresh(window);
  workspace_.DrawingsChanged(window);
}

void DrawingTools::KeepInside(Shape& shape, int window) {
  const auto points = BoundPoints(shape);
  const int width = workspace_.PictureWidth(window), height = workspace_.PictureHeight(window);
  if (!IsText(shape) || points.empty() || width <= 0 || height <= 0) return;
  const POINTAPI letters = Canvas::TextSize(shape.Text, LetterHeight(shape));
  const auto inside = [](int middle, int size, int room) {
    const int margin = std::min(size / 2 + 4, room / 2);
    return std::clamp(middle, margin, room - margin);
  };
  points[0] = {inside(points[0].x, letters.x, width), inside(points[0].y, letters.y, height)};
}

TakenMarks DrawingTools::MarksOf(const Shape& shape) const {
  const int width = IsTakenWithin(shape) ? 1 : shape.Width > 0 ? shape.Width : UsualWidth();
  return {OutlineOf(shape, engine_.EllipseFromCentre), width, HandlesOf(shape)};
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
  if (hand_.Window() == window) hand_.LetGo();
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
  if (TakeBackPoint(window)) return;
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
