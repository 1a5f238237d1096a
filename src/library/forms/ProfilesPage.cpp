#include "library/forms/ProfilesPage.h"

#include <QBoxLayout>
#include <QEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>

#include "library/Sidecar.h"
#include "library/forms/FieldGrid.h"
#include "library/forms/HeadButton.h"
#include "library/forms/LibraryLists.h"
#include "library/forms/ProfileEditor.h"
#include "library/forms/ProfilePanel.h"
#include "library/forms/Text.h"
#include "library/forms/VideosPanel.h"
#include "platform/files/Folders.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

ProfilesPage::ProfilesPage(PlayerServices& services, const Settings& settings, ProfileFields& fields,
                           LastStudentInfo& remembered, ProfilesPageCalls calls, QWidget* parent)
    : QWidget(parent),
      services_(services),
      settings_(settings),
      vocabulary_(settings),
      fields_(fields),
      LastStudent_(remembered),
      calls_(std::move(calls)),
      browser_(settings, remembered, LibraryBrowser::Kind::Profiles),
      lists_(new LibraryLists(browser_, settings, this)) {
  setObjectName("ProfilesPage");
  grid_ = new QGridLayout(this);
  grid_->setContentsMargins(14, 14, 14, 14);
  grid_->setSpacing(kGap);
  grid_->setColumnStretch(0, 3);
  grid_->setColumnStretch(1, 3);
  grid_->setColumnStretch(2, 10);
  grid_->setRowStretch(0, 1);

  instructors_ = MakeInstructorsPanel();
  students_ = MakeStudentsPanel();
  videos_ = new VideosPanel(services, lists_->VideoList());
  MakeVideoButtons();
  profilePanel_ = new ProfilePanel(services.host, settings);
  editor_ = new ProfileEditor(settings);
  editor_->hide();
  auto* status = MakeFrame("status");
  status->setFixedHeight(28);
  auto* statusRow = new QHBoxLayout(status);
  statusRow->setContentsMargins(kGap, 0, kGap, 0);
  SPDisplay_ = MakeLabel("SPDisplay", {}, "muted");
  SPDisplay_->setMinimumWidth(40);
  statusRow->addWidget(SPDisplay_);

  grid_->addWidget(instructors_, 0, 0);
  grid_->addWidget(students_, 0, 1);
  grid_->addWidget(videos_, 0, 2);
  grid_->addWidget(profilePanel_, 1, 0, 1, 3);
  grid_->addWidget(status, 2, 0, 1, 3);

  connect(lists_, &LibraryLists::InstructorChosen, this, &ProfilesPage::InstructorChosen);
  connect(lists_, &LibraryLists::StudentChosen, this, &ProfilesPage::StudentList_Click);
  connect(lists_, &LibraryLists::VideoChosen, this, &ProfilesPage::VideoList_Click);
  connect(lists_, &LibraryLists::VideoActivated, this, &ProfilesPage::SendToAnalysis);
  connect(lists_, &LibraryLists::PlayWanted, this, [this] { videos_->VideoPlay1().TogglePlay(); });
  connect(profilePanel_, &ProfilePanel::EditWanted, this, [this] { OpenEditor(true); });
  connect(profilePanel_, &ProfilePanel::BackWanted, this, [this] { ShowProfileView(false); });
  connect(profilePanel_, &ProfilePanel::Said, this, &ProfilesPage::Say);
  connect(editor_, &ProfileEditor::SaveWanted, this, &ProfilesPage::ProAddSaveBtn);
  connect(editor_, &ProfileEditor::CancelWanted, this, &ProfilesPage::CloseEditor);

  SetupVocabulary();
  SetupFields();
}

ProfilesPage::~ProfilesPage() = default;

// ---------------------------------------------------------------- building

Panel* ProfilesPage::MakeInstructorsPanel() {
  auto* panel = new Panel("InstructorsTitle", "Instructors");
  panel->setMinimumWidth(130);
  panel->Body()->addWidget(lists_->InstructorList(), 1);

  newInstructor_ = new QWidget;
  auto* row = new QHBoxLayout(newInstructor_);
  row->setContentsMargins(8, 8, 8, 0);
  Text2_ = new QLineEdit;
  Text2_->setObjectName("Text2");
  Text2_->setPlaceholderText("Name");
  Text2_->setAccessibleName("Name of the new instructor or database");
  Text2_->setMaxLength(120);
  Text2_->installEventFilter(this);
  row->addWidget(Text2_);
  newInstructor_->hide();
  panel->Body()->addWidget(newInstructor_);

  addInstructor_ = new Button("SSCommand2", "Add New");
  addInstructor_->setToolTip("Add an instructor or database to the library");
  panel->Foot()->addWidget(addInstructor_);
  panel->Foot()->addStretch(1);
  connect(addInstructor_, &QPushButton::clicked, this, [this] { SSCommand2(); });
  connect(Text2_, &QLineEdit::returnPressed, this, [this] { SSCommand2(); });
  return panel;
}

Panel* ProfilesPage::MakeStudentsPanel() {
  auto* panel = new Panel("StudentsTitle", "Students");
  panel->Body()->addWidget(lists_->StudentList(), 1);
  MakeButton(kAddStudent, "", "add");
  MakeButton(kRenameStudent, "", "rename");
  MakeButton(kMoveStudent, "", "move");
  MakeButton(kDeleteStudent, "", "trash");
  MakeButton(kProfileView, "", "notes");
  for (const int command : {kAddStudent, kRenameStudent, kMoveStudent, kDeleteStudent, kProfileView})
    panel->Foot()->addWidget(SPBtn(command));
  panel->Foot()->addStretch(1);
  SPBtn(kProfileView)->setCheckable(true);
  for (const int command : {kRenameStudent, kMoveStudent, kDeleteStudent}) Coming(SPBtn(command));
  return panel;
}

void ProfilesPage::MakeVideoButtons() {
  MakeButton(kAnalyze, "Analyze", "analyze");
  MakeButton(kTrim, "", "trim");
  MakeButton(kRenameVideo, "", "rename");
  MakeButton(kMoveVideo, "", "move");
  MakeButton(kCopyVideo, "", "copy");
  MakeButton(kDeleteVideo, "", "trash");
  AddButton(kStatistics, HeadButton("SPBtn11", "Show Stats", "stats"));
  MakeButton(kCopyToQuickLaunch, "Quick Launch +", "");
  for (const int command : {kAnalyze, kTrim, kRenameVideo, kMoveVideo, kCopyVideo, kDeleteVideo})
    videos_->Foot()->addWidget(SPBtn(command));
  videos_->Foot()->addStretch(1);
  videos_->Foot()->addWidget(SPBtn(kCopyToQuickLaunch));
  videos_->Head()->addWidget(SPBtn(kStatistics));
  for (const int command : {kTrim, kRenameVideo, kMoveVideo, kCopyVideo, kDeleteVideo, kCopyToQuickLaunch})
    Coming(SPBtn(command));
}

void ProfilesPage::MakeButton(int command, const char* caption, const char* icon) {
  AddButton(command, new Button(QString("SPBtn%1").arg(command), caption, icon));
}

void ProfilesPage::AddButton(int command, Button* button) {
  button->installEventFilter(this);
  connect(button, &QPushButton::clicked, this, [this, command] { SPBtn_Click(command); });
  buttons_[static_cast<std::size_t>(command)] = button;
}

QString ProfilesPage::HoverText(int command) const {
  const QString noun = Q(vocabulary_.noun());
  switch (command) {
    case kAddStudent: return "Add new " + noun + " to the library.";
    case kRenameStudent: return "Rename the current " + noun + ".";
    case kMoveStudent: return "Move the current " + noun + " to another database or instructor.";
    case kDeleteStudent: return "Delete the current " + noun + " database, profile, and all videos.";
    case kAnalyze: return "Send current video to the analysis section.";
    case kTrim: return "Trim excess frames from front and back of the current video.";
    case kRenameVideo: return "Rename the current video.";
    case kMoveVideo: return "Move the current video to a different instructor or database.";
    case kCopyVideo: return "Copy the current video to a removeable disk.";
    case kDeleteVideo: return "Delete the current video.";
    case kProfileView: return "Show complete profile and notes.";
    case kStatistics: return "Show video statistics.";
    case kCopyToQuickLaunch: return "Copy the current video to the Quick Launch folder.";
    default: return {};
  }
}

// ---------------------------------------------------------------- life of the page

void ProfilesPage::Open() {
  const std::string student = browser_.Folder();
  const std::string video = browser_.Video();
  // Who had gone to an instructor without choosing a student finds that instructor again.
  const bool keep = !editor_->isHidden() || (browser_.InstructorIndex() > 0 && !browser_.HasStudent());
  browser_.CapfolderSetup(keep);
  if (browser_.Folder() == student) browser_.SelectVideo(video);
  shownStudent_.clear();
  shownVideo_.clear();
  lists_->ShowAll();
  Say({});
}

bool ProfilesPage::Leave() {
  question_.Stop();
  videos_->VideoPlay1().Unload();
  shownVideo_.clear();
  return profilePanel_->SaveNotes();
}

void ProfilesPage::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  Open();
  if (!focusWidget()) lists_->StudentList()->setFocus();
}

void ProfilesPage::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  Leave();
}

void ProfilesPage::SetupVocabulary() {
  students_->SetTitle(Q(vocabulary_.Nouns()));
  profilePanel_->SetupVocabulary();
  for (int command = 0; command < kCommandCount; ++command) {
    if (SPBtn(command)->isEnabled()) SPBtn(command)->setToolTip(HoverText(command).chopped(1));
    SPBtn(command)->setAccessibleName(HoverText(command).chopped(1));
  }
}

void ProfilesPage::SetupFields() {
  profilePanel_->Fields().SetCaptions(fields_.Captions());
  OpenProfile();
}

void ProfilesPage::Say(const QString& text) {
  said_ = text;
  SPDisplay_->setText(text);
}

bool ProfilesPage::eventFilter(QObject* object, QEvent* event) {
  if (object == Text2_ && event->type() == QEvent::KeyPress &&
      static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
    ShowInstructorBox(false);
    lists_->InstructorList()->setFocus();
    return true;
  }
  const auto button = std::find(buttons_.begin(), buttons_.end(), object);
  if (button != buttons_.end() && (event->type() == QEvent::Enter || event->type() == QEvent::FocusIn))
    SPDisplay_->setText(HoverText(static_cast<int>(button - buttons_.begin())));
  if (button != buttons_.end() && (event->type() == QEvent::Leave || event->type() == QEvent::FocusOut))
    SPDisplay_->setText(said_);
  return QWidget::eventFilter(object, event);
}

void ProfilesPage::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && profilePanel_->CurrentView() == ProfilePanel::View::Complete) {
    ShowProfileView(false);
  } else if (event->key() == Qt::Key_F5) {
    browser_.Refresh();
    lists_->ShowAll();
  } else {
    QWidget::keyPressEvent(event);
  }
}

// ---------------------------------------------------------------- choices

void ProfilesPage::InstructorChosen() {
  SPBtn(kCopyToQuickLaunch)->setText(browser_.IsQuickLaunch() ? "Quick Launch -" : "Quick Launch +");
  if (editor_->isHidden()) return;
  editor_->SetInstructor(browser_.IsGeneralFolder() ? std::string() : browser_.Instructor());
  editor_->FocusName();
}

void ProfilesPage::StudentList_Click() {
  videos_->SetCount(static_cast<int>(browser_.VideoList().size()));
  OpenProfile();
}

void ProfilesPage::OpenProfile() {
  const std::string folder = browser_.HasStudent() ? browser_.Folder() : std::string();
  profile_ = folder.empty() ? Profile() : kinalyx::OpenProfile(folder, fields_.Captions());
  if (!folder.empty()) profile_.values[kVideosOnFileField] = std::to_string(browser_.VideoList().size());
  profilePanel_->Fields().SetValues(profile_.values);
  // Notes that are being typed are not read anew when only a caption or a list has changed.
  if (folder == shownStudent_ && !folder.empty()) return;
  shownStudent_ = folder;
  profilePanel_->OpenStudent(folder);
  if (folder.empty() && profilePanel_->CurrentView() == ProfilePanel::View::Complete) ShowProfileView(false);
}

void ProfilesPage::VideoList_Click() {
  const std::string path = browser_.VideoPath();
  SPBtn(kAnalyze)->setEnabled(!path.empty());
  if (path == shownVideo_ && !path.empty()) return;
  shownVideo_ = path;
  question_.Stop();
  if (videos_->ShowVideo(path)) return;
  // Asked when the click is over: a box that opens under a pressed mouse button leaves the list dragging.
  question_ = HostTimer(services_.host, 0, false, [this, path] { OfferToDelete(path); });
}

void ProfilesPage::OfferToDelete(const std::string& path) {
  if (!services_.host.Question("Delete Bad Video",
                               "The selected video appears to be corrupt. Would you like to delete it?"))
    return;
  if (!KillFile(path)) {
    services_.host.Message(MessageKind::Warning, "Delete Bad Video",
                           "Unable to delete the video. Try rebooting, then try again.");
    return;
  }
  KillFile(SidecarPath(path));
  browser_.StudentList_Click(browser_.StudentIndex());
  lists_->ShowVideos();
}

// ---------------------------------------------------------------- commands

void ProfilesPage::SPBtn_Click(int command) {
  switch (command) {
    case kAddStudent: OpenEditor(false); break;
    case kAnalyze: SendToAnalysis(); break;
    case kProfileView: ShowProfileView(profilePanel_->CurrentView() != ProfilePanel::View::Complete); break;
    case kStatistics:
      videos_->ShowStatsPanel(!videos_->StatsShown());
      SPBtn(kStatistics)->setText(videos_->StatsShown() ? "Stats Off" : "Show Stats");
      break;
    default: break;
  }
}

void ProfilesPage::SendToAnalysis() {
  if (!browser_.HasVideo()) {
    Say("You must select a video first.");
    return;
  }
  if (videos_->VideoPlay1().Control().IsPlaying()) videos_->VideoPlay1().TogglePlay();
  Say("Loading Analysis Section...");
  if (calls_.SendToAnalysis) Say(Q(calls_.SendToAnalysis(browser_.VideoPath())));
}

void ProfilesPage::ShowProfileView(bool shown) {
  if (shown && !browser_.HasStudent()) {
    SPBtn(kProfileView)->setChecked(false);
    Say(Q(vocabulary_.MustSelect()));
    return;
  }
  SPBtn(kProfileView)->setChecked(shown);
  if (shown) videos_->VideoPlay1().Control().StopPlay();
  videos_->setVisible(!shown);
  profilePanel_->SetView(shown ? ProfilePanel::View::Complete : ProfilePanel::View::Brief);
  if (shown) {
    grid_->addWidget(instructors_, 0, 0, 2, 1);
    grid_->addWidget(students_, 0, 1, 2, 1);
    grid_->addWidget(profilePanel_, 0, 2, 2, 1);
  } else {
    grid_->addWidget(instructors_, 0, 0);
    grid_->addWidget(students_, 0, 1);
    grid_->addWidget(profilePanel_, 1, 0, 1, 3);
  }
}

/// The instructors and databases, without the entry that is no folder.
std::vector<std::string> ProfilesPage::RealInstructors() const {
  const auto& list = browser_.InstructorList();
  return {list.begin() + std::min<std::ptrdiff_t>(1, std::ssize(list)), list.end()};
}

void ProfilesPage::OpenEditor(bool edit) {
  if (edit) {
    FieldTexts values = profile_.values;
    for (std::size_t field = 0; field < values.size(); ++field)
      if (profile_.missing[field]) values[field].clear();
    editedFolder_ = browser_.Folder();
    editor_->OpenEdit(fields_.Captions(), values);
  } else {
    editor_->OpenNew(fields_.Captions());
    editor_->SetInstructors(RealInstructors());
    editor_->SetInstructor(browser_.IsGeneralFolder() ? std::string() : browser_.Instructor());
  }
  videos_->VideoPlay1().Control().StopPlay();
  profilePanel_->SaveNotes();
  lists_->InstructorList()->setEnabled(!edit);
  addInstructor_->setEnabled(!edit);
  for (QWidget* part : {static_cast<QWidget*>(students_), static_cast<QWidget*>(videos_),
                        static_cast<QWidget*>(profilePanel_)})
    part->hide();
  grid_->addWidget(editor_, 0, 1, 2, 2);
  editor_->show();
  if (!edit) editor_->FocusName();
  Say({});
}

void ProfilesPage::CloseEditor() {
  editor_->hide();
  grid_->removeWidget(editor_);
  lists_->InstructorList()->setEnabled(true);
  addInstructor_->setEnabled(true);
  students_->show();
  profilePanel_->show();
  videos_->setVisible(profilePanel_->CurrentView() != ProfilePanel::View::Complete);
  lists_->StudentList()->setFocus();
}

void ProfilesPage::ProAddSaveBtn() {
  const FieldTexts values = editor_->Values();
  if (!editor_->IsNew()) {
    if (!SaveProfile(editedFolder_, fields_.Captions(), values)) {
      Say("An error has occurred while editing the profile");
      return;
    }
    CloseEditor();
    OpenProfile();
    Say(Q(vocabulary_.Noun()) + " profile successfully updated.");
    return;
  }
  const std::string instructor = editor_->Instructor();
  if (instructor.empty()) {
    Say("You must select an Instructor or Database first.");
    return;
  }
  const Outcome added =
      AddStudent(browser_.Tree().InstructorFolder(instructor), fields_.Captions(), values, vocabulary_.noun());
  if (added.done) {
    const std::string& name = values[kNameField];
    LastStudent_ = {instructor, name, browser_.Tree().StudentFolder(instructor, name)};
    CloseEditor();
    browser_.CapfolderSetup();
    lists_->ShowAll();
  }
  Say(Q(added.message));
}

void ProfilesPage::ShowInstructorBox(bool shown) {
  newInstructor_->setVisible(shown);
  addInstructor_->setText(shown ? "Save" : "Add New");
  Text2_->clear();
  if (shown) Text2_->setFocus();
}

void ProfilesPage::SSCommand2() {
  if (newInstructor_->isHidden()) {
    ShowInstructorBox(true);
    return;
  }
  const std::string name = Std(Text2_->text());
  const Outcome added = AddInstructor(browser_.Tree().Root(), name);
  if (added.done) {
    ShowInstructorBox(false);
    LastStudent_ = {name, "", browser_.Tree().InstructorFolder(name)};
    browser_.CapfolderSetup();
    editor_->SetInstructors(RealInstructors());  // what has been typed into the panel stays
    lists_->ShowAll();
  }
  Say(Q(added.message));
}

}  // namespace kinalyx
