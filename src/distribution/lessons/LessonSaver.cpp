#include "distribution/lessons/LessonSaver.h"

#include <fmt/format.h>

#include "library/LibraryTree.h"
#include "library/VideoTransfer.h"
#include "platform/files/Folders.h"
#include "platform/files/Tr.h"

namespace kinalyx {
namespace {

std::string FileOf(LessonKind kind, std::string_view name) { return fmt::format("{}{}", name, EndingOf(kind)); }

}  // namespace

std::string_view EndingOf(LessonKind kind) { return kind == LessonKind::Avi ? ".avi" : ".mp4"; }

/// Other workstations may have spelt it in small letters.
std::string LessonsFolder(const std::string& studentFolder) {
  const std::string small = JoinPath(studentFolder, "lessons");
  return dirExists(small) ? small : JoinPath(studentFolder, "Lessons");
}

std::string ProposeLessonName(const std::string& lessonsFolder, LessonKind kind, std::string_view today) {
  std::string name = fmt::format("Lesson {}", today);
  for (int number = 2; HasVideoNamed(lessonsFolder, FileOf(kind, name)); ++number)
    name = fmt::format("Lesson {} ({})", today, number);
  return name;
}

std::string LessonNameFault(const std::string& lessonsFolder, LessonKind kind, std::string_view name) {
  if (IsBlank(name)) return Tr("You must name the lesson before saving!");
  if (!IsValidName(name)) return Tr("Invalid Character in name. Please try again.");
  if (HasVideoNamed(lessonsFolder, FileOf(kind, name)))
    return Tr("Lesson Name already exists. Please choose a different name.");
  return {};
}

bool LessonSaver::Step() {
  if (over_) return false;
  if (!copy_) {
    if (!MakeFolder(FolderOf(path_))) {
      how_ = Outcome::Failed(Tr("The folder {} cannot be made.", FolderOf(path_)));
      over_ = true;
      return false;
    }
    copy_.emplace(recording_, path_);
  }
  if (copy_->Step()) return true;
  over_ = true;
  how_ = copy_->How();
  if (how_) copy_.reset();
  else if (EntryExists(path_))
    how_ = Outcome::Failed(Tr("Lesson Name already exists. Please choose a different name."));
  return false;
}

void LessonSaver::Cancel() {
  if (over_) return;
  over_ = true;
  copy_.reset();
  how_ = {Fault::Cancelled, Tr("Nothing was saved.")};
}

JobProgress LessonSaver::Progress() const {
  return {over_ && how_ ? 1 : 0, 1, copy_ ? copy_->Part() : over_ ? 1.0 : 0.0, LastName(path_)};
}

}  // namespace kinalyx
