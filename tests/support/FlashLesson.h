#pragma once

#include <string>
#include <vector>

#include "platform/media/LessonFile.h"

namespace kinalyx::test {

/// A lesson with a flash and a click at the same moment: at the fifth second, and every ten seconds from then on. The
/// microphone has a clock that runs wrong, and the stamps of what it hears tremble by two milliseconds.
struct FlashLesson {
  static constexpr int kWidth = 64, kHeight = 48;

  LessonKind kind = LessonKind::Avi;
  double seconds = 600;
  double tooFast = 0;  ///< the microphone's clock, as part of the true rate
  double hole = 0;     ///< at which it hears nothing for a second; 0 for never

  /// As fast as it can be written.
  Outcome Record(const std::string& path) const;
};

/// A picture of one brightness, of the size of such a lesson.
LessonPicture PlainPicture(std::uint8_t brightness);
/// Makes the file that is kept of a recorded lesson.
Outcome KeepLesson(const std::string& from, const std::string& to);
/// Seconds at which clicks are heard in a video, and at which flashes are seen.
std::vector<double> ClicksIn(const std::string& path);
std::vector<double> FlashesIn(const std::string& path);

}  // namespace kinalyx::test
