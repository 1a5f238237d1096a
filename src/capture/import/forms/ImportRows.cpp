#include "capture/import/forms/ImportRows.h"

#include <QDateTime>
#include <QImage>
#include <QLocale>
#include <QScrollBar>
#include <QSignalBlocker>
#include <algorithm>
#include <utility>

#include "library/VideoStats.h"
#include "platform/files/Folders.h"
#include "platform/host/DriveWatch.h"
#include "platform/widgets/NameList.h"
#include "platform/widgets/Text.h"

namespace kinalyx {

namespace {

/// While a list is scrolled nothing is begun.
constexpr int kRestMs = 60;

QImage ImageOf(const Surface& picture) {
  if (picture.Empty()) return {};
  return QImage(picture.Row(0), picture.Width(), picture.Height(), picture.Stride(), QImage::Format_RGB32).copy();
}

QString StateText(const ImportRow& row, double part) {
  using State = ImportRow::State;
  switch (row.state) {
    case State::Waiting: return {};
    case State::Arriving: return QObject::tr("Arriving");
    case State::Queued: return QObject::tr("Next");
    case State::Converting: return QString::number(static_cast<int>(part * 100)) + " %";
    case State::Saved: return QObject::tr("Saved");
    case State::Failed: return QObject::tr("Not saved");
    case State::Stopped: return QObject::tr("Stopped");
  }
  return {};
}

}  // namespace

ImportRows::ImportRows(IHost& host, NameList& list, GlanceStore store)
    : QObject(&list), host_(host), list_(list), reader_(host, DriveWatch::SendWorker, *this, std::move(store)) {
  list_.SetDetails(NameDelegate::Details::Picture);
  connect(list_.verticalScrollBar(), &QScrollBar::valueChanged, this,
          [this] { soon_ = HostTimer(host_, kRestMs, false, [this] { Look(); }); });
}

void ImportRows::Show(const std::vector<ImportRow>& rows, double part) {
  const auto same = [](const ImportRow& row, const std::string& path) { return row.file.path == path; };
  const bool sameFiles = std::ranges::equal(rows, paths_, same);
  const bool sameStamps = sameFiles && std::ranges::equal(rows, rows_, [](const ImportRow& a, const ImportRow& b) {
                            return a.file.stamp == b.file.stamp;
                          });
  if (!sameFiles) Fill(rows);
  rows_ = rows;
  for (int row = 0; row < list_.count(); ++row) {
    const ImportRow& known = rows_[static_cast<std::size_t>(row)];
    QListWidgetItem* item = list_.item(row);
    const QString state = StateText(known, part);
    if (item->data(NameDelegate::kCountRole).toString() != state) item->setData(NameDelegate::kCountRole, state);
    const QString name = Q(LastName(known.file.path));
    const QString tip = known.remark.empty() ? name : name + "\n" + Q(known.remark);
    if (item->toolTip() != tip) item->setToolTip(tip);
  }
  // What is still growing is looked at when it is whole.
  if (!sameStamps) soon_ = HostTimer(host_, kRestMs, false, [this] { Look(); });
}

void ImportRows::Fill(const std::vector<ImportRow>& rows) {
  const std::vector<std::string> chosen = Chosen();
  const int current = list_.currentRow();
  const std::string currentPath = current >= 0 ? paths_[static_cast<std::size_t>(current)] : std::string();
  paths_.clear();
  QStringList names;
  for (const ImportRow& row : rows) {
    paths_.push_back(row.file.path);
    names << Q(LastName(row.file.path));
  }
  const auto found = std::ranges::find(paths_, currentPath);
  list_.Fill(names, found == paths_.end() ? -1 : static_cast<int>(found - paths_.begin()));
  const QSignalBlocker quiet(list_);
  for (int row = 0; row < list_.count(); ++row) {
    const std::string& path = paths_[static_cast<std::size_t>(row)];
    list_.item(row)->setData(NameDelegate::kPathRole, Q(path));
    if (std::ranges::find(chosen, path) != chosen.end()) list_.item(row)->setSelected(true);
    ShowFacts(row);
  }
}

void ImportRows::SetCurrent(const std::string& path) {
  const auto found = std::ranges::find(paths_, path);
  const int row = found == paths_.end() ? -1 : static_cast<int>(found - paths_.begin());
  if (row == list_.currentRow()) return;
  const QSignalBlocker quiet(list_);
  list_.setCurrentRow(row);
}

std::vector<std::string> ImportRows::Chosen() const {
  std::vector<std::string> chosen;
  for (const int row : list_.ChosenRows())
    if (row < static_cast<int>(paths_.size())) chosen.push_back(paths_[static_cast<std::size_t>(row)]);
  return chosen;
}

/// Wants what can be seen, and the screen below.
void ImportRows::Look() {
  std::vector<std::string> wanted;
  const int count = list_.count();
  if (count == 0) return;
  const int height = std::max(1, list_.sizeHintForRow(0));
  const int first = std::clamp(list_.indexAt({1, 1}).row(), 0, count - 1);
  const int last = std::min(count, first + 2 * (list_.viewport()->height() / height + 2));
  for (int row = first; row < last; ++row)
    if (rows_[static_cast<std::size_t>(row)].state != ImportRow::State::Arriving)
      wanted.push_back(paths_[static_cast<std::size_t>(row)]);
  reader_.Want(wanted);
}

void ImportRows::FactsCame(const std::vector<std::string>& paths) {
  for (const std::string& path : paths) {
    const auto found = std::ranges::find(paths_, path);
    if (found != paths_.end()) ShowFacts(static_cast<int>(found - paths_.begin()));
  }
}

void ImportRows::ShowFacts(int row) {
  QListWidgetItem* item = list_.item(row);
  const VideoFacts* facts = reader_.Known(paths_[static_cast<std::size_t>(row)]);
  if (!item || !facts) return;
  const QDateTime written = QDateTime::fromSecsSinceEpoch(facts->WrittenSeconds());
  QStringList details;
  if (facts->seen && !facts->glance.opens) details << tr("Cannot be opened");
  details << QLocale().toString(written.date(), QLocale::ShortFormat);
  if (facts->seen && facts->glance.opens) details << Q(LengthText(facts->glance.seconds));
  details << Q(FormatFileSize(facts->stamp.bytes));
  details.removeAll(QString());
  item->setData(NameDelegate::kDetailsRole, details);
  if (facts->seen) item->setData(NameDelegate::kPictureRole, ImageOf(facts->glance.picture));
}

}  // namespace kinalyx
