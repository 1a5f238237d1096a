#include "platform/files/Log.h"

#include <fmt/format.h>

#include <array>
#include <cctype>
#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <ctime>
#include <map>
#include <mutex>
#include <thread>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/files/TextEncoding.h"

namespace kinalyx {

namespace {

constexpr std::size_t kLongest = 500;  ///< bytes of a message
constexpr int kMostInAMinute = 30;     ///< messages of one source
constexpr int kLastWaitMs = 400;

const char* NameOf(LogLevel level) {
  switch (level) {
    case LogLevel::Warning: return "warning";
    case LogLevel::Error: return "error";
    default: return "note";
  }
}

std::string TimeText(std::time_t time) {
  std::tm local{};
  ::localtime_r(&time, &local);
  std::array<char, 32> text{};
  return {text.data(), std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M:%S", &local)};
}

int OpenToAppend(const std::string& path) {
  return ::open(path.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_NONBLOCK | O_CLOEXEC, 0666);
}

/// Appends whole lines in one piece, for a second program may be writing to the same file.
void Append(const std::string& path, const std::string& lines, std::int64_t mostBytes) {
  int file = OpenToAppend(path);
  struct stat info {};
  if (file >= 0 && ::fstat(file, &info) == 0 && info.st_size > 0 &&
      info.st_size + static_cast<std::int64_t>(lines.size()) > mostBytes) {
    ::close(file);
    std::rename(path.c_str(), (path + ".old").c_str());
    file = OpenToAppend(path);
  }
  if (file < 0) return;
  [[maybe_unused]] const ssize_t written = ::write(file, lines.data(), lines.size());
  ::close(file);
}

bool BeginsPath(std::string_view text, std::size_t at) {
  if (text[at] != '/' || at + 1 == text.size() || text[at + 1] == ' ') return false;
  const char before = at ? text[at - 1] : ' ';
  return !std::isalnum(static_cast<unsigned char>(before)) && before != ')' && before != ']' && before != '_';
}

}  // namespace

/// What the log and its thread have in common; it outlives a log whose thread hangs.
struct Log::State {
  struct Said {
    int messages = 0;
    std::string last;
  };
  std::string path;
  std::int64_t mostBytes = kMostBytes;
  std::mutex mutex;
  std::condition_variable changed;
  std::string waiting;  ///< lines
  bool writing = false;
  bool started = false;
  bool over = false;
  std::time_t minute = 0;
  std::map<std::string, Said> said;  ///< in that minute, by source

  void Work() {
    std::unique_lock lock(mutex);
    while (true) {
      changed.wait(lock, [this] { return over || !waiting.empty(); });
      if (waiting.empty()) return;
      const std::string lines = std::exchange(waiting, {});
      writing = true;
      lock.unlock();
      Append(path, lines, mostBytes);
      lock.lock();
      writing = false;
      changed.notify_all();
    }
  }
};

Log::Log(std::string path, std::int64_t mostBytes) : state_(std::make_shared<State>()) {
  state_->path = std::move(path);
  state_->mostBytes = mostBytes;
}

Log::~Log() {
  Flush(kLastWaitMs);
  const std::lock_guard lock(state_->mutex);
  state_->over = true;
  state_->changed.notify_all();
}

void Log::Write(LogLevel level, std::string_view source, std::string_view text) {
  const std::time_t now = std::time(nullptr);
  const std::lock_guard lock(state_->mutex);
  if (std::exchange(state_->minute, now / 60) != now / 60) state_->said.clear();
  State::Said& said = state_->said[std::string(source)];
  std::string words = WithoutPaths(CutUtf8(text, kLongest));
  if (said.messages >= kMostInAMinute || (said.messages && words == said.last)) return;
  said.last = words;
  if (++said.messages == kMostInAMinute) words = "more follows in this minute";
  for (char& c : words) {
    if (static_cast<unsigned char>(c) < ' ') c = ' ';
  }
  while (words.ends_with(' ')) words.pop_back();
  state_->waiting += fmt::format("{} {} {}: {}\n", TimeText(now), NameOf(level), source, words);
  if (!std::exchange(state_->started, true)) std::thread([state = state_] { state->Work(); }).detach();
  state_->changed.notify_all();
}

bool Log::Flush(int milliseconds) {
  std::unique_lock lock(state_->mutex);
  return state_->changed.wait_for(lock, std::chrono::milliseconds(milliseconds),
                                  [this] { return state_->waiting.empty() && !state_->writing; });
}

std::string WithoutPaths(std::string_view text) {
  std::string left;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (!BeginsPath(text, at)) {
      left += text[at];
      continue;
    }
    left += "...";
    const char before = at ? text[at - 1] : ' ';
    const std::size_t end = before == '\'' || before == '"' ? text.rfind(before) : at;
    if (end <= at) break;
    at = end - 1;
  }
  return left;
}

}  // namespace kinalyx
