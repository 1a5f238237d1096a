#include "distribution/disc/FolderJob.h"

#include <utility>

#include <linux/magic.h>
#include <sys/vfs.h>

#include "distribution/send/FilesToSend.h"
#include "platform/files/Folders.h"
#include "platform/files/PartFiles.h"
#include "platform/files/Tr.h"

namespace kinalyx {
namespace {

constexpr std::int64_t kMostOnFat = (std::int64_t{4} << 30) - 1;

}  // namespace

FolderLimits LimitsOf(const std::string& folder) {
  struct statfs answer {};
  if (statfs(folder.c_str(), &answer) == 0 && answer.f_type == MSDOS_SUPER_MAGIC) return {kMostOnFat, "FAT32"};
  return {};
}

FolderJob::FolderJob(DiscOrder order, std::string folder, bool replace, std::shared_ptr<BurnBoard> board,
                     std::optional<FolderLimits> limits, IDisk& disk)
    : order_(std::move(order)),
      folder_(std::move(folder)),
      replace_(replace),
      board_(std::move(board)),
      limits_(std::move(limits)),
      disk_(disk) {
  maker_ = std::make_unique<DiscMaker>(order_, *board_);
}

FolderJob::~FolderJob() {
  if (!over_) Cancel();
}

bool FolderJob::End(Outcome how) {
  over_ = true;
  how_ = std::move(how);
  copy_.reset();  // takes back what is under way
  for (const Replacement& file : replacements_) disk_.Remove(file.part);
  replacements_.clear();
  maker_.reset();
  board_->SetState(DriveState::Idle);
  if (how_) board_->Say(Tr(">>> Copy Complete!"));
  else if (how_.Kind() == Fault::Cancelled) board_->Say(Tr(">>> COPY CANCELLED"));
  else if (existing_.empty()) board_->Say(Tr(">>> Copy Failed {}", how_.Why()));
  return false;
}

void FolderJob::Cancel() {
  if (!over_) End(Outcome(Fault::Cancelled, Tr("It was cancelled.")));
}

JobProgress FolderJob::Progress() const {
  JobProgress progress;
  if (copy_ && copy_->Progress().bytesTotal > 0)
    progress.part =
        static_cast<double>(copy_->Progress().bytesDone) / static_cast<double>(copy_->Progress().bytesTotal);
  return progress;
}

bool FolderJob::Step() {
  if (over_) return false;
  if (board_->StopWanted()) {
    Cancel();
    return false;
  }
  if (copy_) return CopyOn();
  const bool goesOn = maker_->Step();
  if (!goesOn && !maker_->How()) return End(maker_->How());
  if (!std::exchange(looked_, true))
    if (Outcome looked = LookAtTarget(); !looked) return End(std::move(looked));
  return goesOn || BeginCopy();
}

/// Once it is known what will lie where, and before anything is made that takes long.
Outcome FolderJob::LookAtTarget() {
  if (!dirExists(folder_)) return Outcome(Fault::NotFound, Tr("The folder is not there any more."));
  if (!limits_) limits_ = LimitsOf(folder_);
  const DiscPlan& plan = maker_->Plan();
  std::vector<std::string> places;
  for (const DiscFile& file : plan.Files) {
    if (limits_->MostBytes > 0 && file.Bytes > limits_->MostBytes)
      return Outcome(Fault::Refused, Tr("\"{}\" is larger than 4 GB, and a stick with {} takes no such file. Format "
                                        "the stick as exFAT, or shorten the video.",
                                        LastName(file.To), limits_->Kind));
    places.push_back(file.To);
  }
  for (const DiscVideo& video : plan.Videos)
    if (video.MakesMp4() && !video.Mp4.empty()) places.push_back(video.Mp4);
  if (!plan.Page.empty()) places.push_back(plan.Page);
  // A file that stands where a folder must be is never taken for something that may go.
  for (const std::string& name : plan.Folders)
    if (EntryExists(JoinPath(folder_, name)) && !dirExists(JoinPath(folder_, name)))
      return Outcome(Fault::Refused, Tr("There is a file named \"{}\" where a folder must be.", name));
  for (const std::string& place : places) {
    const std::string path = JoinPath(folder_, place);
    if (dirExists(path))
      return Outcome(Fault::Refused, Tr("There is a folder named \"{}\" where a file must be.", LastName(path)));
    if (EntryExists(path)) existing_.push_back(place);
  }
  if (!existing_.empty() && !replace_) return Outcome(Fault::Refused, Tr("There are files of these names already."));
  existing_.clear();
  if (const std::int64_t room = FreeBytes(folder_); room >= 0 && room < plan.Bytes())
    return Outcome(Fault::Unwritable,
                   Tr("There is too little room: {} of {}.", MegabytesText(room), MegabytesText(plan.Bytes())));
  return {};
}

bool FolderJob::BeginCopy() {
  RemoveDeadParts(folder_, disk_);
  for (const std::string& name : maker_->Plan().Folders) RemoveDeadParts(JoinPath(folder_, name), disk_);
  CopyUnit unit;
  for (const DiscFile& file : maker_->Files()) {
    if (limits_->MostBytes > 0 && file.Bytes > limits_->MostBytes)
      return End(
          Outcome(Fault::Refused, Tr("\"{}\" has become larger than 4 GB, and a stick with {} takes no such file.",
                                     LastName(file.To), limits_->Kind)));
    std::string to = JoinPath(folder_, file.To);
    if (EntryExists(to)) {
      replacements_.push_back({PartNameBeside(to), to});
      to = replacements_.back().part;
    }
    board_->Say(Tr(">>> Adding File {}", LastName(file.To)));
    unit.push_back({.from = file.From, .to = std::move(to)});
  }
  board_->Say(Tr(">>> Copying Started"));
  board_->SetState(DriveState::Writing);
  std::vector<CopyUnit> units;
  if (!unit.empty()) units.push_back(std::move(unit));
  copy_ = std::make_unique<CopyJob>(CopyJob::Kind::CopyOut, std::move(units), disk_);
  return true;
}

bool FolderJob::CopyOn() {
  const CopyJob::State state = copy_->Step();
  const CopyProgress& progress = copy_->Progress();
  board_->SetBytes(progress.bytesDone, progress.bytesTotal);
  if (state == CopyJob::State::Running) return true;
  if (state != CopyJob::State::Done) {
    return End(state == CopyJob::State::Cancelled ? Outcome(Fault::Cancelled, Tr("It was cancelled."))
                                                  : Outcome(Fault::Unwritable, copy_->Error()));
  }
  copy_.reset();
  board_->SetState(DriveState::ClosingTrack);
  return End(Replace());
}

Outcome FolderJob::Replace() {
  for (auto file = replacements_.begin(); file != replacements_.end();) {
    if (disk_.Rename(file->part, file->to) < 0)
      return Outcome(Fault::Unwritable,
                     Tr("\"{}\" could not be replaced. The folder holds old and new files now: please copy again.",
                        LastName(file->to)));
    file = replacements_.erase(file);
  }
  for (const std::string& name : maker_->Plan().Folders) {
    const std::string folder = JoinPath(folder_, name);
    if (!MakeFolder(folder)) return Outcome(Fault::Unwritable, Tr("\"{}\" could not be made there.", name));
    disk_.FlushFolder(folder);
  }
  if (disk_.FlushFolder(folder_) < 0)
    return Outcome(Fault::Unwritable, Tr("The drive did not keep what it was given."));
  return {};
}

}  // namespace kinalyx
