#include <atomic>
#include <csignal>
#include <cstdio>
#include <string>
#include <string_view>

#include "DemoLibrary.h"
#include "Pictures.h"
#include "core/Settings.h"
#include "platform/files/Folders.h"
#include "platform/files/IniFile.h"

namespace {

std::atomic<bool> stopped = false;

int Usage() {
  std::fputs(
      "kinalyx-demo                    makes a demo library for this user where there is none yet\n"
      "kinalyx-demo FOLDER             makes a demo library in a new folder\n"
      "kinalyx-demo --pictures FOLDER  draws the program's logo and backgrounds\n",
      stderr);
  return 2;
}

/// Where a demo library is wanted: the user's own library folder, as long as nothing is there. Empty when
/// there is a library already, or when the user keeps it somewhere else.
std::string WantedLibrary() {
  using namespace kinalyx;
  const std::string dataPath = Settings::UserDataPath();
  const std::string folder = JoinPath(dataPath, "Video Library");
  const auto chosen = ReadProfileValue("General", "LibraryPath", JoinPath(dataPath, "config10.ini"));
  const bool elsewhere = chosen && *chosen != folder;
  return elsewhere || dirExists(folder) ? std::string() : folder;
}

int Report(const std::string& fault) {
  if (fault.empty()) return 0;
  std::fprintf(stderr, "kinalyx-demo: %s\n", fault.c_str());
  return 1;
}

}  // namespace

int main(int count, char** arguments) {
  using namespace kinalyx::demo;
  std::signal(SIGINT, [](int) { stopped = true; });
  std::signal(SIGTERM, [](int) { stopped = true; });
  if (count == 3 && std::string_view(arguments[1]) == "--pictures") return Report(DrawPictures(arguments[2]));
  if (count > 2 || (count == 2 && (arguments[1][0] == '-' || arguments[1][0] == 0))) return Usage();
  const std::string folder = count == 2 ? arguments[1] : WantedLibrary();
  if (folder.empty()) return 0;
  const auto show = [](const std::string& line) {
    std::puts(line.c_str());
    std::fflush(stdout);
  };
  if (count == 1) show("Making a demo library in " + folder);
  return Report(MakeDemoLibrary(folder, show, stopped));
}
