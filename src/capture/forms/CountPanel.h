#pragma once

#include <QWidget>

namespace kinalyx {

/// `CountPnl`: digits over the whole stage, to be read from ten metres. The mouse goes through it.
class CountPanel : public QWidget {
  Q_OBJECT

 public:
  /// @param stage  over which it stands, and whose size it keeps
  explicit CountPanel(QWidget* stage);
  /// Empty hides it.
  void Show(const QString& count);

 protected:
  void paintEvent(QPaintEvent*) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QString count_;
};

}  // namespace kinalyx
