#include "library/GlanceStore.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>
#include <utility>
#include <vector>

#include "platform/files/FileStore.h"
#include "platform/media/StandInFile.h"

namespace kinalyx {

namespace {

namespace fs = std::filesystem;

constexpr char kMagic[8] = {'K', 'X', 'G', 'L', 'A', 'N', 'C', '1'};
constexpr const char* kEnding = ".glance";

/// As it stands on the disk, in the byte order of the machine: nobody else reads it. The picture follows, blue,
/// green and red of each pixel.
struct Heading {
  char magic[8];
  std::uint64_t number;
  std::int64_t bytes;
  std::int64_t written;
  double seconds;
  std::int32_t width;
  std::int32_t height;
};

Heading HeadingOf(const FileStamp& video) {
  Heading heading{{}, video.number, video.bytes, video.written, 0, 0, 0};
  std::memcpy(heading.magic, kMagic, sizeof kMagic);
  return heading;
}

}  // namespace

GlanceStore GlanceStore::OfUser() {
  const std::string cache = StandInLimits::OfUser().folder;
  return GlanceStore(cache.empty() ? cache : JoinPath(cache, "glances"));
}

std::string GlanceStore::PathOf(const FileStamp& video) const {
  std::uint64_t hash = 14695981039346656037u;
  for (const std::uint64_t part :
       {video.number, static_cast<std::uint64_t>(video.bytes), static_cast<std::uint64_t>(video.written)}) {
    hash = (hash ^ part) * 1099511628211u;
    hash ^= hash >> 29;
  }
  return JoinPath(folder_, fmt::format("{:016x}{}", hash, kEnding));
}

std::optional<VideoGlance> GlanceStore::Load(const FileStamp& video) const {
  if (folder_.empty()) return std::nullopt;
  std::ifstream file(PathOf(video), std::ios::binary);
  Heading heading;
  const Heading wanted = HeadingOf(video);
  if (!file.read(reinterpret_cast<char*>(&heading), sizeof heading) ||
      std::memcmp(&heading, &wanted, offsetof(Heading, seconds)) != 0)
    return std::nullopt;
  const bool sound = heading.width >= 0 && heading.width <= kWidth && heading.height >= 0 &&
                     heading.height <= kHeight && std::isfinite(heading.seconds) && heading.seconds >= 0;
  if (!sound) return std::nullopt;
  VideoGlance glance{true, heading.seconds, Surface(heading.width, heading.height)};
  std::vector<char> row(static_cast<std::size_t>(heading.width) * 3);
  for (int y = 0; y < glance.picture.Height(); ++y) {
    if (!file.read(row.data(), static_cast<std::streamsize>(row.size()))) return std::nullopt;
    std::uint8_t* pixel = glance.picture.Row(y);
    for (std::size_t at = 0; at < row.size(); at += 3, pixel += 4) {
      std::memcpy(pixel, row.data() + at, 3);
      pixel[3] = 255;
    }
  }
  return glance;
}

void GlanceStore::Save(const FileStamp& video, const VideoGlance& glance) const {
  // What cannot be opened today may be whole tomorrow.
  if (folder_.empty() || !glance.opens || !MakeFolder(folder_)) return;
  Heading heading = HeadingOf(video);
  heading.seconds = glance.seconds;
  heading.width = glance.picture.Width();
  heading.height = glance.picture.Height();
  std::string bytes(reinterpret_cast<const char*>(&heading), sizeof heading);
  for (int y = 0; y < glance.picture.Height(); ++y) {
    const auto* pixel = reinterpret_cast<const char*>(glance.picture.Row(y));
    for (int x = 0; x < glance.picture.Width(); ++x, pixel += 4) bytes.append(pixel, 3);
  }
  // A cache needs no flush: a file that is cut is no glance.
  std::ofstream(PathOf(video), std::ios::binary | std::ios::trunc) << bytes;
}

void GlanceStore::Tidy() const {
  std::vector<std::pair<fs::file_time_type, fs::path>> files;
  std::error_code failed;
  for (auto entry = fs::directory_iterator(folder_, failed); !failed && entry != fs::directory_iterator();
       entry.increment(failed)) {
    std::error_code gone;
    const auto written = entry->last_write_time(gone);
    if (!gone && entry->path().extension() == kEnding) files.emplace_back(written, entry->path());
  }
  const auto most = static_cast<std::size_t>(most_);
  if (files.size() <= most) return;
  // A tenth more goes than must, so that not every start has a few to remove.
  const auto end = files.begin() + static_cast<std::ptrdiff_t>(files.size() - most + most / 10);
  std::nth_element(files.begin(), end - 1, files.end());
  for (auto file = files.begin(); file != end; ++file) fs::remove(file->second, failed);
}

}  // namespace kinalyx
