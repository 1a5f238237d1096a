#include "capture/UnfinishedRecordings.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <optional>

#include "capture/WorkingFiles.h"
#include "library/VideoTransfer.h"
#include "platform/files/FileCopy.h"
#include "platform/files/Folders.h"
#include "platform/files/Tr.h"
#include "platform/media/RecordingFile.h"
#include "platform/media/VideoFile.h"

namespace kinalyx {
namespace {

constexpr double kSecond = 1e9;

struct FoundVideo {
  RecordingTally tally;
  double seconds = 0;
  std::int64_t written = 0;
};

/// What a file holds, once it has been made whole; nothing when that cannot be seen.
std::optional<FoundVideo> LookAt(const std::string& path) {
  const std::optional<FileStamp> stamp = StampOf(path);
  const Result<RecordingTally> mended = MendRecording(path);
  // One that was killed before its first picture holds nothing that anybody could miss.
  if (mended.Kind() == Fault::NoFrames || (stamp && stamp->bytes == 0)) KillFile(path);
  const std::unique_ptr<VideoInfo> info = ReadVideoInfo(path);
  if (!stamp || mended.Kind() == Fault::Refused || !info) return std::nullopt;
  FoundVideo video;
  video.seconds = info->durationMs / 1000;
  video.written = static_cast<std::int64_t>(static_cast<double>(stamp->written) / kSecond);
  if (mended) {
    video.tally = *mended;
  } else {
    // It was whole, and waited to be looked at.
    video.tally.pictures = info->frameCount;
    video.tally.rate = info->scale > 0 ? static_cast<double>(info->rate) / static_cast<double>(info->scale) : 0;
    video.tally.lastNs = std::llround(video.seconds * kSecond);
    video.tally.bytes = info->fileBytes;
  }
  return video;
}

}  // namespace

bool FindUnfinished::Step() {
  if (!listed_) {
    List();
  } else if (next_ < names_.size()) {
    TakeNext();
  }
  return next_ < names_.size();
}

void FindUnfinished::List() {
  listed_ = true;
  ParkRecordings(folder_);
  names_ = ListFiles(folder_, ".avi");
  // What still has such a name, another window is at work on.
  std::erase_if(names_, [](const std::string& name) { return IsWorkingName(name); });
  const std::vector<std::string> all = names_;
  for (const std::string& name : all) std::erase(names_, ParkedNameOfSecond(name));
}

void FindUnfinished::TakeNext() {
  const std::string& name = names_[next_++];
  UnfinishedRecording recording;
  std::size_t count = 0;
  for (const std::string& path : {JoinPath(folder_, name), JoinPath(folder_, ParkedNameOfSecond(name))}) {
    const std::optional<FoundVideo> video = FileExists(path) ? LookAt(path) : std::nullopt;
    if (!video) continue;
    recording.paths[count] = path;
    recording.tallies[count++] = video->tally;
    recording.seconds = std::max(recording.seconds, video->seconds);
    recording.written = std::max(recording.written, video->written);
  }
  if (count == 0) return;
  const auto before =
      std::ranges::find_if(found_, [&](const auto& other) { return other.written < recording.written; });
  found_.insert(before, std::move(recording));
}

JobProgress FindUnfinished::Progress() const {
  const auto done = static_cast<int>(next_);
  const auto total = static_cast<int>(names_.size());
  return {done, total, total > 0 ? static_cast<double>(done) / total : 0, {}};
}

Outcome ThrowAway(const UnfinishedRecording& recording) {
  for (const std::string& path : recording.paths) {
    if (path.empty()) continue;
    for (const Companion& companion : CompanionsOf(path)) KillFile(companion.path);
    if (!KillFile(path)) return Outcome::Failed(Tr("{} cannot be removed.", LastName(path)));
  }
  return Outcome();
}

}  // namespace kinalyx
