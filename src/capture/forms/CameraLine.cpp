#include "capture/forms/CameraLine.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QLabel>
#include <QSignalBlocker>

#include "capture/forms/CameraControlsForm.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"

namespace kinalyx {

namespace {

QComboBox* MakeList(const QString& name, const QString& tip, int letters) {
  auto* list = new QComboBox;
  list->setObjectName(name);
  list->setToolTip(tip);
  list->setAccessibleName(tip);
  list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  list->setMinimumContentsLength(letters);
  return list;
}

/// Rows of a list, with one of them chosen; a choice that is not among them stands first and says so.
void FillList(QComboBox& list, const std::vector<std::string>& rows, const std::string& chosen) {
  const QSignalBlocker quiet(list);
  list.clear();
  for (const std::string& row : rows) list.addItem(Q(row));
  int at = list.findText(Q(chosen));
  if (at < 0 && !chosen.empty()) {
    list.insertItem(0, Q(chosen));
    at = 0;
  }
  list.setCurrentIndex(at);
}

}  // namespace

CameraLine::CameraLine(CaptureSetup& setup, int camera, QWidget* parent)
    : QWidget(parent), setup_(setup), camera_(camera) {
  const QString number = QString::number(camera + 1);
  setObjectName("CameraLine" + number);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(6);
  QLabel* label = MakeLabel({}, tr("Camera %1").arg(number), "muted");
  LeastWidth(label, 62);
  row->addWidget(label);
  source_ = MakeList("VideoSource_Camera" + number, tr("Camera %1").arg(number), 12);
  size_ = MakeList("VideoSize_Camera" + number, tr("Size of the picture"), 9);
  format_ = MakeList("VideoFormat_Camera" + number, tr("How the pictures come"), 12);
  row->addWidget(source_, 3);
  row->addWidget(size_, 1);
  row->addWidget(format_, 2);
  auto* knobs = IconButton(QString("CamConfig_Camera%1").arg(camera), "sliders",
                           tr("Exposure, gain, focus and white balance of the camera"), Look::Quiet);
  row->addWidget(knobs);
  connect(knobs, &QPushButton::clicked, this, [this] {
    CameraControlsForm form(setup_.Devices(), setup_.Shown(camera_).name, this);
    form.exec();
  });
  connect(source_, &QComboBox::textActivated, this,
          [this](const QString& name) { setup_.ChooseSource(camera_, Std(name)); });
  connect(size_, &QComboBox::textActivated, this,
          [this](const QString& size) { setup_.ChooseSize(camera_, Std(size)); });
  connect(format_, &QComboBox::textActivated, this,
          [this](const QString& format) { setup_.ChooseFormat(camera_, Std(format)); });
}

void CameraLine::Fill() {
  std::vector<std::string> names;
  for (const Device& device : setup_.Cameras()) names.push_back(device.name);
  const CameraChoice& choice = setup_.Shown(camera_);
  const Device* device = setup_.ShownDevice(camera_);
  FillList(*source_, names, choice.name);
  FillList(*size_, device ? SizesOf(*device) : std::vector<std::string>(), choice.size);
  FillList(*format_, device ? FormatsOf(*device, choice.size) : std::vector<std::string>(), choice.format);
  setVisible(!IsImport(setup_.Kind()) && (!setup_.SingleCamera() || static_cast<int>(setup_.Use()) == camera_));
}

void CameraLine::SetUsable(bool usable) {
  for (QComboBox* list : {source_, size_, format_}) list->setEnabled(usable);
}

}  // namespace kinalyx
