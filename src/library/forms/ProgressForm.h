#pragma once

#include <QDialog>

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
  /// Both outlive the window.
  ProgressForm(IHost& host, LibraryOperations& operations, QWidget* over);
  ~ProgressForm() override;

  /// Call it for the events of a long operation: the operation then shows here, and what it says and how it ends
  /// goes on to the page. When the window has gone meanwhile, the operation shows nowhere.
  LibraryOperations::Events Begin(const QString& title, LibraryOperations::Events page);

 public slots:
  void reject() override;

 private:
  class Shown;

  void ShowWords(const std::string& words);
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
