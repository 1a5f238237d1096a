#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "platform/media/AvHandles.h"
#include "platform/media/RowConverter.h"

namespace kinalyx {

/// Packs pictures small, and unpacks them in a few milliseconds. With a picture is packed what its colours mean, so
/// nothing of the stream has to be known when it is unpacked. Each object for one thread.
class StandInCoder {
 public:
  /// The steps in which the longer side of stand-ins grows with the window, in pixels. Larger ones would not
  /// be unpacked in time.
  static int LongSideFor(int shownWidth, int shownHeight);

  /// The picture made smaller, so that its longer side is `longSide`; null when it is no larger, or cannot be.
  FrameHandle Smaller(const AVFrame& frame, int longSide);
  /// The picture with its longer side cut down to `longSide`; empty when it cannot be converted.
  std::vector<std::uint8_t> Pack(const AVFrame& frame, int longSide);
  /// Null for bytes that are no picture.
  FrameHandle Unpack(std::span<const std::uint8_t> packed);

 private:
  struct TurboDeleter {
    void operator()(void* handle) const;
  };
  using TurboHandle = std::unique_ptr<void, TurboDeleter>;

  FrameHandle Scale(const AVFrame& frame, int width, int height);
  /// Into packed_; the number of bytes, 0 when it failed.
  unsigned long PackPlanes(const AVFrame& picture);
  unsigned long PackRows(const AVFrame& picture);

  RowConverter converter_;
  ScalerHandle scaler_;
  std::vector<std::uint8_t> rows_;
  std::vector<std::uint8_t> packed_;
  TurboHandle packer_;
  TurboHandle unpacker_;
};

}  // namespace kinalyx
