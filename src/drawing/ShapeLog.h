#pragma once

#include <chrono>
#include <functional>
#include <string>

#include <fmt/format.h>

namespace kinalyx {

/// The shape engine's own log: one line per operation, off unless somebody switches it on.
class ShapeLog {
 public:
  bool LogEnabled = false;
  /// The file that lines are appended to; opened and closed for each of them.
  std::string path;
  /// What time it is, for the head of a line.
  std::function<std::chrono::system_clock::time_point()> now = [] { return std::chrono::system_clock::now(); };

  /// Appends "HH:MM:SS - DD/MM/YYYY - Text" in local time; nothing while the log is off. A line that
  /// cannot be written is dropped: the log must never stand in the way of a drawing.
  void WriteLog(const std::string& Text) const;
};

/// What the plain operations over shapes take from the engine they serve.
struct ShapeRules {
  /// False: the two points of an Ellipse or Clock are opposite corners of its box; true: the first is its centre.
  bool EllipseFromCentre = false;
  const ShapeLog* log = nullptr;

  template <typename... Args>
  void Log(fmt::format_string<Args...> format, Args&&... args) const {
    if (log && log->LogEnabled) log->WriteLog(fmt::format(format, std::forward<Args>(args)...));
  }
};

}  // namespace kinalyx
