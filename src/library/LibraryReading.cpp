#include "library/LibraryReading.h"

#include "platform/files/Folders.h"

namespace kinalyx {

std::optional<SidecarMarks> AskVideoMarks(DriveWatch& drives, const std::string& root, const std::string& videoPath) {
  return drives.Ask(root, [videoPath] {
    TouchPath(videoPath);
    return ReadSidecarMarks(SidecarPath(videoPath));
  });
}

std::string SilentLibraryText(const std::string& root) {
  return "The drive with the video library at " + root + " is not answering.";
}

}  // namespace kinalyx
