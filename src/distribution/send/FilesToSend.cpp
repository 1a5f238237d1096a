#include "distribution/send/FilesToSend.h"

#include <algorithm>

#include "platform/files/Folders.h"
#include "platform/files/Tr.h"

namespace kinalyx {

std::string FileToSend::Name() const { return LastName(path); }

std::string FileToSend::Entry() const { return (lesson ? std::string(kLessonEntry) : std::string()) + Name(); }

std::string FilesToSend::Add(const std::string& path, bool lesson) {
  // Two videos of one name would be one on a disc or a page; lessons are told apart by where they lie.
  const bool listed = std::ranges::any_of(files_, [&](const FileToSend& file) {
    return file.lesson == lesson && (lesson ? SamePlace(file.path, path) : file.Name() == LastName(path));
  });
  if (listed)
    return lesson ? Tr("This lesson is already in the Files to Send list.")
                  : Tr("This video is already in the Files to Send list.");
  const auto bytes = FileSize(path);
  if (!bytes) return Tr("\"{}\" could not be found.", LastName(path));
  files_.push_back({.path = path, .lesson = lesson, .bytes = *bytes});
  return lesson ? Tr("Lesson successfully added to the Files to Send list.")
                : Tr("Video successfully added to the Files to Send list.");
}

std::string FilesToSend::Remove(std::size_t index) {
  if (index >= files_.size()) return "";
  files_.erase(files_.begin() + static_cast<std::ptrdiff_t>(index));
  return Tr("File successfully removed from Files to Send list.");
}

std::int64_t FilesToSend::Bytes() const {
  std::int64_t bytes = 0;
  for (const FileToSend& file : files_) bytes += FileSize(file.path).value_or(0);
  return bytes;
}

std::string MegabytesText(std::int64_t bytes) {
  constexpr std::int64_t kMegabyte = 1 << 20;
  std::string digits = std::to_string((std::max<std::int64_t>(0, bytes) + kMegabyte - 1) / kMegabyte);
  for (auto at = static_cast<std::ptrdiff_t>(digits.size()) - 3; at > 0; at -= 3)
    digits.insert(static_cast<std::size_t>(at), ",");
  return digits + "MB";
}

}  // namespace kinalyx
