#pragma once

#include <array>
#include <vector>

#include "library/LibraryBrowser.h"
#include "library/LibraryOperations.h"
#include "platform/widgets/Panel.h"

class QLabel;

namespace kinalyx {

class Button;
class LibraryLists;

/// One side of the import and export page: a library, from which any number of videos can be chosen.
class LibrarySide : public Panel {
  Q_OBJECT

 public:
  /// @param names  of the three lists
  /// @param index  of the side: 0 or 1, at the end of the names of its other controls
  LibrarySide(DriveWatch& drives, const QString& title, const Settings& settings, const LibraryTree& tree,
              const std::array<const char*, 3>& names, int index, QWidget* parent = nullptr);

  /// Reads the library anew and goes to this instructor and student, as far as they are there.
  void Open(const LastStudentInfo& at);
  /// Reads it again; what is chosen in the lists of instructors and students stays.
  void Refresh();
  /// Reads it again, goes to where an operation has put videos, and chooses these.
  void ShowArrived(const OperationResult& result);
  void SetupVocabulary();

  /// The chosen videos; those of a whole database where that was asked for.
  std::vector<LibraryVideo> Chosen() const;
  LibraryBrowser& Browser() { return browser_; }

 signals:
  /// The library's drive was silent and answers again.
  void AnswersAgain();

 private:
  void StudentChosen();
  void ShowCount();
  void SelectAll();
  void ChooseWhole(bool whole);

  const Settings& settings_;
  LastStudentInfo remembered_;
  LibraryBrowser browser_;
  LibraryLists* lists_;
  std::vector<LibraryVideo> whole_;  ///< of the database that is taken as a whole
  QLabel* studentsTitle_;
  QLabel* count_;
  Button* selectAll_;
  Button* wholeDatabase_;
};

}  // namespace kinalyx
