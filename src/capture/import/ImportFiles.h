#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/files/Folders.h"
#include "platform/files/Result.h"
#include "platform/files/Tr.h"

namespace kinalyx {

/// What the browse dialog asks for.
inline constexpr const char* kBrowseTitle = TrLater("Browse for media file");
inline constexpr const char* kBrowseFilter = TrLater(
    "Video Files "
    "(*.avi;*.mpg;*.mpeg;*.ogg;*.wmv;*.asf;*.qt;*.mov;*.m2v;*.m1v;*.ts;*.mts;*.m2ts;*.mp4;*.3gp;*.flv;*.video_ts.ifo;*."
    "vob)|*.avi;*.mpg;*.mpeg;*.ogg;*.wmv;*.asf;*.qt;*.mov;*.m2v;*.m1v;*.ts;*.mts;*.m2ts;*.mp4;*.3gp;*.flv;*.video_ts."
    "ifo;*.vob|All Files (*.*)|*.*");

/// The sub-folder of a source that takes what has been converted.
inline constexpr const char* kConvertedFolder = "Converted Videos";

/// True for a name whose last three letters are those of a video, in either case.
bool IsImportable(std::string_view name);

/// A file that may be imported, and the state in which it was found.
struct ImportFile {
  std::string path;
  FileStamp stamp;
  bool written = false;  ///< a program is still writing it, as far as that can be told
};

/// Those of a folder, sorted as a reader would. It touches a drive that may not answer, so a worker looks.
/// @param writers  ask also who is writing
std::vector<ImportFile> FilesToImport(const std::string& folder, bool writers);

/// Where the original goes once it has been converted: into the sub-folder of its own folder, under its own name or,
/// where there is one of that name already, with the first free number from "(000)" before it. Empty when all thousand
/// are taken.
std::string ConvertedPath(const std::string& source);

/// Moves the original there; a move that becomes a copy is read back and compared before the original goes. What is
/// there already is never replaced.
/// @return where it stands now
Result<std::string> MoveToConverted(const std::string& source);

}  // namespace kinalyx
