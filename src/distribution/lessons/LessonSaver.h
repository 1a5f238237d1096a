#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "library/JobRunner.h"
#include "platform/files/Result.h"
#include "platform/media/LessonCopy.h"

namespace kinalyx {

/// ".avi" or ".mp4".
std::string_view EndingOf(LessonKind kind);
/// The folder of a student's lessons.
std::string LessonsFolder(const std::string& studentFolder);
/// A name for a lesson that is free in its folder: "Lesson 2026-11-25", and with a number behind where the day has
/// more.
/// @param today  "2026-11-25"
std::string ProposeLessonName(const std::string& lessonsFolder, LessonKind kind, std::string_view today);
/// Why a lesson cannot have this name; empty when it can.
std::string LessonNameFault(const std::string& lessonsFolder, LessonKind kind, std::string_view name);

/// Makes of a recorded lesson the file that is kept, on a worker. What is there is never replaced; the recording stays,
/// and may go once the file is safe on the disk.
class LessonSaver final : public IJob {
 public:
  /// @param path  of the file, whose folder is made when it is missing
  LessonSaver(std::string recording, std::string path) : recording_(std::move(recording)), path_(std::move(path)) {}

  bool Step() override;
  void Cancel() override;
  JobProgress Progress() const override;
  /// Once it is over; Cancelled when it was cancelled.
  const Outcome& How() const { return how_; }
  const std::string& Path() const { return path_; }

 private:
  std::string recording_;
  std::string path_;
  std::optional<LessonCopy> copy_;
  Outcome how_;
  bool over_ = false;
};

}  // namespace kinalyx
