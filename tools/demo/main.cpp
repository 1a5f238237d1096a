#include <atomic>
#include <csignal>
#include <cstdio>
#include <string>
#include <string_view>

#include "DemoLibrary.h"
#include "Pictures.h"

namespace {

std::atomic<bool> stopped = false;

int Usage() {
  std::fputs(
      "kinalyx-demo FOLDER             makes a demo library in a new folder\n"
      "kinalyx-demo --pictures FOLDER  draws the program's logo and backgrounds\n",
      stderr);
  return 2;
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
  if (count != 2 || arguments[1][0] == '-' || arguments[1][0] == 0) return Usage();
  const auto show = [](const std::string& line) {
    std::puts(line.c_str());
    std::fflush(stdout);
  };
  return Report(MakeDemoLibrary(arguments[1], show, stopped));
}
