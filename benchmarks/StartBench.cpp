// The program as a process of its own: how soon it can be worked with, what it takes while nothing happens, and how
// large it is to fetch.

#include <fmt/format.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include "Bench.h"
#include "BenchStage.h"
#include "core/Settings.h"
#include "platform/files/Log.h"
#include "platform/host/QtHost.h"

namespace kinalyx::bench {
namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

constexpr int kStarts = 9;
constexpr int kReadyMs = 20'000;

/// A user's home of its own, with no other window's lock in it.
const std::string& Home() {
  static const std::string home = [] {
    const std::string folder = ScratchFolder() + "/home";
    fs::create_directories(folder + "/run");
    fs::permissions(folder + "/run", fs::perms::owner_all);
    return folder;
  }();
  return home;
}

/// A program that says when it is ready; told to go with the object, and waited for.
class Process {
 public:
  Process(const std::string& program, const std::vector<std::string>& arguments) {
    const std::string place = Home() + "/ready";
    fs::remove(place);
    const int line = ::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    place.copy(address.sun_path, sizeof(address.sun_path) - 1);
    if (::bind(line, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) != 0)
      throw std::runtime_error("no socket to be told by");

    std::vector<std::string> words{"HOME=" + Home(),
                                   "XDG_RUNTIME_DIR=" + Home() + "/run",
                                   "XDG_CONFIG_HOME=" + Home() + "/.config",
                                   "XDG_CACHE_HOME=" + Home() + "/.cache",
                                   "NOTIFY_SOCKET=" + place,
                                   "QT_QPA_PLATFORM=offscreen",
                                   "LANG=C.UTF-8"};
    if (const char* path = std::getenv("PATH")) words.push_back(std::string("PATH=") + path);
    std::vector<std::string> commandLine{program};
    commandLine.insert(commandLine.end(), arguments.begin(), arguments.end());
    const auto begin = Clock::now();
    if (::posix_spawn(&id_, program.c_str(), nullptr, nullptr, Pointers(commandLine).data(), Pointers(words).data()) !=
        0)
      throw std::runtime_error("it does not start: " + program);
    pollfd wait{.fd = line, .events = POLLIN, .revents = 0};
    const bool told = ::poll(&wait, 1, kReadyMs) == 1;
    readyMs_ = std::chrono::duration<double, std::milli>(Clock::now() - begin).count();
    ::close(line);
    if (!told) {
      Stop();
      throw std::runtime_error("it does not get ready");
    }
  }
  ~Process() { Stop(); }
  Process(const Process&) = delete;
  Process& operator=(const Process&) = delete;

  double ReadyMs() const { return readyMs_; }

  /// Milliseconds of processor time that all its threads have had.
  double ProcessorMs() const {
    double sum = 0;
    for (const auto& thread : fs::directory_iterator(fmt::format("/proc/{}/task", id_))) {
      double nanoseconds = 0;
      std::ifstream(thread.path() / "schedstat") >> nanoseconds;
      sum += nanoseconds / 1e6;
    }
    return sum;
  }

 private:
  static std::vector<char*> Pointers(std::vector<std::string>& words) {
    std::vector<char*> pointers;
    for (std::string& word : words) pointers.push_back(word.data());
    pointers.push_back(nullptr);
    return pointers;
  }

  void Stop() {
    if (id_ <= 0) return;
    ::kill(id_, SIGTERM);
    ::waitpid(id_, nullptr, 0);
    id_ = 0;
  }

  pid_t id_ = 0;
  double readyMs_ = 0;
};

double MedianStart(const std::string& program) {
  // The first start makes the folders and settings, and has the disk read what is to be loaded.
  Process(program, {});
  std::vector<double> starts;
  for (int i = 0; i < kStarts; ++i) starts.push_back(Process(program, {}).ReadyMs());
  return Median(starts);
}

/// A first start asks who works here; this one has its settings already.
void MakeSettings() {
  Log log(Home() + "/bench.log");
  const std::unique_ptr<IHost> host = MakeQtHost(log);
  Settings(*host, Home() + "/Documents/Kinalyx", fs::path(KINALYX_PROGRAM).parent_path()).LoadSettings();
}

Figure StartUp() {
  MakeSettings();
  return {MedianStart(KINALYX_PROGRAM), "ms", MedianStart(KINALYX_EMPTY_WINDOW)};
}

Figure IdleCpu() {
  MakeSettings();
  const std::string made = StageVideo(300, 60);
  std::vector<std::string> videos;
  for (int slot = 1; slot <= 8; ++slot) {
    videos.push_back(fmt::format("{}/idle-{}.avi", ScratchFolder(), slot));
    fs::copy_file(made, videos.back(), fs::copy_options::overwrite_existing);
  }
  const Process program(KINALYX_PROGRAM, videos);
  constexpr auto kSettling = std::chrono::seconds(15);
  constexpr auto kStandingStill = std::chrono::seconds(20);
  std::this_thread::sleep_for(kSettling);
  const double before = program.ProcessorMs();
  const auto begin = Clock::now();
  std::this_thread::sleep_for(kStandingStill);
  const double used = program.ProcessorMs() - before;
  return {100 * used / std::chrono::duration<double, std::milli>(Clock::now() - begin).count(), "%"};
}

/// What a package holds, packed as a package is.
Figure PackageSize() {
  const std::string root = ScratchFolder() + "/root";
  const std::string packed = ScratchFolder() + "/root.tar.xz";
  const std::string command = fmt::format(
      "DESTDIR='{0}' cmake --install '{1}' --strip --prefix /usr >/dev/null && tar -C '{0}' -c . | xz -6 >'{2}'", root,
      KINALYX_BUILD_FOLDER, packed);
  if (std::system(command.c_str()) != 0) throw std::runtime_error("it cannot be packed");
  const double bytes = static_cast<double>(fs::file_size(packed));
  fs::remove_all(root);
  return {bytes / (1024 * 1024), "MiB"};
}

const Register kStartUp({"start_up", {Target::Of::AtMost, 700, 300}, StartUp});
const Register kIdleCpu({"idle_cpu", {Target::Of::AtMost, 0.2, 0.1}, IdleCpu});
const Register kPackageSize({"package_size", {Target::Of::AtMost, 20, 10}, PackageSize});

}  // namespace
}  // namespace kinalyx::bench
