#include "capture/import/forms/ImportPanel.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QLabel>
#include <QProgressBar>
#include <QSignalBlocker>
#include <algorithm>

#include "capture/import/forms/CodecForm.h"
#include "capture/import/forms/ImportRows.h"
#include "library/forms/Divider.h"
#include "library/forms/HeadButton.h"
#include "library/forms/PreviewPlayer.h"
#include "library/forms/TrimSlider.h"
#include "platform/files/Folders.h"
#include "platform/files/Tr.h"
#include "platform/host/DriveWatch.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/Figures.h"
#include "platform/widgets/FileDrop.h"
#include "platform/widgets/NameList.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

namespace {

/// News come many times a second while a file is converted.
constexpr int kShowMs = 40;
constexpr int kLookAgainMs = 3000;
constexpr int kParts = 1000;
constexpr const char* kChooseOne = TrLater("Choose a video to look at it, and to mark the part that you want.");

QVBoxLayout* BareRows(QWidget* owner, int spacing) {
  auto* rows = new QVBoxLayout(owner);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(spacing);
  return rows;
}

}  // namespace

ImportPanel::ImportPanel(PlayerServices& services, Settings& settings, IVideoNaming& naming, QWidget* parent)
    : QWidget(parent),
      services_(services),
      settings_(settings),
      session_({.host = services.host, .settings = settings, .naming = naming, .events = *this}) {
  setObjectName("ImportPanel");
  QVBoxLayout* rows = BareRows(this, kGap);
  rows->addWidget(MakeWatch());
  rows->addWidget(MakeFiles(), 1);
  rows->addWidget(MakeProgress());
  ConnectParts();
  SetKind(ImportKind::Manual);
}

ImportPanel::~ImportPanel() = default;

// ---------------------------------------------------------------- the parts

/// "Start Auto Import" and what the watch is doing.
QWidget* ImportPanel::MakeWatch() {
  watch_ = MakeFrame("panel");
  watch_->setObjectName("AutoImportBar");
  auto* row = new QHBoxLayout(watch_);
  row->setContentsMargins(kGap, 10, kGap, 10);
  row->setSpacing(kGap);
  AutoConvertBtn_ = new Button("AutoConvertBtn", Q(session_.AutoCaption()), "play");
  AutoConvertBtn_->setToolTip(tr("Converts every video that arrives in the watched folder, one after the other"));
  AutoImportLbl_ = MakeLabel("AutoImportLbl", {});
  AutoImportLbl_->setWordWrap(true);
  row->addWidget(AutoConvertBtn_);
  row->addWidget(AutoImportLbl_, 1);
  return watch_;
}

QWidget* ImportPanel::MakeFiles() {
  files_ = new Panel("ImportTitle", tr("Files to Import"));
  count_ = new FigureLabel("ImportCount");
  count_->setProperty("look", "caption");
  files_->Head()->insertWidget(1, count_);
  files_->Head()->setStretch(0, 0);
  files_->Head()->addStretch(1);
  setup_ = HeadButton("ImportSetupBtn", tr("Program Setup"), "setup");
  setup_->setToolTip(tr("Choose the folder from which videos come"));
  refresh_ = HeadButton("ImportRefreshBtn", tr("Refresh"), "rotate");
  refresh_->setToolTip(tr("Looks at the folder again"));
  auto* kinds = HeadButton("CodecBtn", tr("Formats"), "info");
  kinds->setToolTip(tr("Which kinds of video can be opened here"));
  for (Button* button : {setup_, refresh_, kinds}) files_->Head()->addWidget(button);
  connect(setup_, &QPushButton::clicked, this, &ImportPanel::SetupWanted);
  connect(refresh_, &QPushButton::clicked, this, [this] { session_.Refresh(); });
  connect(kinds, &QPushButton::clicked, this, [this] { CodecForm(this).exec(); });

  auto* middle = new QHBoxLayout;
  middle->setSpacing(0);
  middle->addWidget(MakeList(), 38);
  middle->addWidget(Divider(true));
  auto* shown = new QWidget;
  QVBoxLayout* rows = BareRows(shown, 0);
  preview_ = new PreviewPlayer(services_);
  preview_->SetBarShown(false);
  preview_->ShowWords(tr(kChooseOne));
  rows->addWidget(preview_, 1);
  rows->addWidget(MakeTrim());
  middle->addWidget(shown, 62);
  files_->Body()->addLayout(middle, 1);
  MakeFoot();
  return files_;
}

/// The files, and beneath them how more of them come.
QWidget* ImportPanel::MakeList() {
  auto* part = new QWidget;
  LeastWidth(part, 190);
  MostWidth(part, 420);
  QVBoxLayout* rows = BareRows(part, 0);
  List1_ = new NameList("List1");
  List1_->setAccessibleName(tr("Files to import"));
  List1_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  rows_ = new ImportRows(services_.host, *List1_);
  rows->addWidget(List1_, 1);
  auto* browse = SSCommand8_[kBrowse] = new Button("SSCommand8_2", tr("Browse"), "open", Look::Quiet);
  browse->setToolTip(
      tr("Choose videos on this computer, a telephone or a card. They can also be dropped on the list."));
  auto* row = new QHBoxLayout;
  row->setContentsMargins(8, 6, 8, 6);
  row->addWidget(browse);
  row->addStretch(1);
  rows->addLayout(row);
  return part;
}

QWidget* ImportPanel::MakeTrim() {
  trim_ = MakeFrame("panelFoot");
  trim_->setObjectName("ImportTrim");
  auto* rows = new QVBoxLayout(trim_);
  rows->setContentsMargins(kGap, 2, kGap, 10);
  rows->setSpacing(4);
  HScroll_ = new TrimSlider("ImportScroll");
  rows->addWidget(HScroll_);
  auto* row = new QHBoxLayout;
  row->setSpacing(6);
  play_ = IconButton("ImportPlay", "play", tr("Play the part that is marked (Space)"), Look::Quiet);
  auto* start = SSCommand8_[kSetStart] = new Button("SSCommand8_0", tr("Set Start Point"), {}, Look::Quiet);
  start->setToolTip(tr("The new video begins with the picture that is shown (S)"));
  auto* end = SSCommand8_[kSetEnd] = new Button("SSCommand8_1", tr("Set End Point"), {}, Look::Quiet);
  end->setToolTip(tr("The new video ends with the picture that is shown (E)"));
  clear_ = IconButton("ImportTrimClear", "undo", tr("Take all of the video again"), Look::Quiet);
  for (Button* button : {play_, start, end, clear_}) row->addWidget(button);
  row->addStretch(1);
  rows->addLayout(row);
  auto* times = new QHBoxLayout;
  times->setSpacing(kGap);
  startTime_ = new FigureLabel("TrimStartLbl");
  endTime_ = new FigureLabel("TrimEndLbl");
  times->addWidget(startTime_);
  times->addWidget(endTime_);
  times->addStretch(1);
  shownTime_ = new FigureLabel("TrimNowLbl");
  shownTime_->setProperty("look", "caption");
  times->addWidget(shownTime_);
  rows->addLayout(times);
  return trim_;
}

/// How the new video is made, and what makes it.
void ImportPanel::MakeFoot() {
  keepSize_ = new QCheckBox(tr("Keep the camera's picture size"));
  keepSize_->setObjectName("KeepPictureSizeCheck");
  keepSize_->setToolTip(tr("Without it, large pictures become tape of 720 x 480, as in earlier versions"));
  const char* const kCaptions[] = {TrLater("Reverse fields"), TrLater("Sharpen")};
  const char* const kTips[] = {TrLater("Shows the two fields of interlaced pictures in the other order"),
                               TrLater("Brings out the edges of what is made tape a little")};
  files_->Foot()->addWidget(keepSize_);
  for (std::size_t i = 0; i < VidSetupCheck_.size(); ++i) {
    VidSetupCheck_[i] = new QCheckBox(tr(kCaptions[i]));
    VidSetupCheck_[i]->setObjectName(QString("VidSetupCheck%1").arg(i));
    VidSetupCheck_[i]->setToolTip(tr(kTips[i]));
    files_->Foot()->addWidget(VidSetupCheck_[i]);
  }
  files_->Foot()->addStretch(1);
  saveAll_ = new Button("SaveAllBtn", tr("Save All"), {}, Look::Quiet);
  saveAll_->setToolTip(tr("Converts all that waits, one after the other, each under the next name"));
  SSCommand8_[kSave] = new Button("SSCommand8_3", tr("Save"), "check");
  files_->Foot()->addWidget(saveAll_);
  files_->Foot()->addWidget(SSCommand8_[kSave]);
}

QWidget* ImportPanel::MakeProgress() {
  auto* strip = MakeFrame("status");
  strip->setObjectName("ImportStatusBar");
  LeastHeight(strip, 46);
  auto* row = new QHBoxLayout(strip);
  row->setContentsMargins(kGap, 6, kGap, 6);
  row->setSpacing(kGap);
  status_ = MakeLabel("ImportStatus", {});
  status_->setWordWrap(true);
  row->addWidget(status_, 1);
  progress_ = new QWidget;
  progress_->setObjectName("ImportProgress");
  auto* inside = new QHBoxLayout(progress_);
  inside->setContentsMargins(0, 0, 0, 0);
  inside->setSpacing(kGap);
  gauge_ = new QProgressBar;
  gauge_->setObjectName("ImportGauge");
  gauge_->setRange(0, kParts);
  gauge_->setTextVisible(false);
  FixWidth(gauge_, 150);
  auto* cancel = new Button("ImportCancelBtn", tr("Cancel"), {}, Look::Quiet);
  cancel->setToolTip(tr("Gives up this file and those that wait. Nothing half done is left."));
  inside->addWidget(gauge_);
  inside->addWidget(cancel);
  row->addWidget(progress_);
  analyze_ = new Button("ImportAnalyzeBtn", tr("Analyze"), "analyze", Look::Quiet);
  analyze_->setToolTip(tr("Opens the video that was saved last in the analysis section"));
  row->addWidget(analyze_);
  connect(analyze_, &QPushButton::clicked, this, [this] { emit AnalyzeWanted(saved_); });
  connect(cancel, &QPushButton::clicked, this, [this] { session_.CancelConversion(); });
  return strip;
}

void ImportPanel::ConnectParts() {
  soon_.setSingleShot(true);
  connect(&soon_, &QTimer::timeout, this, &ImportPanel::ShowAll);
  connect(&lookAgain_, &QTimer::timeout, this, [this] { session_.LookAgain(); });
  connect(AutoConvertBtn_, &QPushButton::clicked, this, &ImportPanel::AutoConvertBtn_Click);
  for (int index = 0; index < kCommands; ++index)
    connect(SSCommand8_[static_cast<std::size_t>(index)], &QPushButton::clicked, this,
            [this, index] { SSCommand8_Click(index); });
  connect(saveAll_, &QPushButton::clicked, this, [this] {
    std::vector<std::string> waiting;
    for (const ImportRow& row : session_.Rows())
      if (row.state == ImportRow::State::Waiting) waiting.push_back(row.file.path);
    session_.Save(waiting);
  });
  connect(List1_, &QListWidget::currentRowChanged, this, &ImportPanel::List1_Click);
  connect(List1_, &QListWidget::itemSelectionChanged, this, [this] { soon_.start(kShowMs); });

  connect(preview_, &PreviewPlayer::Moved, this, [this] {
    HScroll_->SetPosition(preview_->Frame());
    ShowTime();
  });
  connect(preview_, &PreviewPlayer::StateChanged, this,
          [this] { play_->SetIcon(preview_->Control().IsPlaying() ? "pause" : "play"); });
  const auto play = [this] { preview_->TogglePlay(HScroll_->Start(), HScroll_->End()); };
  connect(play_, &QPushButton::clicked, this, play);
  connect(HScroll_, &TrimSlider::PlayWanted, this, play);
  connect(HScroll_, &TrimSlider::Sought, this, [this](int frame) { preview_->ShowFrame(frame); });
  connect(HScroll_, &TrimSlider::StartWanted, this, [this] { SSCommand8_Click(kSetStart); });
  connect(HScroll_, &TrimSlider::EndWanted, this, [this] { SSCommand8_Click(kSetEnd); });
  connect(HScroll_, &TrimSlider::RangeChanged, this, [this] {
    if (HScroll_->Start() > 0 || session_.TrimStart()) session_.SetStartPoint(TimeOf(HScroll_->Start()));
    if (HScroll_->End() < HScroll_->Frames() - 1 || session_.TrimEnd()) session_.SetEndPoint(TimeOf(HScroll_->End()));
  });
  connect(clear_, &QPushButton::clicked, this, [this] { session_.ClearTrim(); });

  const auto store = [this](std::int32_t& key, QCheckBox* box) {
    connect(box, &QCheckBox::toggled, this, [this, &key](bool on) {
      settings_.Set(key, on ? 1 : 0);
      ShowKind();
    });
  };
  store(settings_.KeepPictureSize, keepSize_);
  store(settings_.ImportEdge, VidSetupCheck_[1]);
  connect(VidSetupCheck_[0], &QCheckBox::toggled, this, [this](bool on) {
    const bool automatic = session_.Kind() == ImportKind::Automatic;
    settings_.Set(automatic ? settings_.AutoReverseFields : settings_.HDReverseFields, on);
  });
  connect(new FileDrop(this), &FileDrop::Dropped, this,
          [this](const std::vector<std::string>& paths) { DropFiles(paths); });
}

// ---------------------------------------------------------------- what the user does

void ImportPanel::SetKind(ImportKind kind) {
  session_.ChooseKind(kind);
  ShowAll();
}

void ImportPanel::Open() {
  if (session_.Kind() == ImportKind::Camera) lookAgain_.start(kLookAgainMs);
  session_.Refresh();
  ShowAll();
}

/// On another page nobody waits for what a camera brings, and nothing is played. A conversion and the watch go on.
void ImportPanel::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  lookAgain_.stop();
  if (preview_->Control().IsPlaying()) preview_->Control().StopPlay();
}

void ImportPanel::List1_Click() {
  const int row = List1_->currentRow();
  session_.Select(row < 0 ? std::string() : rows_->Paths()[static_cast<std::size_t>(row)]);
  ShowPreview();
}

void ImportPanel::SSCommand8_Click(int index) {
  switch (index) {
    case kSetStart:
      HScroll_->SetStart(preview_->Frame());
      session_.SetStartPoint(TimeOf(HScroll_->Start()));
      break;
    case kSetEnd:
      HScroll_->SetEnd(preview_->Frame());
      session_.SetEndPoint(TimeOf(HScroll_->End()));
      break;
    case kBrowse: session_.Browse(); break;
    case kSave: session_.Save(ToSave()); break;
    default: break;
  }
}

std::vector<std::string> ImportPanel::ToSave() const {
  std::vector<std::string> chosen = rows_->Chosen();
  if (chosen.empty() && !session_.Selected().empty()) chosen.push_back(session_.Selected());
  std::erase_if(chosen, [this](const std::string& path) { return !session_.CanSave(path); });
  return chosen;
}

void ImportPanel::DropFiles(const std::vector<std::string>& paths) {
  if (session_.Kind() != ImportKind::Manual) {
    services_.host.Message(MessageKind::Information, "",
                           Tr("Files that you choose yourself are imported under \"Manually Import Video\"."));
  } else if (!session_.AddFiles(paths)) {
    services_.host.Message(MessageKind::Information, "", Tr("None of these files is a video that can be imported."));
  }
}

double ImportPanel::TimeOf(int frame) const {
  AVIControl& control = preview_->Control();
  return control.TimeOf(frame * (control.SplitFields() ? 2 : 1));
}

// ---------------------------------------------------------------- what is shown

void ImportPanel::ImportChanged() {
  if (!soon_.isActive()) soon_.start(kShowMs);
}

void ImportPanel::VideoImported(const std::string& path) {
  saved_ = path;
  emit VideoSaved(path);
}

void ImportPanel::ShowAll() {
  soon_.stop();
  rows_->Show(session_.Rows(), session_.Progress().part);
  rows_->SetCurrent(session_.Selected());
  ShowKind();
  ShowPreview();
  ShowTrim();
  ShowProgress();
}

void ImportPanel::ShowKind() {
  const ImportKind kind = session_.Kind();
  const bool manual = kind == ImportKind::Manual;
  const bool automatic = kind == ImportKind::Automatic;
  watch_->setVisible(automatic);
  AutoConvertBtn_->setText(Q(session_.AutoCaption()));
  AutoConvertBtn_->SetIcon(session_.AutoActive() ? "pause" : "play");
  AutoImportLbl_->setText(Q(session_.AutoStatus()));
  files_->SetTitle(manual ? tr("Files to Import") : automatic ? tr("Import Folder") : tr("Camera"));
  count_->setText(CountText());
  refresh_->setVisible(!manual);
  setup_->setVisible(!manual && session_.Folder().empty());
  SSCommand8_[kBrowse]->setVisible(manual);
  List1_->SetHint(Hint());

  const bool keep = settings_.KeepPictureSize != 0;
  const auto tick = [](QCheckBox* box, bool on) {
    const QSignalBlocker quiet(box);
    box->setChecked(on);
  };
  tick(keepSize_, keep);
  tick(VidSetupCheck_[0], automatic ? settings_.AutoReverseFields : settings_.HDReverseFields);
  tick(VidSetupCheck_[1], settings_.ImportEdge != 0);
  VidSetupCheck_[1]->setEnabled(!keep);

  const std::size_t chosen = ToSave().size();
  SSCommand8_[kSave]->setText(chosen > 1 ? tr("Save %1 Videos").arg(chosen) : tr("Save"));
  SSCommand8_[kSave]->setEnabled(chosen > 0 && !session_.AutoActive());
  const auto waits = [](const ImportRow& row) { return row.state == ImportRow::State::Waiting; };
  saveAll_->setVisible(std::ranges::count_if(session_.Rows(), waits) > 1);
  saveAll_->setEnabled(!session_.AutoActive());
}

QString ImportPanel::CountText() const {
  const std::size_t files = session_.Rows().size();
  return files > 0 ? QString::number(files) : QString();
}

/// What an empty list says.
QString ImportPanel::Hint() const {
  const QString folder = Q(session_.Folder());
  switch (session_.Kind()) {
    case ImportKind::Manual: return tr("Drop videos here, or choose Browse.");
    case ImportKind::Camera:
      if (folder.isEmpty()) return tr("Choose the folder of your camera in Program Setup first.");
      if (session_.FolderGone()) return tr("Connect the camera, and its videos appear here.\n\n%1").arg(folder);
      return tr("There is no video in the camera's folder.\n\n%1").arg(folder);
    case ImportKind::Automatic:
      if (folder.isEmpty()) return tr("Choose the folder to be watched in Program Setup first.");
      if (session_.FolderGone()) return tr("This folder cannot be reached.\n\n%1").arg(folder);
      return tr("Videos that arrive in this folder appear here.\n\n%1").arg(folder);
  }
  return {};
}

void ImportPanel::ShowPreview() {
  const std::string& path = session_.Selected();
  if (path == previewed_) return;
  previewed_ = path;
  HScroll_->SetFrames(0);
  if (path.empty()) {
    preview_->Unload();
    preview_->ShowWords(tr(kChooseOne));
  } else if (!services_.host.Drives().Answers(FolderOf(path), path)) {
    preview_->Unload();
    preview_->ShowWords(tr("The drive with this video is not answering."));
  } else if (!preview_->Load(path)) {
    preview_->ShowWords(tr("This video cannot be opened."));
  } else {
    HScroll_->SetFrames(preview_->FrameCount());
  }
  ShowTrim();
}

void ImportPanel::ShowTrim() {
  const bool open = HScroll_->Frames() > 0;
  for (QWidget* part : {static_cast<QWidget*>(HScroll_), static_cast<QWidget*>(play_),
                        static_cast<QWidget*>(SSCommand8_[kSetStart]), static_cast<QWidget*>(SSCommand8_[kSetEnd])})
    part->setEnabled(open);
  const auto start = session_.TrimStart();
  const auto end = session_.TrimEnd();
  clear_->setVisible(start || end);
  // Taken back by the session, the marks go too.
  if (open && !start && !end && !HScroll_->KeepsAll()) {
    const QSignalBlocker quiet(HScroll_);
    const int position = HScroll_->Position();
    HScroll_->SetFrames(HScroll_->Frames());
    HScroll_->SetPosition(position);
  }
  startTime_->setText(start ? tr("Start time %1").arg(Q(ImportSession::TimeText(*start))) : QString());
  endTime_->setText(end ? tr("End time %1").arg(Q(ImportSession::TimeText(*end))) : QString());
  startTime_->setVisible(start.has_value());
  endTime_->setVisible(end.has_value());
  ShowTime();
}

/// Of the picture that is shown, and how long the video is.
void ImportPanel::ShowTime() {
  const VideoInfo* info = preview_->Control().Info();
  const auto text = [](double ms) { return Q(ImportSession::TimeText(ms)); };
  shownTime_->setText(info ? text(TimeOf(preview_->Frame())) + " / " + text(info->durationMs) : QString());
}

void ImportPanel::ShowProgress() {
  progress_->setVisible(session_.Busy());
  analyze_->setVisible(!session_.Busy() && !saved_.empty());
  gauge_->setValue(static_cast<int>(session_.Progress().part * kParts));
  status_->setText(Q(session_.Status()));
  status_->parentWidget()->setVisible(session_.Busy() || !session_.Status().empty());
}

}  // namespace kinalyx
