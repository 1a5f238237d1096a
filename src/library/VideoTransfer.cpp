#include "library/VideoTransfer.h"

#include <algorithm>
#include <filesystem>
#include <set>
#include <system_error>
#include <utility>

#include "library/LibraryTree.h"
#include "library/Profile.h"
#include "library/Sidecar.h"
#include "library/Study.h"
#include "library/VideoNames.h"
#include "platform/files/Folders.h"
#include "platform/files/PartFiles.h"
#include "platform/files/Tr.h"
#include "platform/media/VideoFile.h"

namespace kinalyx {

namespace {

std::int64_t BytesWithCompanions(const std::string& videoPath) {
  std::int64_t bytes = FileSize(videoPath).value_or(0);
  for (const Companion& companion : CompanionsOf(videoPath)) bytes += FileSize(companion.path).value_or(0);
  return bytes;
}

/// The name of the file that stands where a folder is needed on the way to `folder`; "" when there is none.
std::string InTheWay(std::string folder) {
  while (!EntryExists(folder) && folder != "." && folder != "/") folder = FolderOf(folder);
  return dirExists(folder) ? std::string() : LastName(folder);
}

}  // namespace

// ---------------------------------------------------------------- a video and what belongs to it

bool HasVideoNamed(const std::string& folder, std::string_view file) {
  if (EntryExists(JoinPath(folder, file))) return true;
  return std::ranges::any_of(ListVideos(folder), [&](const std::string& other) {
    return SameFormat(other, file) && SameName(VideoName(other), VideoName(file));
  });
}

std::vector<Companion> CompanionsOf(const std::string& videoPath) {
  std::vector<Companion> companions{{SidecarPath(videoPath), SidecarName}, {StudyPath(videoPath), StudyName}};
  std::erase_if(companions, [](const Companion& one) { return !FileExists(one.path); });
  return companions;
}

bool SharesCompanions(const std::string& videoPath) {
  const std::string sidecar = SidecarName(videoPath);
  return std::ranges::count_if(ListVideos(FolderOf(videoPath)),
                               [&](const std::string& file) { return SidecarName(file) == sidecar; }) > 1;
}

bool SetAsideOrphans(const std::string& folder, std::string_view file, IDisk& disk) {
  const std::string video = JoinPath(folder, file);
  const auto setAside = [&](const std::string& orphan) {
    return !HasVideoNamed(folder, file) && RenameEntry(orphan, KeptPath(orphan), disk);
  };
  // In small letters and in large ones there may be more than one sidecar.
  for (std::string orphan = SidecarPath(video); EntryExists(orphan); orphan = SidecarPath(video))
    if (!setAside(orphan)) return false;
  const std::string study = StudyPath(video);
  return !EntryExists(study) || setAside(study);
}

CopyUnit VideoUnit(const std::string& videoPath, const std::string& folder, std::string_view file) {
  CopyUnit unit;
  // First what belongs to it: a video never stands anywhere without its drawings.
  for (const Companion& companion : CompanionsOf(videoPath))
    unit.push_back({companion.path, JoinPath(folder, companion.nameFor(file)), SharesCompanions(videoPath)});
  unit.push_back({videoPath, JoinPath(folder, file)});
  return unit;
}

// ---------------------------------------------------------------- many of them

VideoTransferJob::VideoTransferJob(CopyJob::Kind kind, OnClash onClash, std::vector<VideoTransfer> videos, IDisk& disk)
    : kind_(kind), onClash_(onClash), videos_(std::move(videos)), disk_(disk) {}

bool VideoTransferJob::Fail(const std::string& error) {
  error_ = error;
  failed_ = true;
  return false;
}

bool VideoTransferJob::Step() {
  if (cancelled_ || failed_) return false;
  if (!begun_) return Begin();
  if (copy_) {
    if (copy_->Step() == CopyJob::State::Running) return true;
    return EndOfOne();
  }
  if (next_ < videos_.size()) return BeginOne();
  return left_.empty() ? false : FailForThoseLeft();
}

bool VideoTransferJob::FailForThoseLeft() {
  constexpr std::size_t kNamed = 12;
  if (left_.size() == 1) return Fail(left_.front());
  std::string text = Tr("{} videos could not be taken:\n", left_.size());
  for (std::size_t i = 0; i < std::min(left_.size(), kNamed); ++i) text += "\n" + left_[i];
  if (left_.size() > kNamed) text += Tr("\nand {} more", left_.size() - kNamed);
  return Fail(text);
}

std::string VideoTransferJob::FileName() const { return name_ + VideoExtension(videos_[next_].path); }

/// Finds the name under which the next video can stand at its target.
bool VideoTransferJob::BeginOne() {
  const VideoTransfer& video = videos_[next_];
  if (const std::string file = InTheWay(video.folder); !file.empty())
    return Fail(Tr("There is a file named \"{}\" where a folder is needed.", file));
  if (video.path.empty()) return TakeStudent(video);
  if (name_.empty()) name_ = VideoName(video.path);
  while (HasVideoNamed(video.folder, FileName()) || !SetAsideOrphans(video.folder, FileName(), disk_)) {
    if (onClash_ == OnClash::Stop) {
      nameTaken_ = true;
      return Fail(Tr("There is already a video with the name \"{}\".", name_));
    }
    name_ += 'd';
  }
  if (kind_ != CopyJob::Kind::Move) TakeProfile(video);
  copy_.emplace(kind_, std::vector<CopyUnit>{VideoUnit(video.path, video.folder, FileName())}, disk_);
  return true;
}

bool VideoTransferJob::TakeStudent(const VideoTransfer& student) {
  std::error_code failed;
  std::filesystem::create_directories(student.folder, failed);
  if (!dirExists(student.folder))
    return Fail(Tr("The folder {} cannot be made: {}.", student.folder, failed.message()));
  TakeProfile(student);
  ++studentsDone_;
  ++next_;
  return true;
}

/// Room for all is asked for before the first is copied, and what killed copies hold of it is given back first.
bool VideoTransferJob::Begin() {
  begun_ = true;
  std::set<std::string> folders;
  for (const VideoTransfer& video : videos_) {
    folders.insert(video.folder);
    if (!video.path.empty()) bytesTotal_ += BytesWithCompanions(video.path);
  }
  for (const std::string& folder : folders) RemoveDeadParts(folder, disk_);
  // A move asks for itself, as it may need none.
  if (kind_ == CopyJob::Kind::Move || videos_.empty()) return true;
  const std::int64_t free = FreeBytes(videos_.front().folder);
  if (free < 0 || bytesTotal_ <= free) return true;
  constexpr std::int64_t kMegabyte = 1 << 20;
  return Fail(Tr("There is not enough room: {} MB are needed, and {} MB are free.",
                 (bytesTotal_ + kMegabyte - 1) / kMegabyte, free / kMegabyte));
}

void VideoTransferJob::TakeProfile(const VideoTransfer& video) {
  if (video.studentFolder.empty()) return;
  // A profile that is there is the target's own. The notes belong to their profile.
  if (EntryExists(ProfilePath(video.folder)) || !FileExists(ProfilePath(video.studentFolder))) return;
  CopyUnit unit{{ProfilePath(video.studentFolder), ProfilePath(video.folder)}};
  const std::string notes = JoinPath(video.studentFolder, "profile.txt");
  const std::string notesThere = JoinPath(video.folder, "profile.txt");
  if (FileExists(notes) && !EntryExists(notesThere)) unit.push_back({notes, notesThere});
  // Without its profile a student gains a new one when it is looked at, so a refusal costs no video.
  CopyJob copy(kind_, {unit}, disk_);
  RunToEnd(copy);
}

bool VideoTransferJob::EndOfOne() {
  const CopyJob::State state = copy_->Status();
  if (state == CopyJob::State::Done) {
    const VideoTransfer& video = videos_[next_];
    if (arrived_.empty())
      firstArrived_ =
          static_cast<int>(std::count_if(videos_.begin(), videos_.begin() + static_cast<std::ptrdiff_t>(next_),
                                         [](const VideoTransfer& one) { return !one.path.empty(); }));
    arrived_.push_back(JoinPath(video.folder, FileName()));
    if (looks_ && !ReadVideoInfo(arrived_.back())) unreadable_.push_back(arrived_.back());
    filesDone_ += copy_->Progress().filesDone;
    bytesDone_ += copy_->Progress().bytesTotal;
    if (error_.empty()) error_ = copy_->Error();
    name_.clear();
    ++next_;
  } else if (copy_->NameTaken() && onClash_ == OnClash::AddD) {
    // Another workstation took the name meanwhile, or something stands there that is no video.
    name_ += 'd';
  } else if (onClash_ == OnClash::AddD && copy_->OthersMayGoWell()) {
    left_.push_back(copy_->Error());
    name_.clear();
    ++next_;
  } else {
    nameTaken_ = copy_->NameTaken();
    return Fail(copy_->Error());
  }
  copy_.reset();
  return true;
}

void VideoTransferJob::Cancel() {
  if (failed_ || (next_ == videos_.size() && begun_ && !copy_)) return;
  if (copy_) copy_->Cancel();
  copy_.reset();
  cancelled_ = true;
}

JobProgress VideoTransferJob::Progress() const {
  const auto total = std::ranges::count_if(videos_, [](const VideoTransfer& one) { return !one.path.empty(); });
  JobProgress progress{VideosDone(), static_cast<int>(total), 0, {}};
  std::int64_t bytes = bytesDone_;
  if (copy_) {
    bytes += copy_->Progress().bytesDone;
    progress.current = copy_->Progress().current;
  }
  if (bytesTotal_ > 0) progress.part = std::min(1.0, static_cast<double>(bytes) / static_cast<double>(bytesTotal_));
  return progress;
}

}  // namespace kinalyx
