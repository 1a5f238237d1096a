#include "platform/media/StandInFile.h"

extern "C" {
#include <libavutil/adler32.h>
}

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <system_error>
#include <utility>

#include "platform/files/Folders.h"

namespace kinalyx {
namespace {

namespace fs = std::filesystem;

constexpr char kMagic[8] = {'K', 'X', 'S', 'T', 'A', 'N', 'D', '2'};
constexpr char kEnding[] = ".pictures";
constexpr std::uint32_t kMark = 0x50584B53;
constexpr std::uint32_t kLargestPicture = 8 << 20;

/// As they stand on the disk, in the byte order of the machine: nobody else reads them.
struct Heading {
  char magic[8];
  std::uint64_t number;
  std::int64_t bytes;
  std::int64_t written;
  std::int64_t pictures;
};
struct Record {
  std::uint32_t mark;
  std::int32_t picture;
  std::int32_t longSide;
  std::uint32_t bytes;
  std::uint32_t sum;
};

Heading HeadingOf(const FileStamp& video, int pictures) {
  Heading heading{{}, video.number, video.bytes, video.written, pictures};
  std::memcpy(heading.magic, kMagic, sizeof kMagic);
  return heading;
}

std::string NameOf(const FileStamp& video) {
  std::uint64_t hash = 14695981039346656037u;
  const auto bytes = static_cast<std::uint64_t>(video.bytes);
  const auto written = static_cast<std::uint64_t>(video.written);
  for (const std::uint64_t part : {video.number, bytes, written}) {
    hash = (hash ^ part) * 1099511628211u;
    hash ^= hash >> 29;
  }
  char name[32];
  std::snprintf(name, sizeof name, "%016llx", static_cast<unsigned long long>(hash));
  return name + std::string(kEnding);
}

std::uint32_t SumOf(std::span<const std::uint8_t> bytes) { return av_adler32_update(1, bytes.data(), bytes.size()); }

}  // namespace

StandInLimits StandInLimits::OfUser() {
  const char* cache = std::getenv("XDG_CACHE_HOME");
  const char* home = std::getenv("HOME");
  StandInLimits limits;
  // A relative path in the variable counts for nothing.
  if (cache && cache[0] == '/') limits.folder = JoinPath(cache, "kinalyx");
  else if (home && home[0] == '/') limits.folder = JoinPath(JoinPath(home, ".cache"), "kinalyx");
  return limits;
}

std::unique_ptr<StandInFile> StandInFile::Open(const StandInLimits& limits, const FileStamp& video, int pictures,
                                               const Found& found) {
  if (limits.folder.empty() || !MakeFolder(limits.folder)) return nullptr;
  const std::string path = JoinPath(limits.folder, NameOf(video));
  const int file = open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
  if (file < 0) return nullptr;
  std::unique_ptr<StandInFile> made(new StandInFile(path, file));
  made->writes_ = flock(file, LOCK_EX | LOCK_NB) == 0;
  made->most_ = limits.one;
  if (made->ReadHeading(video, pictures)) {
    made->Scan(pictures, found);
    futimens(file, nullptr);
  } else if (!made->writes_ || !made->Begin(video, pictures)) {
    return nullptr;
  }
  CleanStandIns(limits, path);
  const std::int64_t free = FreeBytes(limits.folder);
  if (free >= 0) made->most_ = std::min(made->most_, made->end_ + std::max<std::int64_t>(0, free - limits.leaveFree));
  return made;
}

StandInFile::~StandInFile() {
  if (file_ >= 0) close(file_);
}

bool StandInFile::ReadHeading(const FileStamp& video, int pictures) const {
  const Heading wanted = HeadingOf(video, pictures);
  Heading found{};
  return pread(file_, &found, sizeof found, 0) == sizeof found && std::memcmp(&found, &wanted, sizeof found) == 0;
}

bool StandInFile::Begin(const FileStamp& video, int pictures) {
  const Heading heading = HeadingOf(video, pictures);
  end_ = sizeof heading;
  return ftruncate(file_, 0) == 0 && pwrite(file_, &heading, sizeof heading, 0) == sizeof heading;
}

void StandInFile::Scan(int pictures, const Found& found) {
  struct stat status {};
  if (fstat(file_, &status) != 0) status.st_size = 0;
  end_ = sizeof(Heading);
  Record record{};
  while (pread(file_, &record, sizeof record, end_) == sizeof record) {
    const std::int64_t at = end_ + static_cast<std::int64_t>(sizeof record);
    const bool sound = record.mark == kMark && record.picture >= 0 && record.picture < pictures &&
                       record.longSide > 0 && record.bytes > 0 && record.bytes <= kLargestPicture &&
                       at + record.bytes <= status.st_size;
    if (!sound) break;
    found({record.picture, record.longSide, at, record.bytes, record.sum});
    end_ = at + record.bytes;
  }
  // What follows makes no sense; the next picture is written over it.
  if (writes_ && end_ < status.st_size) writes_ = ftruncate(file_, end_) == 0;
}

std::optional<StandInFile::Place> StandInFile::Append(int picture, int longSide, std::span<const std::uint8_t> packed) {
  if (!writes_ || packed.empty() || packed.size() > kLargestPicture) return std::nullopt;
  const Record record{kMark, picture, longSide, static_cast<std::uint32_t>(packed.size()), SumOf(packed)};
  std::vector<std::uint8_t> bytes(sizeof record + packed.size());
  std::memcpy(bytes.data(), &record, sizeof record);
  std::memcpy(bytes.data() + sizeof record, packed.data(), packed.size());
  const auto size = static_cast<std::int64_t>(bytes.size());
  if (end_ + size > most_ || pwrite(file_, bytes.data(), bytes.size(), end_) != size) {
    writes_ = false;
    return std::nullopt;
  }
  const Place place{picture, longSide, end_ + static_cast<std::int64_t>(sizeof record), record.bytes, record.sum};
  end_ += size;
  return place;
}

std::optional<std::vector<std::uint8_t>> StandInFile::Read(const Place& place) const {
  std::vector<std::uint8_t> bytes(place.bytes);
  if (pread(file_, bytes.data(), bytes.size(), place.at) != static_cast<ssize_t>(bytes.size())) return std::nullopt;
  return SumOf(bytes) == place.sum ? std::optional(std::move(bytes)) : std::nullopt;
}

void StandInFile::Discard() {
  writes_ = false;
  KillFile(path_);
}

void CleanStandIns(const StandInLimits& limits, const std::string& keep) {
  struct Old {
    fs::path path;
    std::int64_t bytes = 0;
    fs::file_time_type written;
  };
  std::vector<Old> files;
  std::int64_t sum = 0;
  std::error_code error;
  for (fs::directory_iterator entry(limits.folder, error), end; !error && entry != end; entry.increment(error)) {
    if (entry->path().extension() != kEnding) continue;
    std::error_code gone;
    const Old old{entry->path(), static_cast<std::int64_t>(entry->file_size(gone)), entry->last_write_time(gone)};
    if (gone) continue;
    sum += old.bytes;
    if (old.path != keep) files.push_back(old);
  }
  std::ranges::sort(files, {}, &Old::written);
  for (auto old = files.begin(); sum > limits.all && old != files.end(); ++old) {
    if (KillFile(old->path.string())) sum -= old->bytes;
  }
}

}  // namespace kinalyx
