#include "library/forms/ImportExportPage.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <memory>
#include <utility>

#include "core/Vocabulary.h"
#include "core/forms/Choices.h"
#include "library/DiskSpace.h"
#include "library/forms/Divider.h"
#include "library/forms/DriveChoice.h"
#include "library/forms/LibrarySide.h"
#include "library/forms/ProgressForm.h"
#include "library/forms/StatusLine.h"
#include "platform/files/Tr.h"
#include "platform/host/DriveWatch.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/FileDrop.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

/// What becomes of an export or import, for as long as there is a page to show it.
class ImportExportPage::Transfer final : public IOperationEvents {
 public:
  Transfer(ImportExportPage& page, bool out) : page_(&page), out_(out) {}

  void ShowStatus(const std::string& words) override {
    if (page_) page_->Say(Q(words));
  }
  void ShowProgress(const JobProgress&) override {}
  void WorkOver() override {}
  void Ended(const OperationResult& result) override {
    if (page_) page_->ShowResult(out_, result);
  }

 private:
  QPointer<ImportExportPage> page_;
  bool out_;
};

ImportExportPage::ImportExportPage(IHost& host, Settings& settings, LibraryOperations& operations,
                                   const LastStudentInfo& remembered, QWidget* parent)
    : PageWidget(parent), host_(host), settings_(settings), operations_(operations), LastStudent_(remembered) {
  setObjectName("ImportExportPage");
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(14, 14, 14, 14);
  rows->setSpacing(kGap);
  help_ = MakeLabel("IEHelp", {});
  help_->setWordWrap(true);
  rows->addWidget(help_);

  auto* sides = new QHBoxLayout;
  sides->setSpacing(kGap);
  here_ = new LibrarySide(host.Drives(), tr("This Library"), settings, LibraryTree(settings),
                          {"List4", "List5", "List6"}, 0);
  there_ = new LibrarySide(host.Drives(), tr("Drive or Folder"), settings, LibraryTree(otherRoot_),
                           {"List7", "List8", "List9"}, 1);
  sides->addWidget(here_, 1);
  sides->addLayout(MakeCommands());
  sides->addWidget(there_, 1);
  there_->Body()->insertLayout(0, MakeDriveChoice(host, settings));
  there_->Body()->insertWidget(1, Divider());
  rows->addLayout(sides, 1);
  status_ = new StatusLine("IEDisplay");
  rows->addWidget(status_);

  progress_ = new ProgressForm(host, operations, this);
  connect(Drive1_, &DriveChoice::Chosen, this, &ImportExportPage::OpenDrive);
  connect(there_, &LibrarySide::AnswersAgain, this, [this] {
    Say({});
    DiskSpaceGauge();
  });
  auto* drop = new FileDrop(this);
  connect(drop, &FileDrop::Dropped, this, &ImportExportPage::TakeDropped);
  connect(drop, &FileDrop::Over, this, &ImportExportPage::ShowDropTarget);
  connect(drop, &FileDrop::Left, this, [this] { Say({}); });
  SetupVocabulary();
}

ImportExportPage::~ImportExportPage() = default;

/// The two buttons between the sides.
QLayout* ImportExportPage::MakeCommands() {
  auto* middle = new QVBoxLayout;
  middle->setSpacing(kGap);
  middle->addStretch(1);
  const struct {
    int command;
    const char* caption;
    const char* icon;
    const char* tip;
  } kButtons[] = {
      {kExport, TrLater("Export"), "chevron-right", TrLater("Copy the selected videos of this library to the drive")},
      {kImport, TrLater("Import"), "chevron-left", TrLater("Copy the selected videos of the drive into this library")}};
  for (const auto& [command, caption, icon, tip] : kButtons) {
    auto* button = new Button(QString("IECmd%1").arg(command), tr(caption), icon);
    button->setToolTip(tr(tip));
    if (command == kExport) button->setLayoutDirection(Qt::RightToLeft);  // the arrow points where the videos go
    connect(button, &QPushButton::clicked, this, [this, command = command] { IECmd_Click(command); });
    middle->addWidget(button);
  }
  middle->addStretch(1);
  return middle;
}

/// The choice of the other place, and how much room there is.
QLayout* ImportExportPage::MakeDriveChoice(IHost& host, Settings& settings) {
  Drive1_ = new DriveChoice("Drive1", host, settings);
  SpaceFlood_ = new Gauge("SpaceFlood");
  FixWidth(SpaceFlood_, 90);
  Label6_ = MakeLabel("Label6", {}, "muted");
  auto* drive = new QVBoxLayout;
  drive->setContentsMargins(kGap, 10, kGap, 10);
  drive->setSpacing(6);
  auto* space = new QHBoxLayout;
  space->setSpacing(8);
  space->addWidget(SpaceFlood_);
  space->addWidget(Label6_, 1);
  drive->addWidget(Drive1_);
  drive->addLayout(space);
  return drive;
}

void ImportExportPage::SetupVocabulary() {
  const Vocabulary words(settings_);
  help_->setText(tr("Select an instructor, a %1 and the videos on one side, then choose Export or Import. Each video "
                    "takes its drawings and notes along, and a %1 who is new on the other side brings the profile. "
                    "Videos from a plain folder, shown under General Folder, come to the %1 chosen in this library.")
                     .arg(Q(words.noun())));
  here_->SetupVocabulary();
  there_->SetupVocabulary();
}

void ImportExportPage::Open() {
  Drive1_->Refresh();
  here_->Open(LastStudent_);
  OpenDrive();
}

void ImportExportPage::OpenDrive() {
  Say({});  // what was told of the former place does not hold for this one
  const std::string drive = Drive1_->Path();
  if (drive == otherRoot_ && !drive.empty()) {
    there_->Refresh();
  } else {
    otherRoot_ = drive;
    there_->Open({});
  }
  there_->setToolTip(Q(drive));
  DiskSpaceGauge();
}

void ImportExportPage::DiskSpaceGauge() {
  SpaceFlood_->setVisible(!otherRoot_.empty());  // an empty bar would read as a full drive
  if (otherRoot_.empty()) {
    Label6_->setText(tr("Choose a drive or folder first."));
    return;
  }
  const auto asked = host_.Drives().Ask(otherRoot_, [drive = otherRoot_] { return kinalyx::DiskSpaceGauge(drive); });
  const DiskSpace space = asked.value_or(SilentDiskSpace());
  SpaceFlood_->Show(space.Little() ? QColor(0xb3, 0x26, 0x1e) : CurrentTheme().accent, space.percentFree);
  Label6_->setText(Q(space.Label6));
  if (!space.available) {
    Label6_->setText(Q(space.Label6 + "   " + space.message));
    Say(Q(space.message));
  }
}

void ImportExportPage::IECmd_Click(int command) {
  const bool out = command == kExport;
  const auto videos = (out ? here_ : there_)->Chosen();
  if (out && !videos.empty() && otherRoot_.empty()) return Say(tr("Choose a drive or folder first."));
  auto events =
      progress_->Begin(out ? tr("Export Videos") : tr("Import Videos"), std::make_shared<Transfer>(*this, out));
  if (out) operations_.ExportVideos(videos, otherRoot_, std::move(events));
  else operations_.ImportVideos(videos, std::move(events), TargetOfLooseVideos());
}

/// Files from elsewhere come to who is chosen in this library.
void ImportExportPage::TakeDropped(const std::vector<std::string>& paths) {
  const ImportTarget target{here_->Browser().Instructor(), here_->Browser().Student()};
  operations_.AddVideos(paths, target, progress_->Begin(tr("Add Videos"), std::make_shared<Transfer>(*this, false)));
}

void ImportExportPage::ShowDropTarget() {
  const LibraryBrowser& library = here_->Browser();
  if (library.HasStudent()) Say(tr("Drop to copy the videos to %1.").arg(Q(library.Student())));
  else if (library.IsGeneralFolder() || library.IsQuickLaunch())
    Say(tr("Drop to copy the videos to %1.").arg(Q(ShownInstructor(library.Instructor()))));
  else Say(tr("Select the %1 who is to get the videos first.").arg(Q(Vocabulary(settings_).noun())));
}

/// What has arrived is shown where it is; what was chosen stays chosen no longer.
void ImportExportPage::ShowResult(bool out, const OperationResult& result) {
  if (result.refill) (out ? there_ : here_)->ShowArrived(result);
  if (result.Done()) (out ? here_ : there_)->Refresh();
  DiskSpaceGauge();
  Say(Q(result.Status()));
}

/// Videos that have no student at the other place go to the student who is chosen in this library. Quick Launch
/// takes videos itself; directly under any other instructor they would be in no list.
ImportTarget ImportExportPage::TargetOfLooseVideos() const {
  const LibraryBrowser& library = here_->Browser();
  if (library.HasStudent() || library.IsQuickLaunch()) return {library.Instructor(), library.Student()};
  return {};
}

void ImportExportPage::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_F5) return QWidget::keyPressEvent(event);
  for (const std::string& place : {settings_.LibraryPath, otherRoot_}) host_.Drives().TryAgain(place);
  here_->Refresh();
  Drive1_->Refresh();
  OpenDrive();
}

void ImportExportPage::Say(const QString& text) { status_->Say(text); }

}  // namespace kinalyx
