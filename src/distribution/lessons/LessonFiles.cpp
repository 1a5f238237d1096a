#include "distribution/lessons/LessonFiles.h"

#include <fmt/format.h>

#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>

#include "platform/files/Folders.h"
#include "platform/files/IniFile.h"
#include "platform/files/Tr.h"

namespace kinalyx {
namespace {

constexpr std::string_view kEnding = ".mkv";
constexpr std::string_view kSection = "Lesson";
constexpr std::int64_t kSecond = 1'000'000'000;
constexpr int kNames = 1000;
/// How long a name is waited for: somebody may just be looking whether it is free.
constexpr int kPatienceMs = 100;

std::string NotePath(const std::string& lesson) { return lesson.substr(0, lesson.size() - kEnding.size()) + ".ini"; }

std::int64_t Seconds(const FileStamp& stamp) { return stamp.written / kSecond; }

bool Remove(const std::string& path) {
  (void)KillFile(NotePath(path));
  return KillFile(path);
}

}  // namespace

Result<std::string> LessonFiles::Begin(const std::string& instructor, const std::string& student) {
  lock_.reset();
  if (!MakeFolder(folder_)) return Outcome::Failed(Tr("The folder {} cannot be made.", folder_));
  for (int number = 1; number <= kNames; ++number) {
    const std::string path = JoinPath(folder_, fmt::format("lesson {}{}", number, kEnding));
    if (EntryExists(path)) continue;
    auto lock = std::make_unique<FileLock>(path, kPatienceMs);
    if (lock->Busy() || EntryExists(path)) continue;
    // Without it the lesson is still found, but not whose it is.
    (void)WriteProfileEntries(
        {{std::string(kSection), "Instructor", instructor}, {std::string(kSection), "Student", student}},
        NotePath(path));
    lock_ = std::move(lock);
    return path;
  }
  return Outcome::Failed(Tr("There are too many unfinished lessons in {}.", folder_));
}

Outcome LessonFiles::TakeUp(const RecordedLesson& lesson) {
  lock_.reset();
  auto lock = std::make_unique<FileLock>(lesson.path, 0);
  if (lock->Busy()) return {Fault::Refused, Tr("Another window is at work on this lesson.")};
  const std::optional<FileStamp> stamp = StampOf(lesson.path);
  if (!stamp || Seconds(*stamp) != lesson.written)
    return {Fault::Refused, Tr("The lesson has been saved or thrown away in another window.")};
  lock_ = std::move(lock);
  return {};
}

Outcome ThrowAway(const RecordedLesson& lesson) {
  if (lesson.path.empty() || Remove(lesson.path)) return Outcome();
  return Outcome::Failed(Tr("{} cannot be removed.", LastName(lesson.path)));
}

bool FindUnfinishedLessons::Step() {
  if (!listed_) {
    listed_ = true;
    names_ = ListFiles(folder_, kEnding);
    std::erase_if(names_, [](const std::string& name) { return !name.starts_with("lesson "); });
    return !names_.empty();
  }
  if (next_ >= names_.size()) return false;
  RecordedLesson lesson;
  lesson.path = JoinPath(folder_, names_[next_++]);
  const FileLock lock(lesson.path, 0);
  if (!lock.Busy()) {
    const std::optional<FileStamp> stamp = StampOf(lesson.path);
    if (const auto facts = ReadLesson(lesson.path); facts && stamp) {
      lesson.facts = *facts;
      lesson.written = Seconds(*stamp);
      const ProfileReader note(NotePath(lesson.path));
      lesson.instructor = note.Value(kSection, "Instructor").value_or("");
      lesson.student = note.Value(kSection, "Student").value_or("");
      const auto before = std::ranges::find_if(found_, [&](const auto& one) { return one.written < lesson.written; });
      found_.insert(before, std::move(lesson));
    } else if (stamp && stamp->bytes < 4096) {
      // Killed before its first picture, it holds nothing that anybody could miss.
      (void)Remove(lesson.path);
    }
  }
  return next_ < names_.size();
}

JobProgress FindUnfinishedLessons::Progress() const {
  const auto done = static_cast<int>(next_);
  const auto total = static_cast<int>(names_.size());
  return {done, total, total > 0 ? static_cast<double>(done) / total : 0, {}};
}

}  // namespace kinalyx
