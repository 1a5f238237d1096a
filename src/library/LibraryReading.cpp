#include "library/LibraryReading.h"

#include "core/LibraryPath.h"
#include "platform/files/FileCopy.h"
#include "platform/files/Folders.h"
#include "platform/files/Tr.h"

namespace kinalyx {

std::optional<SidecarMarks> AskVideoMarks(DriveWatch& drives, const std::string& root, const std::string& videoPath) {
  return drives.Ask(root, [videoPath] {
    TouchPath(videoPath);
    return ReadSidecarMarks(SidecarPath(videoPath));
  });
}

LibraryPlace PlaceOfLibrary(DriveWatch& drives, const Settings& settings) {
  const std::string& root = settings.LibraryPath;
  const bool ours = !settings.UseNetwork && root == LocalLibraryPath(settings);
  const LibraryPlace free = settings.LastInstructor.empty() ? LibraryPlace::ToBegin : LibraryPlace::Removed;
  return drives
      .Ask(root,
           [root, ours, free] {
             if (TouchPath(root)) return dirExists(root) ? LibraryPlace::Ready : LibraryPlace::Gone;
             // Where even the folder of the settings is missing, a drive has been taken away.
             return ours && !EntryExists(root) && dirExists(FolderOf(root)) ? free : LibraryPlace::Gone;
           })
      .value_or(LibraryPlace::Silent);
}

std::string SilentLibraryText(const std::string& root) {
  return Tr("The drive with the video library at {} is not answering.", root);
}

}  // namespace kinalyx
