#include "platform/files/WriterWatch.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

namespace kinalyx {

bool IsOpenForWriting(const std::string& path) {
  const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (file < 0) return false;
  // A reader's lease is refused while anybody writes. Who opens the file in the moment for which we have it sends a
  // signal: one that a program sleeps through.
  ::fcntl(file, F_SETSIG, SIGURG);
  const bool refused = ::fcntl(file, F_SETLEASE, F_RDLCK) < 0 && errno == EAGAIN;
  ::close(file);
  return refused;
}

}  // namespace kinalyx
