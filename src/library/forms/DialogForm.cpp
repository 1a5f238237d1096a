#include "library/forms/DialogForm.h"

#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>

#include "library/DiskSpace.h"
#include "library/LibraryActions.h"
#include "library/LibraryReading.h"
#include "library/VideoNames.h"
#include "library/forms/BoxLimits.h"
#include "library/forms/DriveChoice.h"
#include "platform/files/Folders.h"
#include "platform/files/Tr.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/NameList.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

namespace {

using Mode = DialogForm::Mode;

/// Which button each mode has, and which panel.
struct ModeLook {
  const char* button;
  const char* icon;
  enum class Part { Rename, Move, Delete, Copy } part;
};

ModeLook LookOf(Mode mode) {
  using Part = ModeLook::Part;
  switch (mode) {
    case Mode::RenameInstructor: return {"RenInstructorBtn", "rename", Part::Rename};
    case Mode::DeleteInstructor: return {"DelInstructorBtn", "trash", Part::Delete};
    case Mode::RenameStudent: return {"SSCommand1", "rename", Part::Rename};
    case Mode::MoveStudent: return {"MoveSave", "move", Part::Move};
    case Mode::DeleteStudent: return {"DelStudentBtn", "trash", Part::Delete};
    case Mode::RenameVideo: return {"RenVidBtn", "rename", Part::Rename};
    case Mode::MoveVideo: return {"MoveVideoBtn", "move", Part::Move};
    case Mode::CopyVideo: return {"ExportVidBtn", "copy", Part::Copy};
    case Mode::DeleteVideo: return {"DelVidBtn", "trash", Part::Delete};
  }
  return {};
}

/// A caption with a list beneath it, in a frame.
QWidget* Framed(QLabel* caption, NameList* list) {
  auto* part = new QWidget;
  auto* rows = new QVBoxLayout(part);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(4);
  auto* frame = MakeFrame("panel");
  auto* inside = new QVBoxLayout(frame);
  inside->setContentsMargins(1, 5, 1, 5);
  inside->addWidget(list);
  rows->addWidget(caption);
  rows->addWidget(frame, 1);
  return part;
}

/// A video's name as the lists show it; "" when none is chosen.
std::string VideoOf(const LibraryVideo& about) { return about.path.empty() ? std::string() : VideoName(about.path); }

/// A name that is short enough to stand in a sentence or a heading of the dialog.
std::string Short(const QLabel& label, const std::string& name) {
  return Std(label.fontMetrics().elidedText(Q(name), Qt::ElideMiddle, Px(300)));
}

/// A list with the focus always has a current row; only a selected row is a choice.
std::string ChosenIn(const NameList& list) {
  const auto chosen = list.selectedItems();
  return chosen.isEmpty() ? std::string() : Std(chosen.first()->text());
}

}  // namespace

DialogForm::DialogForm(IHost& host, Settings& settings, QWidget* over)
    : QDialog(over), host_(host), settings_(settings), tree_(settings) {
  setObjectName("DialogForm");
  setWindowModality(Qt::WindowModal);
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(24, 20, 24, 20);
  rows->setSpacing(kGap);
  rows->setSizeConstraint(QLayout::SetFixedSize);
  title_ = MakeLabel("DialogTitle", {}, "title");
  text_ = MakeLabel("DialogText", {});
  text_->setWordWrap(true);
  FixWidth(text_, 460);
  renamePanel_ = MakeRenamePanel();
  movePanel_ = MakeMovePanel();
  copyPanel_ = MakeCopyPanel(host, settings);
  for (QWidget* row :
       {static_cast<QWidget*>(title_), static_cast<QWidget*>(text_), renamePanel_, movePanel_, copyPanel_})
    rows->addWidget(row);
  auto* actions = new QHBoxLayout;
  cancel_ = new Button("DialogCancel", tr("Cancel"), {}, Look::Quiet);
  action_ = new Button("SSCommand1", {}, "rename");
  action_->setProperty("square", false);
  actions->addStretch(1);
  actions->addWidget(cancel_);
  actions->addWidget(action_);
  rows->addLayout(actions);
  connect(cancel_, &QPushButton::clicked, this, &QDialog::reject);
  connect(action_, &QPushButton::clicked, this, &DialogForm::Want);
}

QWidget* DialogForm::MakeRenamePanel() {
  name_ = new QLineEdit;
  name_->setObjectName("RenameText");
  auto* panel = new QWidget;
  auto* rows = new QVBoxLayout(panel);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(4);
  QLabel* note = MakeLabel("RenameNote", {}, "muted");
  nameTitle_ = MakeLabel("RenameTitle", {}, "caption");
  nameTitle_->setBuddy(name_);
  rows->addWidget(nameTitle_);
  rows->addWidget(name_);
  rows->addWidget(note);
  LimitToNames(*name_, *note);
  connect(name_, &QLineEdit::textChanged, this, &DialogForm::ShowAction);
  return panel;
}

QWidget* DialogForm::MakeMovePanel() {
  auto* panel = new QWidget;
  auto* columns = new QHBoxLayout(panel);
  columns->setContentsMargins(0, 0, 0, 0);
  columns->setSpacing(kGap);
  databases_ = new NameList("MoveDatabases");
  databases_->setAccessibleName(tr("Databases"));
  databases_->SetHint(tr("There is no other database. Add one first."));
  students_ = new NameList("MoveStudents");
  studentsTitle_ = MakeLabel("MoveStudentsTitle", {}, "heading");
  studentsPart_ = Framed(studentsTitle_, students_);
  columns->addWidget(Framed(MakeLabel("MoveDatabasesTitle", tr("Databases"), "heading"), databases_), 1);
  columns->addWidget(studentsPart_, 1);
  FixSize(panel, {460, 260});
  connect(databases_, &QListWidget::itemSelectionChanged, this, [this] {
    ShowStudents();
    ShowAction();
  });
  for (NameList* list : {databases_, students_}) {
    connect(list, &QListWidget::itemActivated, this, [this, list] {
      if (list == databases_ && !studentsPart_->isHidden()) students_->setFocus();
      else if (action_->isEnabled()) Want();
    });
  }
  return panel;
}

QWidget* DialogForm::MakeCopyPanel(IHost& host, Settings& settings) {
  auto* panel = new QWidget;
  auto* rows = new QVBoxLayout(panel);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(8);
  drive_ = new DriveChoice("cboBackupDrive", host, settings);
  space_ = MakeLabel("DriveSpace", {}, "muted");
  rows->addWidget(drive_);
  rows->addWidget(space_);
  connect(drive_, &DriveChoice::Chosen, this, &DialogForm::ReadDrive);
  return panel;
}

// ---------------------------------------------------------------- opening

void DialogForm::Open(Mode mode, const LibraryVideo& about, std::size_t videos, const std::string& goes) {
  mode_ = mode;
  about_ = about;
  videos_ = videos;
  goes_ = goes.empty() ? goes : goes + "\n\n";
  const Words words = WordsOfMode();
  setWindowTitle(Q(words.title));
  title_->setText(Q(words.title));
  text_->setText(Q(words.text));
  const ModeLook look = LookOf(mode);
  action_->setText(Q(words.action));
  action_->setObjectName(look.button);
  action_->SetIcon(look.icon);
  OpenPart();
  // Enter pressed without reading must not delete anything.
  const bool deletes = look.part == ModeLook::Part::Delete;
  action_->setDefault(!deletes);
  action_->setProperty("destroys", deletes);
  action_->style()->unpolish(action_);
  action_->style()->polish(action_);
  cancel_->setDefault(deletes);
  ShowAction();
  ScaleForm(*this, *parentWidget());
  open();
  FocusPart();
}

DialogForm::Words DialogForm::WordsOfMode() const {
  const LibraryTexts texts = LibraryTextsFor(settings_);
  const Vocabulary words(settings_);
  const std::string video = Short(*title_, VideoOf(about_));
  const std::string student = Short(*title_, about_.student);
  const std::string instructor = Short(*title_, about_.instructor);
  const bool several = videos_ > 1;
  switch (mode_) {
    case Mode::RenameInstructor:
      return {Tr("Rename Instructor or Database"), Tr("Type the new name of {}.", instructor), Tr("Rename")};
    case Mode::DeleteInstructor:
      return {Tr("Delete Instructor or Database"),
              Tr("This will remove {} from your system. It must not hold any {} or videos any more.", instructor,
                 words.nouns()),
              Tr("Delete")};
    case Mode::RenameStudent: return {words.Rename(), Tr("Type the new name of {}.", student), Tr("Rename")};
    case Mode::MoveStudent: return {words.MoveThis() + ": " + student, texts.moveStudent, Tr("Move")};
    case Mode::DeleteStudent:
      return {words.DeleteThis() + ": " + student, texts.deleteWarning + "\n\n" + goes_ + texts.deleteFinish,
              Tr("Delete {}", words.Noun())};
    case Mode::RenameVideo: return {Tr("Rename Video"), Tr("Type the new name of {}.", video), Tr("Rename")};
    case Mode::MoveVideo:
      return {
          several ? Tr("Move these {} videos", videos_) : Tr("Move this video: {}", video),
          several
              ? Tr("Select the Database and the {} that you want to move the videos to and click the \"Move\" button.",
                   words.noun())
              : Tr("Select the Database and the {} that you want to move the video to and click the \"Move\" button.",
                   words.noun()),
          Tr("Move")};
    case Mode::CopyVideo:
      return {
          several ? Tr("Copy Videos to a Disk") : Tr("Copy Video to a Disk"),
          several
              ? Tr("Copies the {} videos with their drawings and notes. Select the removeable disk, or any other "
                   "folder.",
                   videos_)
              : Tr("Copies the video {} with its drawings and notes. Select the removeable disk, or any other folder.",
                   video),
          Tr("Copy")};
    case Mode::DeleteVideo:
      return {several ? Tr("Delete these {} videos", videos_) : Tr("Delete this video: {}", video),
              (several ? Tr("Warning! This will remove the {} videos with their drawings and notes from your system.",
                            videos_)
                       : Tr("Warning! This will remove the video with its drawings and notes from your system.")) +
                  "\n\n" + goes_ +
                  (several ? Tr("Click the Delete Videos button to finish.")
                           : Tr("Click the Delete Video button to finish.")),
              several ? Tr("Delete Videos") : Tr("Delete Video")};
  }
  return {};
}

/// Fills the panel of the mode and hides the others.
void DialogForm::OpenPart() {
  const ModeLook::Part part = LookOf(mode_).part;
  renamePanel_->setVisible(part == ModeLook::Part::Rename);
  movePanel_->setVisible(part == ModeLook::Part::Move);
  copyPanel_->setVisible(part == ModeLook::Part::Copy);
  if (part == ModeLook::Part::Rename) OpenRename();
  if (part == ModeLook::Part::Move) OpenMove();
  if (part == ModeLook::Part::Copy) {
    drive_->Refresh();
    ReadDrive();
  }
}

void DialogForm::FocusPart() {
  switch (LookOf(mode_).part) {
    case ModeLook::Part::Rename: return name_->setFocus();
    case ModeLook::Part::Move: return databases_->setFocus();
    case ModeLook::Part::Copy: return action_->isEnabled() ? action_->setFocus() : drive_->setFocus();
    case ModeLook::Part::Delete: return cancel_->setFocus();
  }
}

/// What has been typed in another mode does not come back.
void DialogForm::OpenRename() {
  const bool instructor = mode_ == Mode::RenameInstructor;
  oldName_ = instructor ? about_.instructor : mode_ == Mode::RenameStudent ? about_.student : VideoOf(about_);
  nameTitle_->setText(mode_ == Mode::RenameStudent ? Q(Vocabulary(settings_).Name())
                      : instructor                 ? tr("Name")
                                                   : tr("Video Name"));
  name_->setAccessibleName(nameTitle_->text());
  name_->setText(Q(oldName_));
  name_->selectAll();
}

/// Names from the library's folders, none when their drive does not answer.
template <typename Reading>
std::vector<std::string> DialogForm::Read(Reading reading) {
  return AskLibrary(host_.Drives(), tree_, std::move(reading)).value_or(std::vector<std::string>());
}

void DialogForm::OpenMove() {
  const bool video = mode_ == Mode::MoveVideo;
  LibraryVideo about = about_;
  if (!video) about.path.clear();
  const auto databases = Read([about](const LibraryTree& tree) { return MoveTargets(tree, about); });
  // When clearing up, users move one after the other to the same place.
  const auto rowOf = [&](const std::string& name) {
    const auto found = std::ranges::find(databases, name);
    return found == databases.end() ? -1 : static_cast<int>(found - databases.begin());
  };
  int row = rowOf(lastDatabase_);
  if (row < 0) row = rowOf(about_.instructor);
  databases_->Fill(Q(databases), row);
  studentsPart_->setVisible(video);
  ShowStudents();
}

void DialogForm::Want() {
  if (LookOf(mode_).part == ModeLook::Part::Move) {
    lastDatabase_ = Database();
    if (mode_ == Mode::MoveVideo) lastStudent_ = Student();
  }
  emit Wanted();
}

void DialogForm::ShowStudents() {
  const Vocabulary words(settings_);
  studentsTitle_->setText(Q(words.Select()));
  students_->setAccessibleName(Q(words.Nouns()));
  students_->SetHint(Database().empty() ? tr("Choose a database first.") : tr("No %1 here.").arg(Q(words.nouns())));
  const auto students = Read([database = Database()](const LibraryTree& tree) { return tree.Students(database); });
  const auto last = std::ranges::find(students, lastStudent_);
  const bool again = Database() == lastDatabase_ && last != students.end();
  students_->Fill(Q(students), again ? static_cast<int>(last - students.begin()) : -1);
}

/// A drive that is slow to answer must not keep the form from showing.
void DialogForm::ReadDrive() {
  space_->setText(Drive().empty() ? QString() : tr(kReadingDisk));
  ShowAction();
  if (Drive().empty()) return;
  reading_ = HostTimer(host_, 0, false, [this] {
    const auto text = host_.Drives().Ask(Drive(), [drive = Drive()] { return RemoveableDiskText(drive); });
    space_->setText(text ? Q(*text) : tr("The drive is not answering."));
  });
}

void DialogForm::ShowAction() {
  switch (LookOf(mode_).part) {
    case ModeLook::Part::Rename: action_->setEnabled(Name() != oldName_); break;
    case ModeLook::Part::Move: action_->setEnabled(!Database().empty()); break;
    case ModeLook::Part::Copy: action_->setEnabled(!Drive().empty()); break;
    case ModeLook::Part::Delete: action_->setEnabled(true); break;
  }
}

// ---------------------------------------------------------------- choices

std::string DialogForm::Name() const { return Std(name_->text()); }

std::string DialogForm::Database() const { return ChosenIn(*databases_); }

std::string DialogForm::Student() const { return studentsPart_->isHidden() ? std::string() : ChosenIn(*students_); }

std::string DialogForm::Drive() const { return drive_->Path(); }

}  // namespace kinalyx
