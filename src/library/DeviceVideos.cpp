#include "library/DeviceVideos.h"

#include <fmt/format.h>
#include <sys/stat.h>

#include <algorithm>
#include <iterator>
#include <map>
#include <utility>

#include "library/Mounts.h"
#include "library/VideoNames.h"
#include "platform/files/Folders.h"
#include "platform/files/TextEncoding.h"
#include "platform/files/Tr.h"

namespace kinalyx {

// ---------------------------------------------------------------- which devices there are

std::vector<DevicePlace> DevicesIn(std::string_view text) {
  const std::vector<Mount> mounts = MountsIn(text);
  const auto system = std::ranges::find(mounts, "/", &Mount::path);
  std::vector<DevicePlace> devices;
  for (const Mount& mount : mounts) {
    // What the system's own drive shows at a second place is no other drive.
    const bool ofSystem = system != mounts.end() && mount.source == system->source;
    const bool plugged = mount.path.starts_with("/media/") || mount.path.starts_with("/run/media/");
    DevicePlace place;
    if (mount.source.starts_with("/dev/") && plugged && !ofSystem) place = {mount.path, LastName(mount.path)};
    else if (mount.type == "fuse.gvfsd-fuse") place = {mount.path, {}};
    if (!place.path.empty() && std::ranges::find(devices, place) == devices.end()) devices.push_back(place);
  }
  return devices;
}

std::vector<DevicePlace> DevicesNow() { return DevicesIn(MountsText()); }

std::vector<DevicePlace> TelephonesBelow(const std::string& folder) {
  constexpr std::string_view kKinds[] = {"mtp:", "gphoto2:", "afc:"};
  std::vector<DevicePlace> telephones;
  for (const std::string& name : ListFolders(folder)) {
    const auto isOfKind = [&](std::string_view kind) { return name.starts_with(kind); };
    if (std::ranges::any_of(kKinds, isOfKind)) telephones.push_back({JoinPath(folder, name), TelephoneName(name)});
  }
  return telephones;
}

std::string TelephoneName(std::string_view folder) {
  folder.remove_prefix(std::min(folder.size(), folder.find('=') == std::string_view::npos ? 0 : folder.find('=') + 1));
  std::vector<std::string> words;
  std::size_t last = 0;  // where the last word begins in `words`; the number of the device, if it is one
  while (!folder.empty()) {
    const std::string word(folder.substr(0, folder.find('_')));
    folder.remove_prefix(std::min(folder.size(), word.size() + 1));
    last = words.size();
    if (!word.empty() && word != "Android" && word != "Inc." && std::ranges::find(words, word) == words.end())
      words.push_back(word);
  }
  const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
  if (words.size() > 1 && last + 1 == words.size() && words.back().size() > 4 &&
      std::ranges::any_of(words.back(), isDigit))
    words.pop_back();
  // A device that does not tell what it is goes by its place on the cable: "%5Busb%3A001,005%5D".
  if (words.empty() || words.front().starts_with('%') || words.front().starts_with('[')) return Tr("Telephone");
  return fmt::format("{}", fmt::join(words, " "));
}

// ---------------------------------------------------------------- what is on them

namespace {

std::vector<std::string> CameraFoldersIn(const std::string& folder) {
  constexpr std::string_view kNames[] = {"dcim", "movies", "private", "avchd", "mp_root", "video", "videos"};
  std::vector<std::string> folders;
  for (const std::string& name : ListFolders(folder))
    if (std::ranges::find(kNames, FoldCase(name)) != std::end(kNames)) folders.push_back(JoinPath(folder, name));
  return folders;
}

/// Marks the videos that the library has.
void MarkKnown(std::vector<DeviceVideo>& videos, const std::string& root) {
  std::multimap<std::string, DeviceVideo*> byName;
  for (DeviceVideo& video : videos) byName.emplace(FoldCase(LastName(video.path)), &video);
  for (const std::string& path : VideosAmong({root})) {
    // Where a name was taken, the library has added a "d" to it, or several.
    std::string name = FoldCase(VideoName(path));
    const std::string ending = FoldCase(VideoExtension(path));
    for (std::int64_t bytes = -1; !name.empty(); name.pop_back()) {
      const auto [first, end] = byName.equal_range(name + ending);
      if (first != end && bytes < 0) bytes = FileSize(path).value_or(0);
      for (auto at = first; at != end; ++at) at->second->inLibrary |= at->second->bytes == bytes;
      if (name.back() != 'd') break;
    }
  }
}

}  // namespace

std::vector<std::string> CameraFolders(const std::string& device) {
  std::vector<std::string> folders = CameraFoldersIn(device);
  if (!folders.empty()) return folders;
  for (const std::string& name : ListFolders(device))
    std::ranges::copy(CameraFoldersIn(JoinPath(device, name)), std::back_inserter(folders));
  return folders;
}

std::vector<DeviceVideo> FindDeviceVideos(const std::string& device, const std::string& root) {
  std::vector<DeviceVideo> videos;
  for (const std::string& path : VideosAmong(CameraFolders(device))) {
    struct stat info {};
    if (::stat(path.c_str(), &info) == 0) videos.push_back({path, info.st_size, info.st_mtim.tv_sec});
  }
  if (!videos.empty()) MarkKnown(videos, root);
  std::ranges::stable_sort(videos, [](const DeviceVideo& a, const DeviceVideo& b) { return a.written > b.written; });
  return videos;
}

// ---------------------------------------------------------------- in words

std::string DeviceText(const std::string& device, std::size_t videos, std::size_t fresh) {
  if (videos == 1) return Tr("One new video on \"{}\"", device);
  if (fresh == videos) return Tr("{} videos on \"{}\", all of them new", videos, device);
  return Tr("{} videos on \"{}\", {} of them new", videos, device, fresh);
}

}  // namespace kinalyx
