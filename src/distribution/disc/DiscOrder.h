#pragma once

#include <string>
#include <vector>

#include "distribution/clips/FileScene.h"
#include "distribution/disc/DiscPlan.h"
#include "distribution/send/FilesToSend.h"

namespace kinalyx {

/// What is wanted of a disc, as values: the work on it goes on whatever the user does meanwhile.
struct DiscOrder {
  std::vector<FileToSend> Files;
  std::string ViewerFolder;  ///< all files in it go to the root; may be missing or empty
  bool Page = true;          ///< MP4s with their drawings, and a page that plays them everywhere
  std::string Label;         ///< of the disc
  std::string Coach;
  std::string Company;
  std::string Student;
  std::string Today;       ///< "2026-11-26"
  std::string WorkFolder;  ///< for what is made on the way; a folder of its own is made in it, and goes
  FilmLook Look;
};

/// A name for a disc of today: at most 16 plain characters, "SWING_2026_11_26".
std::string LabelFor(const std::string& student, const std::string& today);

/// The student of whom all files are; empty where they are of several, or of none of the library.
/// @param library  its root
std::string StudentOf(const std::vector<FileToSend>& files, const std::string& library);

/// What a folder of the viewer holds, hidden files and folders left out. It reads the disk.
std::vector<DiscSource> FilesOfViewer(const std::string& folder);
/// Looks at the videos of an order and plans its disc. It reads the disk. Fails with the first that is not there.
Result<DiscPlan> PlanOrder(const DiscOrder& order);

}  // namespace kinalyx
