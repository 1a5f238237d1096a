#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/Vocabulary.h"
#include "library/JobRunner.h"
#include "library/LibraryTree.h"
#include "library/Profile.h"
#include "platform/files/FileCopy.h"
#include "platform/files/Result.h"
#include "platform/files/Trash.h"
#include "platform/host/Host.h"

namespace kinalyx {

class LibraryBrowser;
class VideoTransferJob;

/// What the library asks of the analysis section.
class IAnalysisLink {
 public:
  virtual ~IAnalysisLink() = default;
  /// True when a slot, shown or hidden, holds this file.
  virtual bool IsOpenInAnalysis(const std::string& path) const = 0;
  /// Opens a file in the first free slot and tells of it in words; the slot, or 0 when it was not opened.
  virtual int SendToAnalysis(const std::string& path, const std::function<void(const std::string&)>& status) = 0;
  /// Shows the section, with what was sent to it.
  virtual void GoToAnalysis() = 0;
  /// A video, or a folder with all in it, has another path now: whoever remembers it follows.
  virtual void PathChanged(const std::string& /*from*/, const std::string& /*to*/) {}
};

/// A video as the lists have it.
struct LibraryVideo {
  std::string instructor;  ///< "General Folder" and "Quick Launch" among them
  std::string student;     ///< empty when the video lies directly under its instructor
  std::string path;        ///< empty when none is chosen
  /// In place of a path: the folder of a student without videos, who goes along with the database.
  std::string studentFolder{};
};

/// The video that is chosen in the lists.
LibraryVideo ChosenVideo(const LibraryBrowser& browser);

/// All videos of an instructor or database, and the students who have none.
std::vector<LibraryVideo> VideosOf(const LibraryTree& tree, const std::string& instructor);

/// The instructors and databases to which a video, or, where its path is empty, its student can be moved.
std::vector<std::string> MoveTargets(const LibraryTree& tree, const LibraryVideo& about);

/// What an operation leaves to the form that asked for it.
struct OperationResult {
  /// Words for the status line. A refusal that needs to be read has been shown in a box as well.
  Result<std::string> words = Outcome::Failed({});
  bool refill = false;  ///< the lists are to be read again
  /// What the lists choose then; where a name is empty, the present choice stays if it still exists.
  std::string instructor{};
  std::string student{};
  std::string video{};
  /// Names of the videos that have come there, where there may be several.
  std::vector<std::string> arrived{};

  bool Done() const { return static_cast<bool>(words); }
  const std::string& Status() const { return words ? *words : words.Why(); }
};

/// What a long operation tells whoever asked for it.
class IOperationEvents {
 public:
  virtual ~IOperationEvents() = default;
  /// Words for the status line while the operation is under way.
  virtual void ShowStatus(const std::string& words) = 0;
  /// How far it is; called several times a second.
  virtual void ShowProgress(const JobProgress& progress) = 0;
  /// The work is over, and how it went is told next, maybe in a box: a progress window gets out of the way. Not
  /// called when the operation was refused.
  virtual void WorkOver() = 0;
  /// Called once, as the last: at once when the operation is refused, later when its work is over.
  virtual void Ended(const OperationResult& result) = 0;
};

/// Where videos go that lie in no student's folder, as in a plain folder of files.
struct ImportTarget {
  std::string instructor{};  ///< empty: to the library's own folder
  std::string student{};
};

/// Reads the lists again, where an operation wants it, and chooses what it is about.
void ShowResult(const OperationResult& result, LibraryBrowser& browser);

/// All changes to the library tree. Everything works on files and folders directly, a video always with
/// its sidecar. Nothing is ever replaced, and what fails leaves the library as it was.
///
/// Short operations return their result. Long ones tell it to the events that are handed over with them, which
/// are kept until then; a form that may go meanwhile hands over events that know of it. The window stays alive
/// meanwhile: a progress window shows how far the work is, and its button calls Cancel. One long operation runs
/// at a time, and while it does, the others are refused.
///
/// Before an operation on a student or on the video in the preview, the form stores the notes that are
/// being written and lets go of both.
class LibraryOperations {
 public:
  /// Never null.
  using Events = std::shared_ptr<IOperationEvents>;
  enum class Change { Rename, Move, Delete };
  struct Environment {
    JobRunner::On jobs = JobRunner::On::Worker;
    IDisk* disk = &RealDisk();
    ITrash* trash = nullptr;  ///< where what is deleted goes; null: it is gone
  };

  /// All that is passed outlives it.
  LibraryOperations(IHost& host, const Settings& settings, IAnalysisLink& analysis);
  LibraryOperations(IHost& host, const Settings& settings, IAnalysisLink& analysis, Environment environment);

  bool Busy() const { return runner_.Busy(); }
  /// Stops the long operation under way; its events tell how it ended.
  void Cancel() { runner_.Cancel(); }

  // --- instructors and students

  /// The library on this machine is made with the first one; where it has been removed, the user is asked.
  OperationResult AddInstructor(std::string_view name);
  /// The refusal of a change to an instructor or database: one must be chosen that is a folder of the user's
  /// own, none of its videos be open, and for Delete it must be empty. Empty: go on.
  std::string RefuseUnlessInstructorChangeable(const std::string& instructor, Change change);
  OperationResult RenameInstructor(const std::string& instructor, std::string_view name);
  /// Removes the folder of an instructor who has neither students nor files.
  OperationResult DeleteInstructor(const std::string& instructor);
  /// The student's name is field 0.
  OperationResult AddStudent(const std::string& instructor, const FieldTexts& captions, const FieldTexts& values);
  /// The refusal of a change for which a student must be chosen and none of the student's videos be open;
  /// forms ask before they open their panel. Empty: go on.
  std::string RefuseUnlessStudentChangeable(const std::string& instructor, const std::string& student, Change change);
  OperationResult RenameStudent(const std::string& instructor, const std::string& student, std::string_view name);
  OperationResult RenameStudentCancelled() const;
  void MoveStudent(const std::string& instructor, const std::string& student, const std::string& targetInstructor,
                   Events events);
  /// What goes with a student or a video that is deleted, and whether it can be taken back; said by the form that
  /// asks.
  std::string DeletionText(const LibraryVideo& about, bool wholeStudent);
  /// Removes the folder with all that is in it, to the trash where there is one. The form has asked; a trash that
  /// turns out not to take it is asked about.
  void DeleteStudent(const std::string& instructor, const std::string& student, Events events);

  // --- videos

  /// The refusal of an action for which a video must be chosen and not be open. Empty: go on.
  std::string RefuseUnlessVideoChangeable(const LibraryVideo& video);
  /// Tells `status` what the analysis section says while it opens the video; the last of it is in the result.
  OperationResult SendToAnalysis(const LibraryVideo& video, const std::function<void(const std::string&)>& status);
  /// Sends several, one after the other into free windows, until there is no more room.
  OperationResult SendToAnalysis(const std::vector<LibraryVideo>& videos,
                                 const std::function<void(const std::string&)>& status);
  /// Shows the analysis section.
  void GoToAnalysis() { analysis_.GoToAnalysis(); }
  OperationResult RenameVideo(const LibraryVideo& video, std::string_view name);
  void MoveVideo(const LibraryVideo& video, const std::string& targetInstructor, const std::string& targetStudent,
                 Events events);
  /// All or none are begun with: what is open, or taken at the target, refuses all.
  void MoveVideos(const std::vector<LibraryVideo>& videos, const std::string& targetInstructor,
                  const std::string& targetStudent, Events events);
  /// Removes it and its sidecar, likewise. The form has asked.
  OperationResult DeleteVideo(const LibraryVideo& video);
  OperationResult DeleteVideos(const std::vector<LibraryVideo>& videos);
  /// Copies videos to the folder of a removeable disk. A name that is taken there gets a "d".
  void CopyToDisk(const std::vector<LibraryVideo>& videos, const std::string& disk, Events events);
  /// Copies the video to the Quick Launch folder, or, when it lies there, removes it from it. Asks first.
  void QuickLaunch(const LibraryVideo& video, Events events);
  /// Cuts the video in place; its sidecar stays as it is. Frames count from 0 and both belong to the cut;
  /// 0 as the last one is the end. `rate` is used for a video that does not tell its own.
  void Trim(const LibraryVideo& video, int firstFrame, int lastFrame, int rate, Events events);

  // --- whole databases

  /// Copies videos into a library at `targetRoot`, or from one elsewhere into this one. Folders are made as
  /// needed, and a name that is taken gets a "d". A student who is new to the target brings the profile. What
  /// cannot be opened is taken along by an import, and named in a message at its end.
  void ExportVideos(const std::vector<LibraryVideo>& videos, const std::string& targetRoot, Events events);
  /// Copies videos from anywhere on this machine to one place of the library; folders bring all videos in them
  /// and below. What lies there already stays out of it.
  void AddVideos(const std::vector<std::string>& paths, const ImportTarget& target, Events events);
  void ImportVideos(const std::vector<LibraryVideo>& videos, Events events, const ImportTarget& loose = {});

 private:
  enum class Direction { Export, Import };

  bool IsOpen(const std::string& videoPath) const;
  /// Why nothing can be done just now: another operation is at work, or the library cannot be reached.
  /// Empty: all is well.
  std::string Obstacle() const;
  /// Makes the folder of the library on this machine where it is still to begin, and asks where it has been
  /// removed; false when the user would rather not. A folder of the user's own choice is never made.
  bool BeginLibrary();
  /// Why the library cannot be reached; empty when it can, or when it is still to begin.
  std::string Unreachable() const;
  /// Why a folder must stay as it is: a video in it is open. `change` is "rename this student". Empty: go on.
  std::string OpenVideoIn(const std::string& folder, const std::string& change) const;
  /// True when a drive outside the library answers, and the folder is there.
  bool HasFolder(const std::string& drive) const;
  OperationResult Refuse(const std::string& text);
  /// Shows a refusal, if there is one, and hands it on.
  std::string Shown(const std::string& refusal);
  /// Refuses because what the operation is about has gone meanwhile.
  OperationResult RefuseGone(const std::string& text);
  static OperationResult Report(const std::string& text) { return {Outcome::Failed(text)}; }
  std::string BusyText() const;
  /// The trash for a file or folder; null when there is none.
  ITrash* TrashOf(const std::string& path) const;
  /// Asks whether something shall go that the trash does not take.
  bool GoesForGood(const std::string& what);
  void RemoveStudent(const std::string& instructor, const std::string& folder, Events events);
  bool RemoveVideo(const std::string& path);
  std::string StillFullText(const std::string& instructor) const;
  void AddToQuickLaunch(const LibraryVideo& video, Events events);
  OperationResult RemoveFromQuickLaunch(const LibraryVideo& video);
  void Transfer(Direction direction, const std::vector<LibraryVideo>& videos, const std::string& targetRoot,
                const ImportTarget& loose, Events events);
  OperationResult EndOfTransfer(const VideoTransferJob& copy, bool out, const std::vector<ImportTarget>& places);
  void TellUnreadable(const std::vector<std::string>& paths);
  /// Runs a job; `end` makes the result of it. The job is the one that was given.
  template <typename Job>
  void Run(std::unique_ptr<Job> job, std::function<OperationResult(Job&)> end, Events events);

  IHost& host_;
  const Settings& settings_;
  Vocabulary words_;
  LibraryTree tree_;
  IAnalysisLink& analysis_;
  IDisk& disk_;
  ITrash* trash_;
  JobRunner runner_;
};

}  // namespace kinalyx
