#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/files/Result.h"

namespace kinalyx {

/// What lies in a drive.
enum class Medium {
  None,
  Blank,       ///< empty, or always written from the start
  Used,        ///< holds something that can be erased or written over
  Appendable,  ///< holds something, and has room behind it
  Closed,      ///< holds something, for good
  Unsuitable,  ///< nothing that this drive writes
};

/// What a drive says of itself and its medium.
struct DriveReport {
  kinalyx::Medium Medium = Medium::None;
  std::string Kind;            ///< "DVD-R", as the drive calls it; empty without a medium
  std::int64_t FreeBytes = 0;  ///< that can be written, after erasing where that is needed
  std::vector<int> Speeds;     ///< kilobytes per second, slowest first; none for a file

  /// A disc can be written now.
  bool Ready() const { return Medium == Medium::Blank || Medium == Medium::Used; }
};

/// One file on its way to a disc.
struct DiscEntry {
  std::string From;
  std::string To;  ///< "Lessons/Swing.avi"; UTF-8, its folder is one of the tree's
};

/// What a disc is to hold.
struct DiscTree {
  std::string Label;                 ///< at most 16 characters are seen everywhere
  std::vector<std::string> Folders;  ///< "Lessons"; each before those inside it
  std::vector<DiscEntry> Files;
};

/// What a drive is doing. The numbers are those that the burner tells.
enum class DriveState {
  Idle = 0,
  Writing = 1,
  Erasing = 2,
  Formatting = 3,
  ClosingTrack = 4,
  Preparing = 5,
  AbortingByUser = 6,
  ImportingSession = 7,  ///< reading what a medium holds already
  AbortingByError = 8,
  Checking = 9,  ///< reading back what was written
};

/// How a disc is to be written.
struct BurnWish {
  int Speed = 0;       ///< kilobytes per second; 0: as fast as drive and medium like
  bool Erase = false;  ///< what the medium holds may go
  bool Check = true;   ///< read it back and compare
};

/// A disc that is being written. From one thread.
class IBurnRun {
 public:
  virtual ~IBurnRun() = default;
  /// Waits a moment for the drive; false when all is over. Only a drive that does not answer keeps it longer.
  virtual bool Step() = 0;
  /// Asks the drive to stop. It may take a while over it: Step goes on until it has.
  virtual void Cancel() = 0;

  virtual DriveState State() const = 0;
  virtual std::int64_t BytesDone() const = 0;   ///< written, or while checking read back
  virtual std::int64_t BytesTotal() const = 0;  ///< of the image; 0 before it is known
  /// Everything was written, whatever the check says.
  virtual bool Written() const = 0;
  /// How it went, once it is over; Cancelled where the user has stopped it.
  virtual const Outcome& How() const = 0;
};

/// A drive for discs, or a file that is written as if it were one. All calls wait for the drive, so they are for
/// workers; from one thread at a time. No drive is held between two calls.
class IDiscDrive {
 public:
  virtual ~IDiscDrive() = default;
  /// Asks the drive whether it is ready and what lies in it. Fails when it may not be opened, has gone, or is used by
  /// another program.
  virtual Result<DriveReport> TestUnitReady() = 0;
  virtual Outcome Eject() = 0;
  /// Begins to write. The files of the tree must stay as they are meanwhile; one that goes makes the disc fail.
  virtual std::unique_ptr<IBurnRun> Burn(const DiscTree& tree, const BurnWish& wish) = 0;
};

}  // namespace kinalyx
