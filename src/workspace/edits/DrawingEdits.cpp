#include "workspace/edits/DrawingEdits.h"

#include <fmt/format.h>

#include <algorithm>

#include "drawing/ShapeGeometry.h"
#include "platform/files/Tr.h"
#include "video/KeyCodes.h"

namespace kinalyx {
namespace {

constexpr float kTwipsToDouble = 400;  // a drag of the scale handle that doubles the selection
constexpr int kTwoWindows = 2;         // the layout of two windows side by side

/// A shape by the name of the tool that draws it, which is not always that of its kind.
std::string ToolName(const Shape& shape) {
  switch (shape.Kind) {
    case kFlag: return Tr("Plus Sign");
    case kEllipse: return Tr("Circle");
    case kSwingPath: return Tr("Path Trace");
    case kZone: return Tr("Zone");
    case kClock: return Tr("Clock Grid");
    default: return Tr(std::string(InfOf(shape.Kind).Name));
  }
}

}  // namespace

DrawingEdits::DrawingEdits(IHost& host, const Settings& settings, Stage& stage, DrawingTools& tools,
                           IDrawingWorkspace& drawing, IDrawingEditsView& view)
    : host_(host),
      settings_(settings),
      stage_(stage),
      tools_(tools),
      drawing_(drawing),
      view_(view),
      bar_(tools, drawing, view),
      macros_(settings.AppPath, settings.DataPath) {}

// ---------------------------------------------------------------- selection

std::optional<SelectionMarks> DrawingEdits::Marks() {
  const ShapeList& list = List();
  const Shape* selected = SelectedShape(list);
  if (!HasVideo() || !selected || !selected->Locked || tools_.Drawing()) return std::nullopt;
  const ShapeEngine& engine = tools_.Engine();
  const bool all = bar_.MultiEdit();
  const ShapeBox box = engine.BoxOf(all ? ShapesOf(list) : std::span(selected, 1));
  if (box.Empty()) return std::nullopt;
  return SelectionMarks{box.least, box.most, all ? engine.MultiGetMid(list) : engine.GetMid(*selected)};
}

std::string DrawingEdits::SelectionWords() {
  const ShapeList& list = List();
  if (!HasVideo()) return Tr("No video here");
  if (list.NumShapes == 0) return Tr("Nothing is drawn here");
  if (bar_.MultiEdit()) return list.NumShapes == 1 ? Tr("1 drawing") : Tr("All {} drawings", list.NumShapes);
  const Shape* selected = SelectedShape(list);
  if (!selected) return Tr("Click a drawing");
  return Tr("{}, {} of {}", ToolName(*selected), list.CurShape + 1, list.NumShapes);
}

void DrawingEdits::ShowSelection() {
  if (bar_.Shown()) view_.ShowSelection(stage_.CurrentWindow, Marks(), SelectionWords());
}

/// While the bar is up, an editor has the same halo round what it works on.
void DrawingEdits::ShowTaken() {
  const int window = stage_.CurrentWindow;
  auto marks = tools_.Hand().MarksIn(window);
  if (bar_.Shown() && tools_.Editor() && !bar_.MultiEdit()) {
    const Shape* selected = SelectedShape(List());
    if (selected && selected->Locked) marks = tools_.MarksOf(*selected);
    if (marks) marks->handles.clear();
  }
  view_.ShowTaken(window, marks);
}

void DrawingEdits::ShowShapeMenu(int window, POINTAPI at) {
  if (Taken()) view_.ShowShapeMenu(window, at);
}

void DrawingEdits::WriteText(int window, POINTAPI at, const std::string& text, bool anew) {
  tools_.WriteText(window, at, text, anew);
  stage_.News().Note(kCommandsChanged);
}

void DrawingEdits::EditText() {
  const Shape* taken = tools_.Hand().Taken();
  if (taken && IsText(*taken)) view_.AskText(tools_.Hand().Window(), PointsOf(*taken)[0], taken->Text, true);
}

void DrawingEdits::FramePainted(int slot) {
  if (slot == stage_.CurrentWindow) ShowTaken();
  if (slot == stage_.CurrentWindow) ShowSelection();
}

// ---------------------------------------------------------------- edit bar

void DrawingEdits::EditAll(bool Value) { bar_.EditAll(Value); }

void DrawingEdits::GrabHandle(EditHandle handle, float X, float Y) {
  if (!bar_.Shown() || Dragging() || !SelectedShape(List())) return;
  held_ = handle;
  bar_.GrabHandle(handle, X, Y);
}

void DrawingEdits::DragHandle(float X, float Y) { bar_.DragHandle(X, Y); }

void DrawingEdits::ReleaseHandle() { bar_.ReleaseHandle(); }

/// A point of the picture as the bar would see it within one of its handles: a turn goes about the
/// handle's middle, whatever the selection turns about.
std::pair<float, float> DrawingEdits::InHandle(EditHandle handle, POINTAPI at) {
  if (handle != kRotateHandle)
    return {static_cast<float>(at.x * kTwipsPerPixel), static_cast<float>(at.y * kTwipsPerPixel)};
  return {static_cast<float>(view_.HandleWidth(handle) / 2.0 + (at.x - gripPivot_.x) * kTwipsPerPixel),
          static_cast<float>(view_.HandleHeight(handle) / 2.0 + (at.y - gripPivot_.y) * kTwipsPerPixel)};
}

void DrawingEdits::HandlePressed(EditHandle handle, POINTAPI at) {
  const auto marks = Marks();
  if (!marks) return;
  grip_ = at;
  gripPivot_ = marks->pivot;
  const auto [x, y] = handle == kScaleHandle ? std::pair{0.0f, 0.0f} : InHandle(handle, at);
  GrabHandle(handle, x, y);
}

void DrawingEdits::HandleDragged(POINTAPI at) {
  if (!Dragging()) return;
  if (held_ != kScaleHandle) {
    const auto [x, y] = InHandle(held_, at);
    DragHandle(x, y);
    return;
  }
  // So far along the bar's drag that the selection grows as the handle gets away from the pivot.
  const double whole = std::max(1.0f, Distance(gripPivot_, grip_));
  DragHandle(0, static_cast<float>(kTwipsToDouble * (1 - Distance(gripPivot_, at) / whole)));
}

void DrawingEdits::Nudge(int dx, int dy) {
  GrabHandle(kMoveHandle, 0, 0);
  DragHandle(static_cast<float>(dx * kTwipsPerPixel), static_cast<float>(dy * kTwipsPerPixel));
  ReleaseHandle();
}

// ---------------------------------------------------------------- undo

void DrawingEdits::Undo() {
  if (CanUndo()) tools_.Undo(stage_.CurrentWindow);
}

void DrawingEdits::Redo() {
  if (CanRedo()) tools_.Redo(stage_.CurrentWindow);
}

// ---------------------------------------------------------------- macros

void DrawingEdits::LoadMacros() {
  const SystemInfo system = host_.System();
  macros_.LoadMList({system.screenWidth * kTwipsPerPixel, system.screenHeight * kTwipsPerPixel});
  TellOfMacroFiles();
}

void DrawingEdits::TellOfMacroFiles() {
  if (const std::string notice = macros_.TakeNotice(); !notice.empty())
    host_.Message(MessageKind::Warning, Tr("Drawing macros"), notice);
}

void DrawingEdits::SaveMacro() {
  // What is under construction ends before it is copied.
  tools_.PutToolDown();
  const auto name = view_.AskMacroName(List());
  if (!name || name->empty()) return;
  LoadMacros();
  if (const Outcome saved = macros_.CreateMacro(*name, List()); !saved)
    host_.Message(MessageKind::Warning, Tr("New macro"), Tr("The macro could not be saved. {}", saved.Why()));
  TellOfMacroFiles();
  if (macroFormShown_) view_.FillMacroList(macros_.MacroNames(), macros_.IndexOf(*name));
}

void DrawingEdits::ToggleMacroForm() {
  macroFormShown_ = !macroFormShown_;
  if (macroFormShown_) {
    LoadMacros();
    view_.FillMacroList(macros_.MacroNames(), macros_.NumMacros() > 0 ? 0 : -1);
  }
  view_.ShowMacroForm(macroFormShown_);
}

void DrawingEdits::InsertMacro(int Index) {
  if (Index < 0 || Index >= macros_.NumMacros() || !HasVideo() || Dragging()) return;
  EmbedMacro(macros_.Macro(Index), tools_, drawing_);
  bar_.EditWhole();
}

bool DrawingEdits::TakeMacro(const std::string& name) {
  if (!macroFormShown_ && HasVideo() && !tools_.HasShapes(stage_.CurrentWindow)) {
    LoadMacros();
    InsertMacro(macros_.IndexOf(name));
    return tools_.HasShapes(stage_.CurrentWindow);
  }
  if (!macroFormShown_) ToggleMacroForm();
  LoadMacros();
  view_.FillMacroList(macros_.MacroNames(), macros_.IndexOf(name));
  return false;
}

void DrawingEdits::ShowMacroInfo(int Index) {
  if (Index < 0 || Index >= macros_.NumMacros()) return;
  const std::string info = macros_.Info(Index);
  host_.Message(MessageKind::Information, macros_.MacroNames()[static_cast<std::size_t>(Index)],
                info.empty() ? Tr("This macro holds no drawings.") : info);
}

void DrawingEdits::DeleteMacro(int Index) {
  if (Index < 0 || Index >= macros_.NumMacros()) return;
  const std::string name = macros_.MacroNames()[static_cast<std::size_t>(Index)];
  if (!host_.Question(Tr("Remove macro"), Tr("Remove the macro \"{}\"?", name))) return;
  // Somebody else may have added or removed some meanwhile.
  LoadMacros();
  const auto& names = macros_.MacroNames();
  if (Index >= macros_.NumMacros() || names[static_cast<std::size_t>(Index)] != name)
    Index = static_cast<int>(std::ranges::find(names, name) - names.begin());
  if (const Outcome removed = macros_.KillMacro(Index); !removed)
    host_.Message(MessageKind::Warning, Tr("Remove macro"), Tr("The macro could not be removed. {}", removed.Why()));
  TellOfMacroFiles();
  view_.FillMacroList(macros_.MacroNames(), std::min(Index, macros_.NumMacros() - 1));
}

// ---------------------------------------------------------------- grid and clone

void DrawingEdits::ToggleGridPanel() {
  gridPanelShown_ = !gridPanelShown_;
  view_.ShowGridPanel(gridPanelShown_);
}

void DrawingEdits::CloseGridPanel() {
  if (gridPanelShown_) ToggleGridPanel();
}

/// A window that stands alone is one of a layout, which comes back before anything is copied.
int DrawingEdits::WindowsOfLayout() const {
  return stage_.Alone() ? Val(stage_.Home().SavedLayout) : stage_.SlotsShown();
}

std::vector<int> DrawingEdits::CloneTargets() const {
  std::vector<int> targets;
  for (int slot = 1; slot <= std::max(kTwoWindows, WindowsOfLayout()); ++slot)
    if (slot != stage_.CurrentWindow && stage_.HasVideo(slot)) targets.push_back(slot);
  return targets;
}

bool DrawingEdits::CanClone() const {
  return HasVideo() && tools_.HasShapes(stage_.CurrentWindow) && !CloneTargets().empty();
}

void DrawingEdits::CloneDrawings() {
  if (!CanClone()) return;
  // The copy is to be seen: a window that is hidden comes back first.
  if (stage_.Alone()) stage_.ComeHome();
  if (stage_.SlotsShown() < kTwoWindows) stage_.SetScreen(kTwoWindows);
  const int source = stage_.CurrentWindow;
  int target = source == 1 ? 2 : 1;
  if (!tools_.CloneStart(stage_.SlotsShown())) {
    const auto chosen = view_.AskCloneTarget(source, CloneTargets());
    if (!chosen) return;
    target = *chosen;
    tools_.CopyShapes(source, target);
    stage_.SelectWindow(target);
  }
  drawing_.DrawingsChanged(target);
}

// ---------------------------------------------------------------- keys

bool DrawingEdits::PressKey(int KeyCode, int Shift) {
  if (Shift & kCtrl) {
    if (KeyCode == 'Z') Shift& kShift ? Redo() : Undo();
    if (KeyCode == 'Y') Redo();
    if (KeyCode == 'D' && Hand().TakenIsSeen()) {
      Hand().Duplicate();
      return true;
    }
    return KeyCode == 'Z' || KeyCode == 'Y';
  }
  if (tools_.TracingPath() && (KeyCode == kKeyReturn || KeyCode == kKeyBackspace)) {
    KeyCode == kKeyReturn ? tools_.EndPath() : Undo();
    return true;
  }
  if (Taken() && !tools_.Drawing() && !bar_.Shown()) return PressKeyInHand(KeyCode, Shift);
  if (!bar_.Shown() || tools_.Drawing()) return false;
  const auto press = [this](EditHandle handle) {
    if (!Dragging() && view_.HandleEnabled(handle)) bar_.UseHandle(handle);
    return true;
  };
  if (KeyCode == kKeyTab) return press(kNextHandle);
  if (KeyCode == kKeyDelete) return press(kDeleteHandle);
  if (!(Shift & kShift)) return false;
  switch (KeyCode) {
    case kKeyLeft: Nudge(-1, 0); return true;
    case kKeyRight: Nudge(1, 0); return true;
    case kKeyUp: Nudge(0, -1); return true;
    case kKeyDown: Nudge(0, 1); return true;
    default: return false;
  }
}

/// Keys for the drawing that is taken. One that is not seen now stays as it is, and nothing else goes in its place.
bool DrawingEdits::PressKeyInHand(int KeyCode, int Shift) {
  if (!Hand().TakenIsSeen()) return KeyCode == kKeyDelete;
  if (KeyCode == kKeyDelete) {
    Hand().Remove();
    return true;
  }
  if (!(Shift & kShift)) return false;
  switch (KeyCode) {
    case kKeyLeft: Hand().Nudge(-1, 0); return true;
    case kKeyRight: Hand().Nudge(1, 0); return true;
    case kKeyUp: Hand().Nudge(0, -1); return true;
    case kKeyDown: Hand().Nudge(0, 1); return true;
    default: return false;
  }
}

void DrawingEdits::PutAway() {
  Hand().LetGo();
  if (bar_.Shown()) EndEdit();
  if (macroFormShown_) ToggleMacroForm();
}

void DrawingEdits::EndEdit() {
  ReleaseHandle();
  bar_.UseHandle(kEndHandle);
}

bool DrawingEdits::Escape() {
  if (Taken()) {
    Hand().LetGo();
  } else if (bar_.Shown()) {
    EndEdit();
  } else if (gridPanelShown_) {
    ToggleGridPanel();
  } else if (macroFormShown_) {
    ToggleMacroForm();
  } else {
    return false;
  }
  return true;
}

// ---------------------------------------------------------------- from the workspace

void DrawingEdits::FocusChanged() {
  ReleaseHandle();
  if (Hand().Window() != stage_.CurrentWindow) Hand().LetGo();
  bar_.MoveEditBar();
  ShowTaken();
  ShowSelection();
}

void DrawingEdits::VideoClosing(int slot) {
  if (slot == stage_.CurrentWindow) EndEdit();
}

void DrawingEdits::CloseAll() {
  while (Escape()) {
  }
}

}  // namespace kinalyx
