#include "library/BadVideos.h"

#include "core/Settings.h"
#include "platform/files/Folders.h"
#include "platform/host/DriveWatch.h"

namespace kinalyx {

BadVideos::Fate BadVideos::Offer(const LibraryVideo& video) {
  const auto look = [path = video.path]() -> std::optional<FileState> {
    if (!FileExists(path)) return std::nullopt;
    return FileState{path, StampOf(path)};
  };
  const auto state = host_.Drives().Ask(settings_.LibraryPath, look);
  if (!state) return Fate::Kept;
  if (!*state) return Fate::Gone;
  if (kept_.contains(**state)) return Fate::Kept;
  if (!host_.Question("Delete Bad Video", "The selected video appears to be corrupt. Would you like to delete it?")) {
    kept_.insert(**state);
    return Fate::Kept;
  }
  return operations_.DeleteVideo(video).Done() ? Fate::Deleted : Fate::Kept;
}

}  // namespace kinalyx
