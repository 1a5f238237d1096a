#pragma once

#include <cstddef>
#include <cstdint>
#include <ctime>
#include <optional>
#include <string>
#include <vector>

#include "platform/files/Checksum.h"
#include "platform/files/Disk.h"
#include "platform/files/Folders.h"

namespace kinalyx {

/// One file on its way to a new name, a slice at a time, with its times and rights.
///
/// A checked copy is summed up as it is read and written, flushed, read back from the disk itself, and held against
/// the sum: neither a cable nor a card reader nor memory changes a byte unnoticed. Where the file system lets both
/// names share their bytes there is nothing to copy, and nothing to read again.
class FileTransfer {
 public:
  enum class Care {
    Usual,    ///< the system writes when it likes
    Flushed,  ///< on the disk when it is done
    Checked,  ///< flushed, read back and compared
  };

  FileTransfer(IDisk& disk, Care care) : disk_(disk), care_(care) {}
  FileTransfer(const FileTransfer&) = delete;
  FileTransfer& operator=(const FileTransfer&) = delete;
  /// Closes both files; what has been written of the new one stays.
  ~FileTransfer();

  /// False, with the reason in errno, when one of the files cannot be opened.
  bool Begin(const std::string& from, bool followLink, const std::string& to);
  /// Goes on for at most about `maxBytes`: bytes copied or read back; 0 when all is done, negative when it failed,
  /// with the reason in errno unless the copy differs.
  long Go(std::size_t maxBytes);

  /// What the copy should be, and is not.
  bool Differs() const { return differs_; }
  /// Of the size of the file; a byte that is to be read back counts half until then.
  std::int64_t BytesDone() const { return ReadsBack() ? (copied_ + readBack_) / 2 : copied_; }
  /// The original as it was all the while; nothing when it changed under the copy, which may hold some of each.
  const std::optional<FileStamp>& Copied() const { return stamp_; }

 private:
  bool ReadsBack() const { return care_ == Care::Checked && !cloned_; }
  long CopyOn(std::size_t maxBytes);
  long CopySummed(std::size_t maxBytes);
  long ReadBackOn(std::size_t maxBytes);
  bool FinishCopy();

  IDisk& disk_;
  Care care_;
  std::string to_;
  int source_ = -1;
  int target_ = -1;
  int back_ = -1;
  bool cloned_ = false;
  bool copyDone_ = false;
  bool differs_ = false;
  std::int64_t size_ = 0;
  std::int64_t copied_ = 0;
  std::int64_t flushBegun_ = 0;
  std::int64_t readBack_ = 0;
  timespec times_[2] = {};
  std::optional<FileStamp> stamp_;
  std::vector<char> buffer_;
  Checksum original_;
  Checksum copy_;
};

}  // namespace kinalyx
