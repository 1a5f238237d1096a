// The operations on videos and whole databases.

#include <algorithm>
#include <filesystem>
#include <limits>
#include <system_error>
#include <utility>

#include "library/DiskSpace.h"
#include "library/LibraryOperations.h"
#include "library/LibraryReading.h"
#include "library/RunOperation.h"
#include "library/Sidecar.h"
#include "library/Study.h"
#include "library/TrimJob.h"
#include "library/VideoNames.h"
#include "library/VideoTransfer.h"
#include "platform/files/Folders.h"
#include "platform/files/Tr.h"

namespace kinalyx {

namespace {

using OnClash = VideoTransferJob::OnClash;

std::string NameOf(const LibraryVideo& video) { return VideoName(video.path); }

/// Renames a video with its companions. They go first, and back again when the video cannot follow; those that a
/// second video shares are copied. After a failure all stand as before.
Outcome RenameWithCompanions(const std::string& from, const std::string& to, IDisk& disk) {
  const bool shared = SharesCompanions(from);
  std::vector<std::pair<std::string, std::string>> gone;  // from and to
  const auto goBack = [&] {
    for (const auto& [old, present] : gone)
      (void)(shared ? RemoveTree(present, disk) : RenameEntry(present, old, disk));
  };
  for (const Companion& companion : CompanionsOf(from)) {
    const std::string target = JoinPath(FolderOf(to), companion.nameFor(to));
    Outcome moved;
    if (shared) {
      CopyJob copy(CopyJob::Kind::Copy, {{{companion.path, target}}}, disk);
      if (RunToEnd(copy) != CopyJob::State::Done) moved = Outcome::Failed(copy.Error());
    } else {
      moved = RenameEntry(companion.path, target, disk);
    }
    if (!moved) {
      goBack();
      return moved;
    }
    gone.emplace_back(companion.path, target);
  }
  Outcome renamed = RenameEntry(from, to, disk);
  if (!renamed) goBack();
  return renamed;
}

/// True when another video of its format in its folder has the name, or the video itself. Its own name in another
/// case is free for it.
bool IsTakenBeside(const std::string& videoPath, std::string_view name) {
  const std::string own = LastName(videoPath);
  return std::ranges::any_of(ListVideos(FolderOf(videoPath)), [&](const std::string& file) {
    return SameFormat(file, own) && SameName(VideoName(file), name) && (file != own || VideoName(file) == name);
  });
}

/// True for a folder itself and for those below it.
bool LiesIn(const std::string& folder, const std::string& other) {
  std::error_code failed;
  const std::string inner = std::filesystem::canonical(folder, failed).string();
  const std::string outer = std::filesystem::canonical(other, failed).string();
  return !failed && (inner + "/").starts_with(JoinPath(outer, "/"));
}

/// True for a video that keeps its instructor and student at the other place, because the lists there show it.
bool HasOwnPlace(const LibraryVideo& video, bool out) {
  // What lies directly with an instructor would be in no list of this library.
  const bool listed = out || !video.student.empty() || video.instructor == kQuickLaunch;
  return listed && !video.instructor.empty() && video.instructor != kGeneralFolder;
}

std::string SourceFolder(const LibraryVideo& video) {
  return video.path.empty() ? video.studentFolder : FolderOf(video.path);
}

/// A video on its way to a place in the library at `root`.
VideoTransfer TransferTo(const std::string& root, const ImportTarget& place, const LibraryVideo& video, bool ownPlace) {
  std::string folder = root;
  if (!place.instructor.empty()) folder = JoinPath(folder, place.instructor);
  if (!place.student.empty()) folder = JoinPath(folder, place.student);
  // When videos only go to another student, the profile of their own does not go along.
  const bool withProfile = ownPlace && !video.student.empty();
  return {video.path, folder, withProfile ? SourceFolder(video) : std::string()};
}

/// Says after each video how many have arrived.
class CountedTransfer final : public IOperationEvents {
 public:
  CountedTransfer(LibraryOperations::Events events, bool out) : events_(std::move(events)), out_(out) {}

  void ShowStatus(const std::string& words) override { events_->ShowStatus(words); }
  void ShowProgress(const JobProgress& progress) override {
    if (progress.done > told_) {
      told_ = progress.done;
      ShowStatus(out_ ? Tr("{} of {} Videos Successfully exported.....Please wait...", told_, progress.total)
                      : Tr("{} of {} Videos Successfully Imported.", told_, progress.total));
    }
    events_->ShowProgress(progress);
  }
  void WorkOver() override { events_->WorkOver(); }
  void Ended(const OperationResult& result) override { events_->Ended(result); }

 private:
  LibraryOperations::Events events_;
  bool out_;
  int told_ = 0;
};

constexpr int kLastOfAll = std::numeric_limits<int>::max();  // frame
constexpr const char* kCannotDelete = TrLater("Unable to delete the video. Try rebooting, then try again.");

}  // namespace

// ---------------------------------------------------------------- one video

OperationResult LibraryOperations::SendToAnalysis(const LibraryVideo& video,
                                                  const std::function<void(const std::string&)>& status) {
  if (video.path.empty()) return Report(Tr("You must select a video first."));
  if (const std::string refusal = Unreachable(); !refusal.empty()) return Refuse(refusal);
  std::string last;
  const int slot = analysis_.SendToAnalysis(video.path, [&](const std::string& words) {
    last = words;
    status(words);
  });
  return slot != 0 ? OperationResult{last} : Report(last);
}

OperationResult LibraryOperations::SendToAnalysis(const std::vector<LibraryVideo>& videos,
                                                  const std::function<void(const std::string&)>& status) {
  if (videos.size() == 1) return SendToAnalysis(videos.front(), status);
  std::size_t sent = 0;
  OperationResult last = Report(Tr("You must select a video first."));
  while (sent < videos.size() && (last = SendToAnalysis(videos[sent], status)).Done()) ++sent;
  if (sent == 0) return last;
  const std::string all = std::to_string(videos.size());
  if (sent == videos.size()) last.words = Tr("{} videos were sent to Analysis.", all);
  else last.words = Tr("{} of {} videos were sent to Analysis. {}", sent, all, last.Status());
  return last;
}

OperationResult LibraryOperations::RenameVideo(const LibraryVideo& video, std::string_view typed) {
  const std::string_view name = WithoutOuterBlanks(typed);
  if (const std::string refusal = RefuseUnlessVideoChangeable(video); !refusal.empty()) return Report(refusal);
  if (!IsValidName(name)) return Refuse(Tr("Invalid character in {} name.", words_.noun()));
  if (IsBlank(name)) return Refuse(Tr("You must type a name!"));
  const std::string folder = FolderOf(video.path);
  const std::string file = std::string(name) + VideoExtension(video.path);
  const std::string to = JoinPath(folder, file);
  const std::string taken = Tr("The video name you have chosen already exists, please try again.");
  if (IsTakenBeside(video.path, name)) return Refuse(taken);
  // Where only the case of a name changes, the disk may take the old sidecar for the new one.
  if (!SetAsideOrphans(folder, file, disk_) && !SamePlace(SidecarPath(video.path), SidecarPath(to)) &&
      !SamePlace(StudyPath(video.path), StudyPath(to)))
    return Refuse(taken);
  if (const Outcome renamed = RenameWithCompanions(video.path, to, disk_); !renamed) {
    if (EntryExists(to) || EntryExists(SidecarPath(to)) || EntryExists(StudyPath(to))) return Refuse(taken);
    const std::string text = Tr("The video could not be renamed");
    return EntryExists(video.path) ? Refuse(text + ": " + renamed.Why()) : RefuseGone(text);
  }
  analysis_.PathChanged(video.path, to);
  return {Tr("Video renamed successfully."), true, video.instructor, video.student, ShownName(file)};
}

/// Removes a video, then its companions unless another video needs them; false when the video stays.
bool LibraryOperations::RemoveVideo(const std::string& path) {
  const auto companions = SharesCompanions(path) ? std::vector<Companion>() : CompanionsOf(path);
  ITrash* const trash = TrashOf(path);
  const bool taken = trash && trash->Take(path);
  if (trash && !taken && EntryExists(path) && !GoesForGood(Tr("The video {}", ShownName(path)))) return false;
  if (!taken && !RemoveTree(path, disk_)) return false;
  // What stays does no harm: it makes way for the next video of its name.
  for (const Companion& companion : companions)
    if (!(taken && trash->Take(companion.path))) (void)RemoveTree(companion.path, disk_);
  return true;
}

OperationResult LibraryOperations::DeleteVideo(const LibraryVideo& video) {
  if (const std::string refusal = RefuseUnlessVideoChangeable(video); !refusal.empty()) return Report(refusal);
  if (!RemoveVideo(video.path)) return Refuse(Tr(kCannotDelete));
  return {Tr("Video Successfully Deleted!"), true, video.instructor, video.student};
}

OperationResult LibraryOperations::DeleteVideos(const std::vector<LibraryVideo>& videos) {
  if (videos.size() == 1) return DeleteVideo(videos.front());
  for (const LibraryVideo& video : videos)
    if (const std::string refusal = RefuseUnlessVideoChangeable(video); !refusal.empty()) return Report(refusal);
  std::size_t deleted = 0;
  while (deleted < videos.size() && RemoveVideo(videos[deleted].path)) ++deleted;
  OperationResult result;
  if (deleted < videos.size()) result = Refuse(Tr(kCannotDelete));
  else result.words = Tr("{} Videos Successfully Deleted!", deleted);
  result.refill = deleted > 0;
  return result;
}

void LibraryOperations::MoveVideo(const LibraryVideo& video, const std::string& targetInstructor,
                                  const std::string& targetStudent, Events events) {
  MoveVideos({video}, targetInstructor, targetStudent, std::move(events));
}

void LibraryOperations::MoveVideos(const std::vector<LibraryVideo>& videos, const std::string& targetInstructor,
                                   const std::string& targetStudent, Events events) {
  for (const LibraryVideo& video : videos) {
    if (const std::string refusal = RefuseUnlessVideoChangeable(video); !refusal.empty())
      return events->Ended(Report(refusal));
  }
  if (targetInstructor.empty() || targetStudent.empty() || targetInstructor == kGeneralFolder)
    return events->Ended(Refuse(Tr("You must select a Database and {} for the video.", words_.noun())));
  const std::string folder = tree_.StudentFolder(targetInstructor, targetStudent);
  if (SamePlace(folder, FolderOf(videos.front().path)))
    return events->Ended(Refuse(Tr("The source and destination folders are the same. The video was not moved.")));
  const auto taken = [targetStudent](const LibraryVideo& video) {
    return Tr(
        "A video with the name \"{}\" already exists in the folder named {}. Please rename the video and try again.",
        NameOf(video), targetStudent);
  };
  std::vector<VideoTransfer> transfers;
  for (const LibraryVideo& video : videos) {
    if (HasVideoNamed(folder, LastName(video.path))) return events->Ended(Refuse(taken(video)));
    transfers.push_back({video.path, folder, {}});
  }
  // A student whom another workstation has just renamed or moved away would come back as a bare folder.
  if (!dirExists(folder))
    return events->Ended(Refuse(Tr("The folder {} cannot be found. The video was not moved.", folder)));
  auto job = std::make_unique<VideoTransferJob>(CopyJob::Kind::Move, OnClash::Stop, std::move(transfers), disk_);
  Run<VideoTransferJob>(
      std::move(job),
      [=, this](VideoTransferJob& move) -> OperationResult {
        const auto done = static_cast<std::size_t>(move.VideosDone());
        const std::string count = std::to_string(done);
        for (std::size_t i = 0; i < done; ++i)
          analysis_.PathChanged(videos[i].path, JoinPath(folder, LastName(videos[i].path)));
        if (!move.Failed() && !move.Cancelled()) {
          if (!move.Error().empty()) host_.Message(MessageKind::Warning, "", move.Error());
          if (videos.size() > 1) return {Tr("{} videos successfully moved.", count), true};
          return {Tr("Selected video successfully moved."), true};
        }
        OperationResult refused;
        const LibraryVideo& last = videos[std::min(done, videos.size() - 1)];
        if (move.NameTaken()) refused = Refuse(taken(last));
        else if (move.Failed() && !EntryExists(last.path)) refused = RefuseGone(Tr("The video was not moved"));
        else if (move.Failed()) refused = Refuse(move.Error());
        refused.words = Outcome::Failed(done == 0 ? Tr("No videos were moved.")
                                                  : Tr("{} of {} videos were moved.", count, videos.size()));
        refused.refill = refused.refill || done > 0;
        return refused;
      },
      std::move(events));
}

void LibraryOperations::Trim(const LibraryVideo& video, int firstFrame, int lastFrame, int rate, Events events) {
  if (const std::string refusal = RefuseUnlessVideoChangeable(video); !refusal.empty())
    return events->Ended(Report(refusal));
  if (firstFrame < 0 || lastFrame < 0 || (lastFrame > 0 && lastFrame < firstFrame)) {
    return events->Ended(Refuse(
        Tr("Your TRIM Start and End times are not correct. Please check your Start and End times and try again.")));
  }
  events->ShowStatus(Tr("Saving Video.... Please Wait."));
  const TrimRequest request{video.path, video.path, firstFrame, lastFrame, rate, TrimRequest::Mode::Copy};
  Run<TrimJob>(
      std::make_unique<TrimJob>(JoinPath(settings_.AppPath, "avitrim"), request),
      [this, video, firstFrame, lastFrame](TrimJob& trim) -> OperationResult {
        if (trim.Saved()) {
          // A video that cannot be studied further is no reason to speak of a failed trim.
          (void)TrimStudy(StudyPath(video.path), firstFrame, lastFrame > 0 ? lastFrame : kLastOfAll);
          return {Tr("Last Video Saved Successfully"), true, video.instructor, video.student, ShownName(video.path)};
        }
        if (trim.Cancelled()) return Report(Tr(kOperationCancelled));
        host_.Message(MessageKind::Warning, "",
                      Tr("There was a problem saving this video.\n\n{}", AsSentence(trim.Error())));
        return Report(Tr("Last Video WAS NOT SAVED"));
      },
      std::move(events));
}

// ---------------------------------------------------------------- Quick Launch

void LibraryOperations::QuickLaunch(const LibraryVideo& video, Events events) {
  if (video.path.empty()) return events->Ended(Report(Tr("You must select a video first.")));
  if (video.instructor == kQuickLaunch) return events->Ended(RemoveFromQuickLaunch(video));
  AddToQuickLaunch(video, std::move(events));
}

void LibraryOperations::AddToQuickLaunch(const LibraryVideo& video, Events events) {
  if (const std::string refusal = Obstacle(); !refusal.empty()) return events->Ended(Refuse(refusal));
  if (!host_.Question(Tr("Copy video to Quick Launch Folder"),
                      Tr("This will copy the current video to your Quick Launch folder. Would you like to continue?")))
    return events->Ended({});
  const std::string folder = tree_.QuickLaunchFolder();
  const std::string taken =
      Tr("There is already a video with the same name in the Quick Launch folder. The copy process will be cancelled.");
  if (HasVideoNamed(folder, LastName(video.path))) return events->Ended(Refuse(taken));
  auto job = std::make_unique<VideoTransferJob>(CopyJob::Kind::Copy, OnClash::Stop,
                                                std::vector{VideoTransfer{video.path, folder, {}}}, disk_);
  Run<VideoTransferJob>(
      std::move(job),
      [this, taken](VideoTransferJob& copy) -> OperationResult {
        if (copy.Cancelled()) return Report(Tr(kOperationCancelled));
        if (copy.Failed()) return Refuse(copy.NameTaken() ? taken : copy.Error());
        return {Tr("The current video was copied to the Quick Launch folder."), true};
      },
      std::move(events));
}

OperationResult LibraryOperations::RemoveFromQuickLaunch(const LibraryVideo& video) {
  if (const std::string refusal = RefuseUnlessVideoChangeable(video); !refusal.empty()) return Report(refusal);
  if (!host_.Question(Tr("Removing video from program!"),
                      Tr("Are you sure that you want to delete the current video from the Quick Launch folder?")))
    return {};
  if (!RemoveVideo(video.path)) return Refuse(Tr(kCannotDelete));
  return {Tr("The current video was removed from the Quick Launch folder."), true, video.instructor};
}

// ---------------------------------------------------------------- to other drives and back

bool LibraryOperations::HasFolder(const std::string& drive) const {
  return host_.Drives().Ask(drive, [drive] { return TouchPath(drive) && dirExists(drive); }).value_or(false);
}

void LibraryOperations::CopyToDisk(const std::vector<LibraryVideo>& videos, const std::string& disk, Events events) {
  if (videos.empty()) return events->Ended(Report(Tr("You must select a video first.")));
  for (const LibraryVideo& video : videos) {
    if (const std::string refusal = RefuseUnlessVideoChangeable(video); !refusal.empty())
      return events->Ended(Report(refusal));
  }
  if (disk.empty() || !HasFolder(disk)) return events->Ended(Refuse(Tr("Drive Error")));
  events->ShowStatus(Tr("Copying Videos, Please Wait....."));
  std::vector<VideoTransfer> transfers;
  for (const LibraryVideo& video : videos) transfers.push_back({video.path, disk, {}});
  auto job = std::make_unique<VideoTransferJob>(CopyJob::Kind::CopyOut, OnClash::AddD, std::move(transfers), disk_);
  Run<VideoTransferJob>(
      std::move(job),
      [this](VideoTransferJob& copy) -> OperationResult {
        if (copy.Failed()) host_.Message(MessageKind::Warning, "", copy.Error());
        const int files = copy.FilesDone();
        const std::string words =
            files == 1 ? Tr("1 File Copied Successfully.") : Tr("{} Files Copied Successfully.", files);
        return copy.Failed() || copy.Cancelled() ? Report(words) : OperationResult{words};
      },
      std::move(events));
}

void LibraryOperations::ExportVideos(const std::vector<LibraryVideo>& videos, const std::string& targetRoot,
                                     Events events) {
  struct Place {
    bool onSystem = false;
    bool inLibrary = false;
  };
  const auto place = host_.Drives()
                         .Ask(targetRoot,
                              [targetRoot, root = tree_.Root()] {
                                return Place{IsSystemDrive(targetRoot), LiesIn(targetRoot, root)};
                              })
                         .value_or(Place());
  if (!videos.empty() && place.inLibrary)
    return events->Ended(
        Refuse(Tr("The folder {} belongs to this library. Choose a drive or folder outside of it.", targetRoot)));
  if (!videos.empty() && place.onSystem &&
      !host_.Question(Tr("Export to C?"),
                      Tr("Warning! You are about to export to the C drive. Are you sure you want to continue?")))
    return events->Ended(Report(Tr("Export Cancelled")));
  Transfer(Direction::Export, videos, targetRoot, {}, std::move(events));
}

void LibraryOperations::ImportVideos(const std::vector<LibraryVideo>& videos, Events events,
                                     const ImportTarget& loose) {
  if (!videos.empty() && !Busy() && !BeginLibrary()) return events->Ended(Report(Tr("Import Cancelled")));
  Transfer(Direction::Import, videos, tree_.Root(), loose, std::move(events));
}

void LibraryOperations::AddVideos(const std::vector<std::string>& paths, const ImportTarget& target, Events events) {
  if (paths.empty()) return events->Ended(Report(Tr("No Videos Selected")));
  if (target.student.empty() && target.instructor != kGeneralFolder && target.instructor != kQuickLaunch)
    return events->Ended(Refuse(Tr("Select the {} who is to get the videos first.", words_.noun())));
  const std::string folder = tree_.StudentFolder(target.instructor, target.student);
  const auto found = host_.Drives().Ask(paths.front(), [paths, folder] {
    std::vector<std::string> videos = VideosAmong(paths);
    std::erase_if(videos, [&](const std::string& path) { return SamePlace(FolderOf(path), folder); });
    return videos;
  });
  if (!found) return events->Ended(Refuse(Tr("The drive with the videos is not answering. No videos were copied.")));
  if (found->empty()) return events->Ended(Refuse(Tr("There is no video among these files that is not here already.")));
  std::vector<LibraryVideo> videos;
  for (const std::string& path : *found) videos.push_back({{}, {}, path});
  ImportVideos(videos, std::move(events), target.instructor == kGeneralFolder ? ImportTarget{} : target);
}

void LibraryOperations::Transfer(Direction direction, const std::vector<LibraryVideo>& videos,
                                 const std::string& targetRoot, const ImportTarget& loose, Events events) {
  if (videos.empty()) return events->Ended(Report(Tr("No Videos Selected")));
  if (const std::string busy = BusyText(); !busy.empty()) return events->Ended(Refuse(busy));
  if (!HasFolder(targetRoot))
    return events->Ended(Refuse(Tr("The folder {} cannot be reached. Nothing was changed.", targetRoot)));
  const bool out = direction == Direction::Export;
  std::vector<ImportTarget> places;
  std::vector<VideoTransfer> transfers;
  std::vector<std::pair<std::string, std::string>> ways;  // from one folder to another
  for (const LibraryVideo& video : videos) {
    const bool ownPlace = HasOwnPlace(video, out);
    const ImportTarget place = ownPlace ? ImportTarget{video.instructor, video.student} : loose;
    transfers.push_back(TransferTo(targetRoot, place, video, ownPlace));
    ways.emplace_back(SourceFolder(video), transfers.back().folder);
    if (!video.path.empty()) places.push_back(place);
  }
  const auto toItself = host_.Drives().Ask(out ? tree_.Root() : ways.front().first, [ways] {
    return std::ranges::any_of(ways, [](const auto& way) { return SamePlace(way.first, way.second); });
  });
  if (!toItself) return events->Ended(Refuse(Tr("The drive with the videos is not answering. No videos were copied.")));
  if (*toItself)
    return events->Ended(Refuse(Tr("The source and destination folders are the same. No videos were copied.")));
  if (!loose.student.empty() && !dirExists(tree_.StudentFolder(loose.instructor, loose.student)))
    return events->Ended(RefuseGone(Tr("No videos were copied to {}", loose.student)));
  events->ShowStatus(out ? Tr("Exporting Videos, Please Wait.....") : Tr("Importing Videos... Please Wait....."));
  auto job = std::make_unique<VideoTransferJob>(out ? CopyJob::Kind::CopyOut : CopyJob::Kind::CopyIn, OnClash::AddD,
                                                std::move(transfers), disk_);
  if (!out) job->LookAtEach();
  Run<VideoTransferJob>(
      std::move(job), [this, out, places](VideoTransferJob& copy) { return EndOfTransfer(copy, out, places); },
      std::make_shared<CountedTransfer>(std::move(events), out));
}

/// @param places  where each of the videos was to go
OperationResult LibraryOperations::EndOfTransfer(const VideoTransferJob& copy, bool out,
                                                 const std::vector<ImportTarget>& places) {
  OperationResult result;
  result.refill = copy.VideosDone() > 0 || copy.StudentsDone() > 0;
  if (copy.VideosDone() > 0) {
    const std::string folder = FolderOf(copy.Arrived().front());
    const ImportTarget& place = places[static_cast<std::size_t>(copy.FirstArrived())];
    result.instructor = place.instructor.empty() ? std::string(kGeneralFolder) : place.instructor;
    result.student = place.student;
    for (const std::string& path : copy.Arrived())
      if (FolderOf(path) == folder) result.arrived.push_back(ShownName(path));
    result.video = result.arrived.front();
  }
  if (copy.Cancelled()) {
    host_.Message(MessageKind::Information, "", Tr(kOperationCancelled));
    result.words = Outcome::Failed(out ? Tr("Export Cancelled") : Tr("Import Cancelled"));
    return result;
  }
  if (copy.Failed()) host_.Message(MessageKind::Warning, "", copy.Error());
  std::string words = out ? Tr("{} File(s) exported successfully!", copy.VideosDone())
                          : Tr("{} File(s) Imported successfully!", copy.VideosDone());
  if (const int bare = copy.StudentsDone(); bare > 0)
    words += " " + Tr("{} {} without videos went along with profile and notes.", bare,
                      bare == 1 ? words_.noun() : words_.nouns());
  if (copy.Failed()) result.words = Outcome::Failed(std::move(words));
  else result.words = std::move(words);
  if (const auto& bad = copy.Unreadable(); !bad.empty()) TellUnreadable(bad);
  return result;
}

void LibraryOperations::TellUnreadable(const std::vector<std::string>& paths) {
  constexpr std::size_t kNamed = 12;
  std::string names;
  for (std::size_t i = 0; i < std::min(paths.size(), kNamed); ++i) names += "\n" + ShownName(paths[i]);
  if (paths.size() > kNamed) names += Tr("\nand {} more", paths.size() - kNamed);
  const bool one = paths.size() == 1;
  host_.Message(
      MessageKind::Warning, Tr("Import Videos"),
      (one ? Tr("One file was copied that cannot be opened. It may be damaged, or be no video:\n")
           : Tr("{} files were copied that cannot be opened. They may be damaged, or be no videos:\n", paths.size())) +
          names);
}

}  // namespace kinalyx
