#pragma once

#include <cstdint>
#include <vector>

#include "platform/media/AvHandles.h"

namespace kinalyx {

/// Turns decoded pictures into rows of blue, green, red, bottom row first.
class RowConverter {
 public:
  /// Bytes from one row to the next: whole pixels, padded to a multiple of 4.
  static int RowBytes(int width, int bitCount) { return (width * (bitCount / 8) + 3) & ~3; }

  /// Writes a picture as rows of 24 or 32 bits; the fourth byte of 32 is 255. False for a picture that
  /// cannot be converted, and `rows` is then undefined.
  bool Convert(const AVFrame& frame, int bitCount, std::vector<std::uint8_t>& rows);

 private:
  bool ToArgb(const AVFrame& frame, std::uint8_t* target, int stride);
  bool ByScaler(const AVFrame& frame, std::uint8_t* target, int stride);

  std::vector<std::uint8_t> wide_;    ///< 32-bit pixels on the way to 24
  std::vector<std::uint8_t> chroma_;  ///< chroma on the way from a quarter of the width to a half
  ScalerHandle scaler_;
};

}  // namespace kinalyx
