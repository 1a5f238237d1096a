#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "distribution/send/FilesToSend.h"
#include "platform/files/Tr.h"

namespace kinalyx {

/// Names of folders; the page, which has headings like them, says them in the user's language.
inline constexpr const char* kLessonsOnDisc = TrLater("Lessons");
inline constexpr const char* kVideosOnDisc = TrLater("Videos");
inline constexpr const char* kMp4OnDisc = "MP4";
inline constexpr const char* kPageOnDisc = "index.html";

/// A file that is to go along, and its length.
struct DiscSource {
  std::string Path;
  std::int64_t Bytes = 0;
};

/// A video of the list, and what was found beside it.
struct DiscVideoSource {
  FileToSend File;
  std::int64_t Bytes = 0;
  std::vector<DiscSource> Companions;  ///< its sidecar, its study
  bool PlaysItself = false;            ///< a browser plays it as it is, and nothing is drawn on it
};

/// A file of a disc.
struct DiscFile {
  std::string From;
  std::string To;  ///< "Lessons/Swing.avi"
  std::int64_t Bytes = 0;
};

/// A video of a disc.
struct DiscVideo {
  std::string From;
  std::string To;     ///< "Videos/Swing.avi"
  std::string Title;  ///< as the student reads it
  bool Lesson = false;
  std::string Mp4;  ///< "MP4/Swing.mp4", that is still to be made; or `To`, where that plays itself
  bool MakesMp4() const { return Mp4 != To; }
};

/// What lies where on a disc: the files of the viewer at its root, beside them the folders `Lessons` and `Videos`, also
/// when there is nothing in them; and, where a page is wanted, the page and the folder `MP4`.
struct DiscPlan {
  std::vector<std::string> Folders;
  std::vector<DiscFile> Files;  ///< that exist already: the viewer first, then the list in its order
  std::vector<DiscVideo> Videos;
  std::string Page;  ///< name of the page at the root; empty for none

  std::int64_t Bytes() const;
};

/// Gives everything its place. A lesson's entry loses its prefix; two of one name get numbers, so that nothing is lost;
/// names become such as every computer takes, see NameForDisc.
/// @param viewer  the files of the viewer's folder
/// @param page    a page with videos that every computer plays
DiscPlan PlanDisc(const std::vector<DiscVideoSource>& videos, const std::vector<DiscSource>& viewer, bool page);

/// A name that Windows, a Joliet disc and a stick take as well: without \ / : * ? " < > |, control characters, blanks
/// or dots at its end, at most 90 characters; an ending stays. Names that take none of these stay as they are.
std::string NameForDisc(const std::string& name);

}  // namespace kinalyx
