#include "platform/files/FileCopy.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <iterator>
#include <map>
#include <memory>
#include <string_view>
#include <utility>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/files/Folders.h"
#include "platform/files/PartFiles.h"
#include "platform/files/TextEncoding.h"
#include "platform/files/Tr.h"

namespace kinalyx {

namespace {

/// Deeper folders than this are taken for a loop.
constexpr int kMostDepth = 64;
/// What a step without bytes counts for.
constexpr std::int64_t kSmallStep = 4096;

bool SameEntry(const struct stat& a, const struct stat& b) { return a.st_dev == b.st_dev && a.st_ino == b.st_ino; }

std::string LinkTarget(const std::string& path) {
  std::array<char, 4096> text{};
  const ssize_t length = ::readlink(path.c_str(), text.data(), text.size());
  return length > 0 ? std::string(text.data(), static_cast<std::size_t>(length)) : std::string();
}

/// All names in a folder, hidden ones too; false when it cannot be read to its end.
bool NamesIn(const std::string& folder, std::vector<std::string>& names) {
  const std::unique_ptr<DIR, int (*)(DIR*)> open(::opendir(folder.c_str()), &::closedir);
  if (!open) return false;
  errno = 0;
  while (const dirent* entry = ::readdir(open.get())) {
    const std::string_view name = entry->d_name;
    if (name != "." && name != "..") names.emplace_back(name);
    errno = 0;
  }
  std::ranges::sort(names);
  return errno == 0;
}

bool IsNameTaken(int reason) { return reason == EEXIST || reason == ENOTEMPTY; }

/// In words for the user, where the system's own tell too little.
std::string ReasonText(int reason) {
  if (IsNameTaken(reason)) return Tr("there is already something of that name.");
  if (reason == ENOSPC || reason == EDQUOT) return Tr("the disk is full.");
  const int gone[] = {EIO, ENODEV, ENXIO, ENOTCONN};
  if (std::ranges::find(gone, reason) != std::end(gone))
    return Tr("the drive cannot be read or written. It may have been pulled out.");
  return std::strerror(reason);
}

std::string Quoted(const std::string& path) { return "\"" + LastName(path) + "\""; }

}  // namespace

// ---------------------------------------------------------------- looking at the sources

CopyJob::CopyJob(Kind kind, std::vector<CopyUnit> units, IDisk& disk)
    : kind_(kind), wanted_(std::move(units)), disk_(disk) {
  progress_.unitsTotal = static_cast<int>(wanted_.size());
}

CopyJob::~CopyJob() { Cancel(); }

bool CopyJob::Refuse(const std::string& text) {
  error_ = text;
  state_ = State::Failed;
  return false;
}

CopyJob::State CopyJob::Fail(const std::string& name, int reason) {
  RollBack();
  nameTaken_ = IsNameTaken(reason);
  othersMayGoWell_ = reason != ENOSPC && reason != EDQUOT && reason != EROFS;
  error_ = Quoted(name) + Verb() + ReasonText(reason);
  state_ = State::Failed;
  return state_;
}

CopyJob::State CopyJob::FailUnlike(const std::string& name) {
  RollBack();
  error_ =
      Tr("{}{}what the drive gave back is not what was written to it. The original is still in its place. Try again; "
         "if it happens once more, the drive, the card reader or its cable is failing.",
         Quoted(name), Verb());
  state_ = State::Failed;
  return state_;
}

bool CopyJob::Measure() {
  for (const CopyUnit& wanted : wanted_) {
    Unit& unit = units_.emplace_back();
    for (const CopyEntry& one : wanted) {
      Entry& entry = unit.entries.emplace_back();
      entry.from = one.from;
      entry.to = one.to;
      entry.keep = one.keep || kind_ != Kind::Move;
      if (!MeasureEntry(entry)) return false;
    }
  }
  return EnoughRoom();
}

bool CopyJob::MeasureEntry(Entry& entry) {
  struct stat info {};
  if (::lstat(entry.from.c_str(), &info) != 0) {
    Fail(entry.from, errno);
    return false;
  }
  const bool isLink = S_ISLNK(info.st_mode);
  if (isLink && ::stat(entry.from.c_str(), &info) != 0) {
    Fail(entry.from, errno);
    return false;
  }
  // A folder that is only linked belongs to somebody else, and the link would break in its new place.
  if (isLink && S_ISDIR(info.st_mode)) return Refuse(Tr("{} is a link to another folder.", Quoted(entry.from)));
  if ((entry.to + "/").starts_with(entry.from + "/") && S_ISDIR(info.st_mode))
    return Refuse(Tr("{} cannot go into itself.", Quoted(entry.from)));

  std::string folder = FolderOf(entry.to);
  struct stat target {};
  while (::stat(folder.c_str(), &target) != 0 && folder != "/" && folder != ".") folder = FolderOf(folder);
  if (!S_ISDIR(info.st_mode) && !S_ISREG(info.st_mode)) return Refuse(Tr("{} is no file.", Quoted(entry.from)));
  // A relative link keeps its target only as long as it stays in its folder.
  const bool renames = isLink ? FolderOf(entry.from) == FolderOf(entry.to) : target.st_dev == info.st_dev;
  entry.byRename = !entry.keep && renames;
  if (!entry.byRename) return StageCopy(entry);
  entry.staged = entry.from;
  return true;
}

bool CopyJob::StageCopy(Entry& entry) {
  entry.byRename = false;
  entry.nodes.clear();
  entry.staged = PartNameBeside(entry.to);
  struct stat info {};
  // A video may be a link to a file elsewhere: its copy must hold the video.
  if (::stat(entry.from.c_str(), &info) != 0) {
    Fail(entry.from, errno);
    return false;
  }
  if (S_ISDIR(info.st_mode)) return MeasureFolder(entry, entry.from, entry.staged, 0);
  entry.nodes.push_back({NodeKind::File, entry.from, entry.staged, {}, info.st_size, {}, {}, true});
  progress_.bytesTotal += info.st_size;
  return true;
}

bool CopyJob::MeasureFolder(Entry& entry, const std::string& from, const std::string& to, int depth) {
  struct stat info {};
  std::vector<std::string> names;
  if (::lstat(from.c_str(), &info) != 0 || !NamesIn(from, names)) {
    Fail(from, errno);
    return false;
  }
  if (depth > kMostDepth) return Refuse(Tr("{} lies too deep in its folders.", Quoted(from)));
  entry.nodes.push_back({NodeKind::Folder, from, to, {}, 0, info.st_atim, info.st_mtim});
  for (const std::string& name : names) {
    const std::string inFrom = JoinPath(from, name);
    const std::string inTo = JoinPath(to, name);
    if (::lstat(inFrom.c_str(), &info) != 0) {
      Fail(inFrom, errno);
      return false;
    }
    if (S_ISDIR(info.st_mode)) {
      if (!MeasureFolder(entry, inFrom, inTo, depth + 1)) return false;
    } else if (S_ISLNK(info.st_mode)) {
      entry.nodes.push_back({NodeKind::Link, inFrom, inTo, LinkTarget(inFrom)});
    } else if (S_ISREG(info.st_mode)) {
      entry.nodes.push_back({NodeKind::File, inFrom, inTo, {}, info.st_size});
      progress_.bytesTotal += info.st_size;
    } else {
      return Refuse(Tr("{} is no file.", Quoted(inFrom)));
    }
  }
  return true;
}

bool CopyJob::EnoughRoom() {
  std::map<std::string, std::int64_t> needed;
  for (const Unit& unit : units_) {
    for (const Entry& entry : unit.entries) {
      std::int64_t& bytes = needed[FolderOf(entry.to)];
      for (const Node& node : entry.nodes) bytes += node.size;
    }
  }
  // Folders on one drive share its room.
  std::map<dev_t, std::pair<std::int64_t, std::string>> byDrive;
  for (const auto& [folder, bytes] : needed) {
    std::string existing = folder;
    struct stat info {};
    while (::stat(existing.c_str(), &info) != 0 && existing != "/" && existing != ".") existing = FolderOf(existing);
    auto& drive = byDrive[info.st_dev];
    drive.first += bytes;
    drive.second = existing;
  }
  for (const auto& [id, drive] : byDrive) {
    const std::int64_t free = FreeBytes(drive.second);
    if (free < 0 || drive.first <= free) continue;
    constexpr std::int64_t kMegabyte = 1 << 20;
    return Refuse(Tr("There is not enough room: {} MB are needed, and {} MB are free.",
                     (drive.first + kMegabyte - 1) / kMegabyte, free / kMegabyte));
  }
  return true;
}

// ---------------------------------------------------------------- the work

CopyJob::State CopyJob::Step(std::int64_t maxBytes) {
  if (state_ != State::Running) return state_;
  if (!measured_) {
    measured_ = true;
    Measure();
    return state_;
  }
  if (unit_ == units_.size()) return state_ = State::Done;
  if (!begun_) {
    BeginUnit();
    return state_;
  }

  Unit& unit = units_[unit_];
  while (maxBytes > 0 && entry_ < unit.entries.size()) {
    Entry& entry = unit.entries[entry_];
    if (node_ == entry.nodes.size()) {
      ++entry_;
      node_ = 0;
      continue;
    }
    Node& node = entry.nodes[node_];
    if (!file_) {
      if (!BeginNode(node)) return Fail(node.from, errno);
      if (node.kind != NodeKind::File) {
        ++node_;
        maxBytes -= kSmallStep;
        continue;
      }
    }
    if (!GoOn(node, maxBytes)) return state_;
  }
  if (entry_ == unit.entries.size() && CommitUnit() && unit_ == units_.size()) state_ = State::Done;
  return state_;
}

bool CopyJob::MakeParents(const std::string& path) {
  const std::string folder = FolderOf(path);
  if (dirExists(folder)) return true;
  if (!MakeParents(folder)) return false;
  if (disk_.MakeFolder(folder) == 0) {
    madeFolders_.push_back(folder);
    return true;
  }
  if (errno != EEXIST) return false;
  // Another workstation may have made the folder first; but a file of that name is in the way.
  if (dirExists(folder)) return true;
  errno = ENOTDIR;
  return false;
}

bool CopyJob::BeginUnit() {
  Unit& unit = units_[unit_];
  entry_ = node_ = 0;
  madeFolders_.clear();
  begun_ = true;
  for (const Entry& entry : unit.entries) {
    // Told before all bytes are copied; a name that is taken meanwhile is noticed by the rename at the end.
    if (EntryExists(entry.to)) {
      Fail(entry.to, EEXIST);
      return false;
    }
    if (!MakeParents(entry.to)) {
      Fail(entry.from, errno);
      return false;
    }
  }
  // The progress names the video, the last entry, rather than its sidecar.
  if (!unit.entries.empty()) progress_.current = LastName(unit.entries.back().from);
  return true;
}

bool CopyJob::BeginNode(Node& node) {
  switch (node.kind) {
    case NodeKind::Folder: return disk_.MakeFolder(node.to) == 0;
    case NodeKind::Link: return disk_.MakeLink(node.target, node.to) == 0;
    case NodeKind::File: break;
  }
  // The source of a move is removed next, and a card is emptied: the copy must be on the disk by then, and be right.
  using Care = FileTransfer::Care;
  const bool checked = kind_ == Kind::Move || kind_ == Kind::CopyIn;
  file_.emplace(disk_, checked ? Care::Checked : kind_ == Kind::CopyOut ? Care::Flushed : Care::Usual);
  bytesBefore_ = progress_.bytesDone;
  return file_->Begin(node.from, node.followLink, node.to);
}

/// Goes on with the file under way; false when it failed.
bool CopyJob::GoOn(Node& node, std::int64_t& maxBytes) {
  const long moved = file_->Go(static_cast<std::size_t>(maxBytes));
  if (moved < 0) {
    if (file_->Differs()) FailUnlike(node.from);
    else Fail(node.from, errno);
    return false;
  }
  progress_.bytesDone = bytesBefore_ + file_->BytesDone();
  maxBytes -= std::max<std::int64_t>(moved, kSmallStep);
  if (moved > 0) return true;
  node.copied = file_->Copied();
  file_.reset();
  ++node_;
  return true;
}

bool CopyJob::CommitUnit() {
  Unit& unit = units_[unit_];
  for (Entry& entry : unit.entries) {
    if (disk_.RenameNew(entry.staged, entry.to) < 0) {
      const int reason = errno;
      if (entry.byRename && reason == EXDEV) {
        // One device, but mounted at two places, which takes no rename between them: copy this unit.
        RollBack();
        for (Entry& again : unit.entries) {
          if (!StageCopy(again)) return false;
        }
        if (!EnoughRoom()) return false;
        begun_ = false;
        return true;
      }
      Fail(entry.from, reason);
      return false;
    }
    entry.committed = true;
  }
  // Folder times last, for every name made in a folder changes them.
  for (const Entry& entry : unit.entries) {
    for (const Node& node : entry.nodes) {
      if (node.kind != NodeKind::Folder) continue;
      const timespec times[] = {node.accessed, node.modified};
      const std::string place = entry.to + node.to.substr(entry.staged.size());
      (void)::utimensat(AT_FDCWD, place.c_str(), times, AT_SYMLINK_NOFOLLOW);
    }
  }
  if (kind_ == Kind::CopyIn) FlushPlaces(unit);
  RemoveSources(unit);
  progress_.filesDone += static_cast<int>(unit.entries.size());
  ++progress_.unitsDone;
  ++unit_;
  begun_ = false;
  return true;
}

/// The new names must be on the disk as well. Some file systems cannot be asked for that, and need not.
void CopyJob::FlushPlaces(const Unit& unit) {
  for (const Entry& entry : unit.entries) disk_.FlushFolder(FolderOf(entry.to));
}

void CopyJob::RemoveSources(Unit& unit) {
  const bool copied = std::ranges::any_of(unit.entries, [](const Entry& e) { return !e.keep && !e.byRename; });
  if (!copied) return;
  FlushPlaces(unit);
  for (const Entry& entry : unit.entries) {
    if (entry.keep || entry.byRename) continue;
    const std::string left = RemoveCopied(entry);
    // Everything has arrived, so nothing is taken back; but the user must know what is still there.
    if (error_.empty()) error_ = left;
  }
}

std::string CopyJob::RemoveCopied(const Entry& entry) {
  int reason = 0;
  std::vector<std::string> kept;   // came or changed since it was copied
  std::vector<std::string> stuck;  // the disk refuses
  const auto refused = [&](const std::string& path) {
    reason = reason ? reason : errno;
    stuck.push_back(path);
  };
  const auto told = [&](const std::string& path) {
    const auto within = [&path](const std::string& one) { return one == path || one.starts_with(path + "/"); };
    return std::ranges::any_of(kept, within) || std::ranges::any_of(stuck, within);
  };
  for (auto node = entry.nodes.rbegin(); node != entry.nodes.rend(); ++node) {
    if (!EntryExists(node->from)) continue;
    if (node->kind == NodeKind::Folder) {
      if (disk_.RemoveFolder(node->from) >= 0 || errno == ENOENT) continue;
      const int refusal = errno;
      std::vector<std::string> names;
      const bool full = (refusal == ENOTEMPTY || refusal == EEXIST) && NamesIn(node->from, names);
      errno = refusal;
      if (!full) refused(node->from);
      for (const std::string& name : names) {
        if (const std::string path = JoinPath(node->from, name); !told(path)) kept.push_back(path);
      }
      continue;
    }
    const bool same = node->kind == NodeKind::Link ? LinkTarget(node->from) == node->target
                                                   : node->copied && StampOf(node->from) == node->copied;
    if (!same) kept.push_back(node->from);
    else if (disk_.Remove(node->from) < 0 && errno != ENOENT) refused(node->from);
  }
  if (!kept.empty()) {
    std::string text = Quoted(kept.front());
    if (kept.size() > 1) text += Tr(" and {} more", kept.size() - 1);
    return Tr("{} came or changed while {} was moved, and stayed in the old place: {}", text, Quoted(entry.from),
              FolderOf(kept.front()));
  }
  return reason ? Tr("{} could not be removed from its old place: {}", Quoted(entry.from), std::strerror(reason))
                : std::string();
}

void CopyJob::RollBack() {
  file_.reset();
  if (unit_ >= units_.size()) return;
  Unit& unit = units_[unit_];
  for (auto entry = unit.entries.rbegin(); entry != unit.entries.rend(); ++entry) {
    if (entry->committed) {
      entry->committed = false;
      // What cannot be renamed back is whole in its new place and stays there.
      if (disk_.RenameNew(entry->to, entry->staged) < 0) continue;
    }
    if (!entry->byRename && begun_) (void)RemoveTree(entry->staged, disk_);  // else it goes with the dead parts
  }
  for (auto folder = madeFolders_.rbegin(); folder != madeFolders_.rend(); ++folder) disk_.RemoveFolder(*folder);
  madeFolders_.clear();
}

void CopyJob::Cancel() {
  if (state_ != State::Running) return;
  RollBack();
  state_ = State::Cancelled;
}

CopyJob::State RunToEnd(CopyJob& job) {
  while (job.Step() == CopyJob::State::Running) {
  }
  return job.Status();
}

// ---------------------------------------------------------------- removing and renaming

namespace {

bool RemoveBelow(const std::string& path, int depth, int& reason, IDisk& disk) {
  struct stat info {};
  if (::lstat(path.c_str(), &info) != 0) {
    if (errno == ENOENT) return true;
    reason = reason ? reason : errno;
    return false;
  }
  bool gone = true;
  if (!S_ISDIR(info.st_mode)) {
    gone = disk.Remove(path) >= 0 || errno == ENOENT;
  } else if (depth > kMostDepth) {
    errno = ELOOP;
    gone = false;
  } else {
    std::vector<std::string> names;
    bool empty = NamesIn(path, names);
    if (!empty) reason = reason ? reason : errno;
    for (const std::string& name : names) empty = RemoveBelow(JoinPath(path, name), depth + 1, reason, disk) && empty;
    if (!empty) return false;
    gone = disk.RemoveFolder(path) >= 0 || errno == ENOENT;
  }
  if (!gone) reason = reason ? reason : errno;
  return gone;
}

}  // namespace

Outcome RemoveTree(const std::string& path, IDisk& disk) {
  int reason = 0;
  if (RemoveBelow(path, 0, reason, disk)) return {};
  return Outcome::FailedBySystem(reason);
}

Outcome RenameEntry(const std::string& from, const std::string& to, IDisk& disk) {
  const auto refuse = [](int reason) { return Outcome::FailedBySystem(reason); };
  if (from == to) return {};
  struct stat old {};
  struct stat taken {};
  if (::lstat(from.c_str(), &old) != 0) return refuse(errno);
  if (::lstat(to.c_str(), &taken) != 0) return disk.RenameNew(from, to) < 0 ? refuse(errno) : Outcome();
  if (!SameEntry(old, taken) || FoldCase(from) != FoldCase(to)) return refuse(EEXIST);
  // The disk takes both for one name, unless they are two links to one file. Over a third name the new
  // spelling is taken by every disk. For that moment it is all there is, and no part that might be swept up.
  const std::string between = PartNameBeside(from) + ".renamed";
  if (disk.RenameNew(from, between) < 0) return refuse(errno);
  if (disk.RenameNew(between, to) >= 0) return {};
  const int reason = errno;
  disk.RenameNew(between, from);
  return refuse(reason);
}

}  // namespace kinalyx
