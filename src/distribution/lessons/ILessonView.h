#pragma once

#include <string>

#include "platform/graph/IScreens.h"

namespace kinalyx {

/// The recorder's window, as the session sees it.
class ILessonView {
 public:
  virtual ~ILessonView() = default;
  /// Phase, status, time, names or choices may have changed.
  virtual void LessonChanged() = 0;
  /// The microphone is so loud now, 0 to 1.
  virtual void ShowLevel(double level) = 0;
  /// The screen on which the program stands.
  virtual ScreenPlace Screen() = 0;
  /// The video with which the user works; empty for none.
  virtual std::string CurrentVideo() const = 0;
  /// The form that asks for the name comes.
  virtual void ShowSaveForm() = 0;
  /// The lesson has been kept there.
  virtual void LessonSaved(const std::string& path) = 0;
};

}  // namespace kinalyx
