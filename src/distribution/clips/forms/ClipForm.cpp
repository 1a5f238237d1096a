#include "distribution/clips/forms/ClipForm.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QRadioButton>
#include <QSlider>
#include <algorithm>

#include "distribution/clips/forms/ClipPicture.h"
#include "platform/files/Folders.h"
#include "platform/host/DriveWatch.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"
#include "workspace/AnalysisWorkspace.h"

namespace kinalyx {
namespace {

constexpr QSize kPreview{560, 400};
constexpr int kChoicesWidth = 330;
constexpr int kFullLevel = 100;
constexpr int kLevelWidth = 90;
constexpr int kLineHeight = 34;
constexpr int kPlaceWidth = 440;  // of the name of a folder
constexpr int kSoonMs = 60;       // after the last change of a choice

/// Selects what carries a value; the first where none does.
void Choose(QComboBox* box, const QVariant& value) { box->setCurrentIndex(std::max(0, box->findData(value))); }

template <typename T>
T Chosen(const QComboBox* box) {
  return static_cast<T>(box->currentData().toInt());
}

}  // namespace

ClipForm::ClipForm(Parts parts, QWidget* over)
    : QDialog(over),
      host_(parts.host),
      analysis_(parts.analysis),
      desk_(parts.desk),
      recorder_(parts.voice),
      microphone_(std::move(parts.microphone)),
      moments_(ClipDesk::Moments(parts.analysis)) {
  setObjectName("ClipForm");
  setWindowTitle(tr("Save Video with Drawings"));
  setWindowModality(Qt::WindowModal);
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(20, 18, 20, 18);
  rows->setSpacing(14);
  rows->addWidget(MakeLabel("ClipTitle", windowTitle(), "title"));
  auto* columns = new QHBoxLayout;
  columns->setSpacing(20);
  columns->addWidget(MakePreview(), 1);
  columns->addWidget(MakeChoices());
  rows->addLayout(columns, 1);
  rows->addWidget(MakeTarget());
  level_->hide();
  noVoice_->hide();
  Show(desk_.Proposal(analysis_));
  ScaleForm(*this, *over->window());
  Changed();
  name_->setFocus();
  name_->selectAll();
}

ClipForm::~ClipForm() { recorder_.Stop(); }

QWidget* ClipForm::MakePreview() {
  auto* part = new QWidget;
  auto* rows = new QVBoxLayout(part);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(8);
  picture_ = new ClipPicture("ClipPicture");
  LeastWidth(picture_, kPreview.width());
  LeastHeight(picture_, kPreview.height());
  rows->addWidget(picture_, 1);
  auto* bar = new QHBoxLayout;
  bar->setSpacing(8);
  play_ = IconButton("ClipPlay", "play", tr("Play what the clip will show"), Look::Quiet);
  play_->setCheckable(true);
  seek_ = new QSlider(Qt::Horizontal);
  seek_->setObjectName("ClipSeek");
  length_ = MakeLabel("ClipLength", {}, "muted");
  bar->addWidget(play_);
  bar->addWidget(seek_, 1);
  bar->addWidget(length_);
  rows->addLayout(bar);
  auto* voice = new QHBoxLayout;
  voice->setSpacing(8);
  voice_ = new Button("ClipVoice", tr("Record Voice"), "microphone", Look::Quiet);
  voice_->setCheckable(true);
  voice_->setToolTip(tr("Speak while the clip plays: your voice goes into it in place of its sound"));
  level_ = new QProgressBar;
  level_->setObjectName("ClipLevel");
  level_->setRange(0, kFullLevel);
  level_->setTextVisible(false);
  FixWidth(level_, kLevelWidth);
  voiceWords_ = MakeLabel("ClipVoiceWords", {}, "muted");
  noVoice_ = new Button("ClipVoiceDrop", tr("Without Voice"), {}, Look::Quiet);
  voice->addWidget(voice_);
  voice->addWidget(level_);
  voice->addWidget(voiceWords_, 1);
  voice->addWidget(noVoice_);
  rows->addLayout(voice);
  connect(voice_, &QPushButton::toggled, this, &ClipForm::RecordVoice);
  connect(noVoice_, &QPushButton::clicked, this, [this] { DropVoice({}); });
  connect(picture_, &ClipPicture::Resized, this, [this] {
    if (painter_) Preview();
  });
  connect(seek_, &QSlider::valueChanged, this, [this] { Preview(); });
  connect(seek_, &QSlider::sliderPressed, this, [this] {
    voice_->setChecked(false);
    Play(false);
  });
  connect(play_, &QPushButton::toggled, this, &ClipForm::Play);
  return part;
}

QComboBox* ClipForm::AddChoice(QFormLayout& rows, const QString& name, const QString& caption) {
  auto* box = new QComboBox;
  box->setObjectName(name);
  box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  box->setMinimumContentsLength(18);
  auto* title = MakeLabel(name + "Title", caption, "caption");
  FixHeight(title, kLineHeight);
  rows.addRow(title, box);
  connect(box, &QComboBox::currentIndexChanged, this, [this] { Changed(); });
  return box;
}

QWidget* ClipForm::MakeChoices() {
  auto* part = new QWidget;
  FixWidth(part, kChoicesWidth);
  auto* rows = new QFormLayout(part);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setHorizontalSpacing(14);
  rows->setVerticalSpacing(8);
  rows->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);

  windows_ = new QButtonGroup(this);
  auto* which = new QVBoxLayout;
  which->setSpacing(4);
  auto* one = new QRadioButton(tr("The current window"));
  one->setObjectName("ClipOne");
  auto* all = new QRadioButton(tr("All as it stands"));
  all->setObjectName("ClipAll");
  windows_->addButton(one, 0);
  windows_->addButton(all, 1);
  which->addWidget(one);
  which->addWidget(all);
  auto* showTitle = MakeLabel("ClipShowTitle", tr("Show"), "caption");
  rows->addRow(showTitle, which);
  const bool several = ClipDesk::SeveralShown(analysis_);
  for (QWidget* shown : {static_cast<QWidget*>(one), static_cast<QWidget*>(all), static_cast<QWidget*>(showTitle)})
    shown->setVisible(several);
  connect(windows_, &QButtonGroup::idToggled, this, [this] { Changed(); });

  from_ = AddChoice(*rows, "ClipFrom", tr("From"));
  to_ = AddChoice(*rows, "ClipTo", tr("To"));
  for (const ClipMoment& moment : moments_) {
    from_->addItem(Q(moment.Words), moment.Position);
    to_->addItem(Q(moment.Words), moment.Position);
  }
  speed_ = AddChoice(*rows, "ClipSpeed", tr("Speed"));
  const QString speeds[] = {tr("As filmed"), tr("Half"), tr("A quarter"), tr("An eighth")};
  for (int i = 0; i < 4; ++i) speed_->addItem(speeds[i], 1 << i);
  pause_ = AddChoice(*rows, "ClipPause", tr("Stand at drawings"));
  pause_->addItem(tr("No"), 0);
  for (const int seconds : {1, 2, 3, 5, 8})
    pause_->addItem(seconds == 1 ? tr("1 second") : tr("%1 seconds").arg(seconds), seconds);
  file_ = AddChoice(*rows, "ClipFile", tr("File"));
  file_->addItem(tr("MP4 video"), static_cast<int>(ClipWish::File::Mp4));
  file_->addItem(tr("MP4 for old telephones"), static_cast<int>(ClipWish::File::Mp4Old));
  file_->addItem(tr("GIF, a short silent loop"), static_cast<int>(ClipWish::File::Gif));
  file_->addItem(tr("Row of pictures"), static_cast<int>(ClipWish::File::Row));
  size_ = AddChoice(*rows, "ClipSize", tr("Size"));
  size_->addItem(tr("1080 lines"), static_cast<int>(ClipSize::Lines1080));
  size_->addItem(tr("720 lines"), static_cast<int>(ClipSize::Lines720));
  size_->addItem(tr("As seen here"), static_cast<int>(ClipSize::AsSeen));
  size_->addItem(tr("Upright, 1080 x 1920"), static_cast<int>(ClipSize::Portrait));
  count_ = AddChoice(*rows, "ClipCount", tr("Pictures"));
  countTitle_ = qobject_cast<QLabel*>(rows->labelForField(count_));
  for (int count = 2; count <= 9; ++count) count_->addItem(QString::number(count), count);

  auto* checks = new QVBoxLayout;
  checks->setSpacing(4);
  const auto check = [&](const char* name, const QString& words, const QString& tip) {
    auto* box = new QCheckBox(words);
    box->setObjectName(name);
    box->setToolTip(tip);
    checks->addWidget(box);
    connect(box, &QCheckBox::toggled, this, [this] { Changed(); });
    return box;
  };
  names_ = check("ClipNames", tr("Names of the videos"), tr("At the top of each picture"));
  timer_ = check("ClipTimer", tr("Timer"), tr("The seconds of each video, from the zero point of its timer"));
  notes_ = check("ClipNotes", tr("Notes"), tr("The first lines of each video's notes, at its foot"));
  sound_ = check("ClipSound", tr("Sound of the video"), tr("Where it plays as filmed"));
  card_ = check("ClipCard", tr("Closing card with your heading"),
                tr("Three seconds with the logo and the heading of the printed page"));
  rows->addRow(MakeLabel("ClipWithTitle", tr("With"), "caption"), checks);
  return part;
}

QWidget* ClipForm::MakeTarget() {
  auto* part = new QWidget;
  auto* rows = new QVBoxLayout(part);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(8);
  auto* line = new QHBoxLayout;
  line->setSpacing(8);
  line->addWidget(MakeLabel("ClipNameTitle", tr("Name"), "caption"));
  name_ = new QLineEdit;
  name_->setObjectName("ClipName");
  name_->setMaxLength(120);
  LeastWidth(name_, 200);
  line->addWidget(name_, 1);
  place_ = MakeLabel("ClipPlace", {}, "muted");
  line->addWidget(place_, 1);
  auto* folder = new Button("ClipFolder", tr("Folder..."), "open", Look::Quiet);
  line->addWidget(folder);
  rows->addLayout(line);
  auto* actions = new QHBoxLayout;
  actions->setSpacing(8);
  fault_ = MakeLabel("ClipFault", {}, "warning");
  actions->addWidget(fault_, 1);
  auto* cancel = new Button("ClipCancel", tr("Cancel"), {}, Look::Quiet);
  save_ = new Button("ClipSave", tr("Save"), "save");
  save_->setDefault(true);
  actions->addWidget(cancel);
  actions->addWidget(save_);
  rows->addLayout(actions);
  connect(name_, &QLineEdit::textEdited, this, [this] { fault_->clear(); });
  connect(folder, &QPushButton::clicked, this, &ClipForm::ChooseFolder);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  connect(save_, &QPushButton::clicked, this, &ClipForm::Save);
  return part;
}

void ClipForm::Show(const ClipWish& wish) {
  filling_ = true;
  windows_->button(wish.AllWindows ? 1 : 0)->setChecked(true);
  Choose(from_, wish.First);
  to_->setCurrentIndex(std::max(0, to_->findData(wish.Last)));
  if (wish.Last >= moments_.back().Position) to_->setCurrentIndex(to_->count() - 1);
  Choose(speed_, wish.Slower);
  Choose(pause_, static_cast<int>(wish.PauseSeconds));
  Choose(file_, static_cast<int>(wish.Makes));
  Choose(size_, static_cast<int>(wish.Size));
  Choose(count_, wish.RowPictures);
  names_->setChecked(wish.Words.Names);
  timer_->setChecked(wish.Words.Timer);
  notes_->setChecked(wish.Words.Notes);
  sound_->setChecked(wish.Sound);
  card_->setChecked(wish.Card);
  name_->setText(Q(wish.Name));
  folder_ = wish.Folder;
  filling_ = false;
}

ClipWish ClipForm::Wish() const {
  ClipWish wish;
  wish.AllWindows = windows_->checkedId() == 1;
  wish.First = Chosen<int>(from_);
  wish.Last = Chosen<int>(to_);
  wish.Slower = Chosen<int>(speed_);
  wish.PauseSeconds = Chosen<int>(pause_);
  wish.Size = Chosen<ClipSize>(size_);
  wish.Makes = Chosen<ClipWish::File>(file_);
  wish.Words = {names_->isChecked(), timer_->isChecked(), notes_->isChecked()};
  wish.Sound = sound_->isChecked();
  wish.Card = card_->isChecked();
  wish.RowPictures = Chosen<int>(count_);
  wish.Name = Std(name_->text());
  wish.Folder = folder_;
  return wish;
}

/// Which choices go with the others.
void ClipForm::Enable() {
  const ClipWish wish = Wish();
  const bool row = wish.Makes == ClipWish::File::Row;
  const bool mp4 = wish.Makes == ClipWish::File::Mp4 || wish.Makes == ClipWish::File::Mp4Old;
  count_->setVisible(row);
  countTitle_->setVisible(row);
  size_->setEnabled(mp4);
  sound_->setEnabled(mp4 && wish.Slower == 1 && spoken_.empty());
  voice_->setEnabled(mp4);
  card_->setEnabled(!row && !desk_.Card().Empty());
  speed_->setEnabled(!row);
  pause_->setEnabled(!row);
}

/// Shows what the choices mean; the pictures follow when the hand rests.
void ClipForm::Changed() {
  if (filling_) return;
  Enable();
  QString folder = Q(folder_);
  if (folder.startsWith(QDir::homePath() + '/')) folder.replace(0, QDir::homePath().size(), "~");
  place_->setText(tr("in %1").arg(place_->fontMetrics().elidedText(folder, Qt::ElideMiddle, Px(kPlaceWidth))));
  place_->setToolTip(Q(folder_));
  soon_ = HostTimer(host_, kSoonMs, false, [this] {
    voice_->setChecked(false);
    Play(false);
    const ClipWish wish = Wish();
    order_ = desk_.OrderOf(analysis_, wish);
    // What was opened serves on, as long as the same videos stand in the same places.
    const bool same = painter_ && shown_.AllWindows == wish.AllWindows &&
                      (shown_.Size == ClipSize::Portrait) == (wish.Size == ClipSize::Portrait);
    if (!same && !OpenVideos()) return;
    shown_ = wish;
    painter_->SetWords(order_.Words);
    fault_->clear();
    const double before = std::exchange(plan_, PlanClip(order_.Scene, painter_->Times(), order_.Stretch)).EndMs;
    if (!spoken_.empty() && plan_.EndMs != before)
      DropVoice(tr("The clip is another one now: record your voice again."));
    seek_->setRange(0, std::max(0, static_cast<int>(plan_.Frames.size()) - 1));
    const double seconds = plan_.EndMs / 1000;
    length_->setText(order_.Makes == ClipOrder::Kind::Row
                         ? tr("%1 pictures of %2 x %3").arg(order_.RowPictures).arg(order_.Width).arg(order_.Height)
                         : QString("%1 s, %2 x %3").arg(seconds, 0, 'f', 1).arg(order_.Width).arg(order_.Height));
    if (order_.Makes == ClipOrder::Kind::Gif && plan_.EndMs > kLongestLoopMs)
      fault_->setText(tr("A loop lasts half a minute at the most."));
    Preview();
  });
}

bool ClipForm::OpenVideos() {
  painter_.reset();
  for (const SceneVideo& video : order_.Scene.Videos) {
    if (host_.Drives().Answers(FolderOf(video.Path))) continue;
    fault_->setText(tr("The drive with \"%1\" does not answer.").arg(Q(video.Name)));
    return false;
  }
  auto painter = ScenePainter::Open(order_.Scene, order_.Words);
  if (!painter) {
    fault_->setText(Q(painter.Why()));
    return false;
  }
  painter_ = std::move(*painter);
  return true;
}

void ClipForm::Preview() {
  if (!painter_ || plan_.Frames.empty()) return;
  const double proportion = static_cast<double>(order_.Width) / std::max(1, order_.Height);
  const QSize size = picture_->PixelsFor(proportion);
  Surface picture = picture_->Take();
  if (picture.Width() != size.width() || picture.Height() != size.height())
    picture = Surface(size.width(), size.height());
  const auto at = static_cast<std::size_t>(std::clamp(seek_->value(), 0, seek_->maximum()));
  painter_->Paint(plan_.Frames[at].Positions, picture);
  picture_->Show(std::move(picture));
}

void ClipForm::Play(bool on) {
  if (play_->isChecked() != on) return play_->setChecked(on);
  play_->SetIcon(on ? "pause" : "play");
  playing_.Stop();
  if (!on || plan_.Frames.empty()) return;
  if (seek_->value() >= seek_->maximum()) seek_->setValue(0);
  const auto at = static_cast<std::size_t>(seek_->value());
  playedFrom_ = host_.timeGetTime() - static_cast<std::int64_t>(plan_.Frames[at].Ms);
  constexpr int kTickMs = 8;
  playing_ = HostTimer(host_, kTickMs, true, [this] { NextPicture(); });
}

void ClipForm::RecordVoice(bool on) {
  level_->setVisible(on);
  if (on) {
    if (microphone_.empty()) {
      voice_->setChecked(false);
      voiceWords_->setText(tr("No microphone is chosen: see Program Setup, Capture."));
      return;
    }
    Play(false);
    DropVoice(tr("Speak while it plays."));
    seek_->setValue(0);
    recorder_.Start(microphone_);
    Play(true);
    return;
  }
  recorder_.Stop();
  if (play_->isChecked()) Play(false);
  const QString why = Q(recorder_.Why());
  spoken_ = recorder_.Take();
  const auto most = static_cast<std::size_t>(plan_.EndMs * IVoiceRecorder::kRate / 1000) * 2;
  if (spoken_.size() > most) spoken_.resize(most);
  if (spoken_.empty()) return DropVoice(why.isEmpty() ? tr("Nothing was heard.") : why);
  QString words =
      tr("Your voice, %1 s").arg(static_cast<double>(spoken_.size()) / 2 / IVoiceRecorder::kRate, 0, 'f', 1);
  if (!why.isEmpty()) words += ". " + why;
  voiceWords_->setText(words);
  noVoice_->show();
  Enable();
}

void ClipForm::DropVoice(const QString& words) {
  spoken_.clear();
  voiceWords_->setText(words);
  noVoice_->hide();
  Enable();
}

void ClipForm::NextPicture() {
  if (voice_->isChecked()) {
    level_->setValue(static_cast<int>(recorder_.Level() * kFullLevel));
    if (!recorder_.Why().empty()) return voice_->setChecked(false);
  }
  const auto ms = static_cast<double>(host_.timeGetTime() - playedFrom_);
  const auto next = std::ranges::upper_bound(plan_.Frames, ms, {}, &ClipFrame::Ms);
  const auto at = static_cast<int>(next - plan_.Frames.begin()) - 1;
  if (at >= 0 && at != seek_->value()) seek_->setValue(at);
  if (ms < plan_.EndMs) return;
  Play(false);
  voice_->setChecked(false);
}

void ClipForm::ChooseFolder() {
  const auto folder = host_.PickFolder(Std(tr("Folder for the Clip")), folder_);
  if (!folder) return;
  folder_ = *folder;
  Changed();
}

void ClipForm::Save() {
  voice_->setChecked(false);
  Play(false);
  ClipWish wish = Wish();
  wish.Voice = spoken_;
  const Outcome saved = desk_.Save(analysis_, wish);
  if (saved) return accept();
  fault_->setText(Q(saved.Why()));
}

}  // namespace kinalyx
