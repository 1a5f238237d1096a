#include "library/forms/LibraryLists.h"

#include <QKeyEvent>

#include "library/LibraryHints.h"
#include "library/LibraryReading.h"
#include "platform/files/Folders.h"
#include "platform/widgets/Text.h"

namespace kinalyx {

LibraryLists::LibraryLists(LibraryBrowser& browser, const Settings& settings, QObject* parent,
                           const std::array<const char*, 3>& names)
    : QObject(parent),
      browser_(browser),
      settings_(settings),
      vocabulary_(settings),
      instructors_(new NameList(names[0])),
      students_(new NameList(names[1])),
      videos_(new NameList(names[2])) {
  instructors_->setAccessibleName(tr("Instructors"));
  videos_->setAccessibleName(tr("Videos"));
  connect(instructors_, &QListWidget::currentRowChanged, this, [this](int row) {
    if (!Leave()) return;
    emit Chosen();
    browser_.ChooseInstructor(row);
    emit InstructorChosen();
    ShowStudents();
  });
  connect(students_, &QListWidget::currentRowChanged, this, [this](int row) {
    if (!Leave()) return;
    emit Chosen();
    if (const int before = browser_.StudentIndex(); before >= 0) students_->SetCount(before, -1);
    browser_.ChooseStudent(row);
    ShowVideos();
  });
  connect(videos_, &QListWidget::currentRowChanged, this, [this](int row) {
    emit Chosen();
    browser_.ChooseVideo(row);
    emit VideoChosen();
  });
  connect(videos_, &QListWidget::itemActivated, this, &LibraryLists::VideoActivated);
  for (NameList* list : {instructors_, students_, videos_}) list->installEventFilter(this);
}

QStringList LibraryLists::InstructorNames() const {
  QStringList names;
  for (const std::string& instructor : browser_.InstructorList()) names << Q(ShownInstructor(instructor));
  return names;
}

void LibraryLists::ShowAll() {
  instructors_->Fill(InstructorNames(), browser_.InstructorIndex());
  emit InstructorChosen();
  ShowStudents();
}

void LibraryLists::ShowStudents() {
  students_->Fill(Q(browser_.StudentList()), browser_.StudentIndex());
  ShowVideos();
}

bool LibraryLists::Leave() {
  bool may = true;
  emit Leaving(may);
  if (may) return true;
  // The list goes on to mark the row that was pressed; the mark returns when it has done so.
  QMetaObject::invokeMethod(
      this,
      [this] {
        instructors_->Fill(InstructorNames(), browser_.InstructorIndex());
        students_->Fill(Q(browser_.StudentList()), browser_.StudentIndex());
        ShowCount();
      },
      Qt::QueuedConnection);
  return false;
}

void LibraryLists::ShowCount() {
  const int count = static_cast<int>(browser_.VideoList().size());
  if (browser_.HasStudent()) students_->SetCount(browser_.StudentIndex(), count > 0 ? count : -1);
}

void LibraryLists::ShowVideos() {
  ShowCount();
  videos_->Fill(Q(browser_.VideoList()), browser_.VideoIndex());
  ShowHints();
  emit StudentChosen();
  emit VideoChosen();
}

void LibraryLists::ShowOrder() { videos_->Fill(Q(browser_.VideoList()), browser_.VideoIndex()); }

/// True when the root folder of the lists cannot be reached.
bool LibraryLists::RootGone() {
  if (browser_.Silent()) return false;
  const std::string& root = browser_.Tree().Root();
  if (root == settings_.LibraryPath) {
    const LibraryPlace place = PlaceOfLibrary(browser_.Drives(), settings_);
    return place == LibraryPlace::Gone || place == LibraryPlace::Removed;
  }
  return !browser_.Drives().Ask(root, [root] { return dirExists(root); }).value_or(true);
}

/// The lists fill by themselves when a library that is silent answers again.
void LibraryLists::WatchSilence() {
  again_.Stop();
  if (!browser_.Silent()) return;
  again_ = browser_.Drives().WhenAnswers(browser_.Tree().Root(), [this] {
    again_.Stop();
    browser_.TryAgain();
    ShowAll();
    emit AnswersAgain();
  });
}

void LibraryLists::ShowHints() {
  WatchSilence();
  students_->setAccessibleName(Q(vocabulary_.Nouns()));
  const LibraryHints hints = HintsOf(browser_, vocabulary_, RootGone());
  students_->SetHint(Q(hints.students));
  videos_->SetHint(Q(hints.videos));
}

bool LibraryLists::eventFilter(QObject* object, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QObject::eventFilter(object, event);
  NameList* const order[] = {instructors_, students_, videos_};
  const auto at = std::find(std::begin(order), std::end(order), object) - std::begin(order);
  const auto go = [&](std::ptrdiff_t to) {
    if (to < 0 || to > 2 || order[to]->count() == 0) return true;
    order[to]->setFocus(Qt::TabFocusReason);
    if (order[to]->currentRow() < 0) order[to]->setCurrentRow(0);
    return true;
  };
  const std::ptrdiff_t next = at == 0 && students_->count() == 0 ? 2 : at + 1;
  switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Left: return go(at - 1);
    case Qt::Key_Right: return go(next);
    case Qt::Key_Return:
    case Qt::Key_Enter: return at == 2 ? QObject::eventFilter(object, event) : go(next);
    case Qt::Key_Space:
      if (at != 2 || !spacePlays_) return QObject::eventFilter(object, event);
      emit PlayWanted();
      return true;
    default: return QObject::eventFilter(object, event);
  }
}

}  // namespace kinalyx
