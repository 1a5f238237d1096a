#include "workspace/forms/EditForms.h"

#include <QEvent>
#include <QFileInfo>
#include <QRect>
#include <algorithm>

#include "workspace/stage/PlayerPlace.h"
#include "workspace/forms/CloneForm.h"
#include "workspace/forms/EditKnobs.h"
#include "workspace/forms/EditStrip.h"
#include "workspace/forms/GridPanel.h"
#include "workspace/forms/MacroForm.h"
#include "workspace/forms/MacroNameForm.h"

namespace kinalyx {

EditForms::~EditForms() = default;

void EditForms::Build(DrawingEdits& edits, Stage& theStage, QWidget* stage) {
  edits_ = &edits;
  theStage_ = &theStage;
  stage_ = stage;
  knobs_ = new EditKnobs(stage);
  strip_ = new EditStrip(stage);
  macros_ = new MacroForm(edits, stage);
  grid_ = new GridPanel(edits, stage);
  knobs_->SetEdits(edits);
  strip_->SetEdits(edits);
  connect(strip_, &EditStrip::TurnedTo, this,
          [this](QPoint mouse) { knobs_->ShowGuide(strip_->HandleCentre(kRotateHandle), mouse); });
  stage->installEventFilter(this);
}

void EditForms::Update() {
  edits_->ShowSelection();
  macros_->Update();
  grid_->Update();
}

bool EditForms::eventFilter(QObject* watched, QEvent* event) {
  if (watched == stage_ && event->type() == QEvent::Resize)
    for (FloatCard* card : std::initializer_list<FloatCard*>{macros_, grid_})
      if (!card->isHidden()) card->KeepInside();
  return false;
}

/// The part of the stage in which a window's picture shows.
QRect EditForms::PictureRoom(int window) const {
  const Slot& at = theStage_->At(window);
  return {(at.cell.Left + at.panel.Left) / kTwipsPerPixel, (at.cell.Top + at.panel.Top) / kTwipsPerPixel,
          at.panel.Width / kTwipsPerPixel, at.panel.Height / kTwipsPerPixel};
}

// ---------------------------------------------------------------- edit bar

void EditForms::ShowEditBar(bool shown) {
  strip_->setVisible(shown);
  if (!shown) {
    knobs_->HideAll();
    knobs_->HideGuide();
    return;
  }
  edits_->ShowSelection();
}

void EditForms::PlaceEditBar(int window) { strip_->PlaceOver(window, PictureRoom(window)); }

void EditForms::EnableHandle(EditHandle handle, bool enabled) {
  strip_->EnableHandle(handle, enabled);
  knobs_->SetEnabled(handle, enabled);
}

void EditForms::SetMultiButton(bool enabled, bool down) { strip_->SetMultiButton(enabled, down); }

/// The guide comes with the mouse on the strip's handle; a turn by the knob on the picture shows itself.
void EditForms::ShowRotationGuide(bool shown) {
  if (!shown) knobs_->HideGuide();
}

int EditForms::HandleWidth(EditHandle handle) {
  return qRound(strip_->HandleSize(handle).width() * stage_->devicePixelRatioF() * kTwipsPerPixel);
}

int EditForms::HandleHeight(EditHandle handle) {
  return qRound(strip_->HandleSize(handle).height() * stage_->devicePixelRatioF() * kTwipsPerPixel);
}

bool EditForms::HandleEnabled(EditHandle handle) { return strip_->HandleEnabled(handle); }

void EditForms::ShowSelection(int window, const std::optional<SelectionMarks>& marks, const std::string& words) {
  strip_->SetWords(QString::fromStdString(words));
  strip_->PlaceOver(window, PictureRoom(window));
  if (!marks || !theStage_->IsShown(window)) return knobs_->HideAll();
  const qreal ratio = stage_->devicePixelRatioF();
  const POINTAPI on = PlayerCornerOnStage(theStage_->At(window));
  const QPointF corner = QPointF(on.x, on.y) / ratio;
  const auto onStage = [&](POINTAPI point) { return corner + QPointF(point.x, point.y) / ratio; };
  knobs_->ShowRound(QRectF(onStage(marks->corner), onStage(marks->opposite)), onStage(marks->pivot),
                    PictureRoom(window), corner);
}

// ---------------------------------------------------------------- macros

std::optional<std::string> EditForms::AskMacroName(const ShapeList& drawing) {
  MacroNameForm form(drawing, edits_->Look(), stage_->window());
  if (form.exec() != QDialog::Accepted) return std::nullopt;
  return form.Name().toStdString();
}

void EditForms::ShowMacroForm(bool shown) { shown ? macros_->CenterOnScreen() : macros_->hide(); }

void EditForms::FillMacroList(const std::vector<std::string>& names, int selected) {
  macros_->ClearMList();
  for (const std::string& name : names) macros_->AddMacro(QString::fromStdString(name));
  macros_->Choose(selected);
}

// ---------------------------------------------------------------- grid and clone

void EditForms::ShowGridPanel(bool shown) { shown ? grid_->Begin() : grid_->hide(); }

std::optional<int> EditForms::AskCloneTarget(int source, const std::vector<int>& targets) {
  std::vector<CloneForm::Window> windows;
  for (int window = 1; window <= kSlots; ++window) {
    if (!theStage_->IsShown(window)) continue;
    const TwipRect& cell = theStage_->At(window).cell;
    const bool open = window == source || std::ranges::find(targets, window) != targets.end();
    windows.push_back(
        {window,
         {cell.Left, cell.Top, cell.Width, cell.Height},
         open ? QFileInfo(QString::fromStdString(theStage_->At(window).path)).completeBaseName() : QString(),
         window == source});
  }
  CloneForm form(windows, stage_->window());
  if (form.exec() != QDialog::Accepted || form.Target() == 0) return std::nullopt;
  return form.Target();
}

}  // namespace kinalyx
