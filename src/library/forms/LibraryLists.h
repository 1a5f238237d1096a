#pragma once

#include <QObject>
#include <array>

#include "core/Vocabulary.h"
#include "library/LibraryBrowser.h"
#include "platform/widgets/NameList.h"

namespace kinalyx {

/// The three lists `InstructorList`, `StudentList` and `VideoList` over one browser: fills each from the
/// choice in the one before, and says in an empty list what to do. Left and right move between the
/// lists, Enter goes on to the next one or opens the video, the space bar plays it.
class LibraryLists : public QObject {
  Q_OBJECT

 public:
  /// The lists are made here, without a parent: the form places them.
  /// @param names  of the three lists, in their order
  LibraryLists(LibraryBrowser& browser, const Settings& settings, QObject* parent,
               const std::array<const char*, 3>& names = {"InstructorList", "StudentList", "VideoList"});

  NameList* InstructorList() { return instructors_; }
  NameList* StudentList() { return students_; }
  NameList* VideoList() { return videos_; }

  /// Fills all three from the browser, which has just read the library, and tells of every change.
  void ShowAll();
  void ShowStudents();
  void ShowVideos();
  /// The videos have another order; what is chosen stays, and nobody is told.
  void ShowOrder();
  /// The space bar chooses a video in place of playing it.
  void SpaceChooses() { spacePlays_ = false; }
  /// Says in empty lists what to do.
  void ShowHints();

 signals:
  /// Another instructor or student is about to be taken. A receiver that needs the present one clears `may`: the
  /// lists then stay as they are.
  void Leaving(bool& may);
  /// The user has chosen a row in one of the lists; what it brings follows.
  void Chosen();
  void InstructorChosen();
  void StudentChosen();  ///< also: none is chosen any more
  void VideoChosen();    ///< also: none is chosen any more
  /// A double click or Enter on a video.
  void VideoActivated();
  /// The space bar on a video.
  void PlayWanted();
  /// The library's drive was silent and answers again; the lists have been filled.
  void AnswersAgain();

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  bool Leave();
  QStringList InstructorNames() const;
  void ShowCount();
  bool RootGone();
  void WatchSilence();

  LibraryBrowser& browser_;
  const Settings& settings_;
  Vocabulary vocabulary_;
  HostTimer again_;  ///< looks after a library that is silent
  NameList* instructors_;
  NameList* students_;
  NameList* videos_;
  bool spacePlays_ = true;
};

}  // namespace kinalyx
