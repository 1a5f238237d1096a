#pragma once

#include <QObject>

#include "workspace/edits/DrawingEdits.h"
#include "workspace/edits/DrawingTimes.h"

class QRect;
class QWidget;

namespace kinalyx {

class EditKnobs;
class EditStrip;
class GridPanel;
class LetterBox;
class MacroForm;
class TakenHalo;

/// All windows of the editing of drawings. Made before the theStage, as its view; Build then puts the
/// windows on the stage, before the workspace starts to speak.
class EditForms : public QObject, public IDrawingEditsView {
  Q_OBJECT

 public:
  ~EditForms() override;

  /// Makes everything. The windows are children of the stage and go with it; nothing here may be called
  /// after the stage has gone.
  void Build(DrawingEdits& edits, DrawingTimes& times, Stage& theStage, QWidget* stage);
  /// Commands or their state have changed: selection, macros and grid are shown anew.
  void Update();

 signals:
  /// What lies under a hand without a tool in a window.
  void PointerChanged(int window, HandPointer pointer);
  /// The keys are the stage's again.
  void KeysFree();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QRect PictureRoom(int window) const;
  QPointF PictureCorner(int window) const;
  QPoint OnStage(int window, POINTAPI at) const;

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
  void ShowTaken(int window, const std::optional<TakenMarks>& marks) override;
  void ShowPointer(int window, HandPointer pointer) override { emit PointerChanged(window, pointer); }
  void ShowShapeMenu(int window, POINTAPI at) override;
  void AskText(int window, POINTAPI at, const std::string& text, bool anew) override;
  std::optional<std::string> AskMacroName(const ShapeList& drawing) override;
  void ShowMacroForm(bool shown) override;
  void FillMacroList(const std::vector<std::string>& names, int selected) override;
  void ShowGridPanel(bool shown) override;
  std::optional<int> AskCloneTarget(int source, const std::vector<int>& targets) override;

  DrawingEdits* edits_ = nullptr;
  DrawingTimes* times_ = nullptr;
  Stage* theStage_ = nullptr;
  QWidget* stage_ = nullptr;
  EditStrip* strip_ = nullptr;
  EditKnobs* knobs_ = nullptr;
  MacroForm* macros_ = nullptr;
  GridPanel* grid_ = nullptr;
  TakenHalo* halo_ = nullptr;
  LetterBox* letters_ = nullptr;
  struct {
    int window = 0;
    POINTAPI at;
    bool anew = false;
  } asked_;  ///< what the letters that are typed are for
};

}  // namespace kinalyx
