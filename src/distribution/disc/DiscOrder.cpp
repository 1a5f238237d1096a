#include "distribution/disc/DiscOrder.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <filesystem>
#include <system_error>

#include "library/Sidecar.h"
#include "library/Study.h"
#include "library/VideoNames.h"
#include "platform/files/Folders.h"
#include "platform/files/Tr.h"
#include "platform/media/VideoFile.h"

namespace kinalyx {
namespace {

/// An MP4 as this program makes it, or a telephone that wants to be understood, with nothing drawn on it.
bool PlaysItself(const std::string& path) {
  if (FormatMark(path) != "MP4" || ReadSidecarMarks(SidecarPath(path)).HasDrawings()) return false;
  const auto info = ReadVideoInfo(path);
  constexpr std::array<std::string_view, 2> kPlainCodecs{"avc1", "h264"};
  return info && std::ranges::find(kPlainCodecs, info->compressor) != kPlainCodecs.end();
}

}  // namespace

std::string LabelFor(const std::string& student, const std::string& today) {
  constexpr std::size_t kLongest = 16;
  std::string label;
  for (const char c : student)
    if (static_cast<unsigned char>(c) < 0x80 && std::isalnum(static_cast<unsigned char>(c)))
      label += static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  std::string day = today;
  std::ranges::replace(day, '-', '_');
  label = label.substr(0, kLongest > day.size() ? kLongest - day.size() - 1 : 0);
  if (label.empty()) return "KINALYX";
  return label + "_" + day;
}

std::string StudentOf(const std::vector<FileToSend>& files, const std::string& library) {
  std::string folder;
  for (const FileToSend& file : files) {
    const std::string own = file.lesson ? FolderOf(FolderOf(file.path)) : FolderOf(file.path);
    if (!folder.empty() && own != folder) return {};
    folder = own;
  }
  // Root, instructor, student; what lies elsewhere has a folder that means nothing to anybody.
  const bool ofLibrary = !folder.empty() && FolderOf(FolderOf(folder)) == library;
  return ofLibrary ? LastName(folder) : std::string();
}

std::vector<DiscSource> FilesOfViewer(const std::string& folder) {
  std::vector<DiscSource> files;
  for (const std::string& name : ListFiles(folder, [](std::string_view) { return true; })) {
    const std::string path = JoinPath(folder, name);
    if (name.starts_with('.')) continue;
    if (const auto bytes = FileSize(path)) files.push_back({path, *bytes});
  }
  return files;
}

Result<DiscPlan> PlanOrder(const DiscOrder& order) {
  std::vector<DiscVideoSource> videos;
  for (const FileToSend& file : order.Files) {
    const auto bytes = FileSize(file.path);
    if (!bytes) return Outcome(Fault::NotFound, Tr("\"{}\" could not be found.", file.Name()));
    DiscVideoSource video{.File = file, .Bytes = *bytes, .Companions = {}, .PlaysItself = false};
    for (const std::string& beside : {SidecarPath(file.path), StudyPath(file.path)})
      if (const auto length = FileSize(beside)) video.Companions.push_back({beside, *length});
    video.PlaysItself = order.Page && PlaysItself(file.path);
    videos.push_back(std::move(video));
  }
  return PlanDisc(videos, FilesOfViewer(order.ViewerFolder), order.Page);
}

}  // namespace kinalyx
