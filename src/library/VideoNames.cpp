#include "library/VideoNames.h"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <iterator>
#include <set>

#include "platform/files/Folders.h"
#include "platform/files/TextEncoding.h"
#include "platform/files/Tr.h"

namespace kinalyx {
namespace {

constexpr std::string_view kAvi = ".avi";
constexpr std::string_view kDrawings = ".ved";
constexpr std::string_view kStudy = ".study";
constexpr std::string_view kEndings[] = {kAvi,   ".mp4",  ".mov", ".m4v", ".mkv", ".webm", ".mts", ".m2ts", ".ts",
                                         ".mpg", ".mpeg", ".wmv", ".3gp", ".vob", ".flv",  ".ogg", ".asf"};

/// The ending with its dot, as it is written; empty when the name has none or is nothing else.
std::string_view EndingOf(std::string_view file) {
  if (const auto slash = file.rfind('/'); slash != std::string_view::npos) file.remove_prefix(slash + 1);
  const auto dot = file.rfind('.');
  return dot == std::string_view::npos || dot == 0 ? std::string_view() : file.substr(dot);
}

bool IsAvi(std::string_view file) { return FoldCase(EndingOf(file)) == kAvi; }

}  // namespace

bool IsVideoName(std::string_view file) {
  return std::ranges::find(kEndings, FoldCase(EndingOf(file))) != std::end(kEndings);
}

std::vector<std::string> ListVideos(const std::string& folder) { return ListFiles(folder, IsVideoName); }

namespace {

constexpr int kDeepest = 12;  // folders below a dropped one; a link may lead round

void Gather(const std::string& folder, int depth, std::vector<std::string>& videos) {
  for (const std::string& file : ListVideos(folder)) videos.push_back(JoinPath(folder, file));
  if (depth == 0) return;
  for (const std::string& below : ListFolders(folder)) Gather(JoinPath(folder, below), depth - 1, videos);
}

/// The video whose drawings or study a file holds; empty when it holds neither, or the video has gone.
std::string VideoOf(const std::string& path) {
  const std::string ending = FoldCase(EndingOf(path));
  if ((ending != kDrawings && ending != kStudy) || !FileExists(path)) return {};
  const std::string folder = FolderOf(path);
  const std::string sidecar = FoldCase(VideoName(path)) + std::string(kDrawings);
  for (const std::string& file : ListVideos(folder))
    if (FoldCase(SidecarName(file)) == sidecar) return JoinPath(folder, file);
  return {};
}

}  // namespace

std::vector<std::string> VideosAmong(const std::vector<std::string>& paths) {
  std::vector<std::string> videos;
  for (const std::string& path : paths) {
    if (dirExists(path)) Gather(path, kDeepest, videos);
    else if (IsVideoName(path) && FileExists(path)) videos.push_back(path);
    else if (const std::string video = VideoOf(path); !video.empty()) videos.push_back(video);
  }
  std::set<std::string> seen;
  std::erase_if(videos, [&](const std::string& path) { return !seen.insert(path).second; });
  return videos;
}

std::string VideoFilter() {
  std::string patterns;
  for (const std::string_view ending : kEndings) {
    std::string large(ending);
    std::ranges::transform(large, large.begin(), [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    patterns += fmt::format("{}*{}; *{}", patterns.empty() ? "" : "; ", ending, large);
  }
  return Tr("Videos|{}|All files|*", patterns);
}

std::string VideoName(std::string_view file) {
  const std::string name = LastName(file);
  return name.substr(0, name.size() - EndingOf(name).size());
}

std::string VideoExtension(std::string_view file) { return std::string(EndingOf(file)); }

std::string FormatMark(std::string_view file) {
  if (IsAvi(file)) return {};
  std::string mark(EndingOf(file).substr(EndingOf(file).empty() ? 0 : 1));
  std::ranges::transform(mark, mark.begin(), [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
  return mark;
}

std::string ShownName(std::string_view file) {
  const std::string mark = FormatMark(file);
  return mark.empty() ? VideoName(file) : VideoName(file) + " \u00B7 " + mark;
}

bool SameFormat(std::string_view file, std::string_view other) {
  return FoldCase(EndingOf(file)) == FoldCase(EndingOf(other));
}

std::string SidecarName(std::string_view videoPath) {
  const std::string name = LastName(videoPath);
  return (IsAvi(name) ? VideoName(name) : name) + std::string(kDrawings);
}

std::string StudyName(std::string_view videoPath) {
  const std::string sidecar = SidecarName(videoPath);
  return sidecar.substr(0, sidecar.size() - kDrawings.size()) + std::string(kStudy);
}

}  // namespace kinalyx
