#pragma once

#include <functional>
#include <string>
#include <vector>

#include "library/LibraryTree.h"
#include "library/ListChoices.h"
#include "platform/host/DriveWatch.h"

namespace kinalyx {

/// The three lists by which the library is browsed, instructor, student, video, and the rules by which a
/// choice in one fills the next. The profiles page and the open forms each have one; they share the
/// remembered selection, so that each opens where the other was left.
///
/// Rows count from 0; -1 means that nothing is chosen.
class LibraryBrowser {
 public:
  enum class Kind {
    Profiles,   ///< does not remember the student "Professionals"
    OpenVideo,  ///< nor "Model Swings"
    Exchange,   ///< like OpenVideo; one side of an import or export
  };

  /// `drives` and `remembered`, the program's one remembered selection, are not owned.
  LibraryBrowser(DriveWatch& drives, const Settings& settings, LastStudentInfo& remembered, Kind kind);
  /// The same for a library elsewhere.
  LibraryBrowser(DriveWatch& drives, const LibraryTree& tree, LastStudentInfo& remembered, Kind kind);

  // --- filling

  /// Reads the library afresh and goes to the remembered instructor, student and first video; without
  /// a remembered one to "General Folder". With `keepInstructor` the instructor chosen now stays.
  void CapfolderSetup(bool keepInstructor = false);
  /// The same on coming back to the page: if the student is still the same, so is the chosen video.
  void Return(bool keepInstructor = false);
  /// Reads the lists again and keeps what is chosen, as far as it still exists.
  void Refresh();
  /// True when the library's drive did not answer the last time that it was read. What could not be read is
  /// empty then, and the remembered selection stays.
  bool Silent() const { return silent_; }
  /// How the videos are sorted from now on; they are read again, and the chosen one stays. Lengths are not known here:
  /// for these Arrange is called when they are.
  void SortVideos(VideoSort sort);
  /// How they are sorted when they are read next.
  void SetSort(VideoSort sort) { sort_ = sort; }
  /// Puts the videos in another order; the chosen one stays. True when that changes anything.
  /// @param rows  the present row of each
  bool Arrange(const std::vector<std::size_t>& rows);
  /// Reads a library that was silent, and goes to what was chosen or remembered.
  void TryAgain();

  // --- choosing; rows out of range choose nothing

  void ChooseInstructor(int row);
  void ChooseStudent(int row);
  void ChooseVideo(int row);
  /// By name; false, with nothing changed, when the list does not hold it. Names compare exactly.
  bool SelectInstructor(std::string_view name);
  bool SelectStudent(std::string_view name);
  bool SelectVideo(std::string_view name);

  // --- what the lists show

  const std::vector<std::string>& InstructorList() const { return instructors_; }
  const std::vector<std::string>& StudentList() const { return students_; }
  /// Names without extension.
  const std::vector<std::string>& VideoList() const { return videos_; }
  int InstructorIndex() const { return instructor_; }
  int StudentIndex() const { return student_; }
  int VideoIndex() const { return video_; }

  bool IsGeneralFolder() const { return instructor_ == 0; }
  bool IsQuickLaunch() const;
  /// True when a student is chosen who has a profile (any but under "General Folder").
  bool HasStudent() const { return student_ >= 0 && !IsGeneralFolder(); }
  bool HasVideo() const { return video_ >= 0; }
  std::string Instructor() const;  ///< empty when none is chosen
  std::string Student() const;     ///< empty when none is chosen
  std::string Video() const;       ///< name without extension; empty when none is chosen
  /// The folder of the chosen student, or the one of the instructor while no student is chosen.
  std::string Folder() const;
  /// The chosen video's file, "" when none is chosen.
  std::string VideoPath() const;
  /// Paths of all videos of the list.
  std::vector<std::string> VideoPaths() const;
  /// Path of any video of the list.
  std::string VideoPathAt(int row) const;

  const LibraryTree& Tree() const { return tree_; }
  DriveWatch& Drives() const { return drives_; }
  Kind Purpose() const { return kind_; }

 private:
  void FillStudents();
  void ReadVideos();
  void Remember();
  using Reading = std::function<std::vector<std::string>(const LibraryTree&)>;
  std::vector<std::string> Read(Reading reading);
  void ReadInstructors();

  DriveWatch& drives_;
  LibraryTree tree_;
  LastStudentInfo& LastStudent_;
  Kind kind_;
  std::vector<std::string> instructors_;
  std::vector<std::string> students_;
  std::vector<std::string> files_;
  std::vector<std::string> videos_;
  VideoSort sort_;
  int instructor_ = -1;
  int student_ = -1;
  int video_ = -1;
  bool silent_ = false;
};

/// The short-game files that belong together with a video, in the order in which they open, as full
/// paths of those that exist in `folder`; empty when the name names no family ("Distance", "Chip",
/// "Bunker", "Putting"). Names compare without regard to case.
std::vector<std::string> ShortGameFamily(const std::string& folder, std::string_view videoName);
/// True when a video's name names such a family.
bool IsShortGameName(std::string_view videoName);

}  // namespace kinalyx
