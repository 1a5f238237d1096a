#pragma once

#include <QFrame>
#include <QPoint>
#include <map>

class QLabel;

namespace kinalyx {

/// The line at the foot of a page: what was last said, and, while the mouse or the keys are on a
/// part of the page that explains itself, what that part does.
class StatusLine : public QFrame {
  Q_OBJECT

 public:
  /// @param name  of the label in it
  explicit StatusLine(const QString& name, QWidget* parent = nullptr);

  void Say(const QString& text);
  /// Explains a part of the page, from now on with these words.
  void Explain(QWidget* part, const QString& words);
  /// An operation has ended. The mouse that finds itself over a button because a dialog has gone, or the keys
  /// that come back to it, do not wipe out how it went.
  void Rest();

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  bool ComesToPart(const QEvent& event) const;

  QLabel* words_;
  QString said_;
  QPoint restingMouse_{-1, -1};  ///< where the mouse was when an operation ended
  std::map<QObject*, QString> parts_;
};

}  // namespace kinalyx
