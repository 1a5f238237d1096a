#pragma once

#include <cstddef>
#include <cstdint>
#include <ctime>
#include <optional>
#include <string>
#include <vector>

#include <sys/types.h>

#include "platform/files/Disk.h"
#include "platform/files/FileTransfer.h"
#include "platform/files/Folders.h"
#include "platform/files/Result.h"
#include "platform/files/Tr.h"

namespace kinalyx {

/// A file or a whole folder, and the full path that it shall have.
struct CopyEntry {
  std::string from;
  std::string to;
  bool keep = false;  ///< stays where it is although its unit moves: others need it
};
/// What belongs together, as a video and its sidecar: all of it arrives, or nothing does.
using CopyUnit = std::vector<CopyEntry>;

struct CopyProgress {
  int unitsDone = 0;
  int unitsTotal = 0;
  int filesDone = 0;  ///< entries that stand under their final names
  std::int64_t bytesDone = 0;
  std::int64_t bytesTotal = 0;  ///< 0 until the first step has looked at the sources
  std::string current;          ///< name of the entry under way
};

/// Copies or moves units one after the other, a slice at each step, so that whoever drives it can show
/// progress and stop it between two slices.
///
/// - Everything is written under hidden names beside the final ones and renamed when its unit is whole;
///   a final name never stands for half a file, and never replaces one that is already there.
/// - Room is asked for before the first byte is written.
/// - Within a file system a move is a rename; across two it is a copy, checked as FileTransfer says, and then a
///   removal of what was copied and is as it was then. What came or changed meanwhile stays, with the folders around
///   it.
/// - Times are kept. Links inside a folder are copied as links and never followed.
/// - After a failure or a cancel, units that are done stay done and the one under way leaves no trace.
class CopyJob {
 public:
  enum class Kind {
    Copy,
    CopyIn,   ///< from a card or telephone that is emptied next: checked
    CopyOut,  ///< to a drive that may be pulled out at any moment: flushed before it gets its name
    Move,
  };
  enum class State { Running, Done, Cancelled, Failed };

  CopyJob(Kind kind, std::vector<CopyUnit> units, IDisk& disk = RealDisk());
  CopyJob(const CopyJob&) = delete;
  CopyJob& operator=(const CopyJob&) = delete;
  /// A job under way is cancelled.
  ~CopyJob();

  /// Goes on for about `maxBytes` bytes or one small piece of other work.
  State Step(std::int64_t maxBytes = 4 << 20);
  /// Stops and takes back the unit under way. Nothing when the job is over.
  void Cancel();

  State Status() const { return state_; }
  const CopyProgress& Progress() const { return progress_; }
  /// Why it failed, in words for the user; or, when done, what is left in the old place after a move.
  const std::string& Error() const { return error_; }
  /// True when it failed because there is something of the same name at the target.
  bool NameTaken() const { return nameTaken_; }
  /// True when it failed by what it was copying, and not for want of room or by a drive that does not keep what it is
  /// given: others may go well.
  bool OthersMayGoWell() const { return othersMayGoWell_; }

 private:
  enum class NodeKind { File, Folder, Link };
  /// One thing on the disk, as it is found below an entry.
  struct Node {
    NodeKind kind = NodeKind::File;
    std::string from;
    std::string to;      ///< under the hidden name of its entry
    std::string target;  ///< of a link
    std::int64_t size = 0;
    timespec accessed{};  ///< times of a folder
    timespec modified{};
    bool followLink = false;
    std::optional<FileStamp> copied = std::nullopt;  ///< the file as it was while it was copied
  };
  struct Entry {
    std::string from;
    std::string to;
    std::string staged;  ///< what is renamed to `to`: the hidden copy, or the source itself
    bool byRename = false;
    bool keep = false;
    bool committed = false;
    std::vector<Node> nodes;  ///< folders before what is in them; empty when byRename
  };
  struct Unit {
    std::vector<Entry> entries;
  };

  bool Measure();
  bool MeasureEntry(Entry& entry);
  bool StageCopy(Entry& entry);
  bool MeasureFolder(Entry& entry, const std::string& from, const std::string& to, int depth);
  bool EnoughRoom();
  bool BeginUnit();
  bool BeginNode(Node& node);
  bool GoOn(Node& node, std::int64_t& maxBytes);
  bool CommitUnit();
  void FlushPlaces(const Unit& unit);
  void RemoveSources(Unit& unit);
  /// Removes what was copied and is as it was then; what is left, in words for the user.
  std::string RemoveCopied(const Entry& entry);
  void RollBack();
  bool MakeParents(const std::string& path);
  State Fail(const std::string& name, int reason);
  State FailUnlike(const std::string& name);
  std::string Verb() const { return kind_ == Kind::Move ? Tr(" could not be moved: ") : Tr(" could not be copied: "); }
  bool Refuse(const std::string& text);

  Kind kind_;
  std::vector<CopyUnit> wanted_;
  IDisk& disk_;
  State state_ = State::Running;
  CopyProgress progress_;
  std::string error_;
  bool nameTaken_ = false;
  bool othersMayGoWell_ = false;

  std::vector<Unit> units_;
  std::size_t unit_ = 0;
  std::size_t entry_ = 0;
  std::size_t node_ = 0;
  bool measured_ = false;
  bool begun_ = false;                    ///< the unit under way has made its folders
  std::vector<std::string> madeFolders_;  ///< by the unit under way, above its entries
  std::optional<FileTransfer> file_;      ///< of the node under way
  std::int64_t bytesBefore_ = 0;          ///< of the files before it
};

/// Runs a job to its end; for short work and for workers.
CopyJob::State RunToEnd(CopyJob& job);

/// Removes a file or a folder with all that is in it. Links are removed, never followed. On failure as
/// much as possible is gone, and the first reason is told.
Outcome RemoveTree(const std::string& path, IDisk& disk = RealDisk());

/// Gives a file or folder another name, which must be free; within one file system. Names that differ in
/// case alone are no obstacle on a disk that does not tell them apart.
Outcome RenameEntry(const std::string& from, const std::string& to, IDisk& disk = RealDisk());

}  // namespace kinalyx
