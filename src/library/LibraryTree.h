#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files/Tr.h"

namespace kinalyx {

class Settings;

/// The library is a folder tree and nothing else: instructors (or databases) under the root, students
/// under an instructor, videos in a student's folder. Every list is read from the disk when it is shown.

inline constexpr std::string_view kGeneralFolder = TrLater("General Folder");  ///< no folder: the root itself
inline constexpr std::string_view kQuickLaunch = TrLater("Quick Launch");      ///< videos lie directly in it
inline constexpr std::string_view kProfessionals = "Professionals";
inline constexpr std::string_view kModelSwings = "Model Swings";

/// An instructor as lists and messages show it: the two that belong to the program in the user's language.
std::string ShownInstructor(const std::string& instructor);

/// The one rule for names of folders and videos: not empty, and none of \ / : * ? " < > | ! @ # $ % ^ & +
/// = { } [ ] ~ ` ; ' in it. Refused too are control characters and a dot at the beginning, which would
/// hide the folder from every list. A name of blanks passes; see IsBlank.
bool IsValidName(std::string_view text);
/// True for text of nothing but blanks, and for the empty text.
bool IsBlank(std::string_view text);
/// A name as it was typed, without the blanks around it: nobody sees them in a list, and many disks drop
/// them. A name of nothing but blanks stays, for it is refused as such.
std::string_view WithoutOuterBlanks(std::string_view name);
/// True for two names that many disks, a stick among them, take for one: they differ in case alone.
bool SameName(std::string_view a, std::string_view b);
/// True when a folder holds another folder of this name, in whatever case.
/// @param except  an entry that does not count: the one that is about to be renamed
bool HasFolderNamed(const std::string& folder, std::string_view name, std::string_view except = {});

/// The selection that one list remembers for another: instructor, student, and the folder at that time.
using LastStudentInfo = std::array<std::string, 3>;

/// Answers where things lie in the library of the settings, or in one at another root. A root that
/// changes is followed.
class LibraryTree {
 public:
  explicit LibraryTree(const Settings& settings);
  /// `root` outlives the tree.
  explicit LibraryTree(const std::string& root) : root_(root) {}
  explicit LibraryTree(std::string&&) = delete;

  const std::string& Root() const { return root_; }
  /// "General Folder", then the folders under the root.
  std::vector<std::string> Instructors() const;
  /// None for "General Folder".
  std::vector<std::string> Students(std::string_view instructor) const;
  /// Names of the video files, with their endings. Without a student those that lie directly
  /// in the instructor's folder, or in the root for "General Folder".
  std::vector<std::string> VideoFiles(std::string_view instructor, std::string_view student) const;

  std::string InstructorFolder(std::string_view instructor) const;
  std::string StudentFolder(std::string_view instructor, std::string_view student) const;
  /// Where "Quick Launch" keeps its videos; the folder is made by the first copy to it.
  std::string QuickLaunchFolder() const;

 private:
  const std::string& root_;
};

}  // namespace kinalyx
