#include "library/forms/VideoRows.h"

#include <QDateTime>
#include <QEvent>
#include <QImage>
#include <QLocale>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "library/VideoStats.h"
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

}  // namespace

VideoRows::VideoRows(IHost& host, DriveWatch::Send send, LibraryBrowser& browser, NameList& list, GlanceStore store)
    : QObject(&list),
      host_(host),
      browser_(browser),
      list_(list),
      reader_(host, std::move(send), *this, std::move(store)) {
  list_.viewport()->installEventFilter(this);
  connect(list_.verticalScrollBar(), &QScrollBar::valueChanged, this, &VideoRows::LookSoon);
}

void VideoRows::Show() {
  paths_ = browser_.VideoPaths();
  rows_.clear();
  for (int row = 0; row < list_.count() && row < static_cast<int>(paths_.size()); ++row) {
    list_.item(row)->setData(NameDelegate::kPathRole, Q(paths_[static_cast<std::size_t>(row)]));
    rows_[paths_[static_cast<std::size_t>(row)]] = row;
    ShowFacts(row);
  }
  soon_ = HostTimer(host_, 0, false, [this] { Look(); });
}

void VideoRows::SetPictures(bool pictures) {
  pictures_ = pictures;
  list_.SetDetails(pictures ? NameDelegate::Details::Picture : NameDelegate::Details::None);
  LookSoon();
}

void VideoRows::SetByLength(bool byLength, bool turned) {
  byLength_ = byLength;
  turned_ = turned;
  LookSoon();
}

void VideoRows::Stop() {
  soon_.Stop();
  reader_.Stop();
  paths_.clear();
}

bool VideoRows::eventFilter(QObject* object, QEvent* event) {
  if (event->type() == QEvent::Resize) LookSoon();
  return QObject::eventFilter(object, event);
}

void VideoRows::LookSoon() {
  if (!paths_.empty()) soon_ = HostTimer(host_, kRestMs, false, [this] { Look(); });
}

/// Wants what can be seen and the screen below, and, when it is sorted by length, all else.
void VideoRows::Look() {
  if (paths_.empty() || (!pictures_ && !byLength_)) return;
  const int rows = std::min(list_.count(), static_cast<int>(paths_.size()));
  if (rows == 0) return;
  const int height = std::max(1, list_.sizeHintForRow(0));
  const int first = std::clamp(list_.indexAt({1, 1}).row(), 0, rows - 1);
  const int seen = std::min(rows - first, list_.viewport()->height() / height + 2);
  const int near = std::min(rows - first, 2 * seen);
  std::vector<std::string> wanted(paths_.begin() + first, paths_.begin() + first + near);
  if (byLength_) {
    wanted.insert(wanted.end(), paths_.begin() + first + near, paths_.end());
    wanted.insert(wanted.end(), paths_.begin(), paths_.begin() + first);
  }
  reader_.Want(wanted);
}

void VideoRows::FactsCame(const std::vector<std::string>& paths) {
  for (const std::string& path : paths) {
    const auto found = rows_.find(path);
    if (found != rows_.end()) ShowFacts(found->second);
  }
}

void VideoRows::AllFactsCame() {
  if (!byLength_) return;
  std::vector<double> lengths;
  for (const std::string& path : paths_) {
    const VideoFacts* facts = reader_.Known(path);
    lengths.push_back(facts ? facts->glance.seconds : 0);
  }
  if (browser_.Arrange(OrderBy(lengths, turned_))) emit Arranged();
}

void VideoRows::ShowFacts(int row) {
  QListWidgetItem* item = list_.item(row);
  const VideoFacts* facts = reader_.Known(paths_[static_cast<std::size_t>(row)]);
  if (!item || !facts) return;
  const QDateTime written = QDateTime::fromSecsSinceEpoch(facts->WrittenSeconds());
  QStringList details{QLocale().toString(written.date(), QLocale::ShortFormat)};
  if (facts->seen && !facts->glance.opens) details.prepend(tr("Cannot be opened"));
  else if (facts->seen) details << Q(LengthText(facts->glance.seconds));
  details << Q(FormatFileSize(facts->stamp.bytes));
  details.removeAll(QString());
  item->setData(NameDelegate::kDetailsRole, details);
  if (facts->seen) item->setData(NameDelegate::kPictureRole, ImageOf(facts->glance.picture));
  const QString whole = QLocale().toString(written, QLocale::ShortFormat);
  item->setToolTip(item->text() + "\n" + (QStringList{whole} << details.mid(1)).join("   "));
}

}  // namespace kinalyx
