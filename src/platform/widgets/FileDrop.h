#pragma once

#include <QObject>
#include <QPoint>
#include <string>
#include <vector>

class QMimeData;
class QWidget;

namespace kinalyx {

/// The files and folders of this machine that a drag or the clipboard holds, as paths; empty when it has others
/// than files, or none.
std::vector<std::string> FilesIn(const QMimeData* data);

/// Lets files and folders be dropped on a widget, from the desktop or from a file manager. What else is dragged
/// is left alone. The widget owns it.
class FileDrop : public QObject {
  Q_OBJECT

 public:
  explicit FileDrop(QWidget* target);

 signals:
  /// Files are held over the widget; where they would go is to be shown.
  void Over(QPoint at);
  /// They have been taken away, and nothing was dropped.
  void Left();
  /// @param at  where, in the widget
  void Dropped(const std::vector<std::string>& paths, QPoint at);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace kinalyx
