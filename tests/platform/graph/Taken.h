#pragma once

#include <gst/gst.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace kinalyx::test {

/// One picture that a source has given.
struct Taken {
  int width = 0;
  int height = 0;
  std::int64_t atNs = 0;
  std::optional<int> number;  ///< as the Test Camera writes it
};

struct Takings {
  std::vector<Taken> pictures;
  std::string caps;   ///< of what the source gave
  std::string fault;  ///< why there are fewer than wanted; empty at the end of the stream
};

/// Runs a source until it has given so many pictures, has failed or ended, or the time is over.
/// @param source  floating; is taken
Takings Take(GstElement* source, std::size_t pictures, int milliseconds = 10'000);

}  // namespace kinalyx::test
