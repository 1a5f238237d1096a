#include "platform/files/Checksum.h"

#include <xxhash.h>

#include <new>

namespace kinalyx {

void Checksum::Free::operator()(XXH3_state_s* state) const { XXH3_freeState(state); }

Checksum::Checksum() : state_(XXH3_createState()) {
  if (!state_) throw std::bad_alloc();
  XXH3_128bits_reset(state_.get());
}

void Checksum::Add(const void* bytes, std::size_t count) { XXH3_128bits_update(state_.get(), bytes, count); }

Checksum::Value Checksum::Sum() const {
  const XXH128_hash_t sum = XXH3_128bits_digest(state_.get());
  return {sum.low64, sum.high64};
}

}  // namespace kinalyx
