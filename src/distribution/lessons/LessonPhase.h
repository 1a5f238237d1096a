#pragma once

#include <string_view>

namespace kinalyx {

/// Where the recorder is.
enum class LessonPhase {
  Away,       ///< it is not shown
  Ready,      ///< it can begin
  Preparing,  ///< begun, but no picture is there yet
  Recording,
  Paused,
  Finished,  ///< there is a lesson that has not been kept
  Saving,
};

/// What its main button says.
std::string CaptionOf(LessonPhase phase);
/// What the frame is called.
std::string TitleOf(LessonPhase phase);
/// What stands in the status line as it comes there.
std::string StatusOf(LessonPhase phase);

/// From the press to the end the screen is being recorded, or stands still.
inline bool IsUnderWay(LessonPhase phase) {
  return phase == LessonPhase::Preparing || phase == LessonPhase::Recording || phase == LessonPhase::Paused;
}

}  // namespace kinalyx
