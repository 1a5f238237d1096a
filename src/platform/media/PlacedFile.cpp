#include "platform/media/PlacedFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstring>
#include <utility>

#include "platform/files/Disk.h"
#include "platform/files/Tr.h"

namespace kinalyx {
namespace {

Outcome Failure(int reason) {
  const bool full = reason == ENOSPC || reason == EDQUOT || reason == EFBIG;
  return {full ? Fault::Unwritable : Fault::Failed, std::strerror(reason)};
}

}  // namespace

Result<PlacedFile> PlacedFile::Open(const std::string& path, Which which) {
  const int how = O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC | (which == Which::New ? O_CREAT | O_EXCL : 0);
  const int opened = ::open(path.c_str(), how, 0666);
  if (opened < 0) return Failure(errno);
  PlacedFile file(opened);
  struct stat status {};
  if (::fstat(opened, &status) != 0 || !S_ISREG(status.st_mode)) return Outcome::Failed(Tr("not a file"));
  // A drive without locks locks nothing.
  if (::flock(opened, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK)
    return Outcome(Fault::Refused, Tr("it is being written"));
  return file;
}

PlacedFile::PlacedFile(PlacedFile&& other) noexcept : file_(std::exchange(other.file_, -1)) {}

PlacedFile::~PlacedFile() {
  if (file_ >= 0) ::close(file_);
}

std::int64_t PlacedFile::Bytes() const {
  struct stat status {};
  return ::fstat(file_, &status) == 0 ? status.st_size : 0;
}

timespec PlacedFile::Written() const {
  struct stat status {};
  return ::fstat(file_, &status) == 0 ? status.st_mtim : timespec{0, UTIME_OMIT};
}

void PlacedFile::SetWritten(const timespec& time) const {
  const timespec times[] = {{0, UTIME_OMIT}, time};
  (void)::futimens(file_, times);
}

std::size_t PlacedFile::Read(std::int64_t place, std::span<std::uint8_t> to) const {
  std::size_t done = 0;
  while (done < to.size()) {
    const ssize_t got = ::pread(file_, to.data() + done, to.size() - done, place + static_cast<std::int64_t>(done));
    if (got < 0 && errno == EINTR) continue;
    if (got <= 0) break;
    done += static_cast<std::size_t>(got);
  }
  return done;
}

Outcome PlacedFile::Write(std::int64_t place, std::span<const std::uint8_t> bytes) const {
  iovec piece{const_cast<std::uint8_t*>(bytes.data()), bytes.size()};
  return Write(place, std::span(&piece, 1));
}

Outcome PlacedFile::Write(std::int64_t place, std::span<iovec> pieces) const {
  while (!pieces.empty()) {
    const int count = static_cast<int>(std::min<std::size_t>(pieces.size(), IOV_MAX));
    ssize_t written = ::pwritev(file_, pieces.data(), count, place);
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return Failure(errno);
    place += written;
    while (!pieces.empty() && written >= static_cast<ssize_t>(pieces.front().iov_len)) {
      written -= static_cast<ssize_t>(pieces.front().iov_len);
      pieces = pieces.subspan(1);
    }
    if (pieces.empty() || written == 0) continue;
    iovec& rest = pieces.front();
    rest.iov_base = static_cast<char*>(rest.iov_base) + written;
    rest.iov_len -= static_cast<std::size_t>(written);
  }
  return Outcome();
}

Outcome PlacedFile::Cut(std::int64_t bytes) const {
  return ::ftruncate(file_, bytes) == 0 ? Outcome() : Failure(errno);
}

Outcome PlacedFile::Flush() const { return ::fdatasync(file_) == 0 ? Outcome() : Failure(errno); }

void PlacedFile::BeginFlush() const { RealDisk().BeginFlush(file_); }

}  // namespace kinalyx
