#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <sys/types.h>

#include "platform/files/Result.h"

namespace kinalyx {

/// A program that works for this one and is waited for. Threads may take turns with it, as with a job that
/// a worker steps and whoever holds it last lets go. That, and the time that a program has to clear up before
/// it is killed, is why this is no QProcess, which belongs to the thread that made it and kills at once.
class ChildProcess {
 public:
  /// Starts a program; its output is read by Poll, its input is empty.
  static Result<std::unique_ptr<ChildProcess>> Start(const std::string& program,
                                                     const std::vector<std::string>& arguments);
  /// Stops the program when it still runs, and waits for it.
  ~ChildProcess();
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;

  /// Waits at most `milliseconds` for output and hands its whole lines, without their ends, to `line`
  /// (may be empty). False when the program is over.
  bool Poll(int milliseconds, const std::function<void(std::string_view)>& line);
  /// What it returned, or nothing while it runs or when a signal ended it.
  std::optional<int> ExitCode() const { return exitCode_; }
  /// What it wrote as errors, at most a few kilobytes.
  const std::string& Errors() const { return errors_; }
  /// Asks it to stop; Poll tells when it has.
  void Terminate();

 private:
  ChildProcess() = default;
  static void Drain(int& pipe, std::string& text);

  pid_t id_ = -1;
  int output_ = -1;
  int errorPipe_ = -1;
  bool over_ = false;
  std::optional<int> exitCode_;
  std::string pending_;
  std::string errors_;
};

}  // namespace kinalyx
