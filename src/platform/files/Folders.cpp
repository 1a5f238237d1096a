#include "platform/files/Folders.h"

#include <QCollator>
#include <QDir>
#include <QLocale>
#include <QStandardPaths>
#include <QString>
#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <memory>
#include <system_error>
#include <utility>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include "platform/files/TextEncoding.h"

namespace kinalyx {

namespace fs = std::filesystem;

namespace {

FileStamp AsStamp(const struct stat& state) {
  constexpr std::int64_t kNanoseconds = 1'000'000'000;
  return {state.st_ino, state.st_size, state.st_mtim.tv_sec * kNanoseconds + state.st_mtim.tv_nsec};
}

QString ToQt(const std::string& text) { return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())); }

}  // namespace

void SortNames(std::vector<std::string>& names) {
  if (names.size() < 2) return;
  // Made anew each time: lists are read by several threads, and it costs less than reading a folder. The
  // language "C" has no order of its own but that of the bytes.
  const QLocale system = QLocale::system().collation();
  QCollator order(system.language() == QLocale::C ? QLocale(QLocale::English) : system);
  order.setNumericMode(true);
  order.setCaseSensitivity(Qt::CaseInsensitive);
  struct Keyed {
    QCollatorSortKey key;
    std::string name;
  };
  std::vector<Keyed> keyed;
  keyed.reserve(names.size());
  for (auto& name : names) keyed.push_back({order.sortKey(ToQt(name)), std::move(name)});
  std::sort(keyed.begin(), keyed.end(), [](const Keyed& a, const Keyed& b) {
    const int compared = a.key.compare(b.key);
    return compared < 0 || (compared == 0 && a.name < b.name);
  });
  for (std::size_t i = 0; i < names.size(); ++i) names[i] = std::move(keyed[i].name);
}

namespace {

enum class Entry { Folder, File };

/// Reads a folder once. Only where the file system does not tell what an entry is, or it is a link,
/// the entry itself is asked.
template <typename Wanted>
std::vector<std::string> List(const std::string& folder, Entry kind, Wanted wanted) {
  std::vector<std::string> names;
  const std::unique_ptr<DIR, int (*)(DIR*)> open(::opendir(folder.c_str()), &::closedir);
  if (!open) return names;
  while (const dirent* entry = ::readdir(open.get())) {
    const std::string_view name = entry->d_name;
    if (name.starts_with('.') || !wanted(name)) continue;
    bool isFolder = entry->d_type == DT_DIR;
    bool isFile = entry->d_type == DT_REG;
    if (entry->d_type == DT_UNKNOWN || entry->d_type == DT_LNK) {
      struct stat info {};
      if (::stat(JoinPath(folder, name).c_str(), &info) != 0) continue;
      isFolder = S_ISDIR(info.st_mode);
      isFile = S_ISREG(info.st_mode);
    }
    if (kind == Entry::Folder ? isFolder : isFile) names.emplace_back(name);
  }
  SortNames(names);
  return names;
}

}  // namespace

std::string DocumentsFolder() {
  std::string documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation).toStdString();
  // A desktop that names none, or one that cannot be made.
  if (!documents.starts_with('/') || !MakeFolder(documents)) {
    documents = JoinPath(QDir::homePath().toStdString(), "Documents");
    MakeFolder(documents);
  }
  return documents;
}

std::string ProgramFolder() {
  std::error_code failed;
  const fs::path program = fs::read_symlink("/proc/self/exe", failed);
  return failed ? std::string(".") : program.parent_path().string();
}

bool FileExists(const std::string& path) {
  std::error_code failed;
  const fs::file_status status = fs::status(path, failed);
  return fs::exists(status) && !fs::is_directory(status);
}

bool EntryExists(const std::string& path) {
  struct stat info {};
  return ::lstat(path.c_str(), &info) == 0;
}

bool dirExists(const std::string& path) {
  std::error_code failed;
  return fs::is_directory(path, failed);
}

bool SamePlace(const std::string& a, const std::string& b) {
  std::error_code failed;
  return fs::equivalent(a, b, failed) && !failed;
}

bool MakeFolder(const std::string& path) {
  std::error_code failed;
  fs::create_directories(path, failed);
  return dirExists(path);
}

bool KillFile(const std::string& path) {
  std::error_code failed;
  if (!fs::is_directory(fs::symlink_status(path, failed))) fs::remove(path, failed);
  return !fs::exists(fs::symlink_status(path, failed));
}

std::optional<std::int64_t> FileSize(const std::string& path) {
  std::error_code failed;
  const auto size = fs::file_size(path, failed);
  if (failed) return std::nullopt;
  return static_cast<std::int64_t>(size);
}

std::optional<FileStamp> StampOf(const std::string& path) {
  struct stat state {};
  if (::stat(path.c_str(), &state) != 0) return std::nullopt;
  return AsStamp(state);
}

std::optional<FileStamp> StampOf(int file) {
  struct stat state {};
  if (::fstat(file, &state) != 0) return std::nullopt;
  return AsStamp(state);
}

std::string KeptPath(const std::string& path) {
  const std::string first = path + ".old";
  std::string kept = first;
  for (int number = 2; EntryExists(kept); ++number) kept = first + std::to_string(number);
  return kept;
}

std::int64_t FreeBytes(const std::string& path) {
  std::error_code failed;
  fs::path place = fs::absolute(path, failed);
  while (!fs::exists(place, failed) && place.has_relative_path()) place = place.parent_path();
  const fs::space_info space = fs::space(place, failed);
  return failed ? -1 : static_cast<std::int64_t>(space.available);
}

std::optional<bool> FileIsThere(const std::string& path) {
  struct stat info {};
  if (::stat(path.c_str(), &info) == 0) return !S_ISDIR(info.st_mode);
  if (errno == ENOENT || errno == ENOTDIR || errno == ENAMETOOLONG) return false;
  return std::nullopt;
}

bool TouchPath(const std::string& path) {
  struct stat info {};
  if (::stat(path.c_str(), &info) != 0) return false;
  // A network file system may know all that from before; how full it is only the server knows.
  struct statvfs drive {};
  ::statvfs(path.c_str(), &drive);
  if (S_ISDIR(info.st_mode)) {
    const std::unique_ptr<DIR, int (*)(DIR*)> open(::opendir(path.c_str()), &::closedir);
    if (open) ::readdir(open.get());
  } else if (S_ISREG(info.st_mode)) {
    const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    char first = 0;
    if (file >= 0 && ::read(file, &first, 1) < 0) first = 0;
    if (file >= 0) ::close(file);
  }
  return true;
}

std::vector<std::string> ListFolders(const std::string& folder) {
  return List(folder, Entry::Folder, [](std::string_view) { return true; });
}

std::vector<std::string> ListFiles(const std::string& folder, std::string_view extension) {
  const std::string wanted = FoldCase(extension);
  return List(folder, Entry::File, [&wanted](std::string_view name) {
    return name.size() > wanted.size() && FoldCase(name.substr(name.size() - wanted.size())) == wanted;
  });
}

std::vector<std::string> ListFiles(const std::string& folder, bool (*wanted)(std::string_view name)) {
  return List(folder, Entry::File, wanted);
}

std::string JoinPath(std::string_view folder, std::string_view name) {
  std::string path(folder);
  const bool slash = path.ends_with('/') || name.starts_with('/');
  if (!path.empty() && !slash) path += '/';
  if (path.ends_with('/') && name.starts_with('/')) name.remove_prefix(1);
  return path.append(name);
}

std::string LastName(std::string_view path) {
  while (path.size() > 1 && path.ends_with('/')) path.remove_suffix(1);
  const std::size_t slash = path.rfind('/');
  return std::string(slash == std::string_view::npos || path.size() == 1 ? path : path.substr(slash + 1));
}

std::string FolderOf(std::string_view path) {
  const std::size_t slash = path.rfind('/');
  if (slash == std::string_view::npos) return ".";
  return std::string(slash == 0 ? "/" : path.substr(0, slash));
}

}  // namespace kinalyx
