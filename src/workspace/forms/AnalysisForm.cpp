#include "workspace/forms/AnalysisForm.h"

#include <QApplication>
#include <QBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <algorithm>
#include <cmath>
#include <utility>

#include "core/WindowModes.h"
#include "library/VideoNames.h"
#include "library/forms/OpenVidForm.h"
#include "platform/files/Folders.h"
#include "platform/files/Tr.h"
#include "platform/widgets/FileDrop.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"
#include "video/KeyCodes.h"
#include "video/forms/VideoView.h"
#include "workspace/forms/CalibrationPanel.h"
#include "workspace/forms/CardDesk.h"
#include "workspace/forms/RateForm.h"
#include "workspace/forms/ColorRow.h"
#include "workspace/forms/CommandMenus.h"
#include "workspace/forms/CompareForms.h"
#include "workspace/forms/DrawCaption.h"
#include "workspace/forms/EditForms.h"
#include "workspace/forms/KeyCodeOf.h"
#include "workspace/forms/LoneCtrl.h"
#include "workspace/forms/NotesPanel.h"
#include "workspace/forms/PlayBar.h"
#include "workspace/forms/SeekPreview.h"
#include "workspace/forms/ToolStrip.h"
#include "workspace/forms/VideoCell.h"
#include "workspace/forms/VideoTimerForm.h"

namespace kinalyx {
namespace {

constexpr int kEdge = 8;               // between a caption and the edge of its picture
constexpr int kOpenPanelWidth = 290;   // as designed, beside the stage of a large window
constexpr int kOpenPanelNarrow = 264;  // and of a small one
constexpr int kOpenPanelWidest = 360;
constexpr int kDesignedWidth = 1280;
constexpr double kOpenPanelShare = 0.65;  // of the stage, where the panel stands over it

int ToPixels(int twips) { return static_cast<int>(std::floor(static_cast<double>(twips) / kTwipsPerPixel + 0.5)); }

}  // namespace

AnalysisForm::AnalysisForm(IHost& host, Settings& settings, PlayerServices& players, LastStudentInfo& remembered,
                           INavigation& navigation, QWidget* parent)
    : PageWidget(parent), host_(host), settings_(settings), players_(players), remembered_(remembered) {
  setObjectName("AnalysisForm");
  edits_ = std::make_unique<EditForms>();
  compare_ = std::make_unique<CompareForms>(host);
  analysis_ =
      std::make_unique<AnalysisWorkspace>(host, settings, players.scheduler, static_cast<IWorkspaceView&>(*this),
                                          *edits_, *compare_, navigation, players.sound);
  menus_ = new CommandMenus(analysis_->Commands().Commands(), this);
  connect(menus_, &CommandMenus::Wanted, this, &AnalysisForm::Run);
  colors_ = new ColorRow(menus_);
  connect(colors_, &ColorRow::Chosen, this, [this](int index) { analysis_->ChooseColour(index); });
  connect(colors_, &ColorRow::WidthChosen, this, [this](int pixels) { analysis_->ChooseWidth(pixels); });
  menus_->setCornerWidget(colors_, Qt::TopRightCorner);
  strip_ = new ToolStrip(analysis_->Commands().Commands(), settings.StripRows != 0, this);
  connect(strip_, &ToolStrip::SecondRowOpened, this, [this](bool open) { settings_.Set(settings_.StripRows, open); });
  connect(strip_, &ToolStrip::Wanted, this, &AnalysisForm::Run);
  connect(strip_, &ToolStrip::WantedTwice, this,
          [this](const std::string& command) { analysis_->Commands().RunTwice(command); });

  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(0);
  rows->addWidget(menus_);
  rows->addWidget(strip_);
  middle_ = new QHBoxLayout;
  middle_->setSpacing(0);
  rows->addLayout(middle_, 1);
  MakeStage();
  middle_->addWidget(stage_, 1);
  compare_->Build(analysis_->Compare(), analysis_->Stage(), stage_);
  desk_ = std::make_unique<CardDesk>(settings_, analysis_->Stage());
  for (FloatCard* card : stage_->findChildren<FloatCard*>(Qt::FindDirectChildrenOnly)) card->LieOn(*desk_);
  rows->addWidget(compare_->Foot());
  setFocusProxy(keyBox_);
  // Queued: what it does may open a window, which must not happen in the middle of an event of another.
  connect(
      new LoneCtrl(this), &LoneCtrl::Tapped, this,
      [this] {
        if (!Typing()) analysis_->Commands().PressKey(kKeyCtrl, 0);
      },
      Qt::QueuedConnection);
  ScaleBars();
  analysis_->Start();
}

AnalysisForm::~AnalysisForm() {
  stage_->removeEventFilter(this);
  for (int slot = 1; slot <= kSlots; ++slot)
    if (analysis_->Stage().HasVideo(slot)) std::ignore = analysis_->Keeping().SaveData(slot);
  analysis_->DetachPlayers();
  // The bar and the panels hold references into it: they go first.
  delete openPanel_;
  delete compare_->Foot();
  delete stage_;
  delete menus_;
  delete strip_;
}

void AnalysisForm::TakeCard(FloatCard& card) { card.LieOn(*desk_); }

void AnalysisForm::MakeStage() {
  stage_ = MakeFrame("stage", this);
  stage_->setObjectName("MainPanel");
  stage_->setMinimumSize(400, 300);
  stage_->installEventFilter(this);
  keyBox_ = new QWidget(stage_);
  keyBox_->setObjectName("Text1");
  keyBox_->setAccessibleName(tr("Stage"));
  keyBox_->setFocusPolicy(Qt::StrongFocus);
  keyBox_->setGeometry(0, 0, 1, 1);
  keyBox_->installEventFilter(this);
  for (int slot = 1; slot <= kSlots; ++slot) {
    auto* cell = new VideoCell(slot, players_, stage_);
    connect(cell, &VideoCell::Pressed, this, [this, slot] { analysis_->CellPressed(slot); });
    connect(cell, &VideoCell::DoubleClicked, this, [this, slot] { analysis_->CellDoubleClicked(slot); });
    connect(cell, &VideoCell::Sought, this,
            [this, slot](int position) { analysis_->Transport().Seek(slot, position); });
    connect(cell, &VideoCell::SeekEnded, this, [this, slot] { analysis_->CellPressed(slot); });
    connect(cell, &VideoCell::MenuWanted, this, [this, slot] {
      analysis_->CellPressed(slot);
      ShowWindowMenu();
    });
    connect(cell, &VideoCell::Hovered, this,
            [this, cell, slot](int position, QPoint at) { preview_->Want(slot, position, cell->mapToParent(at)); });
    connect(cell, &VideoCell::Left, this, [this] { preview_->Away(); });
    connect(cell, &VideoCell::HintPressed, this, [this, slot] {
      analysis_->CellPressed(slot);
      const std::string command = hints_[static_cast<std::size_t>(slot)];
      ShowHint(slot, {}, {});
      Run(command);
    });
    connect(cell, &VideoCell::ReopenWanted, this, [this] { Run("ReopenVideos"); });
    connect(cell, &VideoCell::WholeWanted, this, [this, slot] { analysis_->Stage().SetFits(slot, true); });
    cells_[static_cast<std::size_t>(slot - 1)] = cell;
    analysis_->AttachPlayer(slot, cell->MP().Control());
  }
  playBar_ = new PlayBar(analysis_->Transport(), stage_);
  connect(playBar_, &PlayBar::Redocked, this, [this] { analysis_->Stage().SetPlayBar(); });
  preview_ = new SeekPreview(analysis_->Stage(), analysis_->Transport(), stage_);
  connect(playBar_, &PlayBar::Hovered, this,
          [this](int position, QPoint above) { preview_->Want(analysis_->Stage().CurrentWindow, position, above); });
  connect(playBar_, &PlayBar::VolumeChosen, this, [this](int volume) { analysis_->Sound().SetVolume(volume); });
  connect(playBar_, &PlayBar::Left, preview_, &SeekPreview::Away);
  notes_ = new NotesPanel(analysis_->Notes(), stage_);
  caption_ = new DrawCaption(stage_);
  connect(caption_, &DrawCaption::Off, this, [this] { analysis_->PutToolDown(); });
  connect(caption_, &DrawCaption::Changed, this, [this] { PlaceCaption(); });
  timer_ = new VideoTimerForm(analysis_->Timer(), stage_);
  connect(timer_, &FloatCard::CloseWanted, this, [this] { Run("TVT"); });
  calibration_ = new CalibrationPanel(analysis_->Ruler(), settings_, stage_);
  edits_->Build(analysis_->Edits(), analysis_->Times(), analysis_->Stage(), stage_);
  connect(edits_.get(), &EditForms::KeysFree, this, [this] { FocusKeyBox(); });
  connect(edits_.get(), &EditForms::PointerChanged, this, &AnalysisForm::ShowPointer);
  connect(new FileDrop(stage_), &FileDrop::Dropped, this, &AnalysisForm::TakeDropped);
}

/// What is dropped beside the windows comes into the current one.
void AnalysisForm::TakeDropped(const std::vector<std::string>& paths, QPoint at) {
  int slot = analysis_->Stage().CurrentWindow;
  for (int each = 1; each <= kSlots; ++each)
    if (!Cell(each).isHidden() && Cell(each).geometry().contains(at)) slot = each;
  NoteOpened(analysis_->OpenFiles(slot, paths));
}

/// The panel can undo what came by other roads while it is open.
void AnalysisForm::NoteOpened(int videos) {
  if (openPanel_ && !openPanel_->isHidden()) openPanel_->NoteOpened(videos);
}

bool AnalysisForm::CloseAll() {
  CloseOpenPanel();
  return analysis_->Commands().PreparetoExit();
}

void AnalysisForm::Run(const std::string& command) { analysis_->Commands().Run(command); }

// ---------------------------------------------------------------- keys and events

/// A text box has the keys. What it does not want itself is still a command, but for Escape, which leaves
/// the box, and Ctrl alone, with which its own shortcuts begin.
bool AnalysisForm::Typing() const {
  const QWidget* focus = QApplication::focusWidget();
  return qobject_cast<const QLineEdit*>(focus) || qobject_cast<const QPlainTextEdit*>(focus);
}

void AnalysisForm::keyPressEvent(QKeyEvent* event) {
  const int code = KeyCodeOf(*event);
  if (code == kKeyCtrl) return;  // a key of its own only where it comes alone, which shows when it is let go
  if (Typing() && code == kKeyEscape) return FocusKeyBox();
  const bool nudges =
      (analysis_->Edits().Editing() || analysis_->Edits().Taken()) && event->modifiers() & Qt::ShiftModifier;
  if (event->isAutoRepeat() && !RepeatsWhileHeld(*event) && !nudges) return;
  const bool combined = event->modifiers() & Qt::AltModifier;
  bool taken = code != 0 && !combined && analysis_->Commands().PressKey(code, ShiftOf(event->modifiers()));
  if (const int character = KeyAsciiOf(*event); character != 0)
    taken = analysis_->Commands().PressLetter(character) || taken;
  if (!taken) QWidget::keyPressEvent(event);
}

void AnalysisForm::Open() {
  // Players are told of their size when they come on the screen, and start with an empty picture then.
  for (int slot = 1; slot <= kSlots; ++slot) analysis_->Stage().MP(slot).Refresh();
  if (openPanel_ && !openPanel_->isHidden()) openPanel_->Return();
  // What is put away is not heard: the window tells.
  window()->installEventFilter(this);
  HearIfSeen(true);
  FocusKeyBox();
}

void AnalysisForm::HearIfSeen(bool onPage) {
  onPage_ = onPage;
  analysis_->Sound().SetAudible(onPage && !window()->isMinimized());
}

bool AnalysisForm::Leave() {
  if (openPanel_) openPanel_->Leave();
  HearIfSeen(false);
  return true;
}

void AnalysisForm::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() != QEvent::StyleChange || !stage_ || !ScaleBars()) return;
  analysis_->StageResized();
  PlaceOpenPanel();
}

/// The bars beneath the pictures grow with the text; true when they have.
bool AnalysisForm::ScaleBars() {
  const double scale = Px(100) / 100.0;
  return std::exchange(analysis_->Stage().BarScale, scale) != scale;
}

bool AnalysisForm::eventFilter(QObject* watched, QEvent* event) {
  // While drawings are edited, Tab goes round among them and not among the buttons.
  if (watched == keyBox_ && event->type() == QEvent::KeyPress && analysis_->Edits().Editing() &&
      static_cast<QKeyEvent*>(event)->key() == Qt::Key_Tab) {
    keyPressEvent(static_cast<QKeyEvent*>(event));
    return true;
  }
  if (watched == window() && event->type() == QEvent::WindowStateChange) HearIfSeen(onPage_);
  if (watched == stage_ && event->type() == QEvent::Resize) {
    analysis_->StageResized();
    timer_->KeepInside();
    calibration_->KeepInside();
    PlaceOpenPanel();
    if (!playBar_->Docked()) playBar_->KeepInside();
  }
  return QWidget::eventFilter(watched, event);
}

// ---------------------------------------------------------------- grid

/// Edges are rounded, not sizes: cells that meet in twips meet in pixels.
QRect AnalysisForm::Pixels(const TwipRect& place) const {
  const int left = ToPixels(place.Left);
  const int top = ToPixels(place.Top);
  return {left, top, ToPixels(place.Left + place.Width) - left, ToPixels(place.Top + place.Height) - top};
}

int AnalysisForm::MainPanelWidth() { return stage_->width() * kTwipsPerPixel; }
int AnalysisForm::MainPanelHeight() { return stage_->height() * kTwipsPerPixel; }

void AnalysisForm::PlaceCell(int slot, const TwipRect& border, const TwipRect& video) {
  Cell(slot).Place(Pixels(border), Pixels(video));
}

void AnalysisForm::PlaceFilm(int slot, const TwipRect& place) { Cell(slot).PlaceFilm(Pixels(place)); }

void AnalysisForm::HideCell(int slot) { Cell(slot).hide(); }

void AnalysisForm::PlacePlayer(int slot, const TwipRect& place, bool shown) {
  Cell(slot).PlacePlayer(Pixels(place), shown);
}

void AnalysisForm::PaintBorder(int slot, bool current) { Cell(slot).SetCurrent(current); }
void AnalysisForm::SetCellTitle(int slot, const std::string& title) { Cell(slot).SetTitle(Q(title)); }

void AnalysisForm::SetZoomFigure(int slot, const std::string& figure) {
  Cell(slot).SetZoomFigure(Q(figure));
  if (slot == analysis_->Stage().CurrentWindow) compare_->ShowZoom();
}

void AnalysisForm::SetCellPosition(int slot, int position, int maximum, const std::string& line) {
  const bool covered = slot == analysis_->Stage().CurrentWindow && playBar_->Docked();
  Cell(slot).SetPosition(position, maximum, Q(line), covered);
}

// ---------------------------------------------------------------- play bar

void AnalysisForm::PlacePlayBar(const TwipRect& place) {
  if (playBar_->Docked()) playBar_->setGeometry(Pixels(place));
  PlaceCaption();
}

void AnalysisForm::SetScrollRange(int minimum, int maximum) { playBar_->SetScrollRange(minimum, maximum); }
void AnalysisForm::SetScrollValue(int position) { playBar_->SetScrollValue(position); }
void AnalysisForm::SetPlayRange(int first, int last) { playBar_->SetPlayRange(first, last); }
void AnalysisForm::SetSpeed(int percent) { playBar_->SetSpeed(percent); }
void AnalysisForm::SetPlayPicture(bool playing) { playBar_->SetPlayPicture(playing); }
void AnalysisForm::SetSlomoButton(bool down) { playBar_->SetSlomo(down); }
void AnalysisForm::SetLoopButton(bool down) { playBar_->SetLoop(down); }
void AnalysisForm::SetDisplayLine(const std::string& line, const std::string& counter) {
  playBar_->SetLine(Q(line), Q(counter));
}
void AnalysisForm::SetMarks(const std::vector<ShownMark>& marks) { playBar_->SetMarks(marks); }

// ---------------------------------------------------------------- drawing

/// At the top right of the current picture, under the video's name where both do not fit side by side.
void AnalysisForm::PlaceCaption() {
  if (caption_->isHidden()) return;
  caption_->adjustSize();
  const Slot& at = analysis_->Stage().Current();
  const QRect panel =
      Pixels({at.cell.Left + at.panel.Left, at.cell.Top + at.panel.Top, at.panel.Width, at.panel.Height});
  const QRect title = Cell(analysis_->Stage().CurrentWindow).TitleGeometry();
  const bool beside = title.width() + caption_->width() + 4 * kEdge <= panel.width();
  const int left = std::max(panel.left() + kEdge, panel.right() - kEdge - caption_->width());
  caption_->move(std::min(left, std::max(0, stage_->width() - caption_->width())),
                 panel.top() + kEdge + (beside ? 0 : title.height() + 4));
  caption_->raise();
  // What is chosen in the card must not lie under the name of the tool that draws the line.
  if (!calibration_->isHidden()) calibration_->raise();
}

void AnalysisForm::SetDisplayText(const std::string& text) { caption_->SetText(Q(text)); }
void AnalysisForm::ShowVectorColor(Colour colour) { caption_->ShowColor(colour); }
void AnalysisForm::HideVectorColor() { caption_->HideColor(); }
void AnalysisForm::SetColorButton(int index) { colors_->Press(index); }

// ---------------------------------------------------------------- panels and commands

void AnalysisForm::ShowNotesPnl(const TwipRect& place, const std::string& notes) {
  notes_->SetText(notes);
  notes_->setGeometry(Pixels(place));
  if (!notes_->isHidden()) return;
  notes_->show();
  notes_->raise();
  notes_->setFocus();
}

void AnalysisForm::HideNotesPnl() {
  notes_->hide();
  FocusKeyBox();
}

void AnalysisForm::ShowVideoTimer(bool shown) { shown ? timer_->Open(FloatCard::Place::Top) : timer_->hide(); }

void AnalysisForm::SetVideoTimer(const std::string& reading, bool negative, const std::string& rate) {
  timer_->SetReading(Q(reading), negative, Q(rate));
}

void AnalysisForm::ShowCalibration(bool shown) {
  if (shown) {
    calibration_->Begin();
  } else {
    calibration_->hide();
    FocusKeyBox();
  }
}

void AnalysisForm::SetCalibrationLength(const std::string& length) { calibration_->SetLength(Q(length)); }

void AnalysisForm::SetVideoRuler(const std::string& words) { calibration_->SetVideoRuler(Q(words)); }

void AnalysisForm::ShowHint(int slot, const std::string& words, const std::string& command) {
  hints_[static_cast<std::size_t>(slot)] = command;
  Cell(slot).SetHint(Q(words));
}

bool AnalysisForm::CloseMomentary() { return playBar_->CloseMarks(); }

void AnalysisForm::NameLastMark() { playBar_->NameLastMark(); }

void AnalysisForm::ShowRateForm() {
  const Transport& transport = analysis_->Transport();
  RateForm form(transport.TrueRate(), transport.RateOfFile(), this);
  if (form.exec() == QDialog::Accepted) analysis_->Transport().SetTrueRate(form.Rate());
  FocusKeyBox();
}

// ---------------------------------------------------------------- open panel

void AnalysisForm::SettingsChanged() {
  analysis_->SettingsChanged();
  if (openPanel_) openPanel_->SettingsChanged();
}

void AnalysisForm::MakeOpenPanel() {
  openChoice_ = settings_.OpenDlgChoice;
  if (openChoice_ == 0 || openChoice_ == 1) {
    openPanel_ = new OpenVidForm(players_, settings_, remembered_, *this, this);
    FitOpenPanel();
    middle_->insertWidget(openChoice_ == 1 ? 0 : -1, openPanel_);
  } else {
    openPanel_ = new OpenVidCForm(players_, settings_, remembered_, *this, stage_);
  }
}

bool AnalysisForm::OpenVideo(const std::string& path) {
  return analysis_->Videos().OpenVideo(analysis_->Stage().CurrentWindow, path);
}

int AnalysisForm::OpenFamily(const std::vector<std::string>& paths) { return analysis_->Videos().OpenFamily(paths); }

int AnalysisForm::PickAndOpen() {
  const int opened = analysis_->OpenFiles(analysis_->Stage().CurrentWindow,
                                          host_.PickFiles({Tr("Open Videos From Disk"), "", VideoFilter()}));
  FocusKeyBox();
  return opened;
}

void AnalysisForm::OpenFromDisk() { NoteOpened(PickAndOpen()); }

void AnalysisForm::UndoLastOpen() { analysis_->Videos().UndoLastOpen(); }

void AnalysisForm::OpenVideoDone() { CloseOpenPanel(); }

void AnalysisForm::ShowOpenPanel() {
  if (openPanel_ && openChoice_ != settings_.OpenDlgChoice) delete std::exchange(openPanel_, nullptr);
  if (!openPanel_) MakeOpenPanel();
  openPanel_->show();
  openPanel_->raise();
  PlaceOpenPanel();
  openPanel_->Open();
}

void AnalysisForm::ShowWindowMenu() { menus_->ShowAtMouse(analysis_->Commands().WindowMenu()); }

/// Beside the stage it has its share of the width; a small window leaves more to the videos.
void AnalysisForm::FitOpenPanel() {
  if (!openPanel_ || openPanel_->parentWidget() == stage_) return;
  const bool small = ScreenClass(width() * kTwipsPerPixel) == 1;
  openPanel_->setFixedWidth(
      small ? Px(kOpenPanelNarrow)
            : std::clamp(width() * kOpenPanelWidth / kDesignedWidth, Px(kOpenPanelWidth), Px(kOpenPanelWidest)));
}

/// Beside the stage the layout places it; over the stage it stands in the middle.
void AnalysisForm::PlaceOpenPanel() {
  FitOpenPanel();
  if (!openPanel_ || openPanel_->isHidden() || openPanel_->parentWidget() != stage_) return;
  const QSize room = stage_->size() - QSize(2 * kEdge, 2 * kEdge);
  openPanel_->resize((room * kOpenPanelShare)
                         .expandedTo(openPanel_->sizeHint())
                         .boundedTo(room)
                         .expandedTo(openPanel_->minimumSize()));
  openPanel_->move(stage_->rect().center() - openPanel_->rect().center());
}

bool AnalysisForm::CloseOpenPanel() {
  if (!openPanel_ || openPanel_->isHidden()) return false;
  openPanel_->hide();
  openPanel_->Leave();
  FocusKeyBox();
  return true;
}

void AnalysisForm::CommandsChanged() {
  menus_->Update();
  strip_->Update();
  const bool drawing = analysis_->Tools().Drawing();
  const Shape* taken = analysis_->Tools().Hand().Taken();
  colors_->SetLive(drawing || taken);
  colors_->PressWidth(drawing ? analysis_->Tools().PenWidth()
                      : taken ? taken->Width > 0 ? taken->Width : analysis_->Tools().UsualWidth()
                              : 0);
  if (!drawing) PressColour(taken);
  edits_->Update();
  const bool canReopen = analysis_->Videos().CanReopen();
  for (int slot = 1; slot <= kSlots; ++slot) {
    const bool crossed = Cell(slot).MP().cursor().shape() == Qt::CrossCursor;
    if (drawing != crossed) Cell(slot).MP().setCursor(drawing ? Qt::CrossCursor : Qt::ArrowCursor);
    Cell(slot).SetHints(Q(analysis_->Commands().KeyOf("vo")), canReopen);
    Cell(slot).SetLocked(analysis_->Compare().Locks().IsLocked(slot));
  }
  compare_->SetDrawing(drawing);
  compare_->ShowZoom();
  const Transport& transport = analysis_->Transport();
  playBar_->SetState(analysis_->Stage().HasVideo(analysis_->Stage().CurrentWindow), transport.Refused());
  playBar_->SetMovesAll(transport.MovesAll(), transport.All().Several());
  playBar_->SetSound(analysis_->Sound().CanBeHeard(), analysis_->Sound().Volume());
  playBar_->SetLoopKey(Q(analysis_->Commands().KeyOf("vloop")));
}

/// The button of the colour that the drawing has which is taken.
void AnalysisForm::PressColour(const Shape* taken) {
  const auto found = taken ? std::ranges::find(kColorChoices, taken->Colour) : kColorChoices.end();
  colors_->Press(found == kColorChoices.end() ? -1 : static_cast<int>(found - kColorChoices.begin()));
}

void AnalysisForm::ShowPointer(int slot, HandPointer pointer) {
  const auto shape = pointer == HandPointer::Point   ? Qt::PointingHandCursor
                     : pointer == HandPointer::Shape ? Qt::SizeAllCursor
                                                     : Qt::ArrowCursor;
  if (Cell(slot).MP().cursor().shape() != shape) Cell(slot).MP().setCursor(shape);
}

void AnalysisForm::FocusKeyBox() {
  if (isVisible()) keyBox_->setFocus();
}

}  // namespace kinalyx
