#pragma once

#include <optional>

#include "drawing/DrawingTools.h"
#include "drawing/Shape.h"

namespace kinalyx {

/// The handles of the edit bar, by their index.
enum EditHandle {
  kNextHandle = 0,
  kMoveHandle = 1,
  kScaleHandle = 2,
  kRotateHandle = 3,
  kDeleteHandle = 4,
  kEndHandle = 6
};

/// What the edit bar asks of the strip that shows it.
class IEditBarView {
 public:
  virtual ~IEditBarView() = default;
  virtual void ShowEditBar(bool shown) = 0;
  /// Puts the strip over a window.
  virtual void PlaceEditBar(int window) = 0;
  virtual void EnableHandle(EditHandle handle, bool enabled) = 0;
  /// `ribEBBtn`, the switch between one shape and all. Must not come back as EditAll.
  virtual void SetMultiButton(bool enabled, bool down) = 0;
  /// A marker at the handle while it rotates.
  virtual void ShowRotationGuide(bool shown) = 0;
  /// Size of a handle in twips, 15 to a pixel of the picture.
  virtual int HandleWidth(EditHandle handle) = 0;
  virtual int HandleHeight(EditHandle handle) = 0;
};

/// A strip of handles over the active window: next shape, move, scale, rotate, delete. Works on the
/// selected shape, or on all shapes of the window in multi mode. Each drag is one change for undo.
class EditBar final : public IEditMarks {
 public:
  EditBar(DrawingTools& tools, IDrawingWorkspace& workspace, IEditBarView& view);
  ~EditBar() override;
  EditBar(const EditBar&) = delete;
  EditBar& operator=(const EditBar&) = delete;

  bool Shown() const override { return shown_; }
  bool MultiEdit() const override { return MultiEdit_; }
  /// Handles follow the selection of the active window; multi mode ends.
  void SetEditBar() override;

  /// Opens the bar with the last shape selected when none is, or ends the edit.
  void ToggleEditBar();
  void ChangeEBMode(bool Show);
  /// The active window changed or moved.
  void MoveEditBar();
  void EditAll(bool Value);
  void UseHandle(EditHandle handle);
  /// The mouse takes a handle that is dragged, drags it, and lets it go; X and Y in twips of the handle, 15 to a
  /// pixel of the picture. Nothing happens to the others.
  void GrabHandle(EditHandle handle, float X, float Y);
  void DragHandle(float X, float Y);
  void ReleaseHandle();
  bool Dragging() const { return dragged_.has_value(); }

  /// After a macro was laid over the window: all its shapes are edited as one, without next and rotate.
  void EditWhole();

 private:
  ShapeList& List() { return tools_.List(workspace_.ActiveWindow()); }
  Shape* Selected() { return SelectedShape(List()); }
  float HandleAngle(EditHandle handle, float x, float y);
  void NextShape();
  void RefreshWindows();

  DrawingTools& tools_;
  IDrawingWorkspace& workspace_;
  IEditBarView& view_;
  bool shown_ = false;
  bool MultiEdit_ = false;
  std::optional<EditHandle> dragged_;  // the handle under the mouse
  int dragWindow_ = 1;
  POINTAPI Pivot_;
  float StartAngle_ = 0;  // radians
  POINTAPI LastDown_;     // twips
};

}  // namespace kinalyx
