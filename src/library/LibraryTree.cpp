#include "library/LibraryTree.h"

#include <algorithm>

#include "core/Settings.h"
#include "library/VideoNames.h"
#include "platform/files/Folders.h"
#include "platform/files/TextEncoding.h"

namespace kinalyx {

std::string ShownInstructor(const std::string& instructor) {
  return instructor == kGeneralFolder || instructor == kQuickLaunch ? Tr(instructor) : instructor;
}

bool IsValidName(std::string_view text) {
  constexpr std::string_view kForbidden = "\\/:*?\"<>|!@#$%^&+={}[]~`;'";
  if (text.empty() || text.front() == '.') return false;
  return std::ranges::none_of(text, [&](char c) {
    return kForbidden.find(c) != std::string_view::npos || static_cast<unsigned char>(c) < ' ' || c == '\x7F';
  });
}

bool IsBlank(std::string_view text) {
  return std::ranges::all_of(text, [](char c) { return c == ' '; });
}

std::string_view WithoutOuterBlanks(std::string_view name) { return IsBlank(name) ? name : Trimmed(name, " "); }

bool SameName(std::string_view a, std::string_view b) { return FoldCase(a) == FoldCase(b); }

bool HasFolderNamed(const std::string& folder, std::string_view name, std::string_view except) {
  return std::ranges::any_of(ListFolders(folder),
                             [&](const std::string& entry) { return entry != except && SameName(entry, name); });
}

LibraryTree::LibraryTree(const Settings& settings) : LibraryTree(settings.LibraryPath) {}

std::vector<std::string> LibraryTree::Instructors() const {
  std::vector<std::string> names = ListFolders(Root());
  names.insert(names.begin(), std::string(kGeneralFolder));
  return names;
}

std::vector<std::string> LibraryTree::Students(std::string_view instructor) const {
  if (instructor.empty() || instructor == kGeneralFolder) return {};
  return ListFolders(InstructorFolder(instructor));
}

std::vector<std::string> LibraryTree::VideoFiles(std::string_view instructor, std::string_view student) const {
  if (instructor.empty()) return {};
  return ListVideos(StudentFolder(instructor, student));
}

std::string LibraryTree::InstructorFolder(std::string_view instructor) const {
  if (instructor.empty() || instructor == kGeneralFolder) return Root();
  return JoinPath(Root(), instructor);
}

std::string LibraryTree::StudentFolder(std::string_view instructor, std::string_view student) const {
  const std::string folder = InstructorFolder(instructor);
  if (student.empty() || instructor == kGeneralFolder) return folder;
  return JoinPath(folder, student);
}

std::string LibraryTree::QuickLaunchFolder() const { return JoinPath(Root(), kQuickLaunch); }

}  // namespace kinalyx
