#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace kinalyx {

enum class LogLevel { Note, Warning, Error };

/// What went wrong while the program ran, for those who are asked to help: a text file of one line a message,
/// with its time. It never grows beyond a limit: a full file becomes `<path>.old`, and the old one goes.
///
/// Messages may come from any thread, and nobody waits for the disk: a thread of the log's own writes, and
/// is left to itself when the drive does not answer. A log that cannot be written must not
/// disturb anybody's work. Paths are left out of all messages, for they hold the names of people.
class Log {
 public:
  static constexpr std::int64_t kMostBytes = 256 * 1024;

  /// Nothing is made before the first message; the folder must be there by then.
  /// @param mostBytes  of the file, and of the old one again
  explicit Log(std::string path, std::int64_t mostBytes = kMostBytes);
  /// Waits a moment for what is not written yet.
  ~Log();
  Log(const Log&) = delete;
  Log& operator=(const Log&) = delete;

  /// @param source  who says it, in one word. What it repeats within a minute, and all beyond
  ///                thirty messages, is left out.
  void Write(LogLevel level, std::string_view source, std::string_view text);
  /// Waits at most so long until all is written; true when it is.
  bool Flush(int milliseconds);

 private:
  struct State;
  std::shared_ptr<State> state_;
};

/// A message with "..." in place of every path in it. A path in quotation marks ends at the last such mark,
/// any other with the text: too much is left out rather than too little.
std::string WithoutPaths(std::string_view text);

}  // namespace kinalyx
