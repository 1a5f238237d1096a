#include "capture/forms/CameraControlsForm.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QScrollArea>
#include <QSlider>

#include "platform/widgets/Buttons.h"
#include "platform/widgets/Figures.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"

namespace kinalyx {

CameraControlsForm::CameraControlsForm(IDevices& devices, const std::string& camera, QWidget* over)
    : QDialog(over), devices_(devices), camera_(camera) {
  setObjectName("CameraControlsForm");
  setWindowTitle(camera.empty() ? QString("Camera") : Q(camera));
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(20, 18, 20, 18);
  rows->setSpacing(12);
  rows->addWidget(MakeLabel("CameraName", windowTitle(), "title"));
  auto* scroll = new QScrollArea;
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setWidgetResizable(true);
  auto* ground = new QWidget;
  ground->setProperty("look", "clear");
  knobs_ = new QVBoxLayout(ground);
  knobs_->setContentsMargins(0, 0, 8, 0);
  scroll->setWidget(ground);
  LeastWidth(scroll, 420);
  rows->addWidget(scroll, 1);
  auto* buttons = new QHBoxLayout;
  auto* standard = new Button("CameraStandard", "Standard Values", {}, Look::Quiet);
  auto* close = new Button("CameraClose", "Close");
  buttons->addWidget(standard);
  buttons->addStretch(1);
  buttons->addWidget(close);
  rows->addLayout(buttons);
  connect(close, &QPushButton::clicked, this, &QDialog::accept);
  connect(standard, &QPushButton::clicked, this, [this] {
    for (const CameraControl& control : devices_.Controls(camera_))
      (void)devices_.SetControl(camera_, control.id, control.standard);
    Fill();
  });
  Fill();
  standard->setVisible(!devices_.Controls(camera_).empty());
  ScaleForm(*this, *over->window());
}

void CameraControlsForm::Fill() {
  while (QLayoutItem* item = knobs_->takeAt(0)) {
    if (item->widget()) item->widget()->deleteLater();
    delete item;
  }
  const std::vector<CameraControl> controls = devices_.Controls(camera_);
  for (const CameraControl& control : controls) knobs_->addWidget(MakeKnob(control));
  if (controls.empty()) {
    QLabel* none = MakeLabel(
        "CameraNoKnobs", "This camera has nothing to set from here. What it can do, its own buttons or its app do.");
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
      box->setChecked(control.value != 0);
      row->addWidget(box, 1);
      connect(box, &QCheckBox::toggled, this, [this, id = control.id](bool on) { Set(id, on ? 1 : 0); });
      break;
    }
    case CameraControl::Kind::Choice: {
      auto* list = new QComboBox;
      list->setObjectName(object);
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
      slider->setRange(control.low, control.high);
      slider->setSingleStep(control.step);
      slider->setValue(control.value);
      auto* figure = new FigureLabel(object + "Lbl", QString::number(control.value));
      LeastWidth(figure, 52);
      row->addWidget(slider, 1);
      row->addWidget(figure);
      connect(slider, &QSlider::valueChanged, this, [this, figure, id = control.id](int value) {
        figure->setText(QString::number(value));
        (void)devices_.SetControl(camera_, id, value);
      });
      break;
    }
  }
  return ground;
}

/// An automatic that comes on or goes off frees or takes other knobs: all are read again.
void CameraControlsForm::Set(std::uint32_t id, int value) {
  (void)devices_.SetControl(camera_, id, value);
  Fill();
}

}  // namespace kinalyx
