#include "library/StudentJobs.h"

#include <utility>

#include "platform/files/Folders.h"
#include "platform/files/PartFiles.h"

namespace kinalyx {

StudentMoveJob::StudentMoveJob(const std::string& from, const std::string& to, IDisk& disk)
    : target_(FolderOf(to)), disk_(disk), copy_(CopyJob::Kind::Move, {{{from, to}}}, disk) {}

bool StudentMoveJob::Step() {
  if (!std::exchange(begun_, true)) RemoveDeadParts(target_, disk_);
  return copy_.Step() == CopyJob::State::Running;
}

JobProgress StudentMoveJob::Progress() const {
  const CopyProgress& copy = copy_.Progress();
  JobProgress progress{copy.unitsDone, copy.unitsTotal, 0, copy.current};
  if (copy.bytesTotal > 0) progress.part = static_cast<double>(copy.bytesDone) / static_cast<double>(copy.bytesTotal);
  return progress;
}

bool StudentTrashJob::Step() {
  taken_ = trash_.Take(folder_);
  return false;
}

JobProgress StudentTrashJob::Progress() const { return {taken_ ? 1 : 0, 1, taken_ ? 1.0 : 0.0, LastName(folder_)}; }

bool StudentRemovalJob::Step() {
  if (hidden_.empty()) {
    RemoveDeadParts(FolderOf(folder_), disk_);
    hidden_ = PartNameBeside(folder_);
    const Outcome hidden = RenameEntry(folder_, hidden_, disk_);
    error_ = hidden.Why();
    return static_cast<bool>(hidden);
  }
  const Outcome removal = RemoveTree(hidden_, disk_);
  removed_ = static_cast<bool>(removal);
  error_ = removal.Why();
  if (!removed_) (void)RenameEntry(hidden_, folder_, disk_);
  return false;
}

void StudentRemovalJob::Cancel() {
  while (!hidden_.empty() && !removed_ && error_.empty()) Step();
}

JobProgress StudentRemovalJob::Progress() const {
  return {removed_ ? 1 : 0, 1, removed_ ? 1.0 : 0.0, LastName(folder_)};
}

}  // namespace kinalyx
