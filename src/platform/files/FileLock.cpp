#include "platform/files/FileLock.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include "platform/files/Folders.h"
#include "platform/files/TextEncoding.h"

namespace kinalyx {

namespace {

constexpr int kPauseMs = 10;

int Open(const std::string& path) {
  constexpr int kFlags = O_CREAT | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC;
  const int file = ::open(path.c_str(), O_RDWR | kFlags, 0666);
  // Another user's, left by a program that was killed: local drives lock what may only be read as well.
  return file < 0 && errno == EACCES ? ::open(path.c_str(), O_RDONLY | kFlags, 0666) : file;
}

}  // namespace

FileLock::FileLock(const std::string& path, int patienceMs)
    : path_(JoinPath(FolderOf(path), "." + std::string(CutUtf8(LastName(path), 200)) + ".lock")) {
  for (int waited = 0; waited <= patienceMs; waited += kPauseMs) {
    const int file = Open(path_);
    if (file < 0) return;
    const bool locked = ::flock(file, LOCK_EX | LOCK_NB) == 0;
    const bool taken = !locked && errno == EWOULDBLOCK;
    // The one before may have removed it between the opening and the lock, and the next one have made another.
    if (locked && StampOf(path_) == StampOf(file)) {
      file_ = file;
      return;
    }
    ::close(file);
    if (!locked && !taken) return;
    if (taken) ::usleep(kPauseMs * 1000);
  }
  busy_ = true;
}

FileLock::~FileLock() {
  if (file_ < 0) return;
  ::unlink(path_.c_str());
  ::close(file_);
}

}  // namespace kinalyx
