#include "platform/widgets/FileDrop.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include "platform/widgets/Text.h"

namespace kinalyx {

std::vector<std::string> FilesIn(const QMimeData* data) {
  std::vector<std::string> paths;
  if (!data || !data->hasUrls()) return paths;
  for (const QUrl& url : data->urls())
    if (url.isLocalFile()) paths.push_back(Std(url.toLocalFile()));
  return paths;
}

FileDrop::FileDrop(QWidget* target) : QObject(target) {
  target->setAcceptDrops(true);
  target->installEventFilter(this);
}

bool FileDrop::eventFilter(QObject* watched, QEvent* event) {
  const auto type = event->type();
  if (type == QEvent::DragLeave) emit Left();
  if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop)
    return QObject::eventFilter(watched, event);
  auto& drop = static_cast<QDropEvent&>(*event);
  const auto paths = FilesIn(drop.mimeData());
  if (paths.empty()) return QObject::eventFilter(watched, event);
  // What is dropped is read or copied, never taken away.
  drop.setDropAction(Qt::CopyAction);
  drop.accept();
  const QPoint at = drop.position().toPoint();
  if (type == QEvent::Drop) emit Dropped(paths, at);
  else emit Over(at);
  return true;
}

}  // namespace kinalyx
