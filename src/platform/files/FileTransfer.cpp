#include "platform/files/FileTransfer.h"

#include <algorithm>
#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kinalyx {

namespace {

/// Bytes that are read at a time.
constexpr std::size_t kBuffer = 1 << 20;
/// Bytes after which their way to the disk begins.
constexpr std::int64_t kFlushBytes = 16 << 20;

}  // namespace

FileTransfer::~FileTransfer() {
  const int reason = errno;  // of the failure that ended it
  if (source_ >= 0) ::close(source_);
  if (back_ >= 0) ::close(back_);
  if (target_ >= 0) disk_.Close(target_);
  errno = reason;
}

bool FileTransfer::Begin(const std::string& from, bool followLink, const std::string& to) {
  to_ = to;
  source_ = disk_.OpenSource(from, followLink);
  if (source_ < 0) return false;
  stamp_ = StampOf(source_);
  struct stat info {};
  if (::fstat(source_, &info) != 0) return false;
  size_ = info.st_size;
  times_[0] = info.st_atim;
  times_[1] = info.st_mtim;
  target_ = disk_.OpenNew(to);
  if (target_ < 0) return false;
  cloned_ = disk_.Clone(source_, target_) >= 0;
  return true;
}

long FileTransfer::Go(std::size_t maxBytes) {
  if (!copyDone_) {
    const long moved = CopyOn(maxBytes);
    if (moved != 0) return moved;
    copyDone_ = true;
    if (!FinishCopy()) return -1;
  }
  return ReadsBack() ? ReadBackOn(maxBytes) : 0;
}

long FileTransfer::CopyOn(std::size_t maxBytes) {
  long moved = 0;
  if (cloned_) moved = static_cast<long>(size_ - copied_);
  else if (care_ == Care::Checked) moved = CopySummed(maxBytes);
  else moved = disk_.Transfer(source_, target_, maxBytes);
  if (moved <= 0) return moved;
  copied_ += moved;
  if (care_ != Care::Usual && copied_ - flushBegun_ >= kFlushBytes) {
    flushBegun_ = copied_;
    disk_.BeginFlush(target_);
  }
  return moved;
}

long FileTransfer::CopySummed(std::size_t maxBytes) {
  buffer_.resize(kBuffer);
  const long got = disk_.Read(source_, buffer_.data(), std::min(maxBytes, kBuffer));
  if (got <= 0) return got;
  original_.Add(buffer_.data(), static_cast<std::size_t>(got));
  for (long done = 0; done < got;) {
    const long written = disk_.Write(target_, buffer_.data() + done, static_cast<std::size_t>(got - done));
    if (written == 0) errno = ENOSPC;
    if (written <= 0) return -1;
    done += written;
  }
  return got;
}

bool FileTransfer::FinishCopy() {
  if (StampOf(source_) != stamp_) stamp_.reset();
  struct stat old {};
  struct stat copy {};
  // Private files stay private, but what comes from a read-only disc can be written to in the library. A
  // file system without rights or times refuses, and nothing is lost by that.
  if (::fstat(source_, &old) == 0 && ::fstat(target_, &copy) == 0)
    (void)::fchmod(target_, (old.st_mode & copy.st_mode & 0777) | S_IRUSR | S_IWUSR);
  (void)::futimens(target_, times_);
  if (care_ != Care::Usual && disk_.Flush(target_) < 0) return false;
  ::close(std::exchange(source_, -1));
  if (disk_.Close(std::exchange(target_, -1)) < 0) return false;
  if (!ReadsBack()) return true;
  back_ = disk_.OpenSource(to_, false);
  if (back_ < 0) return false;
  disk_.ForgetCached(back_);
  return true;
}

long FileTransfer::ReadBackOn(std::size_t maxBytes) {
  const long got = disk_.Read(back_, buffer_.data(), std::min(maxBytes, kBuffer));
  if (got < 0) return got;
  readBack_ += got;
  copy_.Add(buffer_.data(), static_cast<std::size_t>(got));
  // A copy that has grown is told apart at once, by its length.
  differs_ = readBack_ > copied_ || (got == 0 && (readBack_ != copied_ || copy_.Sum() != original_.Sum()));
  return differs_ ? -1 : got;
}

}  // namespace kinalyx
