#include "library/BadVideos.h"

#include <chrono>

#include "core/Settings.h"
#include "platform/files/Folders.h"
#include "platform/files/Tr.h"
#include "platform/host/DriveWatch.h"

namespace kinalyx {

bool StillArriving(const std::string& path) {
  const auto stamp = StampOf(path);
  if (!stamp) return false;
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  const auto age = std::chrono::duration_cast<std::chrono::seconds>(now - std::chrono::nanoseconds(stamp->written));
  return std::chrono::abs(age) < std::chrono::minutes(1);
}

std::string BadVideoText(bool arriving) {
  return arriving ? Tr("This video is not complete. It may still be on its way here.")
                  : Tr("This video cannot be opened. It is damaged, or not all of it has arrived.");
}

BadVideos::Fate BadVideos::Offer(const LibraryVideo& video) {
  const auto look = [path = video.path]() -> std::optional<FileState> {
    if (!FileExists(path)) return std::nullopt;
    return FileState{path, StampOf(path)};
  };
  const auto arriving = [path = video.path] { return StillArriving(path); };
  const auto state = host_.Drives().Ask(settings_.LibraryPath, look);
  if (!state) return Fate::Kept;
  if (!*state) return Fate::Gone;
  if (kept_.contains(**state) || host_.Drives().Ask(settings_.LibraryPath, arriving).value_or(true)) return Fate::Kept;
  if (!host_.Question(Tr("Delete Bad Video"),
                      Tr("The selected video appears to be corrupt. Would you like to delete it?"))) {
    kept_.insert(**state);
    return Fate::Kept;
  }
  return operations_.DeleteVideo(video).Done() ? Fate::Deleted : Fate::Kept;
}

}  // namespace kinalyx
