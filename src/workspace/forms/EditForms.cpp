#include "workspace/forms/EditForms.h"

#include <QEvent>
#include <QFileInfo>
#include <QMenu>
#include <QPainter>
#include <QTimer>
#include <QRect>
#include <algorithm>

#include "platform/widgets/Scale.h"
#include "platform/widgets/Theme.h"
#include "workspace/forms/ColorRow.h"
#include "workspace/stage/PlayerPlace.h"
#include "workspace/forms/CloneForm.h"
#include "workspace/forms/EditKnobs.h"
#include "workspace/forms/EditStrip.h"
#include "workspace/forms/GridPanel.h"
#include "workspace/forms/LetterBox.h"
#include "workspace/forms/MacroForm.h"
#include "workspace/forms/NameForm.h"
#include "workspace/forms/StageParts.h"
#include "workspace/forms/TakenHalo.h"

namespace kinalyx {
namespace {

constexpr int kLongestMacroName = 60;  // characters

}  // namespace

EditForms::~EditForms() = default;

void EditForms::Build(DrawingEdits& edits, DrawingTimes& times, Stage& theStage, QWidget* stage) {
  edits_ = &edits;
  times_ = &times;
  theStage_ = &theStage;
  stage_ = stage;
  halo_ = new TakenHalo(stage);
  // Right over the pictures: whatever floats above them hides it too.
  if (auto* bar = stage->findChild<QWidget*>("Playbar", Qt::FindDirectChildrenOnly)) halo_->stackUnder(bar);
  knobs_ = new EditKnobs(stage);
  strip_ = new EditStrip(stage);
  macros_ = new MacroForm(edits, stage);
  grid_ = new GridPanel(edits, stage);
  knobs_->SetEdits(edits);
  strip_->SetEdits(edits);
  connect(strip_, &EditStrip::TurnedTo, this,
          [this](QPoint mouse) { knobs_->ShowGuide(strip_->HandleCentre(kRotateHandle), mouse); });
  letters_ = new LetterBox(stage);
  connect(letters_, &LetterBox::Typed, this, [this](const QString& text) {
    edits_->WriteText(asked_.window, asked_.at, text.toStdString(), asked_.anew);
  });
  connect(letters_, &LetterBox::Done, this, &EditForms::KeysFree);
  stage->installEventFilter(this);
}

void EditForms::Update() {
  edits_->ShowSelection();
  edits_->ShowTaken();
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

QPointF EditForms::PictureCorner(int window) const {
  const POINTAPI on = PlayerCornerOnStage(theStage_->At(window));
  return QPointF(on.x, on.y) / stage_->devicePixelRatioF();
}

QPoint EditForms::OnStage(int window, POINTAPI at) const {
  return (PictureCorner(window) + QPointF(at.x, at.y) / stage_->devicePixelRatioF()).toPoint();
}

// ---------------------------------------------------------------- what is taken

void EditForms::ShowTaken(int window, const std::optional<TakenMarks>& marks) {
  if (!marks || !theStage_->IsShown(window)) return halo_->hide();
  halo_->ShowMarks(*marks, PictureRoom(window), PictureCorner(window));
}

void EditForms::AskText(int window, POINTAPI at, const std::string& text, bool anew) {
  asked_ = {window, at, anew};
  letters_->Ask(OnStage(window, at), PictureRoom(window), QString::fromStdString(text));
}

/// Opened from the event loop: the press that asked for it is over then.
void EditForms::ShowShapeMenu(int window, POINTAPI at) {
  QTimer::singleShot(0, this, [this, window, at] {
    const Shape* taken = edits_->Hand().Taken();
    if (!taken) return;
    auto* menu = new QMenu(stage_);
    menu->setObjectName("ShapeMenu");
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto add = [&](const char* name, const QString& words, auto run) {
      QAction* action = menu->addAction(words);
      action->setObjectName(name);
      connect(action, &QAction::triggered, this, run);
      return action;
    };
    if (IsText(*taken)) add("ShapeText", tr("Change Text..."), [this] { edits_->EditText(); });
    QMenu* colours = menu->addMenu(tr("Color"));
    for (int i = 0; i < static_cast<int>(kColorChoices.size()); ++i) {
      const Colour colour = kColorChoices[static_cast<std::size_t>(i)];
      QPixmap dot(32, 32);
      dot.fill(Qt::transparent);
      QPainter painter(&dot);
      painter.setRenderHint(QPainter::Antialiasing);
      painter.setPen(QColor(0, 0, 0, 120));
      painter.setBrush(ToQColor(colour));
      painter.drawEllipse(QRectF(4, 4, 24, 24));
      painter.end();
      connect(colours->addAction(QIcon(dot), ColorRow::NameOf(i)), &QAction::triggered, this,
              [this, colour] { edits_->Hand().SetColour(colour); });
    }
    QMenu* widths = menu->addMenu(tr("Width"));
    for (const LineWidth& width : kLineWidths)
      connect(widths->addAction(tr(width.name)), &QAction::triggered, this,
              [this, pixels = width.pixels] { edits_->Hand().SetWidth(pixels); });
    QMenu* times = menu->addMenu(tr("Seen When"));
    const ShapeTime& time = taken->Time;
    const auto addTime = [&](const QString& words, bool now, void (DrawingTimes::*show)()) {
      QAction* action = times->addAction(words);
      action->setCheckable(true);
      action->setChecked(now);
      connect(action, &QAction::triggered, this, [this, show] { (times_->*show)(); });
    };
    addTime(tr("On Whole Video"), time.Always(), &DrawingTimes::ShowAlways);
    addTime(tr("On This Picture"), !time.Always() && time.First == time.Last, &DrawingTimes::ShowHere);
    addTime(tr("From Here On"), false, &DrawingTimes::ShowFromHere);
    addTime(tr("Until Here"), false, &DrawingTimes::ShowUntilHere);
    menu->addSeparator();
    add("ShapeDuplicate", tr("Duplicate\tCtrl+D"), [this] { edits_->Hand().Duplicate(); });
    add("ShapeToFront", tr("Bring to Front"), [this] { edits_->Hand().BringToFront(); });
    add("ShapeBar", tr("Edit Bar: Size and Turn"), [this] { edits_->ToggleEditBar(); });
    menu->addSeparator();
    add("ShapeDelete", tr("Delete\tDel"), [this] { edits_->Hand().Remove(); });
    menu->popup(stage_->mapToGlobal(OnStage(window, at)));
  });
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
  const QPointF corner = PictureCorner(window);
  const auto onStage = [&](POINTAPI point) { return corner + QPointF(point.x, point.y) / ratio; };
  knobs_->ShowRound(QRectF(onStage(marks->corner), onStage(marks->opposite)), onStage(marks->pivot),
                    PictureRoom(window), corner);
}

// ---------------------------------------------------------------- macros

std::optional<std::string> EditForms::AskMacroName(const ShapeList& drawing) {
  NameForm form("MacroName", tr("New macro"), tr("Please enter the name of this macro"), kLongestMacroName,
                stage_->window());
  auto* picture = new SurfaceView("MacroNamePic", &form);
  FixSize(picture, {320, 200});
  ShowDrawing(*picture, drawing, edits_->Look());
  form.ShowAbove(picture);
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
