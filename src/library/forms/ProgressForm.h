#pragma once

#include <QDialog>
#include <functional>

#include "library/LibraryOperations.h"

class QLabel;
class QProgressBar;

namespace kinalyx {

class Button;

/// The progress window of the library's long operations. It appears when one takes its time, keeps the
/// rest of the program from changing what is being worked on, and lets the user cancel.
class ProgressForm : public QDialog {
  Q_OBJECT

 public:
  /// Both outlive the window. The callbacks of `operations` are its own from the first Begin on.
  ProgressForm(IHost& host, LibraryOperations& operations, QWidget* over);
  ~ProgressForm() override;

  /// Call it for the argument of a long operation: the operation then shows here, its words go to `say`,
  /// and `done` is called when it is over, or refused.
  LibraryOperations::Done Begin(const QString& title, std::function<void(const QString&)> say,
                                LibraryOperations::Done done);

 public slots:
  void reject() override;

 private:
  void ShowProgress(const JobProgress& progress);
  void End();

  IHost& host_;
  LibraryOperations& operations_;
  std::int64_t began_ = -1;  ///< when the operation under way gave its first sign; -1 not yet
  QLabel* title_;
  QLabel* words_;
  QLabel* current_;
  QProgressBar* gauge_;
  Button* cancel_;
};

}  // namespace kinalyx
