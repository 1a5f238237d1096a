#include "platform/files/PartFiles.h"

#include <array>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <optional>
#include <random>
#include <string_view>
#include <system_error>
#include <vector>

#include <sys/stat.h>

#include "platform/files/FileCopy.h"
#include "platform/files/Folders.h"
#include "platform/files/TextEncoding.h"

namespace kinalyx {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kEnding = ".part";
constexpr std::size_t kDigits = 16;

/// True for the names that PartNameBeside makes.
bool IsPartName(std::string_view name) {
  if (!name.starts_with('.') || !name.ends_with(kEnding)) return false;
  name.remove_suffix(kEnding.size());
  const std::size_t dot = name.rfind('.');
  const std::string_view digits = name.substr(dot + 1);
  return dot > 0 && digits.size() == kDigits && digits.find_first_not_of("0123456789abcdef") == std::string_view::npos;
}

/// Now, as the drive of a folder has it; nothing when nothing can be written there.
std::optional<std::time_t> DriveTime(const std::string& folder, IDisk& disk) {
  const std::string probe = PartNameBeside(JoinPath(folder, "now"));
  const int file = disk.OpenNew(probe);
  if (file < 0) return std::nullopt;
  struct stat info {};
  const bool known = ::fstat(file, &info) == 0;
  disk.Close(file);
  disk.Remove(probe);
  if (!known) return std::nullopt;
  return info.st_ctime;
}

/// True when nothing at a path, nor below it, has changed after a moment. Times of change are the drive's
/// own; those of writing are copied along with a file.
bool UntouchedSince(const std::string& path, std::time_t moment) {
  const auto untouched = [moment](const std::string& one) {
    struct stat info {};
    return ::lstat(one.c_str(), &info) == 0 && info.st_ctime <= moment;
  };
  if (!untouched(path)) return false;
  std::error_code failed;
  if (!fs::is_directory(fs::symlink_status(path, failed))) return !failed;
  for (fs::recursive_directory_iterator at(path, failed), end; !failed && at != end; at.increment(failed)) {
    if (!untouched(at->path().string())) return false;
  }
  return !failed;
}

}  // namespace

std::string PartNameBeside(const std::string& path) {
  // Drawn from the system each time: after a fork both processes would go on with the same sequence.
  std::random_device dice;
  std::array<char, 24> number{};
  std::snprintf(number.data(), number.size(), ".%08x%08x", dice(), dice());
  return JoinPath(FolderOf(path),
                  "." + std::string(CutUtf8(LastName(path), 200)) + number.data() + std::string(kEnding));
}

void RemoveDeadParts(const std::string& folder, IDisk& disk) {
  std::vector<std::string> parts;
  std::error_code failed;
  for (fs::directory_iterator at(folder, failed), end; !failed && at != end; at.increment(failed)) {
    if (IsPartName(at->path().filename().string())) parts.push_back(at->path().string());
  }
  if (parts.empty()) return;
  const auto now = DriveTime(folder, disk);
  if (!now) return;
  for (const std::string& part : parts) {
    if (UntouchedSince(part, *now - disk.DeadPartSeconds())) (void)RemoveTree(part, disk);  // or the next time
  }
}

}  // namespace kinalyx
