#include "workspace/forms/StrobeForm.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QEvent>
#include <QPushButton>
#include <QSignalBlocker>

#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "workspace/forms/StageLook.h"

namespace kinalyx {

StrobeForm::StrobeForm(StrobeControl& strobe, QWidget* parent)
    : FloatCard("StrobeForm", tr("Advanced Strobe"), parent), strobe_(strobe) {
  content_ = new QWidget(this);
  auto* rows = new QVBoxLayout(content_);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(10);
  ESlider_ = new SeekBar(content_);
  ESlider_->setObjectName("ESlider");
  ESlider_->setToolTip(tr("Moves the current video"));
  LeastWidth(ESlider_, 330);
  connect(ESlider_, &SeekBar::Sought, this, [this](int position) { strobe_.SeekTo(position); });
  rows->addWidget(ESlider_);

  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(8);
  const QString tips[] = {
      tr("The picture that is shown is the first pose"), tr("The picture that is shown is the last pose"), {}};
  for (int i = 0; i < 3; ++i) {
    auto* button = new QPushButton(content_);
    button->setObjectName(QString("SSCommand1_%1").arg(i));
    button->setToolTip(tips[i]);
    button->setFocusPolicy(Qt::TabFocus);
    LeastWidth(button, 104);
    connect(button, &QPushButton::clicked, this, [this, i] { strobe_.PressButton(static_cast<StrobeButton>(i)); });
    buttons->addWidget(button, 1);
    SSCommand1_[static_cast<std::size_t>(i)] = button;
  }
  rows->addLayout(buttons);

  auto* last = new QHBoxLayout;
  last->setSpacing(8);
  last->addWidget(MakeLabel("StepLabel", tr("Frames between poses"), nullptr, content_));
  Combo1_ = new QComboBox(content_);
  Combo1_->setObjectName("Combo1");
  Combo1_->setAccessibleName(tr("Frames between poses"));
  Combo1_->setFocusPolicy(Qt::TabFocus);
  FixWidth(Combo1_, 64);
  Combo1_->setMaxVisibleItems(10);
  for (int step = 1; step <= StrobeControl::kSteps; ++step) Combo1_->addItem(QString::number(step));
  connect(Combo1_, &QComboBox::currentIndexChanged, this, [this](int index) { strobe_.ChooseStep(index); });
  last->addWidget(Combo1_);
  last->addStretch(1);
  save_ = new QPushButton(tr("Save Picture..."), content_);
  save_->setObjectName("SaveStrobeBtn");
  save_->setFocusPolicy(Qt::TabFocus);
  connect(save_, &QPushButton::clicked, this, &StrobeForm::SaveWanted);
  last->addWidget(save_);
  rows->addLayout(last);
  Body()->addWidget(content_);
  SetObstacle({});
  SetResult(false);
  FirstDress();
}

StrobeForm::~StrobeForm() {
  if (strobe_.StrobeWindowOpen()) strobe_.SetWindow(nullptr);
}

void StrobeForm::Begin() {
  {
    const QSignalBlocker quiet(Combo1_);
    Combo1_->setCurrentIndex(strobe_.StrobeStep() - 1);
  }
  strobe_.SetWindow(this);
}

void StrobeForm::SetCaption(StrobeButton button, const std::string& caption) {
  SSCommand1_[static_cast<std::size_t>(button)]->setText(QString::fromStdString(caption));
}

void StrobeForm::SetSlider(int lowest, int highest, int value) {
  ESlider_->SetBounds(lowest, highest, value);
  const bool has = highest > lowest;
  ESlider_->setEnabled(has);
  for (QPushButton* button : {SSCommand1_[0], SSCommand1_[1]}) button->setEnabled(has);
}

void StrobeForm::SetObstacle(const std::string& why) {
  SSCommand1_[2]->setEnabled(why.empty());
  SSCommand1_[2]->setToolTip(
      why.empty() ? tr("Lays the poses from start to end into one picture; without an end, to the last one")
                  : QString::fromStdString(why));
}

void StrobeForm::SetResult(bool there) {
  save_->setEnabled(there);
  save_->setToolTip(there ? tr("Keeps the strobe as a PNG or JPEG picture") : tr("Strobe a video first"));
}

void StrobeForm::Dress() {
  FloatCard::Dress();
  WearStageSheet(content_, kCompareSheet);
}

}  // namespace kinalyx
