#pragma once

#include <QDialog>

#include "library/LibraryOperations.h"

class QLabel;
class QLineEdit;

namespace kinalyx {

class Button;
class DriveChoice;
class NameList;

/// The one dialog in which a change to the library is prepared. Its panels serve rename, move, delete and
/// copy; it changes nothing itself.
class DialogForm : public QDialog {
  Q_OBJECT

 public:
  enum class Mode {
    RenameInstructor,
    DeleteInstructor,
    RenameStudent,
    MoveStudent,
    DeleteStudent,
    RenameVideo,
    MoveVideo,
    CopyVideo,
    DeleteVideo,
  };

  /// What is passed outlives the form.
  DialogForm(IHost& host, Settings& settings, QWidget* over);

  /// Shows the panel of a mode for what is chosen in the lists.
  /// @param videos  how many it is about, where it is about videos
  /// @param goes    what goes with what is deleted
  void Open(Mode mode, const LibraryVideo& about, std::size_t videos = 1, const std::string& goes = {});
  Mode CurrentMode() const { return mode_; }
  /// What was chosen when the form was opened.
  const LibraryVideo& About() const { return about_; }

  // --- what the user has made of it
  std::string Name() const;
  std::string Database() const;  ///< empty when none is chosen
  std::string Student() const;   ///< empty when none is chosen
  std::string Drive() const;     ///< empty when none is chosen

 signals:
  /// The button of the panel was pressed. The form stays open until it is told to go.
  void Wanted();

 private:
  struct Words {
    std::string title;
    std::string text;
    std::string action;
  };

  QWidget* MakeRenamePanel();
  QWidget* MakeMovePanel();
  QWidget* MakeCopyPanel(IHost& host, Settings& settings);
  Words WordsOfMode() const;
  void OpenPart();
  void OpenRename();
  void OpenMove();
  void FocusPart();
  void Want();
  void ShowStudents();
  template <typename Reading>
  std::vector<std::string> Read(Reading reading);
  void ReadDrive();
  void ShowAction();

  IHost& host_;
  const Settings& settings_;
  LibraryTree tree_;
  Mode mode_ = Mode::RenameStudent;
  LibraryVideo about_;
  std::size_t videos_ = 1;
  std::string goes_;
  std::string oldName_;
  std::string lastDatabase_;  ///< the target of the last move
  std::string lastStudent_;
  HostTimer reading_;

  QLabel* title_;
  QLabel* text_;
  QWidget* renamePanel_;
  QWidget* movePanel_;
  QWidget* copyPanel_;
  QLineEdit* name_;
  QLabel* nameTitle_ = nullptr;
  NameList* databases_;
  QWidget* studentsPart_;
  QLabel* studentsTitle_;
  NameList* students_;
  DriveChoice* drive_;
  QLabel* space_;
  Button* cancel_;
  Button* action_;
};

}  // namespace kinalyx
