#include "library/FolderContents.h"

#include <fmt/format.h>

#include <filesystem>
#include <system_error>

#include "library/LibraryTree.h"
#include "library/VideoNames.h"
#include "platform/files/Folders.h"
#include "platform/files/Tr.h"

namespace kinalyx {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kNamed = 3;
constexpr int kMostFiles = 100000;

void Count(FolderContents& contents, const std::string& name) {
  ++contents.files;
  const std::string above = FolderOf(name);
  const bool here = above == ".";
  const bool lesson = SameName(above, "lessons");
  const std::string ending = VideoExtension(name);
  if (here && IsVideoName(name)) ++contents.videos;
  else if (lesson && IsVideoName(name)) ++contents.lessons;
  else if (here && (SameName(name, "profile.prf") || SameName(name, "profile.txt"))) contents.profile = true;
  else if (!SameName(ending, ".ved") || !(here || lesson)) {
    ++contents.unlisted;
    if (contents.unlistedNames.size() < kNamed) contents.unlistedNames.push_back(name);
  }
}

}  // namespace

FolderContents ContentsOf(const std::string& folder) {
  FolderContents contents;
  std::error_code failed;
  for (auto entry = fs::recursive_directory_iterator(folder, fs::directory_options::skip_permission_denied, failed);
       !failed && entry != fs::recursive_directory_iterator() && contents.files < kMostFiles; entry.increment(failed)) {
    std::error_code unknown;
    if (!entry->is_directory(unknown) || entry->is_symlink(unknown))
      Count(contents, entry->path().lexically_relative(folder).string());
  }
  return contents;
}

std::string ContentsText(const FolderContents& contents) {
  if (contents.files == 0) return Tr("There are no files in the folder.");
  std::vector<std::string> parts;
  if (contents.videos > 0)
    parts.push_back(contents.videos == 1 ? Tr("1 video with all drawings and notes")
                                         : Tr("{} videos with all drawings and notes", contents.videos));
  if (contents.lessons > 0)
    parts.push_back(contents.lessons == 1 ? Tr("1 lesson") : Tr("{} lessons", contents.lessons));
  if (contents.profile) parts.emplace_back(Tr("the profile"));
  if (contents.unlisted > 0) {
    const std::string names = fmt::format("{}", fmt::join(contents.unlistedNames, ", "));
    std::string others = contents.unlisted == 1
                             ? Tr("1 file that the lists do not show: {}", names)
                             : Tr("{} files that the lists do not show: {}", contents.unlisted, names);
    if (const int more = contents.unlisted - static_cast<int>(contents.unlistedNames.size()); more > 0)
      others += Tr(" and {} more", more);
    parts.push_back(others);
  }
  std::string text = contents.files == 1 ? Tr("There is 1 file in the folder")
                                         : Tr("There are {} files in the folder", contents.files);
  for (std::size_t part = 0; part < parts.size(); ++part)
    text += (part == 0 ? ": " : part + 1 == parts.size() ? Tr(" and ") : ", ") + parts[part];
  return text + ".";
}

std::string TrashText(bool toTrash) {
  return toTrash ? Tr("It goes to the trash of the desktop, from where it can be taken back.")
                 : Tr("This drive has no trash: what is deleted is gone.");
}

}  // namespace kinalyx
