#include "distribution/disc/forms/DiscPanel.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QShowEvent>
#include <QSignalBlocker>
#include <utility>

#include "distribution/disc/forms/BurnForm.h"
#include "distribution/send/FilesToSend.h"
#include "platform/files/Folders.h"
#include "platform/files/Tr.h"
#include "platform/host/DriveWatch.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/Figures.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {
namespace {

/// Item data of `cbDevices`: the row that lets a file be chosen.
constexpr int kImageRow = -1;

}  // namespace

DiscPanel::DiscPanel(IHost& host, Settings& settings, const FilesToSend& files, IDiscDrives& drives,
                     DiscDesk::Places places, QWidget* parent, JobRunner::On on)
    : QWidget(parent),
      host_(host),
      files_(files),
      desk_(host, settings, drives, *this, std::move(places), on),
      on_(on) {
  setObjectName("DiscPanel");
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(kGap, 10, kGap, 10);
  rows->setSpacing(10);
  rows->addLayout(MakeDrive());
  rows->addLayout(MakeFigures());
  words_ = MakeLabel("DriveWords", {}, "muted", this);
  words_->setWordWrap(true);
  rows->addWidget(words_);
  pageToo_ = new QCheckBox(tr("With a page that plays everywhere"), this);
  pageToo_->setObjectName("DiscWithPage");
  pageToo_->setToolTip(tr("Each video as MP4 with its drawings, and index.html. It takes a while."));
  pageToo_->setChecked(true);
  check_ = new QCheckBox(tr("Check the disc after burning"), this);
  check_->setObjectName("DiscCheck");
  check_->setToolTip(tr("Reads the disc back and compares it"));
  check_->setChecked(true);
  rows->addWidget(pageToo_);
  rows->addWidget(check_);
  rows->addLayout(MakeActions());
  said_ = MakeLabel("DiscSaid", {}, nullptr, this);
  said_->setWordWrap(true);
  rows->addWidget(said_);
  rows->addStretch(1);
}

QLayout* DiscPanel::MakeDrive() {
  auto* line = new QHBoxLayout;
  cbDevices_ = new QComboBox(this);
  cbDevices_->setObjectName("cbDevices");
  cbDevices_->setAccessibleName(tr("Drive"));
  cbDevices_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  cbDevices_->setMinimumContentsLength(14);
  cbSpeed_ = new QComboBox(this);
  cbSpeed_->setObjectName("cbSpeed");
  cbSpeed_->setAccessibleName(tr("Speed"));
  cmdRecordCD_[kTest] = new Button("cmdRecordCD2", tr("Test Drive"), {}, Look::Quiet, this);
  cmdRecordCD_[kEject] = new Button("cmdRecordCD1", tr("Eject"), {}, Look::Quiet, this);
  line->addWidget(cbDevices_, 1);
  line->addWidget(cbSpeed_);
  line->addWidget(cmdRecordCD_[kTest]);
  line->addWidget(cmdRecordCD_[kEject]);
  connect(cbDevices_, &QComboBox::activated, this, [this](int row) {
    const int index = cbDevices_->itemData(row).toInt();
    if (index == kImageRow) PickImage();
    else desk_.Choose(index);
  });
  return line;
}

QLayout* DiscPanel::MakeFigures() {
  auto* figures = new QFormLayout;
  figures->setHorizontalSpacing(16);
  figures->setVerticalSpacing(6);
  required_ = new FigureLabel("TotalSpaceRequired", {}, this);
  space_ = new FigureLabel("SpaceOnCD", {}, this);
  driveStatus_ = MakeLabel("DriveStatus", {}, nullptr, this);
  figures->addRow(MakeLabel("TotalSpaceRequiredLabel", tr("Total Space Required"), "muted", this), required_);
  figures->addRow(MakeLabel("SpaceOnCDLabel", tr("Space on CD"), "muted", this), space_);
  figures->addRow(MakeLabel("DriveStatusLabel", tr("Drive Status"), "muted", this), driveStatus_);
  return figures;
}

QLayout* DiscPanel::MakeActions() {
  auto* line = new QHBoxLayout;
  cmdRecordCD_[kStart] = new Button("cmdRecordCD0", tr("Create CD"), "disc", Look::Filled, this);
  cmdCopyToFolder_ = new Button("cmdCopyToFolder", tr("Copy to a folder or stick..."), "open", Look::Quiet, this);
  line->addWidget(cmdRecordCD_[kStart]);
  line->addWidget(cmdCopyToFolder_);
  line->addStretch(1);
  for (int i = 0; i < kCommands; ++i)
    connect(cmdRecordCD_[i], &QPushButton::clicked, this, [this, i] { cmdRecordCD_Click(i); });
  connect(cmdCopyToFolder_, &QPushButton::clicked, this, &DiscPanel::cmdCopyToFolder_Click);
  return line;
}

void DiscPanel::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (!event->spontaneous()) Open();
}

void DiscPanel::Open() {
  desk_.Open();
  FilesChanged();
}

void DiscPanel::FilesChanged() {
  if (!isVisible()) return;
  const auto bytes = desk_.SpaceRequired(files_.Files());
  required_->setText(bytes ? Q(MegabytesText(*bytes)) : tr("Unknown"));
}

void DiscPanel::FillDevices() {
  const QSignalBlocker quiet(cbDevices_);
  cbDevices_->clear();
  for (int i = 0; i < static_cast<int>(desk_.Drives().size()); ++i)
    cbDevices_->addItem(Q(desk_.Drives()[static_cast<std::size_t>(i)].Name), i);
  if (desk_.Drives().empty()) cbDevices_->addItem(tr("No drive"), 0);
  cbDevices_->addItem(tr("Image file (.iso)..."), kImageRow);
  cbDevices_->setCurrentIndex(std::max(0, desk_.Chosen()));
}

void DiscPanel::DriveChanged() {
  FillDevices();
  const QSignalBlocker quiet(cbSpeed_);
  const int before = cbSpeed_->currentData().toInt();
  cbSpeed_->clear();
  cbSpeed_->addItem(tr("Fastest"), 0);
  if (desk_.Report())
    for (const int speed : desk_.Report()->Speeds) cbSpeed_->addItem(tr("%1 kB/s").arg(speed), speed);
  cbSpeed_->setCurrentIndex(std::max(0, cbSpeed_->findData(before)));
  cbSpeed_->setVisible(cbSpeed_->count() > 1);
  driveStatus_->setText(Q(desk_.DriveStatus()));
  space_->setText(Q(desk_.SpaceOnCd()));
  words_->setText(Q(desk_.Words()));
  cmdRecordCD_[kEject]->setEnabled(desk_.Chosen() >= 0 && desk_.Image().empty() && !desk_.Asking());
  cmdRecordCD_[kTest]->setEnabled(!desk_.Asking());
}

void DiscPanel::DriveTold(const std::string& title, const std::string& words) {
  said_->setText(Q(words));
  if (!title.empty()) host_.Message(MessageKind::Warning, title, words);
}

void DiscPanel::PickImage() {
  const auto path = host_.PickNewFile(
      {Std(tr("Image File")), JoinPath(DocumentsFolder(), "Lessons.iso"), Std(tr("Disc image (*.iso)|*.iso"))});
  if (path) desk_.ChooseImage(*path);
  else FillDevices();
}

void DiscPanel::cmdRecordCD_Click(int index) {
  said_->clear();
  switch (index) {
    case kStart: return Start();
    case kEject: return desk_.Eject();
    case kTest: return desk_.Test();
    default: return;
  }
}

void DiscPanel::Start() {
  if (files_.Empty()) return host_.Message(MessageKind::Information, "", Std(tr("You must add some videos 1st!")));
  auto drive = desk_.Drive();
  if (!drive) return host_.Message(MessageKind::Warning, Std(tr("Drive Not Ready")), desk_.Words());
  BurnWish wish{.Speed = cbSpeed_->currentData().toInt(), .Erase = false, .Check = check_->isChecked()};
  if (desk_.Report() && desk_.Report()->Medium == Medium::Used) {
    wish.Erase = host_.Question(Std(tr("Erase the Disc?")),
                                Std(tr("The disc in the drive holds something already. Everything on it will be lost. "
                                       "Do you want to erase it?")));
    if (!wish.Erase) return;
  }
  const std::string image = desk_.Image();
  if (!image.empty() && FileExists(image) &&
      !host_.Question("", Std(tr("\"%1\" is there already. Do you want to replace it?").arg(Q(LastName(image))))))
    return;
  if (!host_.Question(Std(tr("Start Writing to CD?")), Std(tr("Ready to Burn CD?")))) return;
  said_->setText(tr("Starting to burn CD"));
  Form().Burn(desk_.OrderFor(files_.Files(), pageToo_->isChecked()), std::move(drive), wish);
}

void DiscPanel::cmdCopyToFolder_Click() {
  said_->clear();
  if (files_.Empty()) return host_.Message(MessageKind::Information, "", Std(tr("You must add some videos 1st!")));
  const auto folder = host_.PickFolder(Std(tr("Copy to a Folder or Stick")), DocumentsFolder());
  if (!folder) return;
  if (!host_.Drives().Answers(*folder))
    return host_.Message(MessageKind::Warning, "", Std(tr("The drive does not answer. Choose another folder.")));
  Form().Copy(desk_.OrderFor(files_.Files(), pageToo_->isChecked()), *folder);
}

BurnForm& DiscPanel::Form() {
  if (!form_) {
    form_ = new BurnForm(host_, window(), on_);
    connect(form_, &BurnForm::Ended, this, [this] {
      said_->clear();
      desk_.Look();
    });
    connect(form_, &BurnForm::FolderWanted, this, [this](const QString& folder) {
      if (!host_.ShowFolder(Std(folder))) host_.Message(MessageKind::Information, "", Tr("It lies in {}", Std(folder)));
    });
  }
  return *form_;
}

bool DiscPanel::MayClose() {
  return !form_ || !form_->Busy() ||
         host_.Question("", Std(tr("A disc is still being written. Do you want to give it up and close?")));
}

}  // namespace kinalyx
