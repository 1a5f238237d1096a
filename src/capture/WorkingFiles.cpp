#include "capture/WorkingFiles.h"

#include <fmt/format.h>

#include <algorithm>
#include <set>
#include <utility>
#include <vector>

#include "library/VideoTransfer.h"
#include "platform/files/FileCopy.h"
#include "platform/files/Folders.h"
#include "platform/files/Tr.h"

namespace kinalyx {
namespace {

// Windows at work in one folder take the first free seat each.
constexpr int kSeats = 32;
/// How long a seat is waited for: somebody may just be looking whether it is free.
constexpr int kPatienceMs = 100;

/// The names of a seat, in pairs for two cameras: those of recordings that are started by hand, and of triggered ones.
std::array<std::string, 4> WorkingNames(int seat) {
  std::array<std::string, 4> names{"capture", "capture2", "temp1", "temp2"};
  for (std::string& name : names) name += seat == 1 ? ".avi" : fmt::format(" ({}).avi", seat);
  return names;
}

/// How the names of triggered blocks begin, of either camera.
std::array<std::string, 2> BlockPrefixes(int seat) {
  const std::array<std::string, 4> names = WorkingNames(seat);
  const auto prefix = [](const std::string& name) { return name.substr(0, name.size() - 4) + " shot "; };
  return {prefix(names[2]), prefix(names[3])};
}

/// What is locked for a whole seat.
std::string SeatPath(const std::string& folder, int seat) { return JoinPath(folder, WorkingNames(seat)[0]); }

/// Gives a video and what belongs to it another name.
void MoveAway(const std::string& from, const std::string& to) {
  for (const Companion& companion : CompanionsOf(from))
    (void)RenameEntry(companion.path, JoinPath(FolderOf(to), companion.nameFor(to)));
  (void)RenameEntry(from, to);
}

std::string FreeParkedName(const std::string& folder) {
  for (int number = 1;; ++number) {
    std::string name = fmt::format("unfinished {}.avi", number);
    if (!EntryExists(JoinPath(folder, name)) && !EntryExists(JoinPath(folder, ParkedNameOfSecond(name)))) return name;
  }
}

/// Of one or two cameras, as far as they are there.
void ParkPair(const std::string& folder, const std::string& first, const std::string& second) {
  std::vector<std::string> there;
  for (const std::string& name : {first, second})
    if (!name.empty() && EntryExists(JoinPath(folder, name))) there.push_back(JoinPath(folder, name));
  if (there.empty()) return;
  const std::string name = FreeParkedName(folder);
  MoveAway(there[0], JoinPath(folder, name));
  if (there.size() > 1) MoveAway(there[1], JoinPath(folder, ParkedNameOfSecond(name)));
}

/// What follows the beginning of a block's name: "12.avi"; two cameras' blocks of one trigger have it in common.
std::set<std::string> BlocksOf(const std::string& folder, int seat) {
  std::set<std::string> ends;
  for (const std::string& name : ListFiles(folder, ".avi"))
    for (const std::string& prefix : BlockPrefixes(seat))
      if (name.starts_with(prefix)) ends.insert(name.substr(prefix.size()));
  return ends;
}

// For these the seat must be free, or our own.

void ParkSeatBlocks(const std::string& folder, int seat) {
  const auto [first, second] = BlockPrefixes(seat);
  for (const std::string& end : BlocksOf(folder, seat)) ParkPair(folder, first + end, second + end);
}

void ParkSeat(const std::string& folder, int seat) {
  const std::array<std::string, 4> names = WorkingNames(seat);
  for (std::size_t pair = 0; pair < names.size(); pair += 2) ParkPair(folder, names[pair], names[pair + 1]);
}

}  // namespace

WorkingFiles::WorkingFiles(std::string folder) : folder_(std::move(folder)) { TakeSeat(1); }

void WorkingFiles::TakeSeat(int seat) {
  const std::array<std::string, 4> names = WorkingNames(seat);
  seat_ = seat;
  paths_ = {JoinPath(folder_, names[0]), JoinPath(folder_, names[1])};
}

Outcome WorkingFiles::Prepare() {
  if (!MakeFolder(folder_)) return Outcome::Failed(Tr("The folder {} cannot be made.", folder_));
  for (int seat = 1; !lock_ && seat <= kSeats; ++seat) {
    auto lock = std::make_unique<FileLock>(SeatPath(folder_, seat), kPatienceMs);
    if (lock->Busy()) continue;
    lock_ = std::move(lock);
    TakeSeat(seat);
  }
  if (!lock_) return Outcome::Failed(Tr("Too many windows are recording into {}.", folder_));
  ParkSeat(folder_, seat_);
  const bool taken = std::ranges::any_of(paths_, EntryExists);
  return taken ? Outcome::Failed(Tr("The last recording cannot be moved away from {}.", folder_)) : Outcome();
}

std::string WorkingFiles::TriggeredPath(int camera) const {
  return JoinPath(folder_, WorkingNames(seat_)[static_cast<std::size_t>(2 + camera)]);
}

void WorkingFiles::Park(const std::string& path, const std::string& second) const {
  ParkPair(folder_, path.empty() ? path : LastName(path), second.empty() ? second : LastName(second));
}

void WorkingFiles::Discard() const {
  for (const std::string& path : paths_) {
    for (const Companion& companion : CompanionsOf(path)) KillFile(companion.path);
    KillFile(path);
  }
}

void ParkRecordings(const std::string& folder) {
  for (int seat = 1; seat <= kSeats; ++seat) {
    const auto there = [&](const std::string& name) { return EntryExists(JoinPath(folder, name)); };
    if (std::ranges::none_of(WorkingNames(seat), there) && BlocksOf(folder, seat).empty()) continue;
    const FileLock lock(SeatPath(folder, seat), 0);
    if (lock.Busy()) continue;
    ParkSeat(folder, seat);
    ParkSeatBlocks(folder, seat);
  }
}

std::string ParkedNameOfSecond(std::string_view name) {
  constexpr std::string_view kEnding = ".avi";
  return std::string(name.substr(0, name.size() - kEnding.size())) + " camera 2.avi";
}

bool IsWorkingName(std::string_view name) {
  for (int seat = 1; seat <= kSeats; ++seat)
    if (std::ranges::count(WorkingNames(seat), name) > 0 ||
        std::ranges::any_of(BlockPrefixes(seat), [&](const std::string& prefix) { return name.starts_with(prefix); }))
      return true;
  return false;
}

}  // namespace kinalyx
