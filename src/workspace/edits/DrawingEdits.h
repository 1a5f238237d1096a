#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "drawing/EditBar.h"
#include "drawing/Macros.h"
#include "platform/host/Host.h"
#include "workspace/stage/Stage.h"

namespace kinalyx {

/// Where the edit bar's selection lies on the picture, in its pixels.
struct SelectionMarks {
  POINTAPI corner;    ///< of the box round it: top left
  POINTAPI opposite;  ///< bottom right
  POINTAPI pivot;     ///< the point about which it turns and scales

  friend bool operator==(const SelectionMarks&, const SelectionMarks&) = default;
};

/// What the editing of drawings asks of the window that shows it.
class IDrawingEditsView : public IEditBarView {
 public:
  /// What EnableHandle said last.
  virtual bool HandleEnabled(EditHandle handle) = 0;
  /// The handles on the picture of a window, none without marks, and what the bar says of the selection.
  virtual void ShowSelection(int window, const std::optional<SelectionMarks>& marks, const std::string& words) = 0;
  /// The halo and the handles of the drawing that is taken, in pixels of a window's picture; none without marks.
  virtual void ShowTaken(int /*window*/, const std::optional<TakenMarks>& /*marks*/) {}
  virtual void ShowPointer(int /*window*/, HandPointer) {}
  /// The menu of the drawing that is taken, at a point of the picture.
  virtual void ShowShapeMenu(int /*window*/, POINTAPI /*at*/) {}
  /// A box round a point of the picture in which letters are typed; `anew`: in place of those that are taken. What
  /// is typed comes back by WriteText, also when the box is left; nothing after Escape.
  virtual void AskText(int /*window*/, POINTAPI /*at*/, const std::string& /*text*/, bool /*anew*/) {}
  /// Asks for the name of a new macro beside a picture of it; empty or nothing: none is made.
  virtual std::optional<std::string> AskMacroName(const ShapeList& drawing) = 0;
  virtual void ShowMacroForm(bool shown) = 0;
  /// Another list of macros; `selected` is -1 for none.
  virtual void FillMacroList(const std::vector<std::string>& names, int selected) = 0;
  virtual void ShowGridPanel(bool shown) = 0;
  /// Asks for the window that gets a copy of the drawings of `source`.
  virtual std::optional<int> AskCloneTarget(int source, const std::vector<int>& targets) = 0;
};

/// Everything that is done to drawings after they are drawn: the edit bar with its handles and keys,
/// undo, macros, the size of the grid, and copies for other windows.
class DrawingEdits {
 public:
  DrawingEdits(IHost& host, const Settings& settings, Stage& stage, DrawingTools& tools, IDrawingWorkspace& drawing,
               IDrawingEditsView& view);

  DrawingTools& Tools() { return tools_; }
  const Macros& MacroList() const { return macros_; }
  /// How shapes look on a preview.
  ShapeLook Look() const { return {settings_.CadWidth, settings_.CadOutline, false}; }
  int GridSize() const { return settings_.GridSize; }
  /// There is a video in the current window.
  bool HasVideo() const { return stage_.HasVideo(stage_.CurrentWindow); }

  // --- edit bar
  bool Editing() const { return bar_.Shown(); }
  void ToggleEditBar() { bar_.ToggleEditBar(); }
  void UseHandle(EditHandle handle) { bar_.UseHandle(handle); }
  void EditAll(bool Value);
  /// The left button on a handle of the bar, in twips of the handle, 15 to a pixel of the picture.
  void GrabHandle(EditHandle handle, float X, float Y);
  void DragHandle(float X, float Y);
  void ReleaseHandle();
  /// The same on a handle that lies on the picture, in its pixels: the selection follows the mouse.
  void HandlePressed(EditHandle handle, POINTAPI at);
  void HandleDragged(POINTAPI at);
  void HandleReleased() { ReleaseHandle(); }
  bool Dragging() const { return bar_.Dragging(); }
  /// Moves the selection by pixels.
  void Nudge(int dx, int dy);
  /// Shows the handles where the selection is now.
  void ShowSelection();

  // --- the drawing that is taken without the bar
  ShapeHand& Hand() { return tools_.Hand(); }
  bool Taken() const { return tools_.Hand().Taken() != nullptr; }
  void ShowTaken();
  void ShowPointer(int window, HandPointer pointer) { view_.ShowPointer(window, pointer); }
  void ShowShapeMenu(int window, POINTAPI at);
  void AskText(int window, POINTAPI at, const std::string& text) { view_.AskText(window, at, text, !text.empty()); }
  void WriteText(int window, POINTAPI at, const std::string& text, bool anew);
  /// Types the letters of what is taken anew.
  void EditText();

  // --- undo of the current window's drawings; not while one is dragged
  bool CanUndo() const { return !Dragging() && tools_.CanUndo(stage_.CurrentWindow); }
  bool CanRedo() const { return !Dragging() && tools_.CanRedo(stage_.CurrentWindow); }
  void Undo();
  void Redo();

  // --- macros
  void SaveMacro();
  /// Opens the list of macros, or closes it.
  void ToggleMacroForm();
  bool MacroFormShown() const { return macroFormShown_; }
  /// Lays a macro over the current window, where all its shapes are edited as one.
  void InsertMacro(int Index);
  /// One that has just been kept by another window, by its name: laid over the current window where a video without
  /// drawings stands in it, else chosen in the list of macros, which opens.
  /// @return  it was laid
  bool TakeMacro(const std::string& name);
  void ShowMacroInfo(int Index);
  /// Removes a macro after a question.
  void DeleteMacro(int Index);

  // --- grid and clone
  void ToggleGridPanel();
  void CloseGridPanel();
  bool GridPanelShown() const { return gridPanelShown_; }
  bool GridOn() const { return tools_.Engine().ShapeLists(stage_.CurrentWindow).GridOn; }
  void ToggleGrid() { tools_.SetGridMode(!GridOn()); }
  void SetGridSize(int Value) { tools_.SetGridSize(Value); }
  void CloneDrawings();
  /// There is something to copy, and another window of the layout with a video for it.
  bool CanClone() const;

  // --- keys
  /// Ctrl+Z, Ctrl+Shift+Z and Ctrl+Y; while a path is traced Return, which ends it, and Backspace; while a drawing is
  /// taken Delete, Ctrl+D, and Shift with an arrow; and while the bar is up Tab, Delete, and Shift with an arrow. Shift
  /// is 1, Ctrl 2. True when the key was one of these.
  bool PressKey(int KeyCode, int Shift);
  /// Leaves the edit, or closes a panel, the innermost first; false when there is nothing to leave.
  bool Escape();
  /// Ends the edit and closes the list of macros, whose drawings are edited as they are laid.
  void PutAway();

  // --- from the workspace
  void FocusChanged();
  void VideoClosing(int slot);
  /// A window's frame was composed; its drawings may be other ones.
  void FramePainted(int slot);
  void CloseAll();

 private:
  /// A drag that is under way ends where it is.
  void EndEdit();
  ShapeList& List() { return tools_.List(stage_.CurrentWindow); }
  bool PressKeyInHand(int KeyCode, int Shift);
  std::optional<SelectionMarks> Marks();
  std::string SelectionWords();
  std::pair<float, float> InHandle(EditHandle handle, POINTAPI at);
  void LoadMacros();
  void TellOfMacroFiles();
  std::vector<int> CloneTargets() const;
  int WindowsOfLayout() const;

  IHost& host_;
  const Settings& settings_;
  Stage& stage_;
  DrawingTools& tools_;
  IDrawingWorkspace& drawing_;
  IDrawingEditsView& view_;
  EditBar bar_;
  Macros macros_;
  EditHandle held_ = kMoveHandle;  // the handle that was taken last
  POINTAPI grip_;                  // where a handle on the picture was taken
  POINTAPI gripPivot_;
  bool macroFormShown_ = false;
  bool gridPanelShown_ = false;
};

}  // namespace kinalyx
