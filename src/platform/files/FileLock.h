#pragma once

#include <string>

namespace kinalyx {

/// Keeps other windows and workstations from a file while it is read, changed and written anew. It is a lock
/// among those who ask for it, on a hidden file beside that goes with the lock; the system takes it back from
/// a program that is killed. Where a drive knows no locks, or the folder cannot be written to, there is none.
class FileLock {
 public:
  /// Waits so long for whoever holds it.
  explicit FileLock(const std::string& path, int patienceMs = 2000);
  ~FileLock();
  FileLock(const FileLock&) = delete;
  FileLock& operator=(const FileLock&) = delete;

  /// True when somebody else held it all the time.
  bool Busy() const { return busy_; }

 private:
  std::string path_;
  int file_ = -1;
  bool busy_ = false;
};

}  // namespace kinalyx
