#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kinalyx {

/// The user's documents folder: XDG_DOCUMENTS_DIR as the desktop has set it, else Documents in the
/// home folder. Made when missing.
std::string DocumentsFolder();

/// The folder of the running program, without a trailing slash.
std::string ProgramFolder();

bool FileExists(const std::string& path);
/// True when there is something at the path, a dangling link included.
bool EntryExists(const std::string& path);
/// True when the path exists and is a folder.
bool dirExists(const std::string& path);
/// True for one file or folder under two paths, as a link gives it; false when one of them is not there.
bool SamePlace(const std::string& a, const std::string& b);
/// Makes a folder and those above it; true when it is there afterwards.
bool MakeFolder(const std::string& path);
/// Deletes a file; false when it is still there afterwards.
bool KillFile(const std::string& path);
/// Bytes, or nothing when the file cannot be read.
std::optional<std::int64_t> FileSize(const std::string& path);
/// One state of a file: another when it has been written to or replaced since, also within one beat of the
/// disk's clock.
struct FileStamp {
  std::uint64_t number = 0;  ///< of the file on its disk
  std::int64_t bytes = 0;
  std::int64_t written = 0;  ///< nanoseconds of the disk's clock

  friend auto operator<=>(const FileStamp&, const FileStamp&) = default;
};
/// Nothing when it cannot be asked.
std::optional<FileStamp> StampOf(const std::string& path);
std::optional<FileStamp> StampOf(int file);
/// Where a file that must make way is kept beside: "X.old", with a number behind where that is taken already.
std::string KeptPath(const std::string& path);
/// Free bytes of the drive that holds `path` (or the nearest folder above it that exists); -1 unknown.
std::int64_t FreeBytes(const std::string& path);

/// Whether there is a file of that name; nothing when its drive fails to tell, which is not the same as its absence.
std::optional<bool> FileIsThere(const std::string& path);
/// Looks at a file or folder, at what is in it and at its drive, so that nothing of it is answered from
/// memory; true when it is there. It takes as long as the drive takes to answer.
bool TouchPath(const std::string& path);

/// Natural sort by the collation of the user's language: an accent comes after the plain letter or where the
/// language has it, runs of digits count by value, case does not. Names that collate alike are sorted byte by byte.
void SortNames(std::vector<std::string>& names);

/// Names of the subfolders, hidden ones left out, sorted as a reader would sort them (letters as in the
/// user's language, without regard to case, runs of digits by value). An unreadable folder gives an empty list.
std::vector<std::string> ListFolders(const std::string& folder);
/// Names of the files that end in `extension` (".avi"; either case), sorted likewise.
std::vector<std::string> ListFiles(const std::string& folder, std::string_view extension);
/// Those whose names are wanted.
std::vector<std::string> ListFiles(const std::string& folder, bool (*wanted)(std::string_view name));

/// Puts a slash between two parts of a path, unless one is there.
std::string JoinPath(std::string_view folder, std::string_view name);
/// The last name of a path.
std::string LastName(std::string_view path);
/// What stands before it: the folder in which it lies, "." for a bare name.
std::string FolderOf(std::string_view path);

}  // namespace kinalyx
