#include "library/forms/DeviceBar.h"

#include <QBoxLayout>
#include <QLabel>
#include <utility>

#include "library/forms/DeviceVideosForm.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

DeviceBar::DeviceBar(IHost& host, const Settings& settings, DeviceWatch::Environment environment, QWidget* over)
    : QFrame(over),
      watch_(
          host, settings, [this] { ShowOffer(); }, std::move(environment)) {
  setObjectName("DeviceBar");
  setProperty("look", "panel");
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(kGap, 6, 6, 6);
  row->setSpacing(8);
  words_ = MakeLabel("DeviceWords", {});
  LeastWidth(words_, 40);
  auto* show = new Button("DeviceShow", tr("Show"));
  auto* later = new Button("DeviceLater", tr("Not Now"), {}, Look::Quiet);
  later->setToolTip(tr("Not before it is plugged in again"));
  row->addWidget(words_, 1);
  row->addWidget(show);
  row->addWidget(later);
  form_ = new DeviceVideosForm(host, watch_.Sender(), over);
  connect(show, &QPushButton::clicked, this, &DeviceBar::ShowWanted);
  connect(later, &QPushButton::clicked, this, [this] {
    if (const OfferedDevice* device = watch_.Offered()) watch_.PutAside(std::string(device->place.path));
  });
  connect(form_, &DeviceVideosForm::AddWanted, this, [this](const std::vector<std::string>& paths) {
    adding_ = form_->Place();
    emit AddWanted(paths);
  });
  hide();
}

void DeviceBar::ShowOffer() {
  if (form_->isVisible() && !watch_.IsThere(form_->Place())) form_->ShowGone();
  const OfferedDevice* device = watch_.Offered();
  if (device) words_->setText(Q(DeviceText(device->place.name, device->videos.size(), device->Fresh())));
  setVisible(device != nullptr);
}

void DeviceBar::ShowVideos(const std::string& student) {
  if (const OfferedDevice* device = watch_.Offered()) form_->Open(*device, student);
}

void DeviceBar::AddingEnded(bool done) {
  const std::string place = std::exchange(adding_, {});
  if (place.empty()) return;
  if (done) watch_.PutAside(place);
  else watch_.LookAgain(place);
}

}  // namespace kinalyx
