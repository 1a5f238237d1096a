#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "platform/media/AvHandles.h"

namespace kinalyx {

/// Shows pictures of high dynamic range (PQ and HLG) on a usual screen: white paper stays white, what shines
/// more keeps some drawing, and the colours are those that the camera saw.
class ToneMapper {
 public:
  /// True for a picture that says it is of high dynamic range.
  static bool Wants(const AVFrame& frame);

  /// Turns rows of red, green and blue signals of 10 bits (blue lowest), made of such a picture without regard to
  /// its range, into blue, green, red, 255 in place. The frame tells what the signals mean.
  void Map(const AVFrame& frame, std::uint8_t* bits, int stride, int rows);

 private:
  using Four = float __attribute__((vector_size(16)));

  void Learn(const AVFrame& frame);

  std::array<int, 3> learnt_ = {-1, -1, -1};  ///< transfer, primaries and range for which the tables were made
  /// What a signal of red, green and blue gives to blue, green and red of the screen, in entries of `shown_`.
  std::array<std::vector<Four>, 3> light_;
  std::vector<std::uint8_t> shown_;
};

}  // namespace kinalyx
