#include "library/forms/OpenVidForm.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>

#include "core/Vocabulary.h"
#include "library/BadVideos.h"
#include "library/LibraryReading.h"
#include "library/OpenVideo.h"
#include "library/forms/Divider.h"
#include "library/forms/LibraryLists.h"
#include "library/forms/PreviewPlayer.h"
#include "library/forms/SidecarMarkLabels.h"
#include "library/forms/VideoRows.h"
#include "platform/files/Tr.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/Figures.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

// ---------------------------------------------------------------- shared parts

OpenVideoParts::OpenVideoParts(PlayerServices& services, const Settings& settings, LastStudentInfo& remembered,
                               IOpenVideo& opener, QWidget* parent)
    : QFrame(parent),
      host_(services.host),
      settings_(settings),
      browser_(services.host.Drives(), settings, remembered, LibraryBrowser::Kind::OpenVideo),
      opener_(opener) {
  setProperty("look", "panel");
  lists_ = new LibraryLists(browser_, settings, this);
  students_ = MakeLabel("StudentHeading", {}, "heading");
  lists_->VideoList()->setSelectionMode(QAbstractItemView::ExtendedSelection);
  lists_->VideoList()->LetDrag();
  lists_->VideoList()->setToolTip(tr("Ctrl and Shift with a click choose several; they can be dragged to a window"));
  preview_ = new PreviewPlayer(services);
  rows_ = new VideoRows(services.host, DriveWatch::SendWorker, browser_, *lists_->VideoList());
  marks_ = new SidecarMarkLabels;
  count_ = new FigureLabel("VideoCount");
  count_->setProperty("look", "caption");
  buttons_[0] = new Button("CmdOpenVideo0", tr("Open"), "open");
  buttons_[1] = new Button("CmdOpenVideo1", tr("Done"), {}, Look::Quiet);
  buttons_[2] = new Button("CmdOpenVideo2", tr("Undo Last Open"), {}, Look::Quiet);
  disk_ = new Button("OpenFromDiskBtn", tr("From Disk..."), {}, Look::Quiet);
  disk_->setToolTip(tr("Opens videos that lie anywhere, as they lie: nothing is copied to the library"));
  connect(disk_, &QPushButton::clicked, this, [this] { NoteOpened(opener_.PickAndOpen()); });
  for (int index = 0; index < 3; ++index)
    connect(buttons_[index], &QPushButton::clicked, this, [this, index] { CmdOpenVideo_Click(index); });
  connect(lists_, &LibraryLists::StudentChosen, this, &OpenVideoParts::VidCountUpdate);
  connect(lists_, &LibraryLists::VideoChosen, this, &OpenVideoParts::VideoList_Click);
  connect(lists_, &LibraryLists::VideoActivated, this, [this] { CmdOpenVideo_Click(0); });
  connect(lists_, &LibraryLists::PlayWanted, this, [this] { preview_->TogglePlay(); });
  SettingsChanged();
}

OpenVideoParts::~OpenVideoParts() = default;

void OpenVideoParts::Open() {
  opened_ = 0;
  Return();
  QWidget* const wanted = browser_.HasVideo() ? lists_->VideoList() : lists_->InstructorList();
  wanted->setFocus();
}

void OpenVideoParts::Return() {
  browser_.Return();
  lists_->ShowAll();
}

void OpenVideoParts::Leave() {
  preview_->Unload();
  rows_->Stop();
}

void OpenVideoParts::NoteOpened(int videos) {
  opened_ += videos;
  ShowButtons();
}

void OpenVideoParts::SettingsChanged() {
  students_->setText(Q(Vocabulary(settings_).Nouns()));
  ShowButtons();
}

void OpenVideoParts::VideoList_Click() {
  const std::string path = browser_.VideoPath();
  std::optional<SidecarMarks> marks;
  if (!path.empty()) marks = AskVideoMarks(browser_.Drives(), browser_.Tree().Root(), path);
  if (!marks) preview_->Unload();
  else if (!preview_->Load(path)) preview_->ShowWords(Q(BadVideoText(false)));
  marks_->Show(marks.value_or(SidecarMarks()));
  ShowButtons();
}

void OpenVideoParts::VidCountUpdate() {
  rows_->Show();
  const auto count = browser_.VideoList().size();
  count_->setText(count ? QString::number(count) : QString());
}

void OpenVideoParts::ShowButtons() {
  buttons_[0]->setEnabled(browser_.HasVideo());
  const Vocabulary words(settings_);
  buttons_[2]->setText(ShortGame() ? tr("Load %1 Files").arg(Q(words.Noun())) : tr("Undo Last Open"));
  buttons_[2]->setEnabled(ShortGame() ? IsShortGameName(browser_.Video()) : opened_ > 0);
  buttons_[2]->setToolTip(
      ShortGame() ? tr("Opens what belongs together with a distance wedge, chip, bunker or putting video") : "");
}

void OpenVideoParts::CmdOpenVideo_Click(int Index) {
  if (preview_->Control().IsPlaying()) preview_->TogglePlay();
  switch (Index) {
    case 0: OpenChosen(); break;
    case 1: opener_.OpenVideoDone(); return;
    case 2:
      if (ShortGame()) {
        OpenFamily();
      } else if (opened_ > 0) {
        --opened_;
        opener_.UndoLastOpen();
      }
      break;
    default: break;
  }
  ShowButtons();
}

void OpenVideoParts::OpenChosen() {
  if (!browser_.HasVideo()) return;
  if (const std::vector<int> rows = lists_->VideoList()->ChosenRows(); rows.size() > 1) return OpenSeveral(rows);
  const std::string path = browser_.VideoPath();
  if (!browser_.Drives().Answers(browser_.Tree().Root(), path))
    return host_.Message(MessageKind::Warning, "",
                         Tr("The drive with this video is not answering. The video was not opened."));
  if (opener_.OpenVideo(path)) ++opened_;
}

/// Several that are chosen come into successive windows.
void OpenVideoParts::OpenSeveral(const std::vector<int>& rows) {
  std::vector<std::string> paths;
  for (const int row : rows) paths.push_back(browser_.VideoPathAt(row));
  if (!browser_.Drives().Answers(browser_.Tree().Root(), paths.front()))
    return host_.Message(MessageKind::Warning, "",
                         Tr("The drive with these videos is not answering. They were not opened."));
  opened_ += opener_.OpenFamily(paths);
}

void OpenVideoParts::OpenFamily() {
  const auto family = [folder = browser_.Folder(), video = browser_.Video()] { return ShortGameFamily(folder, video); };
  const auto paths = browser_.Drives().Ask(browser_.Tree().Root(), family);
  if (!paths)
    return host_.Message(MessageKind::Warning, "",
                         Tr("The drive with these videos is not answering. They were not opened."));
  if (paths->empty())
    return host_.Message(
        MessageKind::Warning, "",
        Tr("There are no videos here with the names that belong together with \"{}\".", browser_.Video()));
  opener_.OpenFamily(*paths);
}

void OpenVideoParts::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    CmdOpenVideo_Click(1);
  } else {
    QFrame::keyPressEvent(event);
  }
}

// ---------------------------------------------------------------- arrangements

namespace {

/// A list under its heading.
QWidget* Headed(QLabel* title, QWidget* list, QWidget* right = nullptr) {
  auto* part = new QWidget;
  auto* rows = new QVBoxLayout(part);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(0);
  auto* head = MakeFrame("strip");
  FixHeight(head, 26);
  auto* row = new QHBoxLayout(head);
  row->setContentsMargins(kGap, 0, kGap, 0);
  row->addWidget(title, 1);
  if (right) row->addWidget(right);
  rows->addWidget(head);
  rows->addWidget(list, 1);
  return part;
}

QLabel* Heading(const QString& title) { return MakeLabel({}, title, "heading"); }

}  // namespace

OpenVidForm::OpenVidForm(PlayerServices& services, const Settings& settings, LastStudentInfo& remembered,
                         IOpenVideo& opener, QWidget* parent)
    : OpenVideoParts(services, settings, remembered, opener, parent) {
  setObjectName("OpenVidForm");
  LeastWidth(this, 250);
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(1, 1, 1, 1);
  rows->setSpacing(0);
  for (NameList* list : {lists_->InstructorList(), lists_->StudentList(), lists_->VideoList()}) LeastHeight(list, 62);
  // Three instructors and four of the others can be seen in the smallest window, and a picture beneath them.
  rows->addWidget(Headed(Heading(tr("Instructors")), lists_->InstructorList()), 10);
  rows->addWidget(Headed(students_, lists_->StudentList()), 12);
  rows->addWidget(Headed(Heading(tr("Videos")), lists_->VideoList(), count_), 12);
  LeastHeight(preview_, 120);
  rows->addWidget(preview_, 11);

  auto* foot = MakeFrame("panelFoot");
  auto* footRows = new QVBoxLayout(foot);
  footRows->setContentsMargins(8, 8, 8, 8);
  footRows->setSpacing(8);
  auto* first = new QHBoxLayout;
  first->addWidget(disk_);
  first->addStretch(1);
  first->addWidget(buttons_[0]);
  auto* second = new QHBoxLayout;
  second->addWidget(buttons_[2]);
  second->addStretch(1);
  second->addWidget(buttons_[1]);
  footRows->addWidget(marks_, 0, Qt::AlignLeft);
  footRows->addLayout(first);
  footRows->addLayout(second);
  rows->addWidget(foot);
}

OpenVidCForm::OpenVidCForm(PlayerServices& services, const Settings& settings, LastStudentInfo& remembered,
                           IOpenVideo& opener, QWidget* parent)
    : OpenVideoParts(services, settings, remembered, opener, parent) {
  setObjectName("OpenVidCForm");
  LeastWidth(this, 640);
  LeastHeight(this, 320);
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(1, 1, 1, 1);
  rows->setSpacing(0);
  auto* columns = new QHBoxLayout;
  columns->setSpacing(0);
  columns->addWidget(Headed(Heading(tr("Instructors")), lists_->InstructorList()), 3);
  columns->addWidget(Divider(true));
  columns->addWidget(Headed(students_, lists_->StudentList()), 3);
  columns->addWidget(Divider(true));
  columns->addWidget(Headed(Heading(tr("Videos")), lists_->VideoList(), count_), 4);
  columns->addWidget(preview_, 6);
  rows->addLayout(columns, 1);

  auto* foot = MakeFrame("panelFoot");
  auto* row = new QHBoxLayout(foot);
  row->setContentsMargins(8, 8, 8, 8);
  row->addWidget(marks_);
  row->addStretch(1);
  row->addWidget(disk_);
  row->addWidget(buttons_[2]);
  row->addWidget(buttons_[1]);
  row->addWidget(buttons_[0]);
  rows->addWidget(foot);
}

}  // namespace kinalyx
