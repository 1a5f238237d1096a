#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>

struct XXH3_state_s;

namespace kinalyx {

/// A sum of 128 bits over bytes, by which a copy is held against its original. It costs next to nothing beside
/// the reading, and finds every accident; it is no seal against somebody who means harm.
class Checksum {
 public:
  using Value = std::array<std::uint64_t, 2>;

  Checksum();
  void Add(const void* bytes, std::size_t count);
  Value Sum() const;

 private:
  struct Free {
    void operator()(XXH3_state_s* state) const;
  };
  std::unique_ptr<XXH3_state_s, Free> state_;
};

}  // namespace kinalyx
