#include "drawing/Macros.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include <fmt/format.h>

#include "platform/files/Tr.h"

namespace kinalyx {
namespace {

constexpr const char* kFileName = "Macro.dat";

}  // namespace

Macros::Macros(std::string appPath, std::string dataPath, IDisk& disk)
    : shared_(JoinPath(appPath, kFileName), disk), own_(JoinPath(dataPath, kFileName), disk) {}

void Macros::LoadMList(ScreenTwips screen) {
  shared_.Read(screen);
  own_.Read(screen);
  Gather();
}

void Macros::Gather() {
  shown_ = shared_.All();
  if (!OneFile()) {
    // An own file may repeat shared ones, from when it stood in for the shared file as a whole.
    for (const NamedMacro& macro : own_.All()) {
      if (std::ranges::find(shared_.All(), macro) == shared_.All().end()) shown_.push_back(macro);
    }
  }
  names_.clear();
  for (const NamedMacro& macro : shown_) names_.push_back(macro.name);
}

Outcome Macros::CreateMacro(const std::string& Name, const ShapeList& list) {
  if (Name.empty()) return Outcome::Failed(Tr("The macro needs a name."));
  NamedMacro macro{Name, list};
  macro.list.Shapes = DrawingsOf(list);
  macro.list.NumShapes = static_cast<std::int16_t>(macro.list.Shapes.size());
  Outcome stored = shared_.Add(macro);
  if (stored.Kind() == Fault::Unwritable && !OneFile()) stored = own_.Add(macro);
  Gather();
  return stored;
}

Outcome Macros::KillMacro(int Index) {
  if (Index < 0 || Index >= NumMacros()) return {};
  const NamedMacro macro = shown_[static_cast<std::size_t>(Index)];
  const bool shared = Index < static_cast<int>(shared_.All().size());
  Outcome removed = shared ? shared_.Remove(macro, false) : own_.Remove(macro, false);
  if (shared && removed && !OneFile()) removed = own_.Remove(macro, true);
  Gather();
  if (removed.Kind() != Fault::Unwritable) return removed;
  return {Fault::Unwritable, Tr("It lies in \"{}\": {}", shared ? shared_.Path() : own_.Path(), removed.Why())};
}

int Macros::IndexOf(const std::string& Name) const {
  for (int index = NumMacros() - 1; index >= 0; --index) {
    if (names_[static_cast<std::size_t>(index)] == Name) return index;
  }
  return -1;
}

std::string Macros::TakeNotice() {
  std::string notice = shared_.TakeNotice();
  const std::string own = own_.TakeNotice();
  if (OneFile() || own.empty()) return notice;
  return notice.empty() ? own : notice + "\n\n" + own;
}

std::string Macros::Info(int Index) const {
  std::array<int, kShapeKinds> counts{};
  for (int i = 0; i < NumShapesInMacro(Index); ++i) {
    const int kind = GetMacroShapeType(Index, i);
    if (kind >= 0 && kind < kShapeKinds) ++counts[static_cast<std::size_t>(kind)];
  }
  std::string text;
  for (int kind = 0; kind < kShapeKinds; ++kind) {
    const int count = counts[static_cast<std::size_t>(kind)];
    if (count > 0) text += Tr("{} {}'s", count, Tr(std::string(InfOf(kind).Name))) + "\r\n";
  }
  return text;
}

void EmbedMacro(const ShapeList& macro, DrawingTools& tools, IDrawingWorkspace& workspace) {
  const int window = workspace.ActiveWindow();
  tools.PutToolDown();
  tools.BeforeChange(window);
  ShapeList list = macro;
  const int width = workspace.PictureWidth(window) * kTwipsPerPixel;
  const int height = workspace.PictureHeight(window) * kTwipsPerPixel;
  StretchShapes(list, list.CanvasWidth, list.CanvasHeight, width, height);
  list.CanvasWidth = width;
  list.CanvasHeight = height;
  list.GridOn = tools.List(window).GridOn;
  list.Adding = false;
  list.CurShape = list.NumShapes > 0 ? 0 : -1;
  tools.List(window) = std::move(list);
  tools.NoteChange(window);
  tools.RedrawCanvas(window);
  workspace.DrawingsChanged(window);
}

Surface PaintMacro(const ShapeList& macro, int width, int height, Colour ground, const ShapeLook& look) {
  Surface surface(width, height);
  if (surface.Empty()) return surface;
  surface.Clear(ground);
  // A drawing that does not know its window is taken as one of an ordinary size.
  const bool known = macro.CanvasWidth > 0 && macro.CanvasHeight > 0;
  const double canvasWidth = known ? static_cast<double>(macro.CanvasWidth) / kTwipsPerPixel : 640;
  const double canvasHeight = known ? static_cast<double>(macro.CanvasHeight) / kTwipsPerPixel : 480;
  const double scale = std::min(width / canvasWidth, height / canvasHeight);
  ShapeList list = macro;
  StretchShapes(list, scale, scale);
  Canvas canvas(surface);
  canvas.SetPen({0, std::max(1, static_cast<int>(look.CadWidth * scale)), 0});
  for (const Shape& shape : ShapesOf(list)) PaintShape(shape, shape.Colour, canvas, look);
  return surface;
}

}  // namespace kinalyx
