#include "distribution/send/forms/SendList.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <algorithm>

#include "library/VideoNames.h"
#include "library/VideoStats.h"
#include "platform/files/Folders.h"
#include "platform/files/TextEncoding.h"
#include "platform/files/Tr.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/FileDrop.h"
#include "platform/widgets/NameList.h"
#include "platform/widgets/Text.h"

namespace kinalyx {

SendList::SendList(DriveWatch& drives, FilesToSend& files, QWidget* parent)
    : Panel("LessonListTitle", tr("Files to Send"), parent), drives_(drives), files_(files) {
  LessonList_ = new NameList("LessonList");
  LessonList_->setAccessibleName(tr("Files to Send"));
  LessonList_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  LessonList_->SetDetails(NameDelegate::Details::Line);
  LessonList_->SetHint(
      tr("Nothing to send yet. Choose videos or lessons on the left and add them, or drag them here."));
  LessonList_->installEventFilter(this);
  Body()->addWidget(LessonList_, 1);
  remove_ = new Button("cmdAddtoBurn2", tr("Remove"), {}, Look::Quiet);
  remove_->setToolTip(tr("Takes the chosen files out of this list (Delete). The files themselves stay."));
  total_ = MakeLabel("TotalSize", {}, "muted");
  Foot()->addWidget(remove_);
  Foot()->addStretch(1);
  Foot()->addWidget(total_);
  connect(remove_, &QPushButton::clicked, this, &SendList::Remove);
  connect(LessonList_, &QListWidget::itemSelectionChanged, this,
          [this] { remove_->setEnabled(!LessonList_->selectedItems().isEmpty()); });
  auto* drop = new FileDrop(this);
  connect(drop, &FileDrop::Dropped, this, &SendList::TakeDropped);
  connect(drop, &FileDrop::Over, this, [this] { emit Said(tr("Drop to add the files to the Files to Send list.")); });
  connect(drop, &FileDrop::Left, this, [this] { emit Said({}); });
  Show();
}

void SendList::Add(const std::vector<Offer>& offers) {
  const std::size_t before = files_.Files().size();
  std::string words;
  for (const Offer& offer : offers) {
    if (!drives_.Answers(FolderOf(offer.path), offer.path)) words = Tr("The drive with this file is not answering.");
    else words = files_.Add(offer.path, offer.lesson);
  }
  const std::size_t added = files_.Files().size() - before;
  Show();
  if (added > 0) LessonList_->setCurrentRow(LessonList_->count() - 1);
  if (offers.size() > 1)
    words = added < offers.size() ? Tr("{} of {} files added to the Files to Send list; the others are in it already.",
                                       added, offers.size())
                                  : Tr("{} of {} files added to the Files to Send list.", added, offers.size());
  emit Said(Q(words));
  if (added > 0) emit Changed();
}

void SendList::TakeDropped(const std::vector<std::string>& paths) {
  std::vector<Offer> offers;
  for (const std::string& path : VideosAmong(paths))
    offers.push_back({path, FoldCase(LastName(FolderOf(path))) == "lessons"});
  if (offers.empty()) return emit Said(tr("There is no video among what was dropped."));
  Add(offers);
}

void SendList::Remove() {
  std::vector<int> rows = LessonList_->ChosenRows();
  if (rows.empty()) return;
  std::string words;
  for (auto row = rows.rbegin(); row != rows.rend(); ++row) words = files_.Remove(static_cast<std::size_t>(*row));
  Show();
  LessonList_->setCurrentRow(std::min(rows.front(), LessonList_->count() - 1));
  emit Said(Q(words));
  emit Changed();
}

void SendList::Show() {
  QStringList names;
  for (const FileToSend& file : files_.Files()) names << Q(file.Entry());
  LessonList_->Fill(names, -1);
  for (int row = 0; row < LessonList_->count(); ++row) {
    const FileToSend& file = files_.Files()[static_cast<std::size_t>(row)];
    // Whose it is: a video is the child of its student's folder, a lesson of a folder in there.
    const std::string folder = FolderOf(file.path);
    const QStringList details{Q(LastName(file.lesson ? FolderOf(folder) : folder)), Q(FormatFileSize(file.bytes))};
    LessonList_->item(row)->setData(NameDelegate::kDetailsRole, details);
    LessonList_->item(row)->setToolTip(Q(file.path));
  }
  remove_->setEnabled(false);
  ShowTotal();
}

void SendList::ShowTotal() {
  // A drive that does not answer now leaves the lengths as they were when the files were added.
  std::int64_t bytes = 0;
  for (const FileToSend& file : files_.Files()) bytes += file.bytes;
  total_->setText(files_.Empty() ? QString() : tr("Total %1").arg(Q(MegabytesText(bytes))));
}

bool SendList::eventFilter(QObject* watched, QEvent* event) {
  if (watched == LessonList_ && event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Delete || key == Qt::Key_Backspace) {
      Remove();
      return true;
    }
  }
  return Panel::eventFilter(watched, event);
}

}  // namespace kinalyx
