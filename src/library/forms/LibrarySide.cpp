#include "library/forms/LibrarySide.h"

#include <QBoxLayout>
#include <QLabel>
#include <QSignalBlocker>

#include <algorithm>

#include "library/LibraryReading.h"
#include "library/forms/Divider.h"
#include "library/forms/LibraryLists.h"
#include "platform/files/Folders.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/NameList.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

namespace {

/// A list beneath its caption.
QVBoxLayout* Captioned(QLabel* caption, NameList* list) {
  auto* rows = new QVBoxLayout;
  rows->setSpacing(0);
  caption->setContentsMargins(kGap, 8, kGap, 4);
  rows->addWidget(caption);
  rows->addWidget(list, 1);
  return rows;
}

}  // namespace

LibrarySide::LibrarySide(DriveWatch& drives, const QString& title, const Settings& settings, const LibraryTree& tree,
                         const std::array<const char*, 3>& names, int index, QWidget* parent)
    : Panel(QString("IETitle%1").arg(index), title, parent),
      settings_(settings),
      browser_(drives, tree, remembered_, LibraryBrowser::Kind::Exchange),
      lists_(new LibraryLists(browser_, settings, this, names)) {
  studentsTitle_ = MakeLabel(QString("IEStudents%1").arg(index), {}, "caption");
  count_ = MakeLabel(QString("IECount%1").arg(index), {}, "muted");
  lists_->SpaceChooses();
  lists_->VideoList()->setSelectionMode(QAbstractItemView::ExtendedSelection);
  lists_->VideoList()->setToolTip(tr("Ctrl and Shift with a click choose several, Ctrl+A all"));

  auto* upper = new QHBoxLayout;
  upper->setSpacing(0);
  upper->addLayout(Captioned(MakeLabel({}, tr("Instructors"), "caption"), lists_->InstructorList()), 1);
  upper->addWidget(Divider(true));
  upper->addLayout(Captioned(studentsTitle_, lists_->StudentList()), 1);
  Body()->addLayout(upper, 1);
  Body()->addWidget(Divider());
  Body()->addLayout(Captioned(MakeLabel({}, tr("Videos"), "caption"), lists_->VideoList()), 1);

  selectAll_ = new Button(QString("IESelectAll%1").arg(index), tr("Select All"), {}, Look::Quiet);
  wholeDatabase_ = new Button(QString("IEWhole%1").arg(index), tr("Whole Database"), {}, Look::Quiet);
  wholeDatabase_->setCheckable(true);
  Foot()->addWidget(count_, 1);
  Foot()->addWidget(wholeDatabase_);
  Foot()->addWidget(selectAll_);

  connect(lists_, &LibraryLists::InstructorChosen, this, [this] { ChooseWhole(false); });
  connect(lists_, &LibraryLists::AnswersAgain, this, &LibrarySide::AnswersAgain);
  connect(lists_, &LibraryLists::StudentChosen, this, &LibrarySide::StudentChosen);
  connect(lists_->VideoList(), &QListWidget::itemSelectionChanged, this, [this] {
    if (whole_.empty()) ShowCount();
  });
  connect(selectAll_, &QPushButton::clicked, this, &LibrarySide::SelectAll);
  connect(wholeDatabase_, &QPushButton::clicked, this, [this](bool whole) { ChooseWhole(whole); });
  SetupVocabulary();
  ShowCount();
}

void LibrarySide::Open(const LastStudentInfo& at) {
  remembered_ = at;
  browser_.CapfolderSetup();
  lists_->ShowAll();
}

void LibrarySide::Refresh() {
  browser_.Refresh();
  lists_->ShowAll();
}

void LibrarySide::ShowArrived(const OperationResult& result) {
  ShowResult(result, browser_);
  lists_->ShowAll();
  NameList& list = *lists_->VideoList();
  for (int row = list.count() - 1; row >= 0; --row) {
    if (std::ranges::find(result.arrived, Std(list.item(row)->text())) == result.arrived.end()) continue;
    list.item(row)->setSelected(true);
    list.scrollToItem(list.item(row));
  }
}

void LibrarySide::SetupVocabulary() {
  const Vocabulary words(settings_);
  studentsTitle_->setText(Q(words.Nouns()));
  wholeDatabase_->setToolTip(tr("Take all videos of all %1 of the current database").arg(Q(words.nouns())));
}

void LibrarySide::StudentChosen() {
  // A list that has just been filled has a current row, but nobody has chosen it yet.
  const QSignalBlocker quiet(lists_->VideoList());
  lists_->VideoList()->clearSelection();
  if (browser_.HasStudent()) ChooseWhole(false);
  ShowCount();
}

void LibrarySide::SelectAll() {
  ChooseWhole(false);
  lists_->VideoList()->selectAll();
  lists_->VideoList()->setFocus();
}

void LibrarySide::ChooseWhole(bool whole) {
  whole_.clear();
  if (whole) {
    const auto all = [instructor = browser_.Instructor()](const LibraryTree& tree) {
      return VideosOf(tree, instructor);
    };
    auto videos = AskLibrary(browser_.Drives(), browser_.Tree(), all);
    whole = videos.has_value();
    whole_ = std::move(videos).value_or(std::vector<LibraryVideo>());
  }
  wholeDatabase_->setChecked(whole);
  wholeDatabase_->setEnabled(!browser_.IsGeneralFolder());
  lists_->VideoList()->setEnabled(!whole);
  if (whole) {
    lists_->VideoList()->clearSelection();
    lists_->VideoList()->SetHint(
        tr("All videos of all %1 of this database are taken.").arg(Q(Vocabulary(settings_).nouns())));
  } else {
    lists_->ShowHints();
  }
  ShowCount();
}

std::vector<LibraryVideo> LibrarySide::Chosen() const {
  if (wholeDatabase_->isChecked()) return whole_;
  std::vector<LibraryVideo> videos;
  for (int row = 0; row < lists_->VideoList()->count(); ++row) {
    if (lists_->VideoList()->item(row)->isSelected())
      videos.push_back({browser_.Instructor(), browser_.Student(), browser_.VideoPathAt(row)});
  }
  return videos;
}

void LibrarySide::ShowCount() {
  const auto whole = std::ranges::count_if(whole_, [](const LibraryVideo& one) { return !one.path.empty(); });
  const auto count =
      wholeDatabase_->isChecked() ? static_cast<qsizetype>(whole) : lists_->VideoList()->selectedItems().size();
  count_->setText(QString(count == 1 ? tr("%1 Video Selected") : tr("%1 Videos Selected")).arg(count));
  selectAll_->setEnabled(lists_->VideoList()->count() > 0);
}

}  // namespace kinalyx
