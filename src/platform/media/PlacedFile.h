#pragma once

#include <sys/uio.h>
#include <ctime>

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "platform/files/Result.h"

namespace kinalyx {

/// An open file that is read and written at any place, and locked: nobody else opens it so meanwhile. Only for the
/// sources of this room.
class PlacedFile {
 public:
  enum class Which { New, Old };
  /// @param which  New: there must be none of that name. Refused when somebody else has it open.
  static Result<PlacedFile> Open(const std::string& path, Which which);
  PlacedFile(PlacedFile&& other) noexcept;
  PlacedFile& operator=(PlacedFile&& other) = delete;
  ~PlacedFile();

  std::int64_t Bytes() const;
  /// When it was written last; a mend is no news.
  timespec Written() const;
  void SetWritten(const timespec& time) const;
  /// Fills `to` as far as the file goes, and tells how far that is.
  std::size_t Read(std::int64_t place, std::span<std::uint8_t> to) const;
  /// Unwritable when there is no room.
  Outcome Write(std::int64_t place, std::span<const std::uint8_t> bytes) const;
  /// Pieces, one behind the other; they are used up.
  Outcome Write(std::int64_t place, std::span<iovec> pieces) const;
  Outcome Cut(std::int64_t bytes) const;
  /// Waits until all is on the disk.
  Outcome Flush() const;
  /// Has it move to the disk, and waits for nothing.
  void BeginFlush() const;

 private:
  explicit PlacedFile(int file) : file_(file) {}
  int file_ = -1;
};

}  // namespace kinalyx
