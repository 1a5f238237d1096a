#pragma once

#include <QObject>
#include <QString>
#include <functional>

#include "library/LibraryActions.h"
#include "library/LibraryOperations.h"
#include "library/forms/DialogForm.h"

namespace kinalyx {

class LibraryBrowser;
class ProgressForm;
class VideosPanel;

/// Carries out what the profiles page is asked to do with instructors, students and videos: asks first
/// where something would be lost, prepares it in a `DialogForm` or in the `EditPanel`, and has the
/// library's operations do it.
class LibraryCommands : public QObject {
  Q_OBJECT

 public:
  /// What it needs of its page.
  struct Page {
    /// Stores the notes and lets go of student and video; false, after a message, when the notes stay.
    std::function<bool()> Release;
    /// Shows what an operation has left.
    std::function<void(const OperationResult&)> Show;
    std::function<void(const QString&)> Say;
  };

  LibraryCommands(IHost& host, Settings& settings, LibraryOperations& operations, LibraryBrowser& browser,
                  VideosPanel& videos, Page page, QWidget* over);

  /// Actions on students and videos; others are not its own.
  void Run(LibraryAction action);
  void RenameInstructor();
  void DeleteInstructor();
  void SendToAnalysis();
  /// Closes the trim panel, if it is open, and cuts nothing.
  void CloseTrim();

 private:
  using Mode = DialogForm::Mode;
  using Change = LibraryOperations::Change;

  void PrepareStudent(Mode mode, Change change);
  void PrepareVideo(Mode mode);
  void PrepareInstructor(Mode mode, Change change);
  void OpenTrim();
  void SaveTrim();
  void QuickLaunch();
  void Carry();
  void Cancelled();
  /// A short operation.
  void Do(const std::function<OperationResult()>& operation);
  /// A long one; it is handed what it must call at its end.
  void DoLong(const QString& title, const std::function<void(LibraryOperations::Done)>& operation);
  void Show(const OperationResult& result);

  LibraryOperations& operations_;
  LibraryBrowser& browser_;
  VideosPanel& videos_;
  Page page_;
  DialogForm* dialog_;
  ProgressForm* progress_;
};

}  // namespace kinalyx
