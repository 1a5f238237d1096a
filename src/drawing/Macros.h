#pragma once

#include <string>
#include <vector>

#include "drawing/DrawingTools.h"
#include "drawing/MacroFile.h"
#include "drawing/Shape.h"
#include "drawing/ShapePainting.h"
#include "platform/files/FileStore.h"
#include "platform/files/Folders.h"
#include "platform/paint/Surface.h"

namespace kinalyx {

/// Named drawings, each the whole list of a window, kept in two files of the name "Macro.dat": the one in the
/// program's folder is shared with whoever uses the program there, the one in the user's data folder holds
/// what could not be written to the other. Both are shown, first the shared ones; every change is stored at
/// once in the file that it concerns.
class Macros {
 public:
  Macros(std::string appPath, std::string dataPath, IDisk& disk = RealDisk());

  int NumMacros() const { return static_cast<int>(shown_.size()); }
  const ShapeList& Macro(int Index) const { return shown_[static_cast<std::size_t>(Index)].list; }
  const std::vector<std::string>& MacroNames() const { return names_; }

  /// Reads the files, unless they are as they were read or written last: another workstation, or another user
  /// of this one, may keep macros in them too.
  void LoadMList(ScreenTwips screen);

  /// Keeps a copy of a window's drawings, behind what others have stored meanwhile. Refused, and the user
  /// is to be told why, without a name, beyond 256 macros in a file, when the file would become too long to be read
  /// whole, and when the disk refuses in both places.
  Outcome CreateMacro(const std::string& Name, const ShapeList& list);
  /// Removes a macro from the file that holds it. One that somebody else has removed or replaced meanwhile, and
  /// indexes outside the list, do nothing.
  Outcome KillMacro(int Index);
  /// The last one of a name; -1 none.
  int IndexOf(const std::string& Name) const;

  /// What the user should know of the files and was not told yet: what could not be read, where it is kept.
  std::string TakeNotice();

  int NumShapesInMacro(int Index) const { return Macro(Index).NumShapes; }
  int GetMacroShapeType(int Index, int Shape) const {
    return ShapesOf(Macro(Index))[static_cast<std::size_t>(Shape)].Kind;
  }
  /// How many shapes of each kind a macro has, a line for each.
  std::string Info(int Index) const;

 private:
  /// The user's data folder may be the program's.
  bool OneFile() const {
    return SamePlace(FolderOf(shared_.Path()), FolderOf(own_.Path())) || SamePlace(shared_.Path(), own_.Path());
  }
  void Gather();

  MacroFile shared_;
  MacroFile own_;
  std::vector<NamedMacro> shown_;
  std::vector<std::string> names_;
};

/// Lays a macro over the active window in place of what it held, stretched to its size.
void EmbedMacro(const ShapeList& macro, DrawingTools& tools, IDrawingWorkspace& workspace);

/// A macro as large as it fits into a picture of this size, on a ground of one colour.
Surface PaintMacro(const ShapeList& macro, int width, int height, Colour ground, const ShapeLook& look);

}  // namespace kinalyx
