#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kinalyx {

// A video is any file whose name ends as one of the containers that can be opened. On the disk it keeps its
// ending; lists show the name without it and, for all but AVI, a mark of its format.

/// True for a file name that ends in ".avi", ".mp4", ".mov" ..., in either case, with something before it.
bool IsVideoName(std::string_view file);
/// Names of the videos in a folder, sorted as ListFiles sorts them.
std::vector<std::string> ListVideos(const std::string& folder);

/// The videos among files and folders: of a folder all that lie in it and below it, hidden folders left out; of
/// drawings or a study, as file managers hand them over, the video that they belong to. Each once, in the order of
/// `paths`.
std::vector<std::string> VideosAmong(const std::vector<std::string>& paths);
/// All endings for the filter of a file dialog.
std::string VideoFilter();

/// "(003) FO driver" from the name or path of a video.
std::string VideoName(std::string_view file);
/// ".avi", ".MP4": the ending as it is written.
std::string VideoExtension(std::string_view file);
/// "MP4"; empty for an AVI.
std::string FormatMark(std::string_view file);
/// The name as lists show it: "swing", or "swing · MP4". In one folder no two are alike, but for the case of an
/// ending.
std::string ShownName(std::string_view file);
/// True when both endings stand for the same container, whatever their case.
bool SameFormat(std::string_view file, std::string_view other);

/// The sidecar's name for a video: of "X.avi" it is "X.ved", of any other "X.mp4.ved", so that two files of one
/// name never share drawings.
std::string SidecarName(std::string_view videoPath);
/// The name of what was found in a video: that of the sidecar, with ".study" in place of ".ved".
std::string StudyName(std::string_view videoPath);

}  // namespace kinalyx
