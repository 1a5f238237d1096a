#include "workspace/forms/SoundButton.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QSlider>
#include <QWheelEvent>
#include <QWidgetAction>
#include <algorithm>

#include "platform/widgets/Icons.h"
#include "platform/widgets/Scale.h"
#include "workspace/forms/StageLook.h"

namespace kinalyx {
namespace {

constexpr int kNotch = 10;  // percent
constexpr int kSliderWidth = 150;

}  // namespace

SoundButton::SoundButton(QWidget* parent) : QToolButton(parent) {
  setObjectName("SoundBtn");
  setFocusPolicy(Qt::NoFocus);
  FixIcon(this, 20);
  connect(this, &QToolButton::clicked, this, &SoundButton::Open);
  SetVolume(0);
}

void SoundButton::SetVolume(int percent) {
  if (percent == volume_) return;
  if (percent > 0) before_ = percent;
  volume_ = percent;
  setToolTip(percent > 0 ? tr("Sound at full speed: %1 %").arg(percent) : tr("Sound is off"));
  setAccessibleName(toolTip());
  Dress();
}

void SoundButton::Dress() {
  const StageLook look = StageLook::Current();
  setIcon(Icon(volume_ > 0 ? "sound" : "sound-off", look.ink, look.ink, look.faintInk));
}

void SoundButton::Choose(int percent) {
  SetVolume(std::clamp(percent, 0, 100));
  emit Chosen(volume_);
}

void SoundButton::Open() {
  QMenu menu(this);
  menu.setObjectName("SoundMenu");
  auto* content = new QWidget(&menu);
  auto* row = new QHBoxLayout(content);
  row->setContentsMargins(12, 8, 12, 8);
  auto* slider = new QSlider(Qt::Horizontal, content);
  slider->setObjectName("SoundSlider");
  slider->setRange(0, 100);
  slider->setValue(volume_);
  slider->setPageStep(kNotch);
  slider->setFixedWidth(Px(kSliderWidth));
  auto* figure = new QLabel(tr("%1 %").arg(volume_), content);
  figure->setMinimumWidth(Px(44));
  figure->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  row->addWidget(slider);
  row->addWidget(figure);
  connect(slider, &QSlider::valueChanged, this, [this, figure](int percent) {
    figure->setText(tr("%1 %").arg(percent));
    Choose(percent);
  });
  auto* action = new QWidgetAction(&menu);
  action->setDefaultWidget(content);
  menu.addAction(action);
  menu.exec(mapToGlobal(QPoint(0, -menu.sizeHint().height())));
}

void SoundButton::wheelEvent(QWheelEvent* event) {
  event->accept();
  if (event->angleDelta().y() != 0) Choose(volume_ + (event->angleDelta().y() > 0 ? kNotch : -kNotch));
}

void SoundButton::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::MiddleButton) return Choose(volume_ > 0 ? 0 : before_);
  QToolButton::mousePressEvent(event);
}

}  // namespace kinalyx
