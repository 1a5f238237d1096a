#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/media/RecordingFile.h"

namespace kinalyx {

/// The name of a chunk of an AVI file, as the number that its four characters make.
constexpr std::uint32_t ChunkName(std::string_view text) {
  std::uint32_t name = 0;
  for (std::size_t i = 4; i-- > 0;) name = name << 8 | static_cast<unsigned char>(text[i]);
  return name;
}
inline constexpr std::uint32_t kPictureChunk = ChunkName("00dc");
inline constexpr std::uint32_t kPartIndexChunk = ChunkName("ix00");
inline constexpr std::uint32_t kOldIndexChunk = ChunkName("idx1");
inline constexpr std::uint32_t kJunkChunk = ChunkName("JUNK");
inline constexpr std::uint32_t kFileChunk = ChunkName("RIFF");
inline constexpr std::uint32_t kListChunk = ChunkName("LIST");

// Numbers as they stand in the file, low byte first.
void PutNumber(std::span<std::uint8_t> bytes, std::size_t at, std::uint64_t number, int count = 4);
std::uint64_t TakeNumber(std::span<const std::uint8_t> bytes, std::size_t at, int count = 4);

/// What stands before the pictures of a recording. It is of one size in every recording, so that it can be written
/// anew in its place while the file grows. Only for the sources of this room.
class RecordingHead {
 public:
  static constexpr std::size_t kBytes = 20480;
  /// Where the list of pictures begins: its size, and behind it its kind.
  static constexpr std::size_t kPictureList = kBytes - 12;
  /// Parts of which a file may consist.
  static constexpr std::size_t kMostParts = 1024;

  explicit RecordingHead(const RecordingFormat& format);
  /// @param bytes  what a file begins with; nothing when that is no head of ours
  static std::optional<RecordingHead> Read(std::vector<std::uint8_t> bytes);

  std::span<const std::uint8_t> Bytes() const { return bytes_; }
  bool Finished() const;
  /// In pictures a second.
  double Rate() const;
  /// Parts that have their index, and where it stands: its place, and its bytes.
  std::size_t Parts() const;
  std::pair<std::int64_t, std::uint32_t> Part(std::size_t part) const;

  /// The file has its index.
  void SetFinished();
  /// Kept to one part in 100,000.
  void SetRate(double rate);
  /// @param inFirstPart  of all places, those in the first part of the file
  void SetPlaces(std::int64_t places, std::int64_t inFirstPart);
  void SetLargestPicture(std::uint32_t bytes);
  /// @param listEnd, partEnd  where the pictures of the first part end, and where the part itself does
  void SetFirstPart(std::int64_t listEnd, std::int64_t partEnd);
  /// Says where the index of a part stands.
  void SetPart(std::size_t part, std::int64_t indexAt, std::uint32_t indexBytes, std::uint32_t places);

 private:
  RecordingHead() = default;
  void Put(std::size_t at, std::uint64_t number, int count = 4) { PutNumber(bytes_, at, number, count); }
  void PutChunk(std::size_t content, std::uint32_t name, std::size_t bytes);
  void PutList(std::size_t content, std::uint32_t name, std::uint32_t kind, std::size_t end);

  std::vector<std::uint8_t> bytes_;
};

}  // namespace kinalyx
