#include "distribution/mail/SnapshotQueue.h"

#include <fmt/format.h>

#include <algorithm>
#include <cerrno>
#include <iterator>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/files/Disk.h"
#include "platform/files/Folders.h"
#include "platform/files/PartFiles.h"
#include "platform/files/Tr.h"
#include "platform/paint/ImageFiles.h"

namespace kinalyx {
namespace {

constexpr int kQuality = 70;

}  // namespace

HeldFile::HeldFile(const std::string& path) {
  const int file = ::open(path.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
  if (file < 0) return;
  struct stat info {};
  const bool regular = ::fstat(file, &info) == 0 && S_ISREG(info.st_mode);
  locked_ = ::flock(file, LOCK_EX | LOCK_NB) == 0;
  const bool taken = !locked_ && errno == EWOULDBLOCK;
  if (regular && !taken) file_ = file;
  else ::close(file);
}

HeldFile::~HeldFile() {
  if (file_ >= 0) ::close(file_);
}

std::string SnapshotQueue::PathOf(int number) const { return JoinPath(folder_, fmt::format("email{}.jpg", number)); }

std::string SnapshotQueue::NextPath() const { return PathOf(std::min(last_ + 1, kMost)); }

Result<std::string> SnapshotQueue::Add(const PixelRows& picture) {
  if (Count() >= kMost)
    return Outcome(Fault::Refused,
                   Tr("{} pictures are queued for emailing, and no more fit into one mail. Send or delete some "
                      "of them first.",
                      kMost));
  if (!MakeFolder(folder_)) return Outcome::Failed(Tr("The folder cannot be made."));
  const std::string part = PartNameBeside(JoinPath(folder_, "email.jpg"));
  if (const Outcome saved = SaveJpeg(picture, part, kQuality); !saved) return saved;
  // It is held before it gets its name: no other window ever sees it unheld.
  HeldFile held(part);
  // Behind the last one; the gaps come in only when the numbers have run out.
  for (int tried = 0; tried < kMost; ++tried) {
    const int number = (last_ + tried) % kMost + 1;
    std::string path = PathOf(number);
    if (EntryExists(path)) continue;
    if (RealDisk().RenameNew(part, path) != 0) {
      if (errno == EEXIST) continue;
      const Outcome failed = Outcome::FailedBySystem(errno);
      KillFile(part);
      return failed;
    }
    last_ = number;
    pictures_.push_back({path, std::move(held)});
    return path;
  }
  KillFile(part);
  return Outcome(
      Fault::Refused,
      Tr("Another window of Kinalyx, or an earlier session, has pictures for emailing as well, and there is no "
         "room for more. Send or delete some of them first."));
}

std::vector<std::string> SnapshotQueue::Pictures() {
  std::erase_if(pictures_, [](const Picture& picture) { return !FileExists(picture.path); });
  std::vector<std::string> paths;
  std::ranges::transform(pictures_, std::back_inserter(paths), &Picture::path);
  return paths;
}

std::int64_t SnapshotQueue::Bytes() {
  std::int64_t bytes = 0;
  for (const std::string& path : Pictures()) bytes += FileSize(path).value_or(0);
  return bytes;
}

Outcome SnapshotQueue::Delete(const std::string& path) {
  const auto found = std::ranges::find(pictures_, path, &Picture::path);
  if (found == pictures_.end()) return {};
  if (!KillFile(path)) return Outcome::Failed(Tr("The picture could not be deleted."));
  pictures_.erase(found);
  return {};
}

Outcome SnapshotQueue::DeleteAll(std::vector<Picture>& pictures) {
  std::erase_if(pictures, [](const Picture& picture) { return KillFile(picture.path); });
  return pictures.empty() ? Outcome() : Outcome::Failed(Tr("Some of the pictures could not be deleted."));
}

Outcome SnapshotQueue::ClearEmailQueue() {
  const Outcome cleared = DeleteAll(pictures_);
  if (cleared) last_ = 0;
  return cleared;
}

int SnapshotQueue::FindLeft() {
  left_.clear();
  for (int number = 1; number <= kMost; ++number) {
    const std::string path = PathOf(number);
    if (std::ranges::find(pictures_, path, &Picture::path) != pictures_.end()) continue;
    // Where there are no locks it may as well be another window's.
    if (HeldFile held(path); held && held.Locked()) left_.push_back({path, std::move(held)});
  }
  return static_cast<int>(left_.size());
}

void SnapshotQueue::TakeLeft() {
  std::ranges::move(pictures_, std::back_inserter(left_));
  pictures_ = std::exchange(left_, {});
}

Outcome SnapshotQueue::DeleteLeft() { return DeleteAll(left_); }

}  // namespace kinalyx
