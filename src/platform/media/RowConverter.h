#pragma once

#include <cstdint>
#include <vector>

#include "platform/media/AvHandles.h"
#include "platform/media/PictureShape.h"
#include "platform/media/ToneMapper.h"
#include "platform/media/VideoFile.h"

namespace kinalyx {

/// Where pixels are written. A negative height stands for rows that go upward.
struct RowTarget {
  std::uint8_t* bits = nullptr;
  int stride = 0;
  int height = 0;
};

/// Turns decoded pictures into rows of blue, green, red, bottom row first, upright and in square pixels. The
/// pictures may be of any size: what has been made smaller comes out as small.
class RowConverter {
 public:
  explicit RowConverter(PictureShape shape = {}) : shape_(shape) {}

  /// Bytes from one row to the next: whole pixels, padded to a multiple of 4.
  static int RowBytes(int width, int bitCount) { return (width * (bitCount / 8) + 3) & ~3; }

  /// Writes a picture to `bits` as rows of 24 or 32 bits, and gives the view of them; the fourth byte of 32 is
  /// 255. An empty view for a picture that cannot be converted.
  FrameRows Convert(const AVFrame& frame, int bitCount, std::vector<std::uint8_t>& bits);
  /// Writes every other row of a picture, those that Convert would put there as rows of 24 bits, and leaves the rows
  /// between as they are. False, with nothing written, for a picture whose rows are not each of their own colour.
  /// @param first  the lowest row that is written, 0 or 1
  bool ConvertField(const AVFrame& frame, int first, std::vector<std::uint8_t>& bits);

 private:
  bool Upright(const AVFrame& frame, std::uint8_t* bits, int stride);
  bool TurnPlanes(const AVFrame& frame);
  bool ToRgb24(const AVFrame& frame, const RowTarget& target);
  bool ToArgb(const AVFrame& frame, const RowTarget& target);
  bool ByTones(const AVFrame& frame, const RowTarget& target);
  bool ToTenBits(const AVFrame& frame);
  template <typename Function>
  bool Quarter411(const AVFrame& frame, const RowTarget& target, Function convert);
  bool ByScaler(const AVFrame& frame, const RowTarget& target);

  PictureShape shape_;
  std::vector<std::uint8_t> wide_;    ///< 32-bit pixels on the way to 24
  std::vector<std::uint8_t> lying_;   ///< before the turn
  std::vector<std::uint8_t> narrow_;  ///< before the stretch
  FrameHandle turned_;                ///< planes after the turn, where they can be turned as they are
  std::vector<std::uint8_t> chroma_;  ///< some rows of chroma on the way from a quarter of the width to a half
  FrameHandle tenBits_;
  FrameHandle scaled_;  ///< of what the scaler made
  ToneMapper tones_;
  ScalerHandle scaler_;
};

}  // namespace kinalyx
