#include "capture/livedraw/forms/LiveDrawForm.h"

#include <QScreen>
#include <QBoxLayout>
#include <QCloseEvent>
#include <QComboBox>
#include <QDateTime>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QSignalBlocker>
#include <QSlider>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "capture/forms/CameraControlsForm.h"
#include "capture/livedraw/forms/LiveDrawPicture.h"
#include "core/Twips.h"
#include "platform/files/Tr.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"
#include "workspace/forms/ColorRow.h"
#include "workspace/forms/DrawCaption.h"
#include "workspace/forms/MacroForm.h"
#include "workspace/forms/NameForm.h"
#include "workspace/forms/StageParts.h"
#include "workspace/forms/ToolStrip.h"

namespace kinalyx {
namespace {

enum CamCtl { kFreezeBtn = 0, kZoneBtn = 2 };

constexpr QSize kUsual(1120, 860);
constexpr int kSliderWidth = 120;
constexpr int kLongestMacroName = 60;  // characters

}  // namespace

LiveDrawForm::LiveDrawForm(Parts parts)
    : QWidget(nullptr, Qt::Window | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint),
      parts_(parts),
      session_(parts.session),
      macros_(parts.settings.AppPath, parts.settings.DataPath) {
  setObjectName("LiveDrawForm");
  setWindowTitle(tr("Live Draw & Hot Zones"));
  // The program ends with its main window.
  setAttribute(Qt::WA_QuitOnClose, false);
  MakeCommands();
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(0);
  strip_ = new ToolStrip(commands_, true, this);
  connect(strip_, &ToolStrip::Wanted, this, &LiveDrawForm::Run);
  connect(strip_, &ToolStrip::WantedTwice, this, &LiveDrawForm::RunTwice);
  rows->addWidget(strip_);
  rows->addWidget(MakeChoices());
  picture_ = new LiveDrawPicture(session_);
  connect(picture_, &LiveDrawPicture::KeysFree, this, [this] { picture_->setFocus(); });
  rows->addWidget(picture_, 1);
  caption_ = new DrawCaption(picture_);
  connect(caption_, &DrawCaption::Off, this, [this] { session_.Board().Tools().PutToolDown(); });
  connect(caption_, &DrawCaption::Changed, this, &LiveDrawForm::PlaceCaption);
  rows->addWidget(MakeControls());
  session_.SetView(this);
  Form_Load();
}

LiveDrawForm::~LiveDrawForm() {
  session_.SetView(nullptr);
  session_.Close();
}

// ---------------------------------------------------------------- the parts of the window

QWidget* LiveDrawForm::MakeChoices() {
  auto* ground = MakeFrame("strip");
  auto* row = new QHBoxLayout(ground);
  row->setContentsMargins(10, 3, 10, 3);
  row->setSpacing(6);
  colors_ = new ColorRow;
  connect(colors_, &ColorRow::Chosen, this, [this](int index) { session_.ChooseColour(index); });
  connect(colors_, &ColorRow::WidthChosen, this, [this](int pixels) { session_.ChooseWidth(pixels); });
  row->addWidget(colors_);
  row->addStretch(1);
  camera_ = new QComboBox;
  camera_->setObjectName("VideoSource_Camera1");
  camera_->setToolTip(tr("Camera"));
  camera_->setAccessibleName(camera_->toolTip());
  camera_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  camera_->setMinimumContentsLength(16);
  connect(camera_, &QComboBox::textActivated, this, [this](const QString& name) {
    session_.Camera().ChooseCamera(Std(name));
    picture_->setFocus();
  });
  row->addWidget(camera_);
  auto* knobs = IconButton("CamConfig_Camera0", "sliders", tr("Exposure, gain, focus and white balance of the camera"),
                           Look::Quiet);
  connect(knobs, &QPushButton::clicked, this, [this] {
    CameraControlsForm form(parts_.setup.Devices(), parts_.setup.Shown(session_.Camera().Camera()).name, this);
    form.exec();
  });
  row->addWidget(knobs);
  full_ = IconButton("FullScreenBtn", "maximize", tr("Full screen (F11)"), Look::Quiet);
  full_->setCheckable(true);
  connect(full_, &QPushButton::clicked, this, &LiveDrawForm::ToggleFullScreen);
  row->addWidget(full_);
  return ground;
}

QWidget* LiveDrawForm::MakeControls() {
  auto* ground = MakeFrame("strip");
  auto* row = new QHBoxLayout(ground);
  row->setContentsMargins(10, 8, 10, 8);
  row->setSpacing(8);
  freeze_ = new Button("CamCtlBtn0", tr("Freeze Video"), "pause");
  freeze_->setToolTip(tr("Holds the picture to draw upon, and lets it go on (Space)"));
  LeastWidth(freeze_, 136);
  connect(freeze_, &QPushButton::clicked, this, [this] { CamCtlBtn_Click(kFreezeBtn); });
  zone_ = new Button("CamCtlBtn2", tr("Add Hot Zone"), "hot-zone", Look::Quiet);
  zone_->setToolTip(tr("Drag a rectangle over the picture: it beeps when something moves in it (Z)"));
  LeastWidth(zone_, 146);
  connect(zone_, &QPushButton::clicked, this, [this] { CamCtlBtn_Click(kZoneBtn); });
  mirror_ = new Button("SSRibbon1", tr("Mirror"), "flip", Look::Quiet);
  mirror_->setCheckable(true);
  mirror_->setToolTip(tr("Shows the student as in a mirror, or as others see her; drawings and zones turn too (F)"));
  connect(mirror_, &QPushButton::clicked, this, &LiveDrawForm::SSRibbon1_Click);
  PixSlider_ = new QSlider(Qt::Horizontal);
  PixSlider_->setObjectName("PixSlider");
  PixSlider_->setRange(0, 100);
  PixSlider_->setPageStep(10);
  PixSlider_->setAccessibleName(tr("Sensitivity of the hot zones"));
  PixSlider_->setToolTip(tr("How little must move in a hot zone to beep: at the right end a leaf does"));
  FixWidth(PixSlider_, kSliderWidth);
  connect(PixSlider_, &QSlider::valueChanged, this, &LiveDrawForm::PixSlider_Change);
  mute_ = IconButton("MuteBtn", "sound", tr("Beep of the hot zones (M)"), Look::Quiet);
  mute_->setCheckable(true);
  connect(mute_, &QPushButton::clicked, this, [this] {
    session_.SetMuted(!session_.Muted());
    picture_->setFocus();
  });
  words_ =
      IconButton("Cadoffbutton", "text-off", tr("Takes figures and the numbers of zones off the picture"), Look::Quiet);
  words_->setCheckable(true);
  connect(words_, &QPushButton::clicked, this, &LiveDrawForm::Cadoffbutton_Click);
  send_ = new Button("SendToAnalysis", tr("Send to Analysis"), "send", Look::Quiet);
  connect(send_, &QPushButton::clicked, this, &LiveDrawForm::SendToAnalysis_Click);
  status_ = MakeLabel("LiveDrawStatus", {}, "muted");
  status_->setMinimumWidth(0);
  status_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  for (QWidget* part : std::initializer_list<QWidget*>{
           freeze_, zone_, mirror_, MakeLabel({}, tr("Sensitivity"), "muted"), PixSlider_, mute_, words_})
    row->addWidget(part);
  row->addWidget(status_, 1);
  row->addWidget(send_);
  return ground;
}

void LiveDrawForm::Form_Load() {
  const QSignalBlocker quiet(PixSlider_);
  PixSlider_->setValue(session_.Sensitivity());
  FillCameras();
  // Not larger than the screen, its frame counted.
  const QSize room = screen()->availableSize() - QSize(40, 80);
  resize(kUsual.boundedTo(room));
  UpdateAll();
}

void LiveDrawForm::Form_Activate() { picture_->setFocus(); }

void LiveDrawForm::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (event->spontaneous() || session_.IsOpen()) return;
  session_.Open();
  awake_ = std::make_unique<ScreenAwake>(Tr("Live draw is shown"));
  FillCameras();
  UpdateAll();
}

void LiveDrawForm::closeEvent(QCloseEvent* event) {
  event->accept();
  hide();
  awake_.reset();
  session_.Close();
  emit Closed();
}

void LiveDrawForm::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) Form_Activate();
  if (event->type() == QEvent::WindowStateChange) full_->setChecked(isFullScreen());
  if (event->type() == QEvent::StyleChange && picture_) picture_->Renew();
}

void LiveDrawForm::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  PlaceCaption();
}

// ---------------------------------------------------------------- handlers

void LiveDrawForm::CamCtlBtn_Click(int index) {
  if (index == kFreezeBtn) session_.PressFreeze();
  if (index == kZoneBtn) session_.PressZone();
  picture_->setFocus();
}

void LiveDrawForm::SSRibbon1_Click(bool value) {
  session_.SetMirror(value);
  picture_->setFocus();
}

/// The text that lies over the picture goes, and comes back.
void LiveDrawForm::Cadoffbutton_Click() {
  session_.SetWordsShown(!session_.WordsShown());
  picture_->setFocus();
}

void LiveDrawForm::PixSlider_Change(int value) { session_.SetSensitivity(value); }

void LiveDrawForm::ToggleFullScreen() {
  if (isFullScreen()) {
    maximized_ ? showMaximized() : showNormal();
  } else {
    maximized_ = isMaximized();
    showFullScreen();
  }
  picture_->setFocus();
}

void LiveDrawForm::SendToAnalysis_Click() {
  session_.Board().Tools().PutToolDown();
  if (!session_.HasDrawings()) return;
  NameForm form("MacroName", tr("Send to Analysis"), tr("Please enter the name of this macro"), kLongestMacroName,
                this);
  auto* drawing = new SurfaceView("MacroNamePic", &form);
  FixSize(drawing, {320, 200});
  ShowDrawing(*drawing, session_.Board().List(), {DrawingBoard::kUsualWidth, parts_.settings.CadOutline, false});
  form.ShowAbove(drawing);
  form.BeginWith(tr("Live %1").arg(QDateTime::currentDateTime().toString("yyyy-MM-dd hh.mm")));
  if (form.exec() != QDialog::Accepted || form.Name().isEmpty()) return;
  const SystemInfo system = parts_.host.System();
  macros_.LoadMList({system.screenWidth * kTwipsPerPixel, system.screenHeight * kTwipsPerPixel});
  const std::string name = Std(form.Name());
  if (const Outcome saved = session_.SaveMacro(macros_, name); !saved)
    return parts_.host.Message(MessageKind::Warning, "",
                               Tr("The drawings could not be kept as a macro. {}", saved.Why()));
  if (isFullScreen()) ToggleFullScreen();
  parts_.ways.TakeToAnalysis(name);
}

// ---------------------------------------------------------------- what is shown

void LiveDrawForm::FillCameras() {
  const QSignalBlocker quiet(camera_);
  const std::string& chosen = parts_.setup.Shown(session_.Camera().Camera()).name;
  camera_->clear();
  for (const Device& device : parts_.setup.Cameras()) camera_->addItem(Q(device.name));
  int at = camera_->findText(Q(chosen));
  // One that was chosen and has gone keeps its place.
  if (at < 0 && !chosen.empty()) {
    camera_->insertItem(0, Q(chosen));
    at = 0;
  }
  camera_->setCurrentIndex(at);
  camera_->setEnabled(camera_->count() > 0);
}

void LiveDrawForm::Repaint() { picture_->Renew(); }

/// Once for each turn of the event loop, however much has changed.
void LiveDrawForm::LiveDrawChanged() {
  if (std::exchange(changing_, true)) return;
  QTimer::singleShot(0, this, [this] {
    changing_ = false;
    UpdateAll();
  });
}

void LiveDrawForm::UpdateAll() {
  const DrawingBoard& board = session_.Board();
  const bool frozen = session_.Camera().Frozen();
  freeze_->setText(Q(session_.FreezeCaption()));
  freeze_->SetIcon(frozen ? "play" : "pause");
  freeze_->setEnabled(session_.CanFreeze());
  zone_->setText(Q(session_.ZoneCaption()));
  zone_->SetIcon(session_.AddingZone() ? "close" : "hot-zone");
  zone_->setEnabled(board.HasPicture());
  mirror_->setChecked(session_.Camera().Mirror());
  mute_->SetIcon(session_.Muted() ? "sound-off" : "sound");
  mute_->setChecked(session_.Muted());
  mute_->setToolTip(session_.Muted() ? tr("Hot zones beep again (M)") : tr("Hot zones glow without a beep (M)"));
  words_->setChecked(!session_.WordsShown());
  send_->setEnabled(session_.HasDrawings());
  send_->setToolTip(session_.HasDrawings() ? tr("Keeps the drawings as a macro and lays them on the video in analysis")
                                           : tr("Draw something first"));
  PixSlider_->setEnabled(!session_.Zones().All().empty() || session_.AddingZone());
  const bool live = board.HasPicture() && (board.Tools().Drawing() || board.Tools().Hand().Taken());
  colors_->SetLive(live);
  colors_->Press(live ? board.ColourButton() : -1);
  colors_->PressWidth(live ? board.Width() : -1);
  picture_->SetWords(Q(session_.Camera().Words()));
  caption_->SetText(Q(board.Caption()));
  if (const auto colour = board.CaptionColour()) caption_->ShowColor(*colour);
  else caption_->HideColor();
  PlaceCaption();
  status_->setText(session_.AddingZone()                                   ? tr("Drag a rectangle over the picture")
                   : frozen                                                ? tr("The picture is frozen")
                   : session_.Zones().All().empty() || !board.HasPicture() ? QString()
                   : session_.Muted()                                      ? tr("Hot zones are muted")
                                                                           : QString());
  strip_->Update();
  picture_->Renew();
}

void LiveDrawForm::PlaceCaption() {
  if (caption_->isHidden()) return;
  caption_->adjustSize();
  const QRect room = picture_->PictureRect();
  caption_->move(std::max(room.left() + 8, room.center().x() - caption_->width() / 2), room.top() + 8);
  caption_->raise();
}

void LiveDrawForm::ShowPointer(LivePointer pointer) { picture_->ShowPointer(pointer); }

void LiveDrawForm::AskText(POINTAPI at, const std::string& text) { picture_->AskText(at, Q(text)); }

/// Opened from the event loop: the press that asked for it is over then.
void LiveDrawForm::ShowShapeMenu(POINTAPI at) {
  QTimer::singleShot(0, this, [this, at] {
    const Shape* taken = session_.Board().Hand().Taken();
    if (!taken) return;
    auto* menu = new QMenu(this);
    menu->setObjectName("ShapeMenu");
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto add = [&](const char* name, const QString& words, auto run) {
      QAction* action = menu->addAction(words);
      action->setObjectName(name);
      connect(action, &QAction::triggered, this, run);
    };
    if (IsText(*taken))
      add("ShapeText", tr("Change Text..."),
          [this, middle = PointsOf(*taken)[0], text = taken->Text] { AskText(middle, text); });
    add("ShapeDuplicate", tr("Duplicate\tCtrl+D"), [this] { session_.Board().Hand().Duplicate(); });
    add("ShapeToFront", tr("Bring to Front"), [this] { session_.Board().Hand().BringToFront(); });
    menu->addSeparator();
    add("ShapeDelete", tr("Delete\tDel"), [this] { session_.RemoveTaken(); });
    menu->popup(picture_->OnDesktop(at));
  });
}

void LiveDrawForm::ShowZoneMenu(POINTAPI at) {
  QTimer::singleShot(0, this, [this, at] {
    if (session_.Zones().Taken() == 0) return;
    auto* menu = new QMenu(this);
    menu->setObjectName("ZoneMenu");
    menu->setAttribute(Qt::WA_DeleteOnClose);
    connect(menu->addAction(tr("Remove Zone\tDel")), &QAction::triggered, this, [this] { session_.RemoveTaken(); });
    connect(menu->addAction(tr("Remove All Zones")), &QAction::triggered, this, [this] { session_.RemoveZones(); });
    menu->popup(picture_->OnDesktop(at));
  });
}

}  // namespace kinalyx
