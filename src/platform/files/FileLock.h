#pragma once

#include <string>

namespace kinalyx {

/// Keeps other windows and workstations from a file while it is read, changed and written anew. The lock is
/// advisory: it lies on a hidden file beside, which is removed with it, and the system releases that of a killed
/// program. Where the drive has no locks, or the folder cannot be written to, nothing is locked.
class FileLock {
 public:
  /// Waits at most so long for another holder.
  explicit FileLock(const std::string& path, int patienceMs = 2000);
  ~FileLock();
  FileLock(const FileLock&) = delete;
  FileLock& operator=(const FileLock&) = delete;

  /// True when another holder kept it all that time.
  bool Busy() const { return busy_; }

 private:
  std::string path_;
  int file_ = -1;
  bool busy_ = false;
};

}  // namespace kinalyx
