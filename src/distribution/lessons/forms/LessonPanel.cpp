#include "distribution/lessons/forms/LessonPanel.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalBlocker>

#include "core/Vocabulary.h"
#include "distribution/lessons/forms/LevelMeter.h"
#include "platform/widgets/Figures.h"
#include "platform/widgets/Icons.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"
#include "workspace/forms/StageLook.h"

namespace kinalyx {
namespace {

constexpr int kWide = 320;
constexpr int kTimePixels = 24;
const QColor kRed(224, 84, 72);

/// The dot says at a glance whether the lesson runs.
QColor DotOf(LessonPhase phase) {
  if (phase == LessonPhase::Recording) return kRed;
  return StageLook::Current().faintInk;
}

const char* const kSheet = R"(
  QPushButton { color: @ink; background: transparent; border: 1px solid @outline; border-radius: 6px;
                padding: 0 12px; min-height: @30; }
  QPushButton:hover { background: @hover; }
  QPushButton:disabled { color: @faintInk; border-color: @cardLine; }
  QPushButton[main="true"] { background: @accentFill; border-color: @accentFill; font-weight: 600; }
  QPushButton[main="true"]:hover { background: @accentHover; border-color: @accentHover; }
  QPushButton[main="true"]:disabled { background: transparent; border-color: @cardLine; }
  QLabel { color: @ink; }
  QLabel[look="muted"] { color: @faintInk; }
  QComboBox { color: @ink; background: transparent; border: 1px solid @outline; border-radius: 6px;
              padding: 0 8px; min-height: @30; }
  QComboBox:disabled { color: @faintInk; border-color: @cardLine; }
  QComboBox QAbstractItemView { color: @ink; background: @card; selection-background-color: @accentFill; }
  QProgressBar { background: @hover; border: 0; border-radius: 3px; max-height: 6px; }
  QProgressBar::chunk { background: @accent; border-radius: 3px; }
)";

}  // namespace

LessonPanel::LessonPanel(LessonSession& session, const Settings& settings, QWidget* stage)
    : FloatCard("LessonPanel", tr("Record Lesson"), stage), session_(session), settings_(settings) {
  content_ = new QWidget(this);
  auto* rows = new QVBoxLayout(content_);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(10);

  first_ = new QHBoxLayout;
  QHBoxLayout* first = first_;
  first->setSpacing(10);
  dot_ = MakeLabel("RecordDot", {}, nullptr, content_);
  RecordMinuteLbl_ = new FigureLabel("RecordMinuteLbl", "10:00", content_);
  RecordMinuteLbl_->setToolTip(tr("Time that remains"));
  FixFont(RecordMinuteLbl_, kTimePixels, 600);
  meter_ = new LevelMeter("RecordLevel", content_);
  first->addWidget(dot_);
  first->addWidget(RecordMinuteLbl_);
  first->addWidget(meter_, 1);
  RecordBtn_[kPause] = MakeButton(kPause, tr("Pause"));
  RecordBtn_[kMain] = MakeButton(kMain, {});
  RecordBtn_[kMain]->setProperty("main", true);
  LeastWidth(RecordBtn_[kPause], 74);  // it stays under the mouse, whatever it says
  first->addWidget(RecordBtn_[kPause]);
  rows->addLayout(first);

  status_ = MakeLabel("RecordStatus", {}, nullptr, content_);
  status_->setWordWrap(true);
  FixWidth(status_, kWide);
  rows->addWidget(status_);
  choices_ = MakeChoices();
  rows->addWidget(choices_);
  progress_ = new QProgressBar(content_);
  progress_->setObjectName("RecordProgress");
  progress_->setTextVisible(false);
  rows->addWidget(progress_);

  last_ = new QHBoxLayout;
  QHBoxLayout* last = last_;
  last->setSpacing(8);
  RecordBtn_[kSave] = MakeButton(kSave, tr("Save Video"));
  RecordBtn_[kSave]->setProperty("main", true);
  RecordBtn_[kCancel] = MakeButton(kCancel, tr("Cancel"));
  last->addWidget(RecordBtn_[kSave], 1);
  last->addWidget(RecordBtn_[kCancel]);
  rows->addLayout(last);
  Body()->addWidget(content_);

  connect(RecordBtn_[kMain], &QPushButton::clicked, this, [this] { session_.PressRecord(); });
  connect(RecordBtn_[kPause], &QPushButton::clicked, this, [this] { session_.PressPause(); });
  connect(RecordBtn_[kCancel], &QPushButton::clicked, this, [this] { session_.PressCancel(); });
  connect(RecordBtn_[kStudent], &QPushButton::clicked, this, &LessonPanel::StudentWanted);
  connect(RecordBtn_[kSave], &QPushButton::clicked, this, &LessonPanel::SaveWanted);
  connect(this, &FloatCard::CloseWanted, this, [this] { session_.PressCancel(); });
  FirstDress();
}

QPushButton* LessonPanel::MakeButton(Button which, const QString& caption) {
  auto* button = new QPushButton(caption, content_);
  button->setObjectName(QString("RecordBtn%1").arg(static_cast<int>(which)));
  button->setFocusPolicy(Qt::NoFocus);
  return button;
}

QWidget* LessonPanel::MakeChoices() {
  auto* choices = new QWidget(content_);
  auto* grid = new QGridLayout(choices);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(10);
  grid->setVerticalSpacing(8);
  grid->setColumnStretch(1, 1);
  RecordStudent_ = MakeLabel("RecordStudent", {}, nullptr, choices);
  FixFont(RecordStudent_, kTextPixels, 600);
  RecordBtn_[kStudent] = MakeButton(kStudent, tr("Select..."));
  grid->addWidget(RecordStudent_, 0, 0, 1, 2);
  grid->addWidget(RecordBtn_[kStudent], 0, 2);
  const auto add = [&](int row, const char* name, const QString& caption, QComboBox*& box) {
    grid->addWidget(MakeLabel(QString(name) + "Label", caption, "muted", choices), row, 0);
    box = new QComboBox(choices);
    box->setObjectName(name);
    box->setAccessibleName(caption);
    box->setFocusPolicy(Qt::NoFocus);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(12);
    grid->addWidget(box, row, 1, 1, 2);
  };
  add(1, "RecordMicrophone", tr("Microphone"), microphone_);
  add(2, "RecordKind", tr("File"), kind_);
  kind_->addItem(tr("AVI, for computers"));
  kind_->addItem(tr("MP4, for telephones too"));
  connect(microphone_, &QComboBox::activated, this,
          [this](int row) { session_.ChooseMicrophone(Std(microphone_->itemData(row).toString())); });
  connect(kind_, &QComboBox::activated, this,
          [this](int row) { session_.ChooseKind(row == 1 ? LessonKind::Mp4 : LessonKind::Avi); });
  return choices;
}

void LessonPanel::FillMicrophones() {
  const QSignalBlocker quiet(microphone_);
  QStringList names;
  for (const Device& device : session_.Microphones()) names << Q(device.name);
  if (microphone_->count() != names.size() + 1 || microphone_->property("names").toStringList() != names) {
    microphone_->setProperty("names", names);
    microphone_->clear();
    for (const QString& name : names) microphone_->addItem(name, name);
    microphone_->addItem(names.isEmpty() ? tr("None is connected: no voice") : tr("None: no voice"), QString());
  }
  const int row = microphone_->findData(Q(session_.Microphone()));
  microphone_->setCurrentIndex(row < 0 ? microphone_->count() - 1 : row);
}

void LessonPanel::Update() {
  const LessonPhase phase = session_.Phase();
  const bool ready = phase == LessonPhase::Ready, under = IsUnderWay(phase);
  const bool paused = phase == LessonPhase::Paused, saving = phase == LessonPhase::Saving;
  if (phase == LessonPhase::Away) {
    shown_ = phase;
    hide();
    return;
  }
  findChild<QLabel*>("LessonPanelTitle")->setText(Q(TitleOf(phase)));
  status_->setText(Q(session_.Status()));
  // While it records the title says it already, and the strip is to be small.
  status_->setVisible(!under || session_.Status() != StatusOf(phase) || phase == LessonPhase::Preparing);
  RecordMinuteLbl_->setText(Q(session_.TimeLeft()));
  RecordMinuteLbl_->setVisible(ready || under);
  dot_->setVisible(under);
  dot_->setPixmap(IconPixmap("record", DotOf(phase), Px(14), devicePixelRatioF()));
  meter_->setVisible((ready || under) && !session_.Microphone().empty());
  RecordBtn_[kMain]->setText(Q(CaptionOf(phase)));
  RecordBtn_[kMain]->setVisible(ready || under);
  RecordBtn_[kPause]->setText(paused ? tr("Go On") : tr("Pause"));
  RecordBtn_[kPause]->setVisible(phase == LessonPhase::Recording || paused);
  RecordBtn_[kSave]->setVisible(phase == LessonPhase::Finished);
  // Under way the cross in the heading cancels.
  RecordBtn_[kCancel]->setVisible(!under);
  findChild<QWidget*>("LessonPanelClose")->setToolTip(RecordBtn_[kCancel]->text());
  const Vocabulary vocabulary(settings_);
  const bool chosen = !session_.Student().empty();
  RecordStudent_->setText(chosen ? Q(session_.Student()) : tr("No %1 Selected").arg(Q(vocabulary.Noun())));
  RecordStudent_->setToolTip(chosen ? Q(session_.Instructor()) : QString());
  choices_->setVisible(ready);
  kind_->setCurrentIndex(session_.Kind() == LessonKind::Mp4 ? 1 : 0);
  if (ready && !microphone_->view()->isVisible()) FillMicrophones();
  progress_->setVisible(saving);
  progress_->setRange(0, 100);
  progress_->setValue(static_cast<int>(session_.SavedPart() * 100));
  if (std::exchange(shown_, phase) != phase) Fit();
}

/// It has another size with each phase: under way it is one row.
void LessonPanel::Fit() {
  QPushButton* main = RecordBtn_[kMain];
  if (IsUnderWay(shown_)) first_->addWidget(main);
  else last_->insertWidget(0, main, 1);
  layout()->activate();
  adjustSize();
  Open(Place::Top);
}

void LessonPanel::ShowLevel(double level) { meter_->SetLevel(level); }

void LessonPanel::Dress() {
  FloatCard::Dress();
  WearStageSheet(content_, kSheet);
}

}  // namespace kinalyx
