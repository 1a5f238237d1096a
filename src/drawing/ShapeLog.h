#pragma once

#include <string>
#include <utility>

#include <fmt/format.h>

namespace kinalyx {

/// The shape engine's own log: one line per operation, off unless somebody switches it on.
class ShapeLog {
 public:
  bool LogEnabled = false;
  /// The file that lines are appended to; opened and closed for each of them.
  std::string path;

  /// Appends "HH:MM:SS - DD/MM/YYYY - Text" in local time; nothing while the log is off. A line that
  /// cannot be written is dropped: the log must never stand in the way of a drawing.
  void WriteLog(const std::string& Text) const;
  /// The same for a text that is put together only when the log is on.
  template <typename... Args>
  void Tell(fmt::format_string<Args...> format, Args&&... args) const {
    if (LogEnabled) WriteLog(fmt::format(format, std::forward<Args>(args)...));
  }
};

}  // namespace kinalyx
