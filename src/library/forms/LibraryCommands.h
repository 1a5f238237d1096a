#pragma once

#include <QObject>
#include <QString>
#include <functional>
#include <vector>

#include "library/LibraryActions.h"
#include "library/LibraryOperations.h"
#include "library/forms/DialogForm.h"

namespace kinalyx {

class LibraryBrowser;
class ListChoices;
class ProgressForm;
class VideosPanel;

/// What the commands need of their page.
class ILibraryPage {
 public:
  virtual ~ILibraryPage() = default;
  /// Stores the notes and lets go of student and video; false, after a message, when the notes stay.
  virtual bool Release() = 0;
  /// Shows what an operation has left.
  virtual void ShowResult(const OperationResult& result) = 0;
  /// Says something in the status line.
  virtual void Say(const QString& text) = 0;
};

/// Carries out what the profiles page is asked to do with instructors, students and videos: asks first
/// where something would be lost, prepares it in a `DialogForm` or in the `EditPanel`, and has the
/// library's operations do it.
class LibraryCommands : public QObject {
  Q_OBJECT

 public:
  /// All that is passed outlives it.
  /// @param over  the page as a widget, over which dialogs open
  LibraryCommands(IHost& host, Settings& settings, LibraryOperations& operations, LibraryBrowser& browser,
                  const ListChoices& choices, VideosPanel& videos, ILibraryPage& page, QWidget* over);

  /// Actions on students and videos; others are not its own.
  void Run(LibraryAction action);
  void RenameInstructor();
  void DeleteInstructor();
  void SendToAnalysis();
  /// Asks for videos and copies them to the student who is chosen.
  void AddVideos();
  /// Copies files and folders that were dropped or pasted to a student of the chosen instructor.
  void AddVideos(const std::vector<std::string>& paths, const std::string& student);
  /// Shows where the chosen student's videos lie.
  void ShowFolder();
  /// Closes the trim panel, if it is open, and cuts nothing.
  void CloseTrim();

 private:
  using Mode = DialogForm::Mode;
  using Change = LibraryOperations::Change;
  using Events = LibraryOperations::Events;

  /// What becomes of a long operation, for as long as there is somebody to show it.
  class Shown;

  /// The videos that are chosen, the shown one where the list marks none.
  std::vector<LibraryVideo> Chosen() const;
  void PrepareStudent(Mode mode, Change change);
  void PrepareVideo(Mode mode);
  void PrepareVideos(Mode mode);
  void PrepareInstructor(Mode mode, Change change);
  void OpenTrim();
  void SaveTrim();
  void QuickLaunch();
  void Carry();
  void Cancelled();
  /// A short operation.
  void Do(const std::function<OperationResult()>& operation);
  /// A long one; it is handed its events.
  void DoLong(const QString& title, const std::function<void(Events)>& operation);
  Events BeginLong(const QString& title);
  void Show(const OperationResult& result);

  IHost& host_;
  LibraryOperations& operations_;
  LibraryBrowser& browser_;
  const ListChoices& choices_;
  VideosPanel& videos_;
  ILibraryPage& page_;
  std::vector<LibraryVideo> prepared_;  ///< what the dialog is about, where it is about videos
  DialogForm* dialog_;
  ProgressForm* progress_;
};

}  // namespace kinalyx
