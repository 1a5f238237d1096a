#include "Reduced.h"

#include <cstdint>

namespace kinalyx::demo {

Surface Reduced(const Surface& large, int factor) {
  Surface result(large.Width() / factor, large.Height() / factor);
  const int count = factor * factor;
  for (int y = 0; y < result.Height(); ++y) {
    std::uint8_t* to = result.Row(y);
    for (int x = 0; x < result.Width(); ++x, to += 4)
      for (int c = 0; c < 3; ++c) {
        int sum = count / 2;
        for (int j = 0; j < factor; ++j) {
          const std::uint8_t* from = large.Row(y * factor + j) + x * factor * 4 + c;
          for (int i = 0; i < factor; ++i) sum += from[i * 4];
        }
        to[c] = static_cast<std::uint8_t>(sum / count);
      }
  }
  return result;
}

}  // namespace kinalyx::demo
