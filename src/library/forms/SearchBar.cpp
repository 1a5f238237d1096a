#include "library/forms/SearchBar.h"

#include <QAction>
#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <algorithm>
#include <utility>

#include "library/LibraryReading.h"
#include "platform/widgets/Boxes.h"
#include "platform/widgets/Icons.h"
#include "platform/widgets/NameList.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

namespace {

constexpr int kHitRole = Qt::UserRole + 20;
constexpr int kWidth = 520;

}  // namespace

SearchBar::SearchBar(IHost& host, DriveWatch::Send send, const std::string& root, const ProfileFields& fields,
                     QWidget* over)
    : QWidget(over), indexer_(host, std::move(send), root, fields, *this), over_(over) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  box_ = new QLineEdit;
  box_->setObjectName("LibrarySearch");
  box_->setPlaceholderText(tr("Find people, videos and notes (Ctrl+F)"));
  box_->setAccessibleName(tr("Find in the library"));
  LetClear(*box_);
  box_->addAction(Icon("find", CurrentTheme().muted), QLineEdit::LeadingPosition)->setText(box_->accessibleName());
  MostWidth(box_, kWidth);
  row->addWidget(box_, 1000);
  row->addStretch(1);

  results_ = MakeFrame("panel", over);
  results_->setObjectName("SearchResults");
  auto* rows = new QVBoxLayout(results_);
  rows->setContentsMargins(1, 1, 1, 1);
  rows->setSpacing(0);
  list_ = new NameList("SearchList");
  list_->setAccessibleName(tr("What was found"));
  list_->setFocusPolicy(Qt::NoFocus);
  list_->setUniformItemSizes(false);
  list_->SetDetails(NameDelegate::Details::Line);
  state_ = MakeLabel("SearchState", {}, "muted");
  state_->setContentsMargins(kGap, 6, kGap, 8);
  rows->addWidget(list_, 1);
  rows->addWidget(state_);
  results_->hide();

  connect(box_, &QLineEdit::textChanged, this, [this] {
    indexer_.Refresh();
    Search();
  });
  connect(list_, &QListWidget::itemClicked, this, &SearchBar::Go);
  box_->installEventFilter(this);
  over_->installEventFilter(this);
}

void SearchBar::FocusBox() {
  box_->setFocus(Qt::ShortcutFocusReason);
  box_->selectAll();
}

void SearchBar::HideResults() { results_->hide(); }

bool SearchBar::eventFilter(QObject* object, QEvent* event) {
  if (object == over_) {
    if (event->type() == QEvent::Resize && results_->isVisible()) PlaceResults();
  } else if (event->type() == QEvent::FocusIn) {
    indexer_.Refresh();
    Search();
  } else if (event->type() == QEvent::FocusOut) {
    HideResults();
  } else if (event->type() == QEvent::KeyPress && Key(static_cast<QKeyEvent*>(event)->key())) {
    return true;
  }
  return QWidget::eventFilter(object, event);
}

bool SearchBar::Key(int key) {
  switch (key) {
    case Qt::Key_Down: return Step(1), true;
    case Qt::Key_Up: return Step(-1), true;
    case Qt::Key_Return:
    case Qt::Key_Enter: return Go(list_->currentItem()), true;
    case Qt::Key_Escape:
      box_->clear();
      HideResults();
      emit Left();
      return true;
    default: return false;
  }
}

// ---------------------------------------------------------------- what was found

void SearchBar::IndexCame() {
  if (results_->isVisible()) Search();
}

void SearchBar::Search() {
  if (box_->text().trimmed().isEmpty()) return HideResults();
  const LibraryIndex* index = indexer_.Index();
  ShowResult(index ? FindIn(*index, Std(box_->text())) : SearchResult());
}

void SearchBar::ShowResult(const SearchResult& result) {
  const int before = list_->currentRow();
  list_->setUpdatesEnabled(false);
  list_->Fill({}, -1);
  hits_.clear();
  AddGroup(tr("PEOPLE"), result.people, result.allPeople);
  AddGroup(tr("VIDEOS"), result.videos, result.allVideos);
  AddGroup(tr("NOTES AND FIELDS"), result.texts, result.allTexts);
  const QString state = State(result);
  state_->setText(state);
  state_->setVisible(!state.isEmpty());
  list_->setVisible(!hits_.empty());
  if (!hits_.empty()) list_->setCurrentRow(before > 0 && before < list_->count() ? before : 1);
  list_->setUpdatesEnabled(true);
  PlaceResults();
  results_->show();
  results_->raise();
}

void SearchBar::AddGroup(const QString& title, const std::vector<SearchHit>& hits, std::size_t all) {
  if (hits.empty()) return;
  const QString count = all > hits.size() ? tr("   %1 of %2").arg(hits.size()).arg(all) : QString();
  auto* heading = new QListWidgetItem(title + count, list_);
  heading->setFlags(Qt::NoItemFlags);
  heading->setData(NameDelegate::kHeadingRole, true);
  for (const SearchHit& hit : hits) {
    auto* item = new QListWidgetItem(Q(hit.title), list_);
    item->setData(NameDelegate::kDetailsRole, QStringList(Q(hit.detail)));
    item->setData(kHitRole, static_cast<int>(hits_.size()));
    hits_.push_back(hit);
  }
}

/// What there is to say besides what was found.
QString SearchBar::State(const SearchResult& result) const {
  if (indexer_.Silent()) return tr("The drive with the video library is not answering.");
  if (!indexer_.Index()) return tr("Looking through the library ... %1").arg(indexer_.FoldersRead());
  return result.Empty() ? tr("Nothing was found.") : QString();
}

/// Beneath the box, as high as what was found, as far as the page goes.
void SearchBar::PlaceResults() {
  const QPoint corner = mapTo(over_, QPoint(0, height() + 4));
  int height = state_->isHidden() ? 2 : state_->sizeHint().height() + 2;
  for (int row = 0; row < list_->count() && !list_->isHidden(); ++row) height += list_->sizeHintForRow(row);
  const int room = over_->height() - corner.y() - kGap;
  results_->setGeometry(corner.x(), corner.y(), qMin(Px(kWidth), over_->width() - corner.x() - kGap),
                        qMin(height + 2, room));
}

/// Headings are passed over.
void SearchBar::Step(int by) {
  if (results_->isHidden()) return Search();
  for (int row = list_->currentRow() + by; row >= 0 && row < list_->count(); row += by) {
    if (!(list_->item(row)->flags() & Qt::ItemIsSelectable)) continue;
    list_->setCurrentRow(row);
    list_->scrollToItem(list_->item(row));
    return;
  }
}

void SearchBar::Go(const QListWidgetItem* item) {
  if (!item || results_->isHidden() || !item->data(kHitRole).isValid()) return;
  const SearchHit hit = hits_[static_cast<std::size_t>(item->data(kHitRole).toInt())];
  HideResults();
  emit Wanted(hit);
}

}  // namespace kinalyx
