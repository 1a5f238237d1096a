#include "platform/host/CrashReport.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <exception>
#include <fstream>
#include <string_view>
#include <vector>

#include <csignal>
#include <dlfcn.h>
#include <execinfo.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/utsname.h>
#include <unistd.h>

#include "platform/files/Folders.h"
#include "platform/files/Log.h"

namespace kinalyx {

namespace {

constexpr std::array kSignals{SIGSEGV, SIGBUS, SIGILL, SIGFPE, SIGABRT};
constexpr std::string_view kEnding = ".txt";
constexpr std::size_t kMostReports = 10;
constexpr std::size_t kFolderBytes = 1024;
constexpr std::size_t kHeadBytes = 1024;
constexpr std::size_t kThrownBytes = 512;
constexpr std::size_t kStackBytes = 64 * 1024;

/// All that a handler may need stands ready: in a process that has lost its senses nothing can be asked for any more.
struct Ready {
  std::array<char, kFolderBytes> folder{};
  std::array<char, kHeadBytes> head{};
  std::array<char, kThrownBytes> thrown{};            ///< what an exception said that nobody caught
  alignas(16) std::array<char, kStackBytes> stack{};  ///< a stack that has overflown cannot carry the handler
  volatile std::sig_atomic_t busy = 0;
};

Ready& TheReady() {
  static Ready ready;
  return ready;
}

template <std::size_t size>
void Keep(std::array<char, size>& place, std::string_view text) {
  const std::size_t length = std::min(text.size(), size - 1);
  std::memcpy(place.data(), text.data(), length);
  place[length] = 0;
}

// ---------------------------------------------------------------- in the handler: nothing that takes memory or locks

void Put(int file, const char* text) {
  [[maybe_unused]] const ssize_t written = ::write(file, text, std::strlen(text));
}

void PutNumber(int file, std::uintptr_t number, unsigned base, int least) {
  std::array<char, 32> digits{};
  char* at = digits.data() + digits.size() - 1;
  for (int count = 0; number || count < least; ++count, number /= base) *--at = "0123456789abcdef"[number % base];
  Put(file, at);
}

/// Days since 1970 as year, month and day, for the calendar of the system takes locks.
struct Day {
  int year = 0;
  unsigned month = 0;
  unsigned day = 0;

  static Day Of(std::int64_t days) {
    const std::int64_t shifted = days + 719468;  // from 1 March of the year 0
    const std::int64_t era = shifted / 146097;
    const std::int64_t ofEra = shifted % 146097;
    const std::int64_t year = (ofEra - ofEra / 1460 + ofEra / 36524 - ofEra / 146096) / 365;
    const std::int64_t ofYear = ofEra - (365 * year + year / 4 - year / 100);
    const std::int64_t month = (5 * ofYear + 2) / 153;
    return {.year = static_cast<int>(year + era * 400 + (month >= 10)),
            .month = static_cast<unsigned>(month < 10 ? month + 3 : month - 9),
            .day = static_cast<unsigned>(ofYear - (153 * month + 2) / 5 + 1)};
  }
};

/// "crash-20261127-083015" in UTC; the file's own name when that is free.
int OpenReport(const char* folder) {
  ::mkdir(folder, 0700);
  const int place = ::open(folder, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (place < 0) return -1;
  const std::time_t now = std::time(nullptr);
  const Day day = Day::Of(now / 86400);
  std::array<char, 64> name{};
  char* at = name.data();
  const auto text = [&at](const char* piece) {
    while (*piece) *at++ = *piece++;
  };
  const auto number = [&at](std::int64_t value, int digits) {
    for (int i = digits; i-- > 0; value /= 10) at[i] = static_cast<char>('0' + value % 10);
    at += digits;
  };
  text("crash-");
  number(day.year, 4);
  number(day.month, 2);
  number(day.day, 2);
  text("-");
  number(now % 86400 / 3600, 2);
  number(now % 3600 / 60, 2);
  number(now % 60, 2);
  text(kEnding.data());
  const int file = ::openat(place, name.data(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
  ::close(place);
  return file;
}

void PutStack(int file) {
  std::array<void*, 100> frames{};
  const int count = ::backtrace(frames.data(), static_cast<int>(frames.size()));
  for (int i = 0; i < count; ++i) {
    Dl_info info{};
    Put(file, "  ");
    if (::dladdr(frames[static_cast<std::size_t>(i)], &info) && info.dli_fname) {
      const char* slash = std::strrchr(info.dli_fname, '/');
      Put(file, slash ? slash + 1 : info.dli_fname);
      Put(file, "+0x");
      PutNumber(file,
                reinterpret_cast<std::uintptr_t>(frames[static_cast<std::size_t>(i)]) -
                    reinterpret_cast<std::uintptr_t>(info.dli_fbase),
                16, 1);
      if (info.dli_sname) {
        Put(file, " ");
        Put(file, info.dli_sname);
      }
    } else {
      Put(file, "?");
    }
    Put(file, "\n");
  }
}

void Report(int signal) {
  Ready& ready = TheReady();
  // A second crash, in another thread or in here, has nothing to add.
  if (!ready.busy) {
    ready.busy = 1;
    if (const int file = OpenReport(ready.folder.data()); file >= 0) {
      Put(file, ready.head.data());
      Put(file, "Signal: ");
      PutNumber(file, static_cast<std::uintptr_t>(signal), 10, 1);
      Put(file, "\n");
      if (ready.thrown[0]) {
        Put(file, "Exception: ");
        Put(file, ready.thrown.data());
        Put(file, "\n");
      }
      Put(file, "Stack:\n");
      PutStack(file);
      ::close(file);
    }
  }
  // The handler was for once: whoever watches the process sees it die as it would have.
  ::raise(signal);
}

// ---------------------------------------------------------------- ahead of all

/// An exception that nobody has caught says what it was before the process goes.
[[noreturn]] void Terminated() {
  if (const std::exception_ptr thrown = std::current_exception()) {
    try {
      std::rethrow_exception(thrown);
    } catch (const std::exception& failed) {
      Keep(TheReady().thrown, WithoutPaths(failed.what()));
    } catch (...) {
      Keep(TheReady().thrown, "of another kind");
    }
  }
  std::abort();
}

std::string SystemName() {
  std::string name = "Linux";
  std::ifstream release("/etc/os-release");
  for (std::string line; std::getline(release, line);) {
    constexpr std::string_view key = "PRETTY_NAME=";
    if (!line.starts_with(key)) continue;
    name = line.substr(key.size());
    std::erase(name, '"');
  }
  struct utsname machine {};
  if (::uname(&machine) != 0) return name;
  return fmt::format("{}, kernel {}, {}", name, static_cast<const char*>(machine.release),
                     static_cast<const char*>(machine.machine));
}

}  // namespace

void ReportCrashes(const std::string& folder, const std::string& program) {
  Ready& ready = TheReady();
  if (folder.size() >= kFolderBytes) return;
  Keep(ready.folder, folder);
  Keep(ready.head, fmt::format("Program: {}\nSystem: {}\n", program, SystemName()));
  // The first call loads what the stack is read with; a handler could not.
  std::array<void*, 2> frames{};
  ::backtrace(frames.data(), static_cast<int>(frames.size()));
  std::set_terminate(Terminated);
  stack_t stack{};
  stack.ss_sp = ready.stack.data();
  stack.ss_size = ready.stack.size();
  ::sigaltstack(&stack, nullptr);
  struct sigaction action {};
  action.sa_handler = Report;
  action.sa_flags = static_cast<int>(SA_ONSTACK | SA_RESETHAND | SA_NODEFER);
  for (const int signal : kSignals) ::sigaction(signal, &action, nullptr);
}

std::optional<std::string> TakeCrashReport(const std::string& folder) {
  std::vector<std::string> reports = ListFiles(folder, kEnding);
  if (reports.empty()) return std::nullopt;
  std::sort(reports.begin(), reports.end());
  while (reports.size() > kMostReports) {
    KillFile(JoinPath(folder, reports.front()));
    reports.erase(reports.begin());
  }
  const std::string mark = JoinPath(folder, "told");
  std::string told;
  std::getline(std::ifstream(mark), told);
  if (reports.back() <= told) return std::nullopt;
  std::ofstream(mark) << reports.back() << '\n';
  return JoinPath(folder, reports.back());
}

}  // namespace kinalyx
