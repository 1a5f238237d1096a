#include "platform/files/FileStore.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/files/Folders.h"
#include "platform/files/PartFiles.h"
#include "platform/files/TextEncoding.h"

namespace kinalyx {

namespace fs = std::filesystem;

namespace {

/// Where a save to `path` really goes: the end of a chain of links.
fs::path TargetOf(const std::string& path) {
  fs::path target = path;
  std::error_code failed;
  for (int link = 0; link < 16 && fs::is_symlink(target, failed); ++link) {
    const fs::path next = fs::read_symlink(target, failed);
    if (failed) break;
    target = next.is_absolute() ? next : target.parent_path() / next;
  }
  return target;
}

bool WriteAll(IDisk& disk, int file, std::span<const std::uint8_t> bytes) {
  while (!bytes.empty()) {
    const long written = disk.Write(file, bytes.data(), bytes.size());
    if (written <= 0) {
      if (written == 0) errno = ENOSPC;
      return false;
    }
    bytes = bytes.subspan(static_cast<std::size_t>(written));
  }
  return true;
}

}  // namespace

Outcome WriteWholeFile(const std::string& path, std::span<const std::uint8_t> bytes, IDisk& disk) {
  const auto refuse = [](int reason) { return Outcome::FailedBySystem(reason); };
  const fs::path target = TargetOf(path);
  std::error_code failed;
  const fs::file_status old = fs::status(target, failed);
  const bool exists = fs::exists(old);
  if (exists && !fs::is_regular_file(old)) return refuse(fs::is_directory(old) ? EISDIR : EACCES);
  // A rename needs no right to the file itself, so read-only must be asked for.
  constexpr auto kAnyWrite = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
  if (exists && ::access(target.c_str(), W_OK) != 0) return refuse(errno);
  if (exists && (old.permissions() & kAnyWrite) == fs::perms::none) return refuse(EACCES);

  // A name of its own: another window or workstation may be saving the same file at this moment.
  const std::string beside = PartNameBeside(target.string());
  constexpr auto kOthers = fs::perms::group_all | fs::perms::others_all;
  const bool forOwner = exists && (old.permissions() & kOthers) == fs::perms::none;
  const int file = forOwner ? disk.OpenNewForOwner(beside) : disk.OpenNew(beside);
  if (file < 0) return refuse(errno);
  if (exists) fs::permissions(beside, old.permissions(), failed);  // before the flush, which then covers it
  bool good = WriteAll(disk, file, bytes) && disk.Flush(file) >= 0;
  int reason = good ? 0 : errno;
  if (disk.Close(file) < 0 && good) {
    good = false;
    reason = errno;
  }
  if (good && disk.Rename(beside, target.string()) < 0) {
    good = false;
    reason = errno;
  }
  const std::string folder = FolderOf(target.string());
  if (!good) {
    disk.Remove(beside);
    RemoveDeadParts(folder, disk);  // the next attempt may need their room
    return refuse(reason);
  }
  // A name that was there stands for the old file or the new one, both whole, until the system has written
  // its folder in a few seconds. A new name would be nothing until then. Some network drives cannot flush a
  // folder, and nothing can be taken back now, so a refusal here is no failure of the save.
  if (!exists) disk.FlushFolder(folder);
  RemoveDeadParts(folder, disk);
  return {};
}

Outcome WriteWholeFile(const std::string& path, std::string_view text, IDisk& disk) {
  return WriteWholeFile(path, std::span(reinterpret_cast<const std::uint8_t*>(text.data()), text.size()), disk);
}

bool KeepForOwner(const std::string& path) {
  const int file = ::open(path.c_str(), O_RDONLY | O_CREAT | O_NONBLOCK | O_CLOEXEC, 0600);
  if (file < 0) return false;
  constexpr mode_t kOthers = 077;
  struct stat info {};
  const bool kept = ::fstat(file, &info) == 0 && S_ISREG(info.st_mode) &&
                    ((info.st_mode & kOthers) == 0 || ::fchmod(file, info.st_mode & ~kOthers & 07777) == 0) &&
                    ::fstat(file, &info) == 0 && (info.st_mode & kOthers) == 0;
  ::close(file);
  return kept;
}

std::optional<std::vector<std::uint8_t>> ReadWholeFile(const std::string& path, std::int64_t limit) {
  // O_NONBLOCK: a pipe that somebody has put in the place of the file must not hold us up.
  const int file = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  if (file < 0) return std::nullopt;
  std::optional<std::vector<std::uint8_t>> result;
  struct stat info {};
  if (::fstat(file, &info) == 0 && S_ISREG(info.st_mode) && info.st_size <= limit) {
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(info.st_size));
    std::size_t have = 0;
    ssize_t got = 1;
    while (have < bytes.size() && got > 0) {
      got = ::read(file, bytes.data() + have, bytes.size() - have);
      if (got < 0 && errno == EINTR) got = 1;
      else if (got > 0) have += static_cast<std::size_t>(got);
    }
    if (got >= 0) {
      bytes.resize(have);  // somebody may have cut it meanwhile
      result = std::move(bytes);
    }
  }
  ::close(file);
  return result;
}

std::optional<std::string> ReadTextFile(const std::string& path, std::int64_t limit) {
  const auto bytes = ReadWholeFile(path, limit);
  if (!bytes) return std::nullopt;
  return AsUtf8(std::string_view(reinterpret_cast<const char*>(bytes->data()), bytes->size()));
}

}  // namespace kinalyx
