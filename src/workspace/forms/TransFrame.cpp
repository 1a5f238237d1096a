#include "workspace/forms/TransFrame.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QEvent>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>

#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "workspace/forms/StageLook.h"

namespace kinalyx {

TransFrame::TransFrame(Transparency& transparency, Stage& theStage, QWidget* parent)
    : StagePanel("TransFrame", parent), transparency_(transparency), theStage_(theStage) {
  setProperty("look", "bar");
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(10, 8, 10, 6);
  rows->setSpacing(6);

  auto* top = new QHBoxLayout;
  top->setSpacing(0);
  auto* group = new QButtonGroup(this);
  const QString captions[] = {tr("Transparency"), tr("Split Screen"), tr("Video Window 1"), tr("Video Window 2")};
  const QString tips[] = {tr("Both videos, half and half"), tr("The middle of each video, side by side"),
                          tr("Only video 1"), tr("Only video 2")};
  for (int i = 0; i < 4; ++i) {
    auto* option = new QPushButton(captions[i], this);
    option->setObjectName(QString("OptShow%1").arg(i));
    option->setCheckable(true);
    option->setProperty("choice", true);
    if (i == 0) option->setProperty("place", "first");
    if (i == 3) option->setProperty("place", "last");
    option->setToolTip(tips[i]);
    option->setFocusPolicy(Qt::TabFocus);
    group->addButton(option);
    connect(option, &QPushButton::clicked, this, [this, i] { transparency_.Show(static_cast<ShowOption>(i)); });
    top->addWidget(option);
    options_[static_cast<std::size_t>(i)] = option;
  }
  top->addSpacing(16);
  top->addWidget(MakeLabel("TransLeft", tr("Vid1"), nullptr, this));
  top->addSpacing(8);
  mix_ = new QSlider(Qt::Horizontal, this);
  mix_->setObjectName("TransScroll");
  mix_->setRange(0, 255);
  mix_->setPageStep(32);
  mix_->setFocusPolicy(Qt::TabFocus);
  mix_->setToolTip(tr("Vid1             l            Vid2"));
  mix_->setAccessibleName(tr("Mix of the two videos"));
  connect(mix_, &QSlider::valueChanged, this, [this](int value) { transparency_.SetMix(value); });
  top->addWidget(mix_, 1);
  top->addSpacing(8);
  top->addWidget(MakeLabel("TransRight", tr("Vid2"), nullptr, this));
  top->addSpacing(16);
  QToolButton* close = StageButton("Closetrans", "close", tr("Leave transparency mode (Esc)"), this);
  connect(close, &QToolButton::clicked, this, [this] { transparency_.LeaveTransparency(); });
  top->addWidget(close);
  rows->addLayout(top);

  auto* bottom = new QHBoxLayout;
  bottom->setSpacing(4);
  MakeVideo(1, bottom);
  bottom->addSpacing(16);
  MakeVideo(2, bottom);
  rows->addLayout(bottom);
  hide();
  FirstDress();
}

void TransFrame::MakeVideo(int window, QHBoxLayout* row) {
  Video& video = Of(window);
  video.select =
      StageButton(QString("SelectVid%1").arg(window), "", tr("Zoom and pan move video %1").arg(window), this);
  video.select->setText(QString::number(window));
  video.select->setCheckable(true);
  FixWidth(video.select, 26);
  connect(video.select, &QToolButton::clicked, this, [this, window] {
    theStage_.SelectWindow(window);
    SetCurrent(theStage_.CurrentWindow);
  });
  row->addWidget(video.select);
  const char* icons[] = {"rewind", "step-back", "play", "step-forward", "loop", "slow"};
  const QString tips[] = {tr("Rewind video %1"),        tr("Video %1 back one frame; hold to go on"),
                          tr("Play or pause video %1"), tr("Video %1 forward one frame; hold to go on"),
                          tr("Run video %1 in a loop"), tr("Slow motion of video %1")};
  const QString name = window == 1 ? "VidCtlBtn%1" : "VidCtlBtn2_%1";
  for (int i = 0; i < 6; ++i) {
    QToolButton* button = StageButton(name.arg(i), icons[i], tips[i].arg(window), this);
    const auto control = static_cast<VideoControl>(i);
    button->setCheckable(control == VideoControl::Loop || control == VideoControl::Slow);
    button->setAutoRepeat(control == VideoControl::Back || control == VideoControl::Forward);
    button->setAutoRepeatDelay(350);
    button->setAutoRepeatInterval(60);
    connect(button, &QToolButton::clicked, this,
            [this, window, i] { transparency_.ControlVideo(window, static_cast<VideoControl>(i)); });
    row->addWidget(button);
    video.buttons[static_cast<std::size_t>(i)] = button;
  }
  video.scroll = new SeekBar(this);
  video.scroll->setObjectName(QString("HScroll%1").arg(window));
  connect(video.scroll, &SeekBar::Sought, this,
          [this, window](int position) { transparency_.SeekVideo(window, position); });
  row->addWidget(video.scroll, 1);
}

void TransFrame::SetTransScroll(int value, bool enabled) {
  const QSignalBlocker quiet(mix_);
  mix_->setValue(value);
  mix_->setEnabled(enabled);
}

void TransFrame::SelectOption(ShowOption option) { options_[static_cast<std::size_t>(option)]->setChecked(true); }

void TransFrame::SetVideoScroll(int window, int lowest, int highest, int value) {
  Of(window).scroll->SetBounds(lowest, highest, value);
  const bool has = theStage_.HasVideo(window);
  Of(window).scroll->setEnabled(has);
  for (QToolButton* button : Of(window).buttons) button->setEnabled(has);
  Of(window).select->setEnabled(has);
}

void TransFrame::SetVideoButtons(int window, bool playing, bool looping, bool slow) {
  auto& buttons = Of(window).buttons;
  SetStageIcon(buttons[2], playing ? "pause" : "play");
  buttons[4]->setChecked(looping);
  buttons[5]->setChecked(slow);
}

void TransFrame::SetCurrent(int window) {
  for (const int each : {1, 2}) Of(each).select->setChecked(each == window);
}

void TransFrame::Dress() {
  WearStageSheet(this, kCompareSheet);
  DressStageButtons(this);
}

}  // namespace kinalyx
