#pragma once

#include <QObject>

#include "workspace/edits/DrawingEdits.h"

class QRect;
class QWidget;

namespace kinalyx {

class EditKnobs;
class EditStrip;
class GridPanel;
class MacroForm;

/// All windows of the editing of drawings. Made before the theStage, as its view; Build then puts the
/// windows on the stage, before the workspace starts to speak.
class EditForms : public QObject, public IDrawingEditsView {
  Q_OBJECT

 public:
  ~EditForms() override;

  /// Makes everything. The windows are children of the stage and go with it; nothing here may be called
  /// after the stage has gone.
  void Build(DrawingEdits& edits, Stage& theStage, QWidget* stage);
  /// Commands or their state have changed: selection, macros and grid are shown anew.
  void Update();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QRect PictureRoom(int window) const;

  // --- IEditBarView
  void ShowEditBar(bool shown) override;
  void PlaceEditBar(int window) override;
  void EnableHandle(EditHandle handle, bool enabled) override;
  void SetMultiButton(bool enabled, bool down) override;
  void ShowRotationGuide(bool shown) override;
  int HandleWidth(EditHandle handle) override;
  int HandleHeight(EditHandle handle) override;
  // --- IDrawingEditsView
  bool HandleEnabled(EditHandle handle) override;
  void ShowSelection(int window, const std::optional<SelectionMarks>& marks, const std::string& words) override;
  std::optional<std::string> AskMacroName(const ShapeList& drawing) override;
  void ShowMacroForm(bool shown) override;
  void FillMacroList(const std::vector<std::string>& names, int selected) override;
  void ShowGridPanel(bool shown) override;
  std::optional<int> AskCloneTarget(int source, const std::vector<int>& targets) override;

  DrawingEdits* edits_ = nullptr;
  Stage* theStage_ = nullptr;
  QWidget* stage_ = nullptr;
  EditStrip* strip_ = nullptr;
  EditKnobs* knobs_ = nullptr;
  MacroForm* macros_ = nullptr;
  GridPanel* grid_ = nullptr;
};

}  // namespace kinalyx
