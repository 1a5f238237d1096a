#include "library/forms/ProfilesPage.h"

#include <QBoxLayout>
#include <QCursor>
#include <QEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>

#include "library/LibraryReading.h"
#include "library/forms/FieldGrid.h"
#include "library/forms/HeadButton.h"
#include "library/forms/LibraryCommands.h"
#include "library/forms/LibraryLists.h"
#include "library/forms/ProfileEditor.h"
#include "library/forms/ProfilePanel.h"
#include "library/forms/Text.h"
#include "library/forms/VideosPanel.h"
#include "platform/files/Folders.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

ProfilesPage::ProfilesPage(PlayerServices& services, Settings& settings, ProfileFields& fields,
                           LastStudentInfo& remembered, LibraryOperations& operations, QWidget* parent)
    : QWidget(parent),
      services_(services),
      settings_(settings),
      vocabulary_(settings),
      fields_(fields),
      LastStudent_(remembered),
      operations_(operations),
      browser_(services.host.Drives(), settings, remembered, LibraryBrowser::Kind::Profiles),
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
  videos_ = new VideosPanel(services, settings, lists_->VideoList());
  MakeVideoButtons();
  profilePanel_ = new ProfilePanel(services.host, settings);
  editor_ = new ProfileEditor(settings);
  editor_->hide();
  auto* status = MakeFrame("status");
  FixHeight(status, 28);
  auto* statusRow = new QHBoxLayout(status);
  statusRow->setContentsMargins(kGap, 0, kGap, 0);
  SPDisplay_ = MakeLabel("SPDisplay", {}, "muted");
  LeastWidth(SPDisplay_, 40);
  statusRow->addWidget(SPDisplay_);

  grid_->addWidget(instructors_, 0, 0);
  grid_->addWidget(students_, 0, 1);
  grid_->addWidget(videos_, 0, 2);
  grid_->addWidget(profilePanel_, 1, 0, 1, 3);
  grid_->addWidget(status, 2, 0, 1, 3);

  commands_ = new LibraryCommands(services.host, settings, operations, browser_, *videos_,
                                  {.Release = [this] { return Release(); },
                                   .Show = [this](const OperationResult& result) { ShowResult(result); },
                                   .Say = [this](const QString& text) { Say(text); }},
                                  this);
  lists_->MayLeave = [this] { return profilePanel_->LeaveNotes(); };
  connect(lists_, &LibraryLists::Chosen, this, [this] { Say({}); });
  connect(lists_, &LibraryLists::InstructorChosen, this, &ProfilesPage::InstructorChosen);
  connect(lists_, &LibraryLists::StudentChosen, this, &ProfilesPage::StudentList_Click);
  connect(lists_, &LibraryLists::VideoChosen, this, &ProfilesPage::VideoList_Click);
  connect(lists_, &LibraryLists::VideoActivated, commands_, &LibraryCommands::SendToAnalysis);
  connect(lists_, &LibraryLists::PlayWanted, this, [this] { videos_->VideoPlay1().TogglePlay(); });
  for (QWidget* list : {lists_->InstructorList(), lists_->StudentList(), lists_->VideoList()}) list->installEventFilter(this);
  using enum LibraryAction;
  GiveMenu(lists_->StudentList(), {RenameStudent, MoveStudent, DeleteStudent});
  GiveMenu(lists_->VideoList(), {SendToAnalysis, Trim, RenameVideo, MoveVideo, CopyVideo, DeleteVideo});
  connect(profilePanel_, &ProfilePanel::EditWanted, this, [this] { OpenEditor(true); });
  connect(profilePanel_, &ProfilePanel::BackWanted, this, [this] { ShowProfileView(false); });
  connect(profilePanel_, &ProfilePanel::Said, this, &ProfilesPage::Say);
  connect(editor_, &ProfileEditor::SaveWanted, this, &ProfilesPage::ProAddSaveBtn);
  connect(editor_, &ProfileEditor::CancelWanted, this, [this] {
    CloseEditor();
    Say({});
  });

  SetupVocabulary();
  SetupFields();
}

ProfilesPage::~ProfilesPage() = default;

// ---------------------------------------------------------------- building

Panel* ProfilesPage::MakeInstructorsPanel() {
  auto* panel = new Panel("InstructorsTitle", "Instructors");
  LeastWidth(panel, 136);
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
  renameInstructor_ = HeadButton("RenameInstructorBtn", {}, "rename");
  renameInstructor_->setToolTip("Rename the current instructor or database");
  deleteInstructor_ = HeadButton("DeleteInstructorBtn", {}, "trash");
  deleteInstructor_->setToolTip("Delete the current instructor or database, which must be empty");
  auto* tools = new QHBoxLayout;
  tools->setSpacing(0);
  for (Button* button : {renameInstructor_, deleteInstructor_}) {
    button->setAccessibleName(button->toolTip());
    tools->addWidget(button);
  }
  panel->Head()->addLayout(tools);
  connect(renameInstructor_, &QPushButton::clicked, this, [this] { commands_->RenameInstructor(); });
  connect(deleteInstructor_, &QPushButton::clicked, this, [this] { commands_->DeleteInstructor(); });
  connect(addInstructor_, &QPushButton::clicked, this, [this] { SSCommand2(); });
  connect(Text2_, &QLineEdit::returnPressed, this, [this] { SSCommand2(); });
  return panel;
}

Panel* ProfilesPage::MakeStudentsPanel() {
  auto* panel = new Panel("StudentsTitle", "Students");
  panel->Body()->addWidget(lists_->StudentList(), 1);
  using enum LibraryAction;
  MakeButton(AddStudent, "", "add");
  MakeButton(RenameStudent, "", "rename");
  MakeButton(MoveStudent, "", "move");
  MakeButton(DeleteStudent, "", "trash");
  MakeButton(LibraryAction::Profile, "", "notes");
  for (const LibraryAction action : {AddStudent, RenameStudent, MoveStudent, DeleteStudent, LibraryAction::Profile})
    panel->Foot()->addWidget(SPBtn(action));
  panel->Foot()->addStretch(1);
  SPBtn(LibraryAction::Profile)->setCheckable(true);
  return panel;
}

void ProfilesPage::MakeVideoButtons() {
  using enum LibraryAction;
  MakeButton(SendToAnalysis, "Analyze", "analyze");
  MakeButton(Trim, "", "trim");
  MakeButton(RenameVideo, "", "rename");
  MakeButton(MoveVideo, "", "move");
  MakeButton(CopyVideo, "", "copy");
  MakeButton(DeleteVideo, "", "trash");
  AddButton(Statistics, HeadButton("SPBtn11", Q(StatisticsCaption(false)), "stats"));
  MakeButton(QuickLaunch, "Quick Launch +", "");
  for (const LibraryAction action : {SendToAnalysis, Trim, RenameVideo, MoveVideo, CopyVideo, DeleteVideo})
    videos_->Foot()->addWidget(SPBtn(action));
  videos_->Foot()->addStretch(1);
  videos_->Foot()->addWidget(SPBtn(QuickLaunch));
  videos_->Head()->addWidget(SPBtn(Statistics));
}

void ProfilesPage::MakeButton(LibraryAction action, const char* caption, const char* icon) {
  AddButton(action, new Button(QString("SPBtn%1").arg(static_cast<int>(action)), caption, icon));
}

void ProfilesPage::AddButton(LibraryAction action, Button* button) {
  button->installEventFilter(this);
  connect(button, &QPushButton::clicked, this, [this, action] { SPBtn_Click(action); });
  buttons_[static_cast<std::size_t>(action)] = button;
}

/// The buttons beneath a list once more, where the right mouse button and the menu key look for them.
void ProfilesPage::GiveMenu(NameList* list, std::vector<LibraryAction> actions) {
  list->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(list, &QWidget::customContextMenuRequested, this, [this, list, actions = std::move(actions)](QPoint place) {
    if (list->selectedItems().isEmpty()) return;
    auto* menu = new QMenu(this);
    menu->setObjectName("ListMenu");
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const LibraryAction action : actions)
      menu->addAction(HoverText(action).chopped(1), this, [this, action] { SPBtn_Click(action); });
    menu->popup(list->viewport()->mapToGlobal(place));
  });
}

QString ProfilesPage::HoverText(LibraryAction action) const { return Q(LibraryActionTip(action, settings_)); }

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
  commands_->CloseTrim();
  videos_->VideoPlay1().Unload();
  shownVideo_.clear();
  return profilePanel_->SaveNotes();
}

/// Lets an operation have the student and the video.
bool ProfilesPage::Release() {
  if (!Leave()) return false;
  shownStudent_.clear();
  profilePanel_->OpenStudent("");
  return true;
}

void ProfilesPage::ShowResult(const OperationResult& result) {
  // Who has left the page meanwhile finds everything read anew on coming back.
  if (!isVisible()) return;
  restingMouse_ = QCursor::pos();
  const std::string folder = browser_.Folder();
  const std::string video = browser_.Video();
  const int row = browser_.VideoIndex();
  kinalyx::ShowResult(result, browser_);
  // Where a video has gone, the next one takes its place in the list.
  const bool gone = result.refill && !video.empty() && browser_.Folder() == folder && result.video.empty() &&
                    browser_.Video() != video;
  if (gone) browser_.VideoList_Click(std::min(row, static_cast<int>(browser_.VideoList().size()) - 1));
  if (result.refill) {
    lists_->ShowAll();
    return;
  }
  OpenProfile();
  VideoList_Click();
}

void ProfilesPage::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  Open();
  if (!focusWidget()) lists_->StudentList()->setFocus();
}

void ProfilesPage::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  Leave();
  ShowInstructorBox(false);
}

void ProfilesPage::SetupVocabulary() {
  students_->SetTitle(Q(vocabulary_.Nouns()));
  profilePanel_->SetupVocabulary();
  for (int index = 0; index < kLibraryActions; ++index) {
    const auto action = static_cast<LibraryAction>(index);
    SPBtn(action)->setToolTip(HoverText(action).chopped(1));
    SPBtn(action)->setAccessibleName(HoverText(action).chopped(1));
  }
}

void ProfilesPage::SetupFields() {
  profilePanel_->Fields().SetCaptions(fields_.Captions());
  OpenProfile();
}

void ProfilesPage::Say(const QString& text) {
  said_ = text;
  SPDisplay_->setText(text);
  SPDisplay_->repaint();  // what is told before a piece of work is seen while it goes on
}

bool ProfilesPage::eventFilter(QObject* object, QEvent* event) {
  if (object == Text2_ && event->type() == QEvent::KeyPress &&
      static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
    ShowInstructorBox(false);
    Say({});
    lists_->InstructorList()->setFocus();
    return true;
  }
  if (event->type() == QEvent::KeyPress && ListKey(object, static_cast<QKeyEvent*>(event)->key())) return true;
  const auto button = std::find(buttons_.begin(), buttons_.end(), object);
  if (button != buttons_.end() && IsHover(*event))
    SPDisplay_->setText(HoverText(static_cast<LibraryAction>(button - buttons_.begin())));
  if (button != buttons_.end() && (event->type() == QEvent::Leave || event->type() == QEvent::FocusOut))
    SPDisplay_->setText(said_);
  return QWidget::eventFilter(object, event);
}

/// The mouse that finds itself over a button because a dialog has gone, or the keys that come back to it,
/// do not wipe out how the operation went.
bool ProfilesPage::IsHover(const QEvent& event) const {
  if (event.type() == QEvent::Enter) return restingMouse_ != QCursor::pos();
  return event.type() == QEvent::FocusIn &&
         static_cast<const QFocusEvent&>(event).reason() != Qt::ActiveWindowFocusReason;
}

/// F2 and Delete in a list are about what is chosen in it.
bool ProfilesPage::ListKey(QObject* list, int key) {
  // Under the open editor nothing is pulled away.
  if ((key != Qt::Key_F2 && key != Qt::Key_Delete) || !editor_->isHidden()) return false;
  const bool rename = key == Qt::Key_F2;
  if (list == lists_->InstructorList()) {
    if (rename) commands_->RenameInstructor();
    else commands_->DeleteInstructor();
  } else if (list == lists_->StudentList()) {
    commands_->Run(rename ? LibraryAction::RenameStudent : LibraryAction::DeleteStudent);
  } else if (list == lists_->VideoList()) {
    commands_->Run(rename ? LibraryAction::RenameVideo : LibraryAction::DeleteVideo);
  } else {
    return false;
  }
  return true;
}

void ProfilesPage::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && profilePanel_->CurrentView() == ProfilePanel::View::Complete) {
    ShowProfileView(false);
  } else if (event->key() == Qt::Key_F5) {
    browser_.Drives().TryAgain(settings_.LibraryPath);
    browser_.Refresh();
    lists_->ShowAll();
  } else {
    QWidget::keyPressEvent(event);
  }
}

// ---------------------------------------------------------------- choices

void ProfilesPage::InstructorChosen() {
  SPBtn(LibraryAction::QuickLaunch)->setText(Q(QuickLaunchCaption(browser_.Instructor())));
  const bool own = !browser_.IsGeneralFolder() && !browser_.IsQuickLaunch();
  renameInstructor_->setEnabled(own && editor_->isHidden());
  deleteInstructor_->setEnabled(own && editor_->isHidden());
  if (editor_->isHidden()) return;
  editor_->SetInstructor(browser_.IsGeneralFolder() ? std::string() : browser_.Instructor());
  editor_->FocusName();
}

void ProfilesPage::StudentList_Click() {
  videos_->SetCount(static_cast<int>(browser_.VideoList().size()));
  OpenProfile();
}

void ProfilesPage::OpenProfile() {
  std::string folder = browser_.HasStudent() ? browser_.Folder() : std::string();
  if (!folder.empty() && !LibraryAnswers(folder)) folder.clear();
  profile_ = folder.empty() ? Profile() : kinalyx::OpenProfile(folder, fields_.Captions());
  if (!folder.empty()) profile_.values[kVideosOnFileField] = std::to_string(browser_.VideoList().size());
  profilePanel_->Fields().SetValues(profile_.values);
  // Notes that are being typed are not read anew when only a caption or a list has changed.
  if (folder == shownStudent_ && !folder.empty()) return;
  shownStudent_ = folder;
  profilePanel_->OpenStudent(folder);
  if (folder.empty() && profilePanel_->CurrentView() == ProfilePanel::View::Complete) ShowProfileView(false);
}

bool ProfilesPage::LibraryAnswers(const std::string& path) {
  return services_.host.Drives().Answers(settings_.LibraryPath, path);
}

void ProfilesPage::VideoList_Click() {
  const std::string path = browser_.VideoPath();
  if (path == shownVideo_ && !path.empty()) return;
  commands_->CloseTrim();
  shownVideo_ = path;
  question_.Stop();
  if (videos_->ShowVideo(path)) return;
  // Asked when the click is over: a box that opens under a pressed mouse button leaves the list dragging.
  question_ = HostTimer(services_.host, 0, false, [this, path] { OfferToDelete(path); });
}

void ProfilesPage::OfferToDelete(const std::string& path) {
  if (!LibraryAnswers(path)) return;
  if (!FileExists(path)) {
    // Somebody else has renamed, moved or deleted it: there is nothing to delete, its sidecar least of all.
    browser_.Refresh();
    lists_->ShowAll();
    return;
  }
  const FileState state{path, FileSize(path), FileTime(path)};
  if (keptBadVideos_.contains(state)) return;
  if (!services_.host.Question("Delete Bad Video",
                               "The selected video appears to be corrupt. Would you like to delete it?")) {
    keptBadVideos_.insert(state);
    return;
  }
  if (!operations_.DeleteVideo({browser_.Instructor(), browser_.Student(), path}).done) return;
  browser_.StudentList_Click(browser_.StudentIndex());
  lists_->ShowVideos();
}

// ---------------------------------------------------------------- commands

void ProfilesPage::SPBtn_Click(LibraryAction action) {
  switch (action) {
    case LibraryAction::AddStudent: OpenEditor(false); break;
    case LibraryAction::Profile: ShowProfileView(profilePanel_->CurrentView() != ProfilePanel::View::Complete); break;
    case LibraryAction::Statistics:
      videos_->ShowStatsPanel(!videos_->StatsShown());
      SPBtn(action)->setText(Q(StatisticsCaption(videos_->StatsShown())));
      break;
    default: commands_->Run(action); break;
  }
}

void ProfilesPage::ShowProfileView(bool shown) {
  if (shown && !browser_.HasStudent()) {
    SPBtn(LibraryAction::Profile)->setChecked(false);
    Say(Q(vocabulary_.MustSelect()));
    return;
  }
  SPBtn(LibraryAction::Profile)->setChecked(shown);
  if (shown) videos_->VideoPlay1().Control().StopPlay();
  commands_->CloseTrim();
  videos_->setVisible(!shown);
  profilePanel_->SetView(shown ? ProfilePanel::View::Complete : ProfilePanel::View::Brief);
  if (shown) {
    grid_->addWidget(instructors_, 0, 0, 2, 1);
    grid_->addWidget(students_, 0, 1, 2, 1);
    grid_->addWidget(profilePanel_, 0, 2, 2, 1);
    profilePanel_->FocusNotes();
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
  commands_->CloseTrim();
  profilePanel_->SaveNotes();
  lists_->InstructorList()->setEnabled(!edit);
  addInstructor_->setEnabled(!edit);
  for (QWidget* part : {static_cast<QWidget*>(students_), static_cast<QWidget*>(videos_),
                        static_cast<QWidget*>(profilePanel_)})
    part->hide();
  grid_->addWidget(editor_, 0, 1, 2, 2);
  editor_->show();
  renameInstructor_->setEnabled(false);
  deleteInstructor_->setEnabled(false);
  if (!edit) editor_->FocusName();
  Say({});
}

void ProfilesPage::CloseEditor() {
  editor_->hide();
  grid_->removeWidget(editor_);
  InstructorChosen();
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
    if (!LibraryAnswers(editedFolder_)) return Say(Q(SilentLibraryText(settings_.LibraryPath)));
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
  const OperationResult added = operations_.AddStudent(instructor, fields_.Captions(), values);
  if (added.done) {
    CloseEditor();
    ShowResult(added);
  }
  Say(Q(added.status));
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
  const OperationResult added = operations_.AddInstructor(name);
  if (added.done) {
    ShowInstructorBox(false);
    LastStudent_ = {added.instructor, "", browser_.Tree().InstructorFolder(added.instructor)};
    kinalyx::ShowResult(added, browser_);
    editor_->SetInstructors(RealInstructors());  // what has been typed into the panel stays
    lists_->ShowAll();
  }
  Say(Q(added.status));
}

}  // namespace kinalyx
