#include "platform/host/ChildProcess.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>

extern char** environ;

namespace kinalyx {

namespace {

constexpr std::size_t kMostErrors = 8192;
/// Time that a program has to stop by itself, in steps of 10 ms.
constexpr int kPatience = 300;

}  // namespace

Result<std::unique_ptr<ChildProcess>> ChildProcess::Start(const std::string& program,
                                                          const std::vector<std::string>& arguments) {
  const auto refuse = [](int reason) { return Outcome::FailedBySystem(reason); };
  int output[2];
  int errors[2];
  if (::pipe2(output, O_CLOEXEC) != 0) return refuse(errno);
  if (::pipe2(errors, O_CLOEXEC) != 0) {
    const int reason = errno;
    ::close(output[0]);
    ::close(output[1]);
    return refuse(reason);
  }
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_adddup2(&actions, output[1], STDOUT_FILENO);
  posix_spawn_file_actions_adddup2(&actions, errors[1], STDERR_FILENO);
  std::vector<char*> list;
  list.push_back(const_cast<char*>(program.c_str()));
  for (const std::string& argument : arguments) list.push_back(const_cast<char*>(argument.c_str()));
  list.push_back(nullptr);
  std::unique_ptr<ChildProcess> child(new ChildProcess);
  const int result = ::posix_spawn(&child->id_, program.c_str(), &actions, nullptr, list.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  ::close(output[1]);
  ::close(errors[1]);
  child->output_ = output[0];
  child->errorPipe_ = errors[0];
  if (result != 0) {
    child->over_ = true;
    return refuse(result);
  }
  ::fcntl(child->output_, F_SETFL, O_NONBLOCK);
  ::fcntl(child->errorPipe_, F_SETFL, O_NONBLOCK);
  return child;
}

ChildProcess::~ChildProcess() {
  if (!over_) {
    Terminate();
    for (int wait = 0; wait < kPatience && Poll(10, {}); ++wait) {
    }
    if (!over_) {
      ::kill(id_, SIGKILL);
      ::waitpid(id_, nullptr, 0);
    }
  }
  if (output_ >= 0) ::close(output_);
  if (errorPipe_ >= 0) ::close(errorPipe_);
}

void ChildProcess::Terminate() {
  if (!over_) ::kill(id_, SIGTERM);
}

/// Reads what is there; closes the pipe at its end.
void ChildProcess::Drain(int& pipe, std::string& text) {
  std::array<char, 4096> bytes{};
  while (pipe >= 0) {
    const ssize_t got = ::read(pipe, bytes.data(), bytes.size());
    if (got > 0) {
      text.append(bytes.data(), static_cast<std::size_t>(got));
      continue;
    }
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return;
    ::close(pipe);
    pipe = -1;
  }
}

bool ChildProcess::Poll(int milliseconds, const std::function<void(std::string_view)>& line) {
  if (over_) return false;
  std::array<pollfd, 2> pipes{{{output_, POLLIN, 0}, {errorPipe_, POLLIN, 0}}};
  ::poll(pipes.data(), pipes.size(), output_ < 0 && errorPipe_ < 0 ? std::min(milliseconds, 10) : milliseconds);
  int status = 0;
  // Asked before the pipes are emptied: what it wrote last is then in them.
  const bool ended = ::waitpid(id_, &status, WNOHANG) == id_;
  Drain(output_, pending_);
  Drain(errorPipe_, errors_);
  if (errors_.size() > kMostErrors) errors_.resize(kMostErrors);
  for (std::size_t end = pending_.find('\n'); end != std::string::npos; end = pending_.find('\n')) {
    if (line) line(std::string_view(pending_).substr(0, end));
    pending_.erase(0, end + 1);
  }
  if (!ended) return true;
  over_ = true;
  if (WIFEXITED(status)) exitCode_ = WEXITSTATUS(status);
  return false;
}

}  // namespace kinalyx
