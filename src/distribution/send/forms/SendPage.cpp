#include "distribution/send/forms/SendPage.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <utility>

#include "distribution/lessons/LessonSaver.h"
#include "distribution/send/forms/SendList.h"
#include "library/Profile.h"
#include "library/VideoNames.h"
#include "library/VideoStats.h"
#include "library/forms/LibraryLists.h"
#include "library/forms/StatusLine.h"
#include "library/forms/VideoRows.h"
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

enum Add { kAddVideo, kAddLesson, kRemove };

struct Way {
  const char* caption;
  const char* icon;
  const char* tip;
};
constexpr Way kWays[] = {
    {TrLater("E-mail"), "send", TrLater("Each file goes in a mail of its own")},
    {TrLater("Web page"), "network", TrLater("A page that plays on telephones, and its link by mail")},
    {TrLater("CD or stick"), "disc", TrLater("A disc, folder or stick that plays on any computer")}};

const char* WordsOf(SendMode mode) {
  if (mode == SendMode::Web)
    return TrLater(
        "The files are converted and uploaded to your web space; what the page shows already stays. Its link "
        "goes to these addresses:");
  return TrLater("The files are converted, and each goes in a mail of its own to these addresses:");
}

}  // namespace

SendPage::SendPage(IHost& host, const Settings& settings, const LastStudentInfo& remembered, FilesToSend& files,
                   QWidget* parent, DriveWatch::Send send, GlanceStore glances)
    : PageWidget(parent),
      host_(host),
      settings_(settings),
      LastStudent_(remembered),
      files_(files),
      browser_(host.Drives(), settings, remembered_, LibraryBrowser::Kind::Exchange),
      lists_(new LibraryLists(browser_, settings, this, {"SendInstructorList", "SendStudentList", "SendVideoList"})) {
  setObjectName("SendPage");
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(14, 14, 14, 14);
  rows->setSpacing(kGap);
  auto* columns = new QHBoxLayout;
  columns->setSpacing(kGap);
  columns->addLayout(MakeChoice(), 4);
  columns->addLayout(MakeSources(), 7);
  columns->addLayout(MakeSending(), 8);
  rows->addLayout(columns, 1);
  status_ = new StatusLine("SendDisplay");
  rows->addWidget(status_);

  rows_ = new VideoRows(host, std::move(send), browser_, *lists_->VideoList(), std::move(glances));
  rows_->SetPictures(true);
  lists_->SpaceChooses();
  connect(lists_, &LibraryLists::Chosen, this, [this] { status_->Say({}); });
  connect(lists_, &LibraryLists::StudentChosen, this, &SendPage::StudentChosen);
  connect(lists_, &LibraryLists::VideoActivated, this, [this] { cmdAddtoBurn_Click(kAddVideo); });
  connect(lists_->VideoList(), &QListWidget::itemSelectionChanged, this, &SendPage::ShowButtons);
  connect(lessonRows_, &QListWidget::itemActivated, this, [this] { cmdAddtoBurn_Click(kAddLesson); });
  connect(lessonRows_, &QListWidget::itemSelectionChanged, this, &SendPage::ShowButtons);
  connect(sendList_, &SendList::Said, status_, &StatusLine::Say);
  connect(sendList_, &SendList::Changed, this, &SendPage::FilesChanged);
  SetupVocabulary();
  SSCommand4_Click(static_cast<int>(SendMode::Email));
}

SendPage::~SendPage() = default;

/// Whose videos there are.
QLayout* SendPage::MakeChoice() {
  auto* column = new QVBoxLayout;
  column->setSpacing(kGap);
  auto* instructors = new Panel("SendInstructorsTitle", tr("Instructors"));
  instructors->Body()->addWidget(lists_->InstructorList());
  students_ = new Panel("SendStudentsTitle", tr("Students"));
  students_->Body()->addWidget(lists_->StudentList());
  column->addWidget(instructors, 2);
  column->addWidget(students_, 3);
  return column;
}

/// What the chosen student has.
QLayout* SendPage::MakeSources() {
  auto* column = new QVBoxLayout;
  column->setSpacing(kGap);
  lessonRows_ = new NameList("SendLessonList");
  lessonRows_->setAccessibleName(tr("Lessons"));
  lessonRows_->SetDetails(NameDelegate::Details::Line);
  const struct {
    const char* name;
    QString title;
    NameList* list;
    QString caption;
    QString tip;
  } kSources[] = {
      {"SendVideosTitle", tr("Videos"), lists_->VideoList(), tr("Add Video"),
       tr("Adds the chosen videos to the files to send (Enter)")},
      {"SendLessonsTitle", tr("Lessons"), lessonRows_, tr("Add Lesson"),
       tr("Adds the chosen lessons to the files to send (Enter)")},
  };
  for (int i = 0; i < 2; ++i) {
    const auto& source = kSources[i];
    auto* panel = new Panel(source.name, source.title);
    source.list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    source.list->LetDrag();
    panel->Body()->addWidget(source.list, 1);
    auto*& add = add_[static_cast<std::size_t>(i)];
    add = new Button(QString("cmdAddtoBurn%1").arg(i), source.caption, "plus");
    add->setToolTip(source.tip);
    connect(add, &QPushButton::clicked, this, [this, i] { cmdAddtoBurn_Click(i); });
    panel->Foot()->addWidget(add);
    panel->Foot()->addStretch(1);
    column->addWidget(panel, i == kAddVideo ? 3 : 2);
  }
  return column;
}

/// What is sent, and how.
QLayout* SendPage::MakeSending() {
  auto* column = new QVBoxLayout;
  column->setSpacing(kGap);
  sendList_ = new SendList(host_.Drives(), files_);
  column->addWidget(sendList_, 1);
  auto* modes = new QHBoxLayout;
  modes->setSpacing(8);
  for (int i = 0; i < 3; ++i) {
    auto*& button = modes_[static_cast<std::size_t>(i)];
    button = new Button(QString("SSCommand4%1").arg(i), tr(kWays[i].caption), kWays[i].icon, Look::Quiet);
    button->setCheckable(true);
    button->setToolTip(tr(kWays[i].tip));
    connect(button, &QPushButton::clicked, this, [this, i] { SSCommand4_Click(i); });
    modes->addWidget(button, 1);
  }
  column->addLayout(modes);
  way_ = new Panel("SendWayTitle", tr(TitleOf(SendMode::Email)));
  addresses_ = MakeAddresses();
  way_->Body()->addWidget(addresses_);
  column->addWidget(way_);
  return column;
}

QWidget* SendPage::MakeAddresses() {
  auto* part = new QWidget;
  auto* rows = new QVBoxLayout(part);
  rows->setContentsMargins(kGap, 10, kGap, 10);
  rows->setSpacing(8);
  words_ = MakeLabel("SendWayWords", {}, "muted");
  words_->setWordWrap(true);
  // The columns share the width of a narrow window, whatever their words would like.
  words_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  rows->addWidget(words_);
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(10);
  grid->setVerticalSpacing(6);
  for (int i = 0; i < 3; ++i) {
    const QString caption = tr("Email %1").arg(i + 1);
    auto*& box = txtSendTo_[static_cast<std::size_t>(i)];
    box = new QLineEdit;
    box->setObjectName(QString("txtSendTo%1").arg(i));
    box->setAccessibleName(caption);
    box->setMaxLength(254);
    connect(box, &QLineEdit::returnPressed, this, &SendPage::cmdSendtoWeb_Click);
    auto* label = MakeLabel(QString("txtSendToLabel%1").arg(i), caption);
    label->setBuddy(box);
    grid->addWidget(label, i, 0);
    grid->addWidget(box, i, 1);
  }
  rows->addLayout(grid);
  auto* actions = new QHBoxLayout;
  cmdSendtoWeb_ = new Button("cmdSendtoWeb", tr(ButtonOf(SendMode::Email)), "send");
  actions->addStretch(1);
  actions->addWidget(cmdSendtoWeb_);
  rows->addLayout(actions);
  connect(cmdSendtoWeb_, &QPushButton::clicked, this, &SendPage::cmdSendtoWeb_Click);
  return part;
}

void SendPage::SetDiscPanel(QWidget* panel) {
  discPanel_ = panel;
  way_->Body()->addWidget(panel);
  SSCommand4_Click(static_cast<int>(mode_));
}

void SendPage::Open() {
  // A student who was chosen elsewhere meanwhile counts more than the one who was chosen here before.
  if (!browser_.HasStudent() || seenLast_ != LastStudent_) remembered_ = LastStudent_;
  seenLast_ = LastStudent_;
  browser_.CapfolderSetup();
  lists_->ShowAll();
  sendList_->Show();
}

void SendPage::SetupVocabulary() { students_->SetTitle(Q(Vocabulary(settings_).Nouns())); }

void SendPage::SSCommand4_Click(int index) {
  mode_ = static_cast<SendMode>(index);
  for (int i = 0; i < 3; ++i) modes_[static_cast<std::size_t>(i)]->setChecked(i == index);
  modes_[static_cast<std::size_t>(SendMode::Disc)]->setVisible(discPanel_ != nullptr);
  way_->SetTitle(tr(TitleOf(mode_)));
  const bool disc = mode_ == SendMode::Disc;
  // The smaller way leaves its room to the lists. One goes before the other comes: a narrow window has not room for
  // both.
  if (disc) addresses_->hide();
  if (discPanel_) discPanel_->setVisible(disc);
  if (!disc) addresses_->show();
  if (disc) return;
  words_->setText(tr(WordsOf(mode_)));
  cmdSendtoWeb_->setText(tr(ButtonOf(mode_)));
  if (txtSendTo_[0]->text().trimmed().isEmpty()) ReadAddress();
}

// ---------------------------------------------------------------- what the student has

void SendPage::StudentChosen() {
  lists_->VideoList()->clearSelection();
  rows_->Show();
  ShowLessons();
  ShowButtons();
  ReadAddress();
}

void SendPage::ShowLessons() {
  lessons_.clear();
  const QString noun = Q(Vocabulary(settings_).noun());
  QStringList names;
  if (browser_.HasStudent()) {
    const auto found = host_.Drives().Ask(settings_.LibraryPath, [folder = browser_.Folder()] {
      const std::string lessons = LessonsFolder(folder);
      std::vector<std::pair<std::string, std::int64_t>> files;
      for (const std::string& name : ListVideos(lessons)) {
        const std::string path = JoinPath(lessons, name);
        files.emplace_back(path, FileSize(path).value_or(0));
      }
      return files;
    });
    if (found)
      for (const auto& [path, bytes] : *found) {
        lessons_.push_back(path);
        names << Q(ShownName(LastName(path)));
      }
    lessonRows_->Fill(names, -1);
    for (int row = 0; found && row < lessonRows_->count(); ++row) {
      const auto& [path, bytes] = (*found)[static_cast<std::size_t>(row)];
      lessonRows_->item(row)->setData(NameDelegate::kPathRole, Q(path));
      lessonRows_->item(row)->setData(NameDelegate::kDetailsRole, QStringList{Q(FormatFileSize(bytes))});
    }
    lessonRows_->SetHint(tr("No lessons yet. Record Lesson in the analysis section makes one."));
    return;
  }
  lessonRows_->Fill({}, -1);
  lessonRows_->SetHint(tr("Select a %1 to see the lessons.").arg(noun));
}

/// The student's address belongs to the student: another one's takes its place, and what was typed beside it goes. As
/// long as it is the same student, what was typed stays.
void SendPage::ReadAddress() {
  const std::string folder = browser_.HasStudent() ? browser_.Folder() : "";
  QString address;
  if (!folder.empty())
    address = Q(host_.Drives()
                    .Ask(settings_.LibraryPath, [folder] { return GetEmailAddress(folder).value_or(""); })
                    .value_or(""))
                  .trimmed();
  const bool other = std::exchange(addressOf_, folder) != folder;
  const QString shown = txtSendTo_[0]->text().trimmed();
  if (other)
    for (QLineEdit* box : txtSendTo_) box->clear();
  if (other || shown.isEmpty() || shown == readAddress_) txtSendTo_[0]->setText(address);
  readAddress_ = address;
  txtSendTo_[0]->setPlaceholderText(
      browser_.HasStudent() ? tr("The profile of this %1 has no address").arg(Q(Vocabulary(settings_).noun()))
                            : QString());
}

void SendPage::ShowButtons() {
  add_[kAddVideo]->setEnabled(!lists_->VideoList()->selectedItems().isEmpty());
  add_[kAddLesson]->setEnabled(!lessonRows_->selectedItems().isEmpty());
}

// ---------------------------------------------------------------- what is sent

void SendPage::cmdAddtoBurn_Click(int index) {
  if (index == kRemove) return sendList_->Remove();
  const bool lesson = index == kAddLesson;
  const NameList* list = lesson ? lessonRows_ : lists_->VideoList();
  std::vector<SendList::Offer> offers;
  for (const int row : list->ChosenRows())
    offers.push_back({lesson ? lessons_[static_cast<std::size_t>(row)] : browser_.VideoPathAt(row), lesson});
  if (!offers.empty()) sendList_->Add(offers);
}

void SendPage::cmdSendtoWeb_Click() {
  SendWish wish{.mode = mode_, .student = browser_.HasStudent() ? browser_.Student() : "", .addresses = {}};
  std::vector<std::string> typed;
  for (const QLineEdit* box : txtSendTo_) typed.push_back(Std(box->text()));
  const std::string missing = CheckWish(wish, files_, typed, Vocabulary(settings_).noun());
  if (!missing.empty()) return host_.Message(MessageKind::Information, "", missing);
  emit SendWanted(wish);
}

void SendPage::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_F5) return PageWidget::keyPressEvent(event);
  host_.Drives().TryAgain(settings_.LibraryPath);
  browser_.Refresh();
  lists_->ShowAll();
}

}  // namespace kinalyx
