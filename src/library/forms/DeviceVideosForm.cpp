#include "library/forms/DeviceVideosForm.h"

#include <QBoxLayout>
#include <QDateTime>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPainter>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <utility>

#include "library/VideoGlance.h"
#include "library/VideoNames.h"
#include "library/VideoStats.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

namespace {

enum Column { kVideo, kDate, kLength, kSize, kMark };
constexpr int kWidths[] = {270, 150, 74, 84, 90};  // pixels beside 13 pixels of text

/// Of the small pictures, beside 13 pixels of text.
constexpr QSize kPicture{64, 40};
constexpr int kLookTurnMs = 50;
/// A device that takes longer for one video is said not to answer.
constexpr int kPatienceMs = 10000;
/// Item data: the row has been looked at.
constexpr int kLookedRole = Qt::UserRole + 1;

/// A picture in the middle of the room that all of them have.
QIcon IconOf(const Surface& picture) {
  QPixmap room(Px(kPicture.width()), Px(kPicture.height()));
  room.fill(Qt::transparent);
  if (!picture.Empty()) {
    const QImage image(picture.Row(0), picture.Width(), picture.Height(), picture.Stride(), QImage::Format_RGB32);
    QPainter(&room).drawImage((room.width() - image.width()) / 2, (room.height() - image.height()) / 2, image);
  }
  return QIcon(room);
}

QString DateOf(const DeviceVideo& video) {
  return QLocale().toString(QDateTime::fromSecsSinceEpoch(video.written), QLocale::ShortFormat);
}

}  // namespace

/// What a worker finds out of one video.
struct DeviceVideosForm::Glanced {
  int row = 0;
  VideoGlance glance;
};

DeviceVideosForm::DeviceVideosForm(IHost& host, DriveWatch::Send send, QWidget* over)
    : QDialog(over), host_(host), send_(std::move(send)) {
  setObjectName("DeviceVideosForm");
  setWindowModality(Qt::WindowModal);
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(24, 20, 24, 20);
  rows->setSpacing(kGap);
  rows->setSizeConstraint(QLayout::SetFixedSize);
  title_ = MakeLabel("DeviceTitle", {}, "title");
  text_ = MakeLabel("DeviceText", {});
  text_->setWordWrap(true);
  note_ = MakeLabel("DeviceNote", {}, "muted");
  MakeList();
  for (QWidget* row : {static_cast<QWidget*>(title_), static_cast<QWidget*>(text_), static_cast<QWidget*>(list_),
                       static_cast<QWidget*>(note_)})
    rows->addWidget(row);
  tick_ = new Button("DeviceTick", {}, {}, Look::Quiet);
  tick_->setProperty("square", false);
  cancel_ = new Button("DeviceCancel", tr("Cancel"), {}, Look::Quiet);
  add_ = new Button("DeviceAdd", {}, "plus");
  add_->setProperty("square", false);
  add_->setDefault(true);
  auto* actions = new QHBoxLayout;
  actions->addWidget(tick_);
  actions->addStretch(1);
  actions->addWidget(cancel_);
  actions->addWidget(add_);
  rows->addLayout(actions);
  connect(tick_, &QPushButton::clicked, this, &DeviceVideosForm::TickOther);
  connect(cancel_, &QPushButton::clicked, this, &QDialog::reject);
  connect(add_, &QPushButton::clicked, this, &DeviceVideosForm::Add);
  connect(this, &QDialog::finished, this, &DeviceVideosForm::StopLooking);
}

void DeviceVideosForm::MakeList() {
  list_ = new QTreeWidget;
  list_->setObjectName("DeviceList");
  list_->setAccessibleName(tr("Videos on the device"));
  list_->setRootIsDecorated(false);
  list_->setUniformRowHeights(true);
  list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list_->setHeaderLabels({tr("Video"), tr("Date"), tr("Length"), tr("Size"), tr("Library")});
  list_->header()->setSectionsMovable(false);
  list_->header()->setStretchLastSection(true);
  list_->headerItem()->setTextAlignment(kLength, Qt::AlignRight | Qt::AlignVCenter);
  list_->headerItem()->setTextAlignment(kSize, Qt::AlignRight | Qt::AlignVCenter);
  FixSize(list_, {690, 340});
  connect(list_, &QTreeWidget::itemChanged, this, &DeviceVideosForm::ShowAction);
}

// ---------------------------------------------------------------- opening

void DeviceVideosForm::Open(const OfferedDevice& device, const std::string& student) {
  device_ = device;
  gone_ = false;
  const QString title = tr("Videos on \"%1\"").arg(Q(device_.place.name));
  setWindowTitle(title);
  title_->setText(title);
  text_->setText(tr("What is ticked is copied to %1. Nothing is changed on the device.").arg(Q(student)));
  note_->clear();
  ScaleForm(*this, *parentWidget());
  Fill();
  ShowAction();
  open();
  list_->setFocus();
  timer_ = HostTimer(host_, kLookTurnMs, true, [this] { GoOnLooking(); });
}

void DeviceVideosForm::Fill() {
  const QSignalBlocker quiet(list_);
  const QIcon empty = IconOf({});
  list_->clear();
  list_->setIconSize({Px(kPicture.width()), Px(kPicture.height())});
  for (int column = kVideo; column < kMark; ++column) list_->setColumnWidth(column, Px(kWidths[column]));
  QList<QTreeWidgetItem*> items;
  for (const DeviceVideo& video : device_.videos) {
    auto* item = new QTreeWidgetItem({Q(ShownName(video.path)),
                                      DateOf(video),
                                      {},
                                      Q(FormatFileSize(video.bytes)),
                                      video.inLibrary ? tr("Is there") : tr("New")});
    item->setIcon(kVideo, empty);
    item->setToolTip(kVideo, Q(video.path));
    item->setCheckState(kVideo, video.inLibrary ? Qt::Unchecked : Qt::Checked);
    item->setTextAlignment(kLength, Qt::AlignRight | Qt::AlignVCenter);
    item->setTextAlignment(kSize, Qt::AlignRight | Qt::AlignVCenter);
    items << item;
  }
  list_->addTopLevelItems(items);
  if (!items.isEmpty()) list_->setCurrentItem(items.first());
}

void DeviceVideosForm::ShowGone() {
  gone_ = true;
  StopLooking();
  note_->setText(tr("\"%1\" has been unplugged.").arg(Q(device_.place.name)));
  ShowAction();
}

// ---------------------------------------------------------------- what is ticked

std::vector<std::string> DeviceVideosForm::Ticked() const {
  std::vector<std::string> paths;
  for (int row = 0; row < list_->topLevelItemCount(); ++row) {
    if (list_->topLevelItem(row)->checkState(kVideo) == Qt::Checked)
      paths.push_back(device_.videos[static_cast<std::size_t>(row)].path);
  }
  return paths;
}

void DeviceVideosForm::ShowAction() {
  const std::size_t count = Ticked().size();
  add_->setText(count == 0 ? tr("Add Videos") : count == 1 ? tr("Add 1 Video") : tr("Add %1 Videos").arg(count));
  add_->setEnabled(count > 0 && !gone_);
  tick_->setText(count > 0 ? tr("Tick None") : tr("Tick New"));
}

/// Takes all ticks away, or, when there are none, ticks what is new.
void DeviceVideosForm::TickOther() {
  const bool none = !Ticked().empty();
  {
    const QSignalBlocker quiet(list_);
    for (int row = 0; row < list_->topLevelItemCount(); ++row) {
      const bool fresh = !device_.videos[static_cast<std::size_t>(row)].inLibrary;
      list_->topLevelItem(row)->setCheckState(kVideo, fresh && !none ? Qt::Checked : Qt::Unchecked);
    }
  }
  list_->viewport()->update();
  ShowAction();
}

void DeviceVideosForm::Add() {
  const std::vector<std::string> paths = Ticked();
  accept();
  emit AddWanted(paths);
}

// ---------------------------------------------------------------- pictures and lengths

/// One video is looked at after the other. A worker that hangs is left alone with what it has.
void DeviceVideosForm::GoOnLooking() {
  if (errand_) {
    if (!errand_->Over(0)) {
      if (host_.timeGetTime() - lookBegan_ > kPatienceMs)
        note_->setText(tr("\"%1\" is not answering.").arg(Q(device_.place.name)));
      return;
    }
    ShowLook();
  }
  QTreeWidgetItem* next = NextToLookAt();
  if (!next) return;
  const auto look = look_ = std::make_shared<Glanced>();
  look->row = list_->indexOfTopLevelItem(next);
  lookBegan_ = host_.timeGetTime();
  errand_ = send_([look, path = device_.videos[static_cast<std::size_t>(look->row)].path, width = Px(kPicture.width()),
                   height = Px(kPicture.height())] { look->glance = GlanceAt(path, width, height); });
}

void DeviceVideosForm::ShowLook() {
  errand_.reset();
  const QSignalBlocker quiet(list_);
  QTreeWidgetItem* item = list_->topLevelItem(look_->row);
  item->setIcon(kVideo, IconOf(look_->glance.picture));
  item->setText(kLength, Q(LengthText(look_->glance.seconds)));
  item->setData(kVideo, kLookedRole, true);
  list_->viewport()->update();
  note_->clear();
}

/// The first row in sight that has not been looked at; null when there is none.
QTreeWidgetItem* DeviceVideosForm::NextToLookAt() const {
  const QRect sight = list_->viewport()->rect();
  for (QTreeWidgetItem* item = list_->itemAt(0, 0); item; item = list_->itemBelow(item)) {
    if (!list_->visualItemRect(item).intersects(sight)) return nullptr;
    if (!item->data(kVideo, kLookedRole).toBool()) return item;
  }
  return nullptr;
}

void DeviceVideosForm::StopLooking() {
  timer_.Stop();
  errand_.reset();
  look_.reset();
}

}  // namespace kinalyx
