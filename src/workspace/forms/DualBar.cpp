#include "workspace/forms/DualBar.h"

#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <iterator>

#include "platform/widgets/Scale.h"
#include "workspace/forms/StageLook.h"

namespace kinalyx {
namespace {

constexpr int kSpeeds[] = {5, 10, 25, 50, 75, 100, 150, 200};  // percent
constexpr int kHeight = 46;

}  // namespace

DualBar::DualBar(CompareModes& modes, Stage& theStage, QWidget* parent)
    : StagePanel("DualFrame", parent), modes_(modes) {
  setProperty("look", "bar");
  FixHeight(this, kHeight);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(10, 6, 10, 6);
  row->setSpacing(4);
  const auto add = [&](const char* name, const char* icon, const QString& tip) {
    QToolButton* button = StageButton(name, icon, tip, this);
    row->addWidget(button);
    return button;
  };
  lock_ = add("DualLockBtn", "unlock", tr("Lock Videos Together"));
  lockAll_ = add("LockAllBtn", "quad", tr("Lock all four videos together"));
  lock_->setCheckable(true);
  lockAll_->setCheckable(true);
  row->addSpacing(8);
  rewind_ = add("DualControl2", "rewind", tr("Rewind the locked videos"));
  back_ = add("DualControl0", "step-back", tr("Locked videos back one frame; hold to go on"));
  play_ = add("DualPlayBtn", "play", tr("Play the locked videos together"));
  forward_ = add("DualControl1", "step-forward", tr("Locked videos forward one frame; hold to go on"));
  repeat_ = add("DualRepeatBtn", "loop", tr("Play the locked videos again and again"));
  byTime_ = add("DualByTimeBtn", "clock", {});
  byTime_->setCheckable(true);
  FixWidth(play_, 44);
  play_->setProperty("main", true);
  repeat_->setCheckable(true);
  for (QToolButton* step : {back_, forward_}) {
    step->setAutoRepeat(true);
    step->setAutoRepeatDelay(350);
    step->setAutoRepeatInterval(60);
  }
  speed_ = new QComboBox(this);
  speed_->setObjectName("DualSpeed");
  speed_->setToolTip(tr("Speed of the common play"));
  speed_->setAccessibleName(speed_->toolTip());
  speed_->setFocusPolicy(Qt::TabFocus);
  for (const int percent : kSpeeds) speed_->addItem(QString("%1 %").arg(percent), percent);
  FixWidth(speed_, 84);
  row->addWidget(speed_);
  row->addSpacing(6);
  scroll_ = new SeekBar(this);
  scroll_->setObjectName("DualScroll");
  scroll_->setToolTip(tr("Moves the locked videos together"));
  row->addWidget(scroll_, 1);
  line_ = new FigureLabel("DualLine", {}, this);
  line_->setToolTip(tr("Positions of the locked videos"));
  LeastWidth(line_, 84);
  line_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  row->addWidget(line_);

  LockedVideos& locks = modes.Locks();
  connect(lock_, &QToolButton::clicked, this, [&locks] { locks.ToggleLock(); });
  connect(lockAll_, &QToolButton::clicked, this, [&locks] { locks.LockAll(); });
  connect(back_, &QToolButton::clicked, this, [&locks] { locks.MoveTogether(DualMove::Back); });
  connect(forward_, &QToolButton::clicked, this, [&locks] { locks.MoveTogether(DualMove::Forward); });
  connect(rewind_, &QToolButton::clicked, this, [&locks] { locks.MoveTogether(DualMove::Rewind); });
  connect(play_, &QToolButton::clicked, this, [&locks] { locks.PlayTogether(); });
  connect(repeat_, &QToolButton::clicked, this, [&locks](bool on) { locks.setTogetherRepeat(on); });
  connect(byTime_, &QToolButton::clicked, this, [&modes](bool on) { modes.HoldLocksByTime(on); });
  connect(speed_, &QComboBox::currentIndexChanged, this, [this, &locks] {
    if (!setting_) locks.setTogetherSpeed(speed_->currentData().toInt());
  });
  connect(scroll_, &SeekBar::Sought, this,
          [this, &locks, &theStage](int position) { locks.DualControlScroll(theStage.CurrentWindow, position); });
  hide();
  FirstDress();
}

void DualBar::ShowState(const DualState& state) {
  setting_ = true;
  setVisible(state.shown);
  lock_->setEnabled(state.canLock);
  lock_->setChecked(state.locked);
  lock_->setToolTip(state.locked ? tr("Unlock the videos") : tr("Lock Videos Together"));
  SetStageIcon(lock_, state.locked ? "lock" : "unlock");
  lockAll_->setVisible(state.canLockAll);
  lockAll_->setChecked(state.allLocked);
  for (QWidget* control : std::initializer_list<QWidget*>{rewind_, play_, repeat_, speed_, scroll_})
    control->setEnabled(state.locked);
  SetStageIcon(play_, state.playing ? "pause" : "play");
  play_->setToolTip(state.playing ? tr("Pause the locked videos") : tr("Play the locked videos together"));
  repeat_->setChecked(state.repeat);
  byTime_->setVisible(state.ratesDiffer);
  byTime_->setChecked(state.byTime);
  byTime_->setToolTip(
      state.byTime
          ? tr("These videos were taken at different rates and go by the time. Click to go picture by picture")
          : tr("These videos were taken at different rates and go picture by picture. Click to go by the time"));
  byTime_->setAccessibleName(tr("Locked videos go by the time"));
  const int index = speed_->findData(state.speed);
  if (index >= 0) speed_->setCurrentIndex(index);
  scroll_->SetBounds(state.lowest, state.highest, state.position);
  line_->setText(QString::fromStdString(state.line));
  setting_ = false;
}

void DualBar::Dress() {
  WearStageSheet(this, kCompareSheet);
  DressStageButtons(this);
}

}  // namespace kinalyx
