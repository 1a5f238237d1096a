#pragma once

#include "workspace/edits/DrawingEdits.h"
#include "workspace/forms/FloatCard.h"

class QLabel;
class QListWidget;
class QPushButton;

namespace kinalyx {

class SurfaceView;

/// A picture of a drawing for a preview of this size, in pixels of the form.
void ShowDrawing(SurfaceView& view, const ShapeList& drawing, const ShapeLook& look);

/// `MacroForm`: the macros by name, a picture of the chosen one, and what can be done with it. It stays
/// open over the stage, so that one drawing after the other can be tried.
class MacroForm : public FloatCard {
  Q_OBJECT

 public:
  MacroForm(DrawingEdits& edits, QWidget* stage);

  void ClearMList();
  void AddMacro(const QString& Name);
  /// Chooses an entry, -1 for none, and shows it.
  void Choose(int row);
  void CenterOnScreen() { Open(Place::Middle); }
  /// A window with a video came or went.
  void Update();

 private:
  void lstMacro_Click();
  void Dress() override;

  DrawingEdits& edits_;
  QWidget* content_ = nullptr;
  QListWidget* lstMacro_ = nullptr;
  QLabel* none_ = nullptr;  ///< what an empty list says
  SurfaceView* picture_ = nullptr;
  QPushButton* MacroBtn_ = nullptr;
  QPushButton* cmdInfo_ = nullptr;
  QPushButton* remove_ = nullptr;
};

}  // namespace kinalyx
