#pragma once

#include <string>
#include <vector>

namespace kinalyx {

/// What lies in a student's folder, and below it: said before it is deleted, for the lists do not show all of it.
struct FolderContents {
  int files = 0;  ///< all of them
  int videos = 0;
  int lessons = 0;
  bool profile = false;                    ///< fields or notes
  int unlisted = 0;                        ///< what belongs to none of these
  std::vector<std::string> unlistedNames;  ///< of the first of them, within the folder
};

/// Reads a folder; as much as can be read.
FolderContents ContentsOf(const std::string& folder);

/// "There are 14 files in the folder: 5 videos with their drawings and notes, the profile, and 2 files that the
/// lists do not show: plan.pdf, letter.odt."
std::string ContentsText(const FolderContents& contents);

/// Whether what is deleted can be taken back.
std::string TrashText(bool toTrash);

}  // namespace kinalyx
