#pragma once

#include <optional>
#include <string>
#include <vector>

#include "drawing/DrawingTools.h"
#include "drawing/Shape.h"
#include "drawing/ShapeFile.h"
#include "drawing/ShapePainting.h"
#include "platform/files/FileStore.h"
#include "platform/files/Folders.h"
#include "platform/paint/Surface.h"

namespace kinalyx {

/// Named drawings, each the whole list of a window, kept in "Macro.dat" in the program's folder, or in
/// the user's data folder when the program's cannot be written. Every change is stored at once.
class Macros {
 public:
  Macros(std::string appPath, std::string dataPath, IDisk& disk = RealDisk());

  int NumMacros() const { return static_cast<int>(lists_.size()); }
  const ShapeList& Macro(int Index) const { return lists_[static_cast<std::size_t>(Index)]; }
  const std::vector<std::string>& MacroNames() const { return names_; }

  /// Reads the file, when it is not the one that was read or written last: another workstation, or another
  /// user of this one, may keep macros in it too. A missing one changes nothing.
  void LoadMList(ScreenTwips screen);

  /// Keeps a copy of a window's drawings. Refused, with `error` for the user, without a name, beyond 256
  /// macros, when the file would become too long to be read whole, and when the disk refuses.
  bool CreateMacro(const std::string& Name, const ShapeList& list, std::string* error = nullptr);
  /// Indexes outside the list do nothing.
  bool KillMacro(int Index, std::string* error = nullptr);

  int NumShapesInMacro(int Index) const { return Macro(Index).NumShapes; }
  int GetMacroShapeType(int Index, int Shape) const { return ShapesOf(Macro(Index))[static_cast<std::size_t>(Shape)].Kind; }
  /// How many shapes of each kind a macro has, a line for each.
  std::string Info(int Index) const;

 private:
  std::string AppFile() const;
  std::string DataFile() const;
  /// The one that counts: the user's own is newer wherever there is one, for it exists because the program's
  /// could not be written.
  std::string File() const;
  /// Stores these as all macros; without any the file goes. On failure `error` says why, and the old file
  /// and the old macros stand. A file that was too long to be read whole is kept beside as "Macro.old"
  /// before it is replaced.
  bool SaveMList(std::vector<ShapeList> lists, std::vector<std::string> names, std::string* error);
  bool RemoveFiles(std::string* error);

  std::string appPath_;
  std::string dataPath_;
  IDisk& disk_;
  std::optional<FileStamp> stamp_;  // of the file that was read or written last
  bool cutShort_ = false;  // the file that was read holds more than could be read
  std::vector<ShapeList> lists_;
  std::vector<std::string> names_;
};

/// Lays a macro over the active window in place of what it held, stretched to its size.
void EmbedMacro(const ShapeList& macro, DrawingTools& tools, IDrawingWorkspace& workspace);

/// A macro as large as it fits into a picture of this size, on a ground of one colour.
Surface PaintMacro(const ShapeList& macro, int width, int height, Colour ground, const ShapeLook& look);

}  // namespace kinalyx
