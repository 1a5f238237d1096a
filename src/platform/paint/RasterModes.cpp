#include "platform/paint/RasterModes.h"

#include <cstring>

namespace kinalyx {
namespace {

constexpr std::uint32_t kOpaque = 0xFF000000u;

// The surface is bytes; moving a word at a time through memcpy keeps the aliasing rules and still
// becomes plain vector loads and stores.
std::uint32_t Load(const std::uint8_t* at) {
  std::uint32_t word;
  std::memcpy(&word, at, sizeof word);
  return word;
}

void Store(std::uint8_t* at, std::uint32_t word) { std::memcpy(at, &word, sizeof word); }

}  // namespace

void MergePixels(std::uint8_t* target, const std::uint32_t* pen, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) {
    const std::uint32_t touched = 0u - (pen[i] >> 31);
    Store(target + i * 4, Load(target + i * 4) | ((pen[i] | kOpaque) & touched));
  }
}

void MergeRun(std::uint8_t* target, std::uint32_t pen, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) Store(target + i * 4, Load(target + i * 4) | pen | kOpaque);
}

}  // namespace kinalyx
