#include "capture/forms/SoundMeter.h"

#include <QGridLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSlider>
#include <cmath>

#include "capture/TriggerTimes.h"
#include "capture/forms/LevelBar.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

namespace {

constexpr int kFull = 100;
constexpr int kMiddle = 50;

}  // namespace

SoundMeter::SoundMeter(QWidget* parent) : QWidget(parent) {
  setObjectName("SoundMeter");
  SoundLevelProgressBar_ = new LevelBar("SoundLevelProgressBar");
  TriggerLevelSlider_ = new ThresholdHandle("TriggerLevelSlider");
  SoundLevelSlider_ = new QSlider(Qt::Horizontal);
  SoundLevelSlider_->setObjectName("SoundLevelSlider");
  SoundLevelSlider_->setRange(0, kFull);
  SoundLevelSlider_->setPageStep(10);
  SoundLevelSlider_->setToolTip(tr("How sensitive the microphone is: higher where hits are far away"));
  sensitivity_ = MakeLabel("SensitivityLbl", {}, "caption");

  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(kGap);
  grid->setVerticalSpacing(2);
  auto* level = MakeLabel("TriggerLevelLbl", tr("&Trigger level"), "caption");
  level->setBuddy(TriggerLevelSlider_);
  auto* input = MakeLabel("SoundLevelLbl", tr("&Input level"), "caption");
  input->setBuddy(SoundLevelSlider_);
  grid->addWidget(level, 0, 0);
  grid->addWidget(SoundLevelProgressBar_, 1, 0, 1, 2, Qt::AlignVCenter);
  grid->addWidget(TriggerLevelSlider_, 1, 0, 1, 2);
  grid->addWidget(input, 2, 0);
  grid->addWidget(sensitivity_, 2, 1, Qt::AlignRight);
  grid->addWidget(SoundLevelSlider_, 3, 0, 1, 2);
  grid->setColumnStretch(0, 1);
  TriggerLevelSlider_->raise();

  connect(TriggerLevelSlider_, &QSlider::valueChanged, this, [this](int percent) {
    SoundLevelProgressBar_->SetThreshold(static_cast<double>(percent) / kFull);
    emit TriggerLevelChanged(percent);
  });
  connect(SoundLevelSlider_, &QSlider::valueChanged, this, [this](int percent) {
    ShowSensitivity();
    emit SoundLevelChanged(percent);
  });
  SetTriggerLevel(kMiddle);
  SetSoundLevel(kMiddle);
}

void SoundMeter::ShowLevel(double level) { SoundLevelProgressBar_->ShowLevel(level); }

void SoundMeter::ShowFired() { SoundLevelProgressBar_->Flash(); }

void SoundMeter::SetTriggerLevel(int percent) {
  const QSignalBlocker quiet(TriggerLevelSlider_);
  TriggerLevelSlider_->setValue(percent);
  SoundLevelProgressBar_->SetThreshold(static_cast<double>(TriggerLevel()) / kFull);
  TriggerLevelSlider_->update();
}

int SoundMeter::TriggerLevel() const { return TriggerLevelSlider_->value(); }

void SoundMeter::SetSoundLevel(int percent) {
  const QSignalBlocker quiet(SoundLevelSlider_);
  SoundLevelSlider_->setValue(percent);
  ShowSensitivity();
}

int SoundMeter::SoundLevel() const { return SoundLevelSlider_->value(); }

void SoundMeter::ShowSensitivity() {
  const auto decibels = static_cast<int>(std::lround(InputDecibels(SoundLevel())));
  sensitivity_->setText(tr("%1%2 dB").arg(decibels > 0 ? "+" : decibels < 0 ? "\u2212" : "").arg(std::abs(decibels)));
}

}  // namespace kinalyx
