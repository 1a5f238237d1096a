#include "library/LibraryReading.h"

#include "core/LibraryPath.h"
#include "platform/files/FileCopy.h"
#include "platform/files/Folders.h"

namespace kinalyx {

std::optional<SidecarMarks> AskVideoMarks(DriveWatch& drives, const std::string& root, const std::string& videoPath) {
  return drives.Ask(root, [videoPath] {
    TouchPath(videoPath);
    return ReadSidecarMarks(SidecarPath(videoPath));
  });
}

LibraryPlace PlaceOfLibrary(DriveWatch& drives, const Settings& settings) {
  const std::string& root = settings.LibraryPath;
  const bool mayBegin = !settings.UseNetwork && root == LocalLibraryPath(settings) && settings.LastInstructor.empty();
  return drives
      .Ask(root,
           [root, mayBegin] {
             if (TouchPath(root)) return dirExists(root) ? LibraryPlace::Ready : LibraryPlace::Gone;
             // Where even the folder of the settings is missing, a drive has been taken away.
             return mayBegin && !EntryExists(root) && dirExists(FolderOf(root)) ? LibraryPlace::ToBegin : LibraryPlace::Gone;
           })
      .value_or(LibraryPlace::Silent);
}

std::string SilentLibraryText(const std::string& root) {
  return "The drive with the video library at " + root + " is not answering.";
}

}  // namespace kinalyx
