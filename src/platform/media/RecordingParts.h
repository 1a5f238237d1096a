#pragma once

#include <sys/uio.h>

#include <cstddef>
#include <cstdint>
#include <deque>
#include <span>
#include <vector>

#include "platform/files/Result.h"
#include "platform/media/PlacedFile.h"
#include "platform/media/RecordingHead.h"

namespace kinalyx {

/// Where a picture stands in its part of the file.
struct RecordingChunk {
  std::uint32_t at = 0;     ///< of its head, from the base of the part
  std::uint32_t bytes = 0;  ///< 0: an empty place
};

/// One of the parts of which a large AVI file consists.
struct RecordingPart {
  std::int64_t base = 0;
  std::uint32_t places = 0;
  std::vector<RecordingChunk> chunks;  ///< of a part that has no index yet
  std::int64_t indexAt = 0;            ///< 0: it has none yet
  std::uint32_t indexBytes = 0;
  bool headless = false;  ///< of a damaged file: for all others it belongs to the one before

  /// Where a chunk's bytes end, their padding counted.
  std::int64_t EndOf(const RecordingChunk& chunk) const { return base + chunk.at + 8 + chunk.bytes + chunk.bytes % 2; }
};

/// The file of a recording: a head, and parts of at most a gigabyte, each with pictures and behind them their index.
/// The first part has a second index, in the form that old programs read. Only for the sources of this room.
class RecordingParts {
 public:
  /// Programs that know only one part read at least this much; all others anything.
  static constexpr std::int64_t kPartBytes = std::int64_t{1} << 30;

  RecordingParts(PlacedFile file, RecordingHead head, std::int64_t partBytes = kPartBytes)
      : file_(std::move(file)), head_(std::move(head)), partBytes_(partBytes) {}

  /// Begins a file.
  Outcome Begin();
  /// Goes on with a file that has parts already.
  /// @param end  where its pictures end
  void Resume(std::vector<RecordingPart> parts, std::int64_t end);

  /// Whether a picture of that size belongs to the part that is being written. Before one that does not, all that was
  /// appended must be settled.
  bool Fits(std::size_t bytes) const;
  /// Appends a picture, which is never empty. What fails leaves no trace.
  /// @param rowBytes  rows in the opposite order; 0: the bytes as they are
  /// @param room, guessed  places before it that may be empty, and how many of them are until it is settled
  Outcome Append(std::span<const std::byte> picture, std::size_t rowBytes, std::int64_t room, std::int64_t guessed);
  /// Says how many places are empty before the first picture of which that was not said yet; without one it does
  /// nothing.
  Outcome Settle(std::int64_t empty);
  /// Writes the head as things are now, and has what is there move on to the disk.
  Outcome Note(double rate);
  /// Writes what is missing of the indexes, and marks the file as whole. Where there is no room, the last pictures
  /// make some.
  Outcome Finish(double rate);

  std::int64_t Places() const { return places_; }
  std::int64_t Pictures() const { return pictures_; }
  std::int64_t Bytes() const { return end_; }
  std::size_t PartCount() const { return parts_.size(); }
  const RecordingHead& Head() const { return head_; }
  const PlacedFile& File() const { return file_; }

 private:
  /// What stands before a picture as long as it may turn out to be empty places: chunks without content.
  struct Unsettled {
    std::uint32_t at = 0;  ///< from the base of the part
    std::int64_t room = 0;
    std::int64_t empty = 0;
    std::size_t chunk = 0;  ///< the first of them
  };

  void PlaceEmpty(Unsettled& before, std::int64_t empty);
  Outcome ClosePart();
  Outcome BeginPart();
  Outcome WriteHead(std::int64_t listEnd);
  bool DropPictures();

  PlacedFile file_;
  RecordingHead head_;
  std::int64_t partBytes_;
  std::vector<RecordingPart> parts_;
  std::deque<Unsettled> unsettled_;  ///< in the last part
  std::vector<std::uint8_t> heads_;  ///< before a picture, and its own; kept for the next one
  std::vector<iovec> pieces_;
  std::int64_t end_ = 0;
  std::int64_t places_ = 0;
  std::int64_t pictures_ = 0;
  std::uint32_t largest_ = 0;
};

}  // namespace kinalyx
