#pragma once

#include <cstdint>
#include <optional>

#include "platform/paint/Surface.h"

namespace kinalyx {

/// Draws what the Test Camera sees: a club that swings to and fro on a plain wall, a clock, and the number of the
/// picture, for people in digits and for programs as a row of blocks in the lower left corner.
class TestPicture {
 public:
  TestPicture(int width, int height);

  /// @param number     of the picture, 0 to 2^24 - 1; larger ones begin anew
  /// @param seconds    since the club hung straight down for the first time
  /// @param timeOfDay  seconds since midnight
  const Surface& Draw(std::int64_t number, double seconds, double timeOfDay);

 private:
  Surface backdrop_;
  Surface picture_;
};

/// The number of a picture of the Test Camera, also one that was made smaller or compressed; none when the blocks
/// are not there or not sure.
/// @param pixels  of 32 bits, blue first
/// @param stride  bytes from one row to the next
std::optional<int> ReadFrameNumber(const std::uint8_t* pixels, int width, int height, int stride);

}  // namespace kinalyx
