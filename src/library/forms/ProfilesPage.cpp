#include "library/forms/ProfilesPage.h"

#include <QApplication>
#include <QBoxLayout>
#include <QClipboard>
#include <QGridLayout>
#include <QKeyEvent>
#include <QPointer>
#include <QShortcut>
#include <algorithm>
#include <utility>

#include "library/LibraryReading.h"
#include "library/forms/DeviceBar.h"
#include "library/forms/FieldGrid.h"
#include "library/forms/InstructorsPanel.h"
#include "library/forms/LibraryButtons.h"
#include "library/forms/LibraryLists.h"
#include "library/forms/ProfileEditor.h"
#include "library/forms/ProfilePanel.h"
#include "library/forms/SearchBar.h"
#include "library/forms/StatusLine.h"
#include "library/forms/VideoRows.h"
#include "library/forms/VideosPanel.h"
#include "platform/files/Folders.h"
#include "platform/files/Tr.h"
#include "platform/host/DriveWatch.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/FileDrop.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

ProfilesPage::ProfilesPage(PlayerServices& services, IPrinter& printer, Settings& settings, ProfileFields& fields,
                           LastStudentInfo& remembered, LibraryOperations& operations, QWidget* parent,
                           DeviceWatch::Environment devices, GlanceStore glances)
    : PageWidget(parent),
      services_(services),
      settings_(settings),
      vocabulary_(settings),
      fields_(fields),
      LastStudent_(remembered),
      operations_(operations),
      browser_(services.host.Drives(), settings, remembered, LibraryBrowser::Kind::Profiles),
      choices_(JoinPath(settings.DataPath, "lists.ini")),
      badVideos_(services.host, settings, operations),
      lists_(new LibraryLists(browser_, settings, this)) {
  setObjectName("ProfilesPage");
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(14, 14, 14, 14);
  rows->setSpacing(kGap);
  grid_ = new QGridLayout;
  grid_->setSpacing(kGap);
  grid_->setColumnStretch(0, 3);
  grid_->setColumnStretch(1, 3);
  grid_->setColumnStretch(2, 10);
  grid_->setRowStretch(0, 1);

  status_ = new StatusLine("SPDisplay");
  buttons_ = new LibraryButtons(settings, *status_, this);
  instructors_ = new InstructorsPanel(lists_->InstructorList());
  students_ = new Panel("StudentsTitle", tr("Students"));
  videos_ = new VideosPanel(services, settings, choices_, lists_->VideoList());
  rows_ = new VideoRows(services.host, devices.send, browser_, *lists_->VideoList(), std::move(glances));
  lists_->VideoList()->setSelectionMode(QAbstractItemView::ExtendedSelection);
  lists_->VideoList()->LetDrag();
  profilePanel_ = new ProfilePanel(services.host, printer, settings);
  rows->addLayout(grid_, 1);
  const DriveWatch::Send send = devices.send;
  editor_ = new ProfileEditor(settings, this);
  editor_->hide();
  grid_->addWidget(instructors_, 0, 0);
  grid_->addWidget(students_, 0, 1);
  grid_->addWidget(videos_, 0, 2);
  grid_->addWidget(profilePanel_, 1, 0, 1, 3);
  devices_ = new DeviceBar(services.host, settings, std::move(devices), this);
  grid_->addWidget(devices_, 2, 0, 1, 3);
  grid_->addWidget(status_, 3, 0, 1, 3);
  // The lists come before it for the Tab key, and have the keys first.
  search_ = new SearchBar(services.host, send, settings.LibraryPath, fields, this);
  rows->insertWidget(0, search_);

  commands_ = new LibraryCommands(services.host, settings, operations, browser_, choices_, *videos_, *this, this);
  PlaceButtons();
  ConnectParts();
  browser_.SetSort(choices_.Sort());
  rows_->SetByLength(choices_.Sort().by == VideoSort::By::Length, choices_.Sort().turned);
  SetupVocabulary();
  SetupFields();
}

ProfilesPage::~ProfilesPage() = default;

void ProfilesPage::PlaceButtons() {
  using enum LibraryAction;
  students_->Body()->addWidget(lists_->StudentList(), 1);
  buttons_->Place({AddStudent, RenameStudent, MoveStudent, DeleteStudent, LibraryAction::Profile}, students_->Foot());
  students_->Foot()->addStretch(1);
  buttons_->Place({SendToAnalysis, Trim, RenameVideo, MoveVideo, CopyVideo, DeleteVideo}, videos_->Foot());
  videos_->Foot()->addStretch(1);
  buttons_->Place({QuickLaunch}, videos_->Foot());
  buttons_->Place({Statistics}, videos_->Head());
  buttons_->GiveMenu(lists_->StudentList(), {RenameStudent, MoveStudent, DeleteStudent});
  buttons_->GiveMenu(lists_->VideoList(), {SendToAnalysis, Trim, RenameVideo, MoveVideo, CopyVideo, DeleteVideo});
}

void ProfilesPage::ConnectParts() {
  connect(lists_, &LibraryLists::Leaving, this, [this](bool& may) { may = profilePanel_->LeaveNotes(); });
  connect(lists_, &LibraryLists::Chosen, this, [this] { Say({}); });
  connect(lists_, &LibraryLists::InstructorChosen, this, &ProfilesPage::InstructorChosen);
  connect(lists_, &LibraryLists::StudentChosen, this, &ProfilesPage::StudentList_Click);
  connect(lists_, &LibraryLists::VideoChosen, this, &ProfilesPage::VideoList_Click);
  connect(lists_, &LibraryLists::VideoActivated, commands_, &LibraryCommands::SendToAnalysis);
  connect(lists_->VideoList(), &QListWidget::clicked, this, &ProfilesPage::OfferBadVideo);
  connect(lists_, &LibraryLists::PlayWanted, this, [this] { videos_->VideoPlay1().TogglePlay(); });
  for (QWidget* list : {lists_->InstructorList(), lists_->StudentList(), lists_->VideoList()})
    list->installEventFilter(this);
  connect(buttons_, &LibraryButtons::Wanted, this, &ProfilesPage::SPBtn_Click);
  connect(search_, &SearchBar::Wanted, this, &ProfilesPage::GoTo);
  connect(search_, &SearchBar::Left, lists_->StudentList(), [list = lists_->StudentList()] { list->setFocus(); });
  auto* find = new QShortcut(QKeySequence::Find, this);
  find->setContext(Qt::WidgetWithChildrenShortcut);
  connect(find, &QShortcut::activated, search_, &SearchBar::FocusBox);
  rows_->SetPictures(videos_->PicturesAreShown());
  connect(videos_, &VideosPanel::PicturesShown, rows_, &VideoRows::SetPictures);
  connect(videos_, &VideosPanel::SortChanged, this, &ProfilesPage::SortVideos);
  connect(rows_, &VideoRows::Arranged, this, [this] {
    lists_->ShowOrder();
    rows_->Show();
  });
  connect(videos_, &VideosPanel::AddWanted, commands_, [this] { commands_->AddVideos(); });
  connect(videos_, &VideosPanel::FolderWanted, commands_, &LibraryCommands::ShowFolder);
  connect(devices_, &DeviceBar::ShowWanted, this, &ProfilesPage::ShowDevice);
  connect(devices_, &DeviceBar::AddWanted, this, &ProfilesPage::AddFromDevice);
  auto* drop = new FileDrop(this);
  connect(drop, &FileDrop::Dropped, this, &ProfilesPage::TakeDropped);
  connect(drop, &FileDrop::Over, this, &ProfilesPage::ShowDropTarget);
  connect(drop, &FileDrop::Left, this, [this] { Say({}); });
  connect(instructors_, &InstructorsPanel::AddWanted, this, &ProfilesPage::AddInstructor);
  connect(instructors_, &InstructorsPanel::AddCancelled, this, [this] { Say({}); });
  connect(instructors_, &InstructorsPanel::RenameWanted, commands_, &LibraryCommands::RenameInstructor);
  connect(instructors_, &InstructorsPanel::DeleteWanted, commands_, &LibraryCommands::DeleteInstructor);
  connect(profilePanel_, &ProfilePanel::EditWanted, this, [this] { OpenEditor(true); });
  connect(profilePanel_, &ProfilePanel::BackWanted, this, [this] { ShowProfileView(false); });
  connect(profilePanel_, &ProfilePanel::Said, this, &ProfilesPage::Say);
  connect(editor_, &ProfileEditor::SaveWanted, this, &ProfilesPage::ProAddSaveBtn);
  connect(editor_, &ProfileEditor::CancelWanted, this, &ProfilesPage::CancelEditor);
}

// ---------------------------------------------------------------- life of the page

void ProfilesPage::Open() {
  // An instructor that was chosen without a student is still chosen on coming back.
  const bool keep = !editor_->isHidden() || (browser_.InstructorIndex() > 0 && !browser_.HasStudent());
  browser_.Return(keep);
  shownStudent_.clear();
  shownVideo_.clear();
  lists_->ShowAll();
  devices_->Start();
  Say({});
  if (!focusWidget()) (browser_.HasStudent() ? lists_->StudentList() : lists_->InstructorList())->setFocus();
}

bool ProfilesPage::Leave() {
  if (!CloseVideo()) return false;
  instructors_->ShowNameBox(false);
  devices_->Stop();
  rows_->Stop();
  return true;
}

bool ProfilesPage::SaveLastNotes() {
  profilePanel_->SaveNotes();
  return !profilePanel_->HasUnsavedNotes();
}

void ProfilesPage::SaveUnasked() {
  SaveLastNotes();
  if (editor_->isHidden() || !editor_->Changed()) return;
  FieldTexts values = editor_->Values();
  const std::string place = editor_->IsNew() ? browser_.Tree().InstructorFolder(editor_->Instructor()) : editedFolder_;
  if (!LibraryAnswers(place)) return;
  if (!editor_->IsNew()) {
    (void)SaveProfile(place, fields_, values, editor_->Opened());
  } else if (!editor_->Instructor().empty()) {
    values[kNameField] = WithoutOuterBlanks(values[kNameField]);
    (void)kinalyx::AddStudent(place, fields_.Captions(), values, vocabulary_.noun());
  }
  CloseEditor();
}

bool ProfilesPage::MayClose() { return editor_->isHidden() || MayDropEdits(); }

/// Stores the notes and closes the preview.
bool ProfilesPage::CloseVideo() {
  if (!profilePanel_->SaveNotes()) return false;
  commands_->CloseTrim();
  videos_->VideoPlay1().Unload();
  shownVideo_.clear();
  return true;
}

/// Lets an operation have the student and the video.
bool ProfilesPage::Release() {
  if (!CloseVideo()) return false;
  shownStudent_.clear();
  profilePanel_->OpenStudent("");
  return true;
}

void ProfilesPage::ShowResult(const OperationResult& result) {
  devices_->AddingEnded(result.Done());
  // A page that has been left meanwhile reads everything anew when it is opened again.
  if (!isVisible()) return;
  status_->Rest();
  kinalyx::ShowResult(result, browser_);
  if (result.refill) {
    lists_->ShowAll();
    return;
  }
  OpenProfile();
  VideoList_Click();
}

void ProfilesPage::SetupVocabulary() {
  students_->SetTitle(Q(vocabulary_.Nouns()));
  profilePanel_->SetupVocabulary();
  buttons_->SetupVocabulary();
}

void ProfilesPage::SetupFields() {
  profilePanel_->Fields().SetCaptions(ShownCaptions(fields_.Captions()));
  OpenProfile();
  if (!editor_->isHidden())
    editor_->Rename(ShownCaptions(fields_.Captions()), editor_->IsNew() ? FieldTexts{} : profile_.Stored());
}

void ProfilesPage::Say(const QString& text) { status_->Say(text); }

bool ProfilesPage::eventFilter(QObject* object, QEvent* event) {
  if (event->type() == QEvent::KeyPress && ListKey(object, static_cast<QKeyEvent*>(event)->key())) return true;
  return QWidget::eventFilter(object, event);
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

void ProfilesPage::ShowDevice() {
  if (!browser_.HasStudent()) return Say(Q(vocabulary_.MustSelect()));
  devices_->ShowVideos(browser_.Student());
}

void ProfilesPage::AddFromDevice(const std::vector<std::string>& paths) {
  commands_->AddVideos(paths, browser_.Student());
  if (!operations_.Busy()) devices_->AddingEnded(false);  // it was refused, or notes could not be stored
}

void ProfilesPage::TakeDropped(const std::vector<std::string>& paths, QPoint at) {
  Say({});
  const std::string student = StudentAt(at);
  // A drag that ends in the list in which it began is none.
  const std::vector<std::string> here = browser_.VideoPaths();
  const bool own =
      std::ranges::all_of(paths, [&](const std::string& path) { return std::ranges::find(here, path) != here.end(); });
  if (!own || student != browser_.Student()) commands_->AddVideos(paths, student);
}

void ProfilesPage::ShowDropTarget(QPoint at) {
  const std::string student = StudentAt(at);
  if (!student.empty()) Say(tr("Drop to copy the videos to %1.").arg(Q(student)));
  else if (browser_.IsGeneralFolder() || browser_.IsQuickLaunch())
    Say(tr("Drop to copy the videos to %1.").arg(Q(ShownInstructor(browser_.Instructor()))));
  else Say(tr("Drop the videos on the name of a %1.").arg(Q(vocabulary_.noun())));
}

std::string ProfilesPage::StudentAt(QPoint at) const {
  NameList* students = lists_->StudentList();
  const QPoint inList = students->viewport()->mapFrom(this, at);
  const QListWidgetItem* student = students->viewport()->rect().contains(inList) ? students->itemAt(inList) : nullptr;
  return student ? Std(student->text()) : browser_.Student();
}

void ProfilesPage::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Paste)) {
    const auto paths = FilesIn(QGuiApplication::clipboard()->mimeData());
    if (!paths.empty()) commands_->AddVideos(paths, browser_.Student());
    return;
  }
  if (event->key() == Qt::Key_Escape && !editor_->isHidden()) {
    CancelEditor();
  } else if (event->key() == Qt::Key_Escape && profilePanel_->CurrentView() == ProfilePanel::View::Complete) {
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
  buttons_->At(LibraryAction::QuickLaunch)->setText(Q(QuickLaunchCaption(browser_.Instructor())));
  instructors_->SetChangeable(!browser_.IsGeneralFolder() && !browser_.IsQuickLaunch() && editor_->isHidden());
  if (editor_->isHidden()) return;
  editor_->SetInstructor(browser_.IsGeneralFolder() ? std::string() : browser_.Instructor());
  editor_->FocusFirst();
}

void ProfilesPage::StudentList_Click() {
  videos_->SetCount(static_cast<int>(browser_.VideoList().size()));
  rows_->Show();
  OpenProfile();
}

void ProfilesPage::SortVideos() {
  const VideoSort sort = choices_.Sort();
  browser_.SortVideos(sort);
  lists_->ShowOrder();
  rows_->SetByLength(sort.by == VideoSort::By::Length, sort.turned);
  rows_->Show();
}

void ProfilesPage::OpenProfile() {
  std::string folder = browser_.HasStudent() ? browser_.Folder() : std::string();
  if (!folder.empty() && !LibraryAnswers(folder)) folder.clear();
  profile_ = folder.empty() ? Profile() : kinalyx::OpenProfile(folder, fields_);
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
  shownOpens_ = videos_->ShowVideo(path);
}

/// Only a click is taken as the wish to do something about a video that cannot be opened. Who comes by with the keys
/// reads of it in the place of its picture.
void ProfilesPage::OfferBadVideo() {
  if (shownOpens_ || shownVideo_ != browser_.VideoPath()) return;
  const QPointer<QWidget> keys = QApplication::focusWidget();
  if (badVideos_.Offer(ChosenVideo(browser_)) != BadVideos::Fate::Kept) {
    browser_.Refresh();
    lists_->ShowAll();
  }
  // The keys return to the list in which the video was chosen.
  if (!isVisible()) return;
  if (keys && keys->isVisible() && isAncestorOf(keys)) keys->setFocus();
  else lists_->VideoList()->setFocus();
}

/// Goes to what was found, as if it had been chosen in the lists.
void ProfilesPage::GoTo(const SearchHit& hit) {
  using Kind = SearchHit::Kind;
  if (!editor_->isHidden()) {
    if (!MayDropEdits()) return;
    CloseEditor();
  }
  if (!profilePanel_->LeaveNotes()) return;
  browser_.Refresh();
  const bool there = browser_.SelectInstructor(hit.instructor) &&
                     (hit.student.empty() || browser_.SelectStudent(hit.student)) &&
                     (hit.video.empty() || browser_.SelectVideo(hit.video));
  lists_->ShowAll();
  NameList* const list = !hit.video.empty()     ? lists_->VideoList()
                         : !hit.student.empty() ? lists_->StudentList()
                                                : lists_->InstructorList();
  ShowProfileView(there && (hit.kind == Kind::StudentNotes || hit.kind == Kind::Field));
  list->setFocus();
  list->scrollToItem(list->currentItem());
  Say(there ? QString() : tr("It is not there any more."));
}

// ---------------------------------------------------------------- commands

void ProfilesPage::SPBtn_Click(LibraryAction action) {
  switch (action) {
    case LibraryAction::AddStudent: OpenEditor(false); break;
    case LibraryAction::Profile: ShowProfileView(profilePanel_->CurrentView() != ProfilePanel::View::Complete); break;
    case LibraryAction::Statistics:
      videos_->ShowStatsPanel(!videos_->StatsShown());
      buttons_->At(action)->setText(Q(StatisticsCaption(videos_->StatsShown())));
      break;
    default: commands_->Run(action); break;
  }
}

void ProfilesPage::ShowProfileView(bool shown) {
  if (shown && !browser_.HasStudent()) {
    buttons_->At(LibraryAction::Profile)->setChecked(false);
    Say(Q(vocabulary_.MustSelect()));
    return;
  }
  buttons_->At(LibraryAction::Profile)->setChecked(shown);
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
    editedFolder_ = browser_.Folder();
    editor_->OpenEdit(ShownCaptions(fields_.Captions()), profile_.Stored());
  } else {
    editor_->OpenNew(ShownCaptions(fields_.Captions()));
    editor_->SetInstructors(RealInstructors());
    editor_->SetInstructor(browser_.IsGeneralFolder() ? std::string() : browser_.Instructor());
  }
  videos_->VideoPlay1().Control().StopPlay();
  commands_->CloseTrim();
  profilePanel_->SaveNotes();
  instructors_->SetUsable(!edit);
  instructors_->SetChangeable(false);
  for (QWidget* part :
       {static_cast<QWidget*>(students_), static_cast<QWidget*>(videos_), static_cast<QWidget*>(profilePanel_)})
    part->hide();
  grid_->addWidget(editor_, 0, 1, 2, 2);
  editor_->show();
  editor_->FocusFirst();
  Say({});
}

bool ProfilesPage::MayDropEdits() {
  return !editor_->Changed() ||
         services_.host.Question(
             Std(editor_->Title()),
             Tr("What you have typed has not been saved. Do you want to close the form without saving it?"));
}

void ProfilesPage::CancelEditor() {
  if (!MayDropEdits()) return;
  CloseEditor();
  Say({});
}

void ProfilesPage::CloseEditor() {
  editor_->hide();
  grid_->removeWidget(editor_);
  InstructorChosen();
  instructors_->SetUsable(true);
  students_->show();
  profilePanel_->show();
  videos_->setVisible(profilePanel_->CurrentView() != ProfilePanel::View::Complete);
  lists_->StudentList()->setFocus();
}

void ProfilesPage::ProAddSaveBtn() {
  const FieldTexts values = editor_->Values();
  if (!editor_->IsNew()) {
    if (!LibraryAnswers(editedFolder_)) return Say(Q(SilentLibraryText(settings_.LibraryPath)));
    if (!SaveProfile(editedFolder_, fields_, values, editor_->Opened())) {
      Say(tr("An error has occurred while editing the profile"));
      return;
    }
    CloseEditor();
    OpenProfile();
    Say(tr("%1 profile successfully updated.").arg(Q(vocabulary_.Noun())));
    return;
  }
  const std::string instructor = editor_->Instructor();
  if (instructor.empty()) {
    Say(tr("You must select an Instructor or Database first."));
    return;
  }
  const OperationResult added = operations_.AddStudent(instructor, fields_.Captions(), values);
  if (added.Done()) {
    CloseEditor();
    ShowResult(added);
  }
  Say(Q(added.Status()));
}

void ProfilesPage::AddInstructor(const QString& name) {
  const OperationResult added = operations_.AddInstructor(Std(name));
  if (added.Done()) {
    instructors_->ShowNameBox(false);
    LastStudent_ = {added.instructor, "", browser_.Tree().InstructorFolder(added.instructor)};
    kinalyx::ShowResult(added, browser_);
    editor_->SetInstructors(RealInstructors());  // what has been typed into the panel stays
    lists_->ShowAll();
  }
  Say(Q(added.Status()));
}

}  // namespace kinalyx
