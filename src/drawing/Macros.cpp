#include "drawing/Macros.h"

#include <algorithm>
#include <array>
#include <utility>

#include <fmt/format.h>

namespace kinalyx {
namespace {

constexpr const char* kFileName = "Macro.dat";
constexpr const char* kKeptName = "Macro.old";

bool Refuse(std::string* error, std::string text) {
  if (error) *error = std::move(text);
  return false;
}

}  // namespace

Macros::Macros(std::string appPath, std::string dataPath, IDisk& disk)
    : appPath_(std::move(appPath)), dataPath_(std::move(dataPath)), disk_(disk) {}

std::string Macros::AppFile() const { return JoinPath(appPath_, kFileName); }
std::string Macros::DataFile() const { return JoinPath(dataPath_, kFileName); }
std::string Macros::File() const { return FileExists(DataFile()) ? DataFile() : AppFile(); }

void Macros::LoadMList(ScreenTwips screen) {
  const auto stamp = StampOf(File());
  if (!stamp || stamp == stamp_) return;
  stamp_ = stamp;
  const auto bytes = ReadWholeFile(File());
  ShapeFileContent content;
  if (!bytes) return;
  cutShort_ = bytes->size() > kShapeFileLimit;
  if (!ReadShapeFile(*bytes, screen, content)) return;
  lists_ = std::move(content.Lists);
  names_ = std::move(content.Names);
  names_.resize(lists_.size());
}

bool Macros::CreateMacro(const std::string& Name, const ShapeList& list, std::string* error) {
  if (Name.empty()) return Refuse(error, "The macro needs a name.");
  if (NumMacros() == kMostShapeLists) return Refuse(error, fmt::format("There can be no more than {} macros.", kMostShapeLists));
  auto lists = lists_;
  auto names = names_;
  lists.push_back(list);
  lists.back().Shapes = DrawingsOf(list);
  lists.back().NumShapes = static_cast<std::int16_t>(lists.back().Shapes.size());
  lists.back().Adding = false;
  lists.back().CurShape = -1;
  names.push_back(Name);
  return SaveMList(std::move(lists), std::move(names), error);
}

bool Macros::KillMacro(int Index, std::string* error) {
  if (Index < 0 || Index >= NumMacros()) return true;
  auto lists = lists_;
  auto names = names_;
  lists.erase(lists.begin() + Index);
  names.erase(names.begin() + Index);
  return SaveMList(std::move(lists), std::move(names), error);
}

bool Macros::SaveMList(std::vector<ShapeList> lists, std::vector<std::string> names, std::string* error) {
  if (cutShort_) {
    const auto old = ReadWholeFile(File());
    if (old && !WriteWholeFile(JoinPath(dataPath_, kKeptName), *old, error, disk_)) return false;
    cutShort_ = false;
  }
  if (lists.empty()) {
    if (!RemoveFiles(error)) return false;
  } else {
    const auto bytes = WriteShapeFile({0, lists, names});
    if (bytes.size() > kShapeFileLimit && lists.size() >= lists_.size())
      return Refuse(error, fmt::format("The file of the macros would need {} bytes. Beyond {} it could not be read whole. "
                                       "Remove a macro first.",
                                       bytes.size(), kShapeFileLimit));
    const bool own = FileExists(DataFile());
    if ((own || !WriteWholeFile(AppFile(), bytes, nullptr, disk_)) && !WriteWholeFile(DataFile(), bytes, error, disk_))
      return false;
  }
  lists_ = std::move(lists);
  names_ = std::move(names);
  stamp_ = StampOf(File());
  return true;
}

bool Macros::RemoveFiles(std::string* error) {
  if (!FileExists(AppFile()) || KillFile(AppFile())) {
    if (!FileExists(DataFile()) || KillFile(DataFile())) return true;
    return Refuse(error, "The file of the macros cannot be deleted.");
  }
  // The program's file stays where it cannot be deleted; an empty one of the user's own goes before it.
  return WriteWholeFile(DataFile(), WriteShapeFile({}), error, disk_);
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
    if (count > 0) text += fmt::format("{} {}'s\r\n", count, GetShapeName(kind));
  }
  return text;
}

void EmbedMacro(const ShapeList& macro, DrawingTools& tools, IDrawingWorkspace& workspace) {
  const int window = workspace.ActiveWindow();
  tools.DrawOffBtn_Click();
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
