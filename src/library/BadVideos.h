#pragma once

#include <optional>
#include <set>
#include <string>
#include <utility>

#include "library/LibraryOperations.h"
#include "platform/files/Folders.h"

namespace kinalyx {

/// True for a file that was written to a moment ago, and may be on its way here from a telephone or another program.
/// It touches the drive.
bool StillArriving(const std::string& path);
/// What is shown in the place of a video that cannot be opened.
std::string BadVideoText(bool arriving);

/// Offers videos that cannot be opened for deletion.
class BadVideos {
 public:
  enum class Fate {
    Kept,
    Deleted,
    Gone,  ///< somebody else has renamed, moved or deleted it meanwhile
  };

  /// All that is passed outlives it.
  BadVideos(IHost& host, const Settings& settings, LibraryOperations& operations)
      : host_(host), settings_(settings), operations_(operations) {}

  /// Asks the user about a video that could not be opened. A video that was kept is not asked about
  /// again, unless the file has changed since. A video whose drive does not answer, or that is still arriving, is
  /// kept without a word.
  Fate Offer(const LibraryVideo& video);

 private:
  using FileState = std::pair<std::string, std::optional<FileStamp>>;

  IHost& host_;
  const Settings& settings_;
  LibraryOperations& operations_;
  std::set<FileState> kept_;
};

}  // namespace kinalyx
