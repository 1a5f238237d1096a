// avitrim: cuts a video by frames. The main program starts it and waits for it; a damaged file
// can thus do no harm to the videos that are open there.

#include <atomic>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "platform/media/TrimCommand.h"
#include "platform/media/VideoTrim.h"

namespace {

enum ExitCode { kDone = 0, kFailed = 1, kUsage = 2, kCancelled = 3 };

std::atomic<bool> stopped = false;
static_assert(std::atomic<bool>::is_always_lock_free);

constexpr char kHelp[] =
    "avitrim cuts a video by frames.\n\n"
    "  avitrim 'SOURCE*DESTINATION*FIRST*LAST*RATE*MODE*'\n\n"
    "  FIRST, LAST  frames, counted from 0; both belong to the cut; a LAST of 0 is the end of the video\n"
    "  RATE         pictures per second, for a source that does not tell its own\n"
    "  MODE         0 copies the pictures where the cut allows it, 2 codes them anew\n\n"
    "The destination is a file of the same kind, or an AVI file where its name says so. It may be the source\n"
    "itself; any other file is left alone.\n"
    "Prints the percentage that is done, line by line. Result: 0 done, 1 failed, 2 wrong command line,\n"
    "3 stopped by a signal; the destination is then as it was before.\n";

}  // namespace

int main(int count, char** arguments) {
  // A command line that was taken apart at its blanks is put together again.
  std::string command;
  for (int i = 1; i < count; ++i) command += (i > 1 ? " " : "") + std::string(arguments[i]);
  const auto request = kinalyx::ParseTrimCommand(command);
  if (!request) {
    std::fputs(kHelp, command == "--help" ? stdout : stderr);
    return command == "--help" ? kDone : kUsage;
  }

  ::setenv("SVT_LOG", "1", 0);  // one of the encoders tells its settings where only errors belong
  std::signal(SIGTERM, [](int) { stopped = true; });
  std::signal(SIGINT, [](int) { stopped = true; });
  std::signal(SIGPIPE, SIG_IGN);  // the work is finished although nobody reads how far it is
  int shown = -1;
  const auto progress = [&shown](double part) {
    if (const int percent = static_cast<int>(part * 100); percent != shown) {
      shown = percent;
      std::printf("%d\n", percent);
      std::fflush(stdout);
    }
    return !stopped;
  };
  const auto cut = kinalyx::TrimVideo(*request, progress);
  if (cut.Kind() == kinalyx::Fault::Cancelled) return kCancelled;
  if (!cut) {
    std::fprintf(stderr, "%s\n", cut.Why().c_str());
    return kFailed;
  }
  return kDone;
}
