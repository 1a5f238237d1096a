#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <span>
#include <vector>

#include "platform/media/StandInFile.h"

namespace kinalyx {

/// The stand-ins of one video: packed pictures by their number, in memory up to a bound, and on the disk as
/// far as that takes them. For any threads.
class StandInShelf {
 public:
  using Bytes = std::shared_ptr<const std::vector<std::uint8_t>>;

  explicit StandInShelf(int pictures) : longSides_(static_cast<std::size_t>(pictures), 0) {}

  /// Keeps them also in a file, and takes what that holds already. Null for none.
  void Attach(const StandInLimits& limits, const FileStamp& video);
  /// The video is no longer what it was: nothing goes to the disk any more.
  void Detach();

  /// The longer side of a picture in pixels; 0 when it is not here.
  int LongSide(int picture) const;
  bool Has(int picture) const { return LongSide(picture) > 0; }
  /// The nearest picture that is here; -1 when there is none.
  int Nearest(int picture) const;
  /// The first picture from `first` up to `end` that is not here at this size, and would be kept if it came.
  std::optional<int> Missing(int first, int end, int longSide, int focus) const;
  /// Null when it has been lost or damaged meanwhile; it is then not here any more.
  Bytes Get(int picture);
  /// Nothing is done with no bytes.
  void Put(int picture, int longSide, std::vector<std::uint8_t> packed, int focus);
  /// Sets the bytes of memory; what lies farthest from `focus` goes first.
  void Trim(std::size_t bytes, int focus);

 private:
  void Drop(std::map<int, Bytes>::iterator item);
  void MakeRoom(int focus);
  bool WouldKeep(int picture, int focus) const;

  mutable std::mutex mutex_;
  std::vector<std::int16_t> longSides_;
  std::map<int, Bytes> memory_;
  std::map<int, StandInFile::Place> places_;
  std::unique_ptr<StandInFile> file_;
  std::size_t used_ = 0;
  std::size_t most_ = 0;
  std::size_t largest_ = 0;
};

}  // namespace kinalyx
