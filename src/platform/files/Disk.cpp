#include "platform/files/Disk.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <memory>

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/files/Folders.h"

namespace kinalyx {

namespace {

/// Bytes at a time where the system cannot copy by itself.
constexpr std::size_t kBuffer = 1 << 20;

template <typename Call>
auto Again(Call call) {
  decltype(call()) result;
  do {
    result = call();
  } while (result < 0 && errno == EINTR);
  return result;
}

class SystemDisk final : public IDisk {
 public:
  int OpenSource(const std::string& path, bool followLink) override {
    // O_NONBLOCK: a pipe that somebody has put in the place of the file must not hold us up.
    return ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | (followLink ? 0 : O_NOFOLLOW));
  }
  int OpenNew(const std::string& path) override {
    return ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666);
  }
  int OpenNewForOwner(const std::string& path) override {
    return ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600);
  }
  long Write(int file, const void* bytes, std::size_t count) override {
    return Again([&] { return ::write(file, bytes, count); });
  }
  long Transfer(int from, int to, std::size_t count) override {
    const ssize_t moved = Again([&] { return ::copy_file_range(from, nullptr, to, nullptr, count, 0); });
    if (moved > 0) return moved;
    // Two file systems, or one without this call; some say "nothing left" where there is something.
    if (moved < 0 && errno != EXDEV && errno != EINVAL && errno != ENOSYS && errno != EOPNOTSUPP) return -1;
    const std::size_t wanted = std::min(count, kBuffer);
    const std::unique_ptr<char[]> buffer = std::make_unique_for_overwrite<char[]>(wanted);
    const long got = Read(from, buffer.get(), wanted);
    for (long done = 0; done < got;) {
      const long written = Write(to, buffer.get() + done, static_cast<std::size_t>(got - done));
      if (written == 0) errno = ENOSPC;
      if (written <= 0) return -1;
      done += written;
    }
    return got;
  }
  long Read(int file, void* bytes, std::size_t count) override {
    return Again([&] { return ::read(file, bytes, count); });
  }
  int Clone(int from, int to) override { return ::ioctl(to, FICLONE, from); }
  int Flush(int file) override { return ::fsync(file); }
  void BeginFlush(int file) override { ::sync_file_range(file, 0, 0, SYNC_FILE_RANGE_WRITE); }
  void ForgetCached(int file) override { ::posix_fadvise(file, 0, 0, POSIX_FADV_DONTNEED); }
  int Close(int file) override { return ::close(file); }
  int Rename(const std::string& from, const std::string& to) override { return std::rename(from.c_str(), to.c_str()); }
  int RenameNew(const std::string& from, const std::string& to) override {
    if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return 0;
    if (errno != EINVAL && errno != ENOSYS) return -1;
    // A file system without that call: here a race remains between the look and the rename.
    if (EntryExists(to)) {
      errno = EEXIST;
      return -1;
    }
    return Rename(from, to);
  }
  int MakeFolder(const std::string& path) override { return ::mkdir(path.c_str(), 0777); }
  int MakeLink(const std::string& target, const std::string& path) override {
    return ::symlink(target.c_str(), path.c_str());
  }
  int FlushFolder(const std::string& path) override {
    const int folder = ::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0) return -1;
    const int result = ::fsync(folder);
    ::close(folder);
    return result;
  }
  int Remove(const std::string& path) override { return ::unlink(path.c_str()); }
  int RemoveFolder(const std::string& path) override { return ::rmdir(path.c_str()); }
};

}  // namespace

IDisk& RealDisk() {
  static SystemDisk disk;  // holds no state
  return disk;
}

}  // namespace kinalyx
