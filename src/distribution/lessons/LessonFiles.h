#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "library/JobRunner.h"
#include "platform/files/FileLock.h"
#include "platform/files/Result.h"
#include "platform/media/LessonCopy.h"

namespace kinalyx {

/// A lesson that has been recorded and neither kept nor thrown away.
struct RecordedLesson {
  std::string path;
  LessonFacts facts;
  std::string instructor;    ///< of whose student it is
  std::string student;       ///< empty when that cannot be told any more
  std::int64_t written = 0;  ///< when it ended, in seconds since 1970
};

/// The files into which lessons are recorded, "lesson 3.mkv"; whose it is stands beside, in "lesson 3.ini". Two windows
/// at work in one folder have files of their own.
class LessonFiles {
 public:
  /// @param folder  made when it is first needed
  explicit LessonFiles(std::string folder) : folder_(std::move(folder)) {}

  /// The path of a new file, which is ours until Release.
  Result<std::string> Begin(const std::string& instructor, const std::string& student);
  /// A lesson that an earlier run has left is ours until Release. Refused where another window has been quicker, or has
  /// begun another lesson under its name since it was found.
  Outcome TakeUp(const RecordedLesson& lesson);
  /// The lesson has been kept, thrown away, or is left for the next start.
  void Release() { lock_.reset(); }
  /// The lesson is still being written by a disk that does not answer: nobody takes it up for as long as we are here.
  void LeaveToDisk() { leftToDisk_.push_back(std::move(lock_)); }
  const std::string& Folder() const { return folder_; }

 private:
  std::string folder_;
  std::unique_ptr<FileLock> lock_;
  std::vector<std::unique_ptr<FileLock>> leftToDisk_;
};

/// Removes a recorded lesson, which must be ours.
Outcome ThrowAway(const RecordedLesson& lesson);

/// Looks for lessons that an earlier run has left; those that another window is at work on are left alone. On a worker:
/// ten minutes take a moment to be read.
class FindUnfinishedLessons final : public IJob {
 public:
  explicit FindUnfinishedLessons(std::string folder) : folder_(std::move(folder)) {}

  bool Step() override;
  void Cancel() override {}
  JobProgress Progress() const override;
  /// The latest first.
  const std::vector<RecordedLesson>& Found() const { return found_; }

 private:
  std::string folder_;
  bool listed_ = false;
  std::vector<std::string> names_;
  std::size_t next_ = 0;
  std::vector<RecordedLesson> found_;
};

}  // namespace kinalyx
