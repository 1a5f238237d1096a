#pragma once

#include <optional>
#include <string>
#include <utility>

#include "core/Settings.h"
#include "library/LibraryTree.h"
#include "library/Sidecar.h"
#include "platform/host/DriveWatch.h"

namespace kinalyx {

// How the interface reads a library whose drive may not answer.

/// What `reading` makes of the tree; nothing when the library's drive does not answer.
/// @param reading  called with a tree of its own; as DriveWatch::Ask wants it
template <typename Reading>
auto AskLibrary(DriveWatch& drives, const LibraryTree& tree, Reading reading) {
  return drives.Ask(tree.Root(),
                    [root = tree.Root(), reading = std::move(reading)] { return reading(LibraryTree(root)); });
}

/// The marks of a video; nothing when the drive of the library with the folder `root` does not answer. With
/// them the drive has answered for the video itself.
std::optional<SidecarMarks> AskVideoMarks(DriveWatch& drives, const std::string& root, const std::string& videoPath);

/// How the folder of the library stands.
enum class LibraryPlace {
  Ready,    ///< it is there
  ToBegin,  ///< the one on this machine, which has not been there yet: it comes with what is first put in
  Removed,  ///< the one on this machine has been there, and its place is free
  Gone,     ///< it cannot be reached, or something else stands in its place
  Silent,   ///< its drive does not answer
};
/// @param settings  without a `LastInstructor` there has been no library on this machine yet
LibraryPlace PlaceOfLibrary(DriveWatch& drives, const Settings& settings);

/// What is told of a library whose drive does not answer.
std::string SilentLibraryText(const std::string& root);

}  // namespace kinalyx
