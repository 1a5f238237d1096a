#include "library/forms/DriveChoice.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QSignalBlocker>

#include "library/DiskSpace.h"
#include "platform/files/Folders.h"
#include "platform/files/Tr.h"
#include "platform/host/DriveWatch.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"

namespace kinalyx {

DriveChoice::DriveChoice(const QString& name, IHost& host, Settings& settings, QWidget* parent)
    : QWidget(parent), host_(host), settings_(settings) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(6);
  list_ = new QComboBox;
  list_->setObjectName(name);
  list_->setAccessibleName(tr("Drive or folder"));
  list_->setPlaceholderText(tr("Choose a drive or folder"));
  LeastWidth(list_, 120);
  list_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  auto* browse = new Button(name + "Browse", tr("Browse..."), {}, Look::Quiet);
  browse->setToolTip(tr("Choose any folder"));
  row->addWidget(list_, 1);
  row->addWidget(browse);
  connect(list_, &QComboBox::activated, this, [this] { Store(Path()); });
  connect(browse, &QPushButton::clicked, this, &DriveChoice::Browse);
}

void DriveChoice::Refresh() {
  std::vector<std::string> drives = RemoveableDrives();
  // The settings of a first run name a drive that this system does not know.
  const std::string& kept = settings_.Exporter;
  const bool hasKept = kept.starts_with('/');
  if (hasKept && std::ranges::find(drives, kept) == drives.end()) drives.push_back(kept);
  const QSignalBlocker quiet(list_);
  list_->clear();
  for (const std::string& drive : drives) {
    list_->addItem(Q(drive));
    list_->setItemData(list_->count() - 1, Q(drive), Qt::ToolTipRole);
  }
  list_->setCurrentIndex(hasKept ? list_->findText(Q(kept)) : drives.empty() ? -1 : 0);
  list_->setToolTip(list_->currentText());
}

std::string DriveChoice::Path() const { return Std(list_->currentText()); }

void DriveChoice::Browse() {
  const bool there = host_.Drives().Ask(Path(), [path = Path()] { return dirExists(path); }).value_or(false);
  const std::string at = there ? Path() : std::string();
  if (const auto folder = host_.PickFolder(Tr("Select a drive or folder for your videos."), at)) Store(*folder);
}

void DriveChoice::Store(const std::string& path) {
  if (path.empty()) return;
  if (!Settings::Holds(path)) {
    host_.Message(MessageKind::Warning, "", Settings::TooLongText(path));
    return;
  }
  settings_.Set(settings_.Exporter, path);
  Refresh();
  emit Chosen();
}

}  // namespace kinalyx
