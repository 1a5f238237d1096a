#pragma once

#include <memory>
#include <optional>
#include <string>

#include "platform/files/Result.h"
#include "platform/media/LessonFile.h"

namespace kinalyx {

/// What a lesson that was recorded holds, also one that was broken off.
struct LessonFacts {
  LessonKind kind = LessonKind::Avi;
  double seconds = 0;
  bool voice = false;
};
/// Reads a recorded lesson through; nothing where it holds no picture.
std::optional<LessonFacts> ReadLesson(const std::string& path);

/// Makes of a recorded lesson the AVI or MP4 file that is kept. Pictures and voice are taken over as they are, so it
/// takes a second where the lesson took ten minutes. It is written beside and gets its name when it is whole.
class LessonCopy {
 public:
  /// @param target  its name must be free
  LessonCopy(std::string source, std::string target);
  ~LessonCopy();

  /// Goes on for a moment; false when it is over.
  bool Step();
  /// 0 to 1.
  double Part() const;
  /// How it went, once it is over.
  const Outcome& How() const;

 private:
  struct Engine;
  std::unique_ptr<Engine> engine_;
};

}  // namespace kinalyx
