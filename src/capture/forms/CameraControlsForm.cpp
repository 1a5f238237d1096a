#include "capture/forms/CameraControlsForm.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QSlider>
#include <QTimer>
#include <algorithm>

#include "platform/widgets/Buttons.h"
#include "platform/widgets/Figures.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"

namespace kinalyx {

namespace {

constexpr int kLookMs = 250;
constexpr int kLooksForNone = 4;  // after which a camera that tells of no knobs has none

}  // namespace

CameraControlsForm::CameraControlsForm(IDevices& devices, const std::string& camera, QWidget* over)
    : QDialog(over), devices_(devices), camera_(camera) {
  setObjectName("CameraControlsForm");
  setWindowTitle(camera.empty() ? tr("Camera") : Q(camera));
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(20, 18, 20, 18);
  rows->setSpacing(12);
  rows->addWidget(MakeLabel("CameraName", windowTitle(), "title"));
  auto* scroll = new QScrollArea;
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setFocusPolicy(Qt::NoFocus);
  scroll->setWidgetResizable(true);
  auto* ground = new QWidget;
  ground->setProperty("look", "clear");
  knobs_ = new QVBoxLayout(ground);
  knobs_->setContentsMargins(0, 0, 8, 0);
  scroll->setWidget(ground);
  LeastWidth(scroll, 420);
  rows->addWidget(scroll, 1);
  auto* buttons = new QHBoxLayout;
  standard_ = new Button("CameraStandard", tr("Standard Values"), {}, Look::Quiet);
  auto* close = new Button("CameraClose", tr("Close"));
  buttons->addWidget(standard_);
  buttons->addStretch(1);
  buttons->addWidget(close);
  rows->addLayout(buttons);
  connect(close, &QPushButton::clicked, this, &QDialog::accept);
  connect(standard_, &QPushButton::clicked, this, [this] {
    for (const CameraControl& control : devices_.Controls(camera_))
      (void)devices_.SetControl(camera_, control.id, control.standard);
    Fill();
  });
  Fill();
  // The camera answers when it likes, and what it has in hand itself moves.
  auto* timer = new QTimer(this);
  connect(timer, &QTimer::timeout, this, &CameraControlsForm::Look);
  timer->start(kLookMs);
  ScaleForm(*this, *over->window());
}

/// Knobs that have come, gone, or been taken in hand are made anew; of the others the values follow.
void CameraControlsForm::Look() {
  const std::vector<CameraControl> now = devices_.Controls(camera_);
  ++looks_;
  if (now == shown_ && (!now.empty() || looks_ != kLooksForNone)) return;
  const auto slider = [this](const CameraControl& control) {
    return findChild<QSlider*>(QString("Knob%1").arg(control.id));
  };
  const bool held = std::ranges::any_of(shown_, [&](const CameraControl& control) {
    const QSlider* knob = slider(control);
    return knob && knob->isSliderDown();
  });
  if (held) return;
  const auto sameButValue = [](CameraControl a, const CameraControl& b) {
    a.value = b.value;
    return a == b;
  };
  const bool same = std::ranges::equal(now, shown_, [&](const CameraControl& a, const CameraControl& b) {
    return sameButValue(a, b) && (a.value == b.value || a.kind == CameraControl::Kind::Number);
  });
  if (now.empty() || !same) return Fill();
  for (const CameraControl& control : now) {
    QSlider* knob = slider(control);
    if (!knob || knob->value() == control.value) continue;
    const QSignalBlocker quiet(knob);
    knob->setValue(control.value);
    findChild<QLabel*>(QString("Knob%1Lbl").arg(control.id))->setText(QString::number(control.value));
  }
  shown_ = now;
}

void CameraControlsForm::Fill() {
  while (QLayoutItem* item = knobs_->takeAt(0)) {
    if (item->widget()) item->widget()->deleteLater();
    delete item;
  }
  shown_ = devices_.Controls(camera_);
  for (const CameraControl& control : shown_) knobs_->addWidget(MakeKnob(control));
  standard_->setVisible(!shown_.empty());
  if (shown_.empty()) {
    QLabel* none =
        MakeLabel("CameraNoKnobs", looks_ < kLooksForNone
                                       ? tr("Asking the camera...")
                                       : tr("This camera has nothing to set from here. What it can do, its own "
                                            "buttons or its app do."));
    none->setWordWrap(true);
    knobs_->addWidget(none);
  }
  knobs_->addStretch(1);
}

QWidget* CameraControlsForm::MakeKnob(const CameraControl& control) {
  auto* ground = new QWidget;
  ground->setEnabled(control.active);
  auto* row = new QHBoxLayout(ground);
  row->setContentsMargins(0, 0, 0, 0);
  QLabel* name = MakeLabel({}, Q(control.name));
  LeastWidth(name, 150);
  row->addWidget(name);
  const QString object = QString("Knob%1").arg(control.id);
  switch (control.kind) {
    case CameraControl::Kind::Switch: {
      auto* box = new QCheckBox;
      box->setObjectName(object);
      box->setAccessibleName(name->text());
      box->setChecked(control.value != 0);
      row->addWidget(box, 1);
      connect(box, &QCheckBox::toggled, this, [this, id = control.id](bool on) { Set(id, on ? 1 : 0); });
      break;
    }
    case CameraControl::Kind::Choice: {
      auto* list = new QComboBox;
      list->setObjectName(object);
      list->setAccessibleName(name->text());
      for (int i = 0; i < static_cast<int>(control.choices.size()); ++i)
        if (!control.choices[static_cast<std::size_t>(i)].empty())
          list->addItem(Q(control.choices[static_cast<std::size_t>(i)]), i);
      list->setCurrentIndex(list->findData(control.value));
      row->addWidget(list, 1);
      connect(list, &QComboBox::activated, this,
              [this, list, id = control.id] { Set(id, list->currentData().toInt()); });
      break;
    }
    case CameraControl::Kind::Number: {
      auto* slider = new QSlider(Qt::Horizontal);
      slider->setObjectName(object);
      slider->setAccessibleName(name->text());
      slider->setRange(control.low, control.high);
      slider->setSingleStep(control.step);
      slider->setValue(control.value);
      auto* figure = new FigureLabel(object + "Lbl", QString::number(control.value));
      LeastWidth(figure, 52);
      row->addWidget(slider, 1);
      row->addWidget(figure);
      connect(slider, &QSlider::valueChanged, this, [this, figure, id = control.id](int value) {
        figure->setText(QString::number(value));
        Set(id, value);
      });
      break;
    }
  }
  return ground;
}

/// An automatic that comes on or goes off frees or takes other knobs; Look finds that.
void CameraControlsForm::Set(std::uint32_t id, int value) {
  (void)devices_.SetControl(camera_, id, value);
  for (CameraControl& control : shown_)
    if (control.id == id) control.value = value;
}

}  // namespace kinalyx
