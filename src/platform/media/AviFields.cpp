#include "platform/media/AviFields.h"

#include <array>
#include <cstdint>
#include <span>

#include "platform/media/RecordingHead.h"

namespace kinalyx {
namespace {

/// The properties of the pictures, with two fields; of each of them the row with which it begins stands last.
AVFieldOrder OrderIn(std::span<const std::uint8_t, 100> properties) {
  constexpr std::size_t kCount = 32;
  constexpr std::size_t kFirstRow = 64;
  constexpr std::size_t kSecondRow = 96;
  const std::uint64_t first = TakeNumber(properties, kFirstRow);
  const std::uint64_t second = TakeNumber(properties, kSecondRow);
  if (TakeNumber(properties, kCount) != 2 || first > 1 || second != 1 - first) return AV_FIELD_UNKNOWN;
  return first == 0 ? AV_FIELD_TT : AV_FIELD_BB;
}

}  // namespace

AVFieldOrder FieldsToldByAvi(const FileInput& file, int stream) {
  constexpr int kMostChunks = 1000;
  std::int64_t at = 12;
  int current = -1;
  for (int chunks = 0; chunks < kMostChunks; ++chunks) {
    std::array<std::uint8_t, 12> head{};
    if (!file.ReadAt(at, head)) break;
    const std::uint64_t name = TakeNumber(head, 0);
    const std::uint64_t kind = TakeNumber(head, 8);
    const auto bytes = static_cast<std::int64_t>(TakeNumber(head, 4));
    if (name == kListChunk && kind == ChunkName("movi")) break;
    if (name == kListChunk && kind == ChunkName("strl")) ++current;
    std::array<std::uint8_t, 100> properties{};
    if (name == ChunkName("vprp") && current == stream && bytes >= static_cast<std::int64_t>(properties.size()))
      return file.ReadAt(at + 8, properties) ? OrderIn(properties) : AV_FIELD_UNKNOWN;
    const bool entered = name == kListChunk && (kind == ChunkName("strl") || kind == ChunkName("hdrl"));
    at += entered ? 12 : 8 + bytes + bytes % 2;
  }
  return AV_FIELD_UNKNOWN;
}

}  // namespace kinalyx
