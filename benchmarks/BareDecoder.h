#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/media/AvHandles.h"

namespace kinalyx::bench {

/// The bare library at the same work, for comparison: one thread unless more are asked for, pictures in the order of
/// the file, each turned into 24-bit rows in one pass. Throws when the file is not what it should be.
class BareDecoder {
 public:
  explicit BareDecoder(const std::string& path, int threads = 1);

  /// Decodes the next picture; false at the end.
  bool Next();
  /// Turns the present picture into rows.
  void Convert();
  /// Goes to the key picture at or before a picture, and decodes on to this one.
  void SeekTo(int picture);
  /// The same by the time of the picture, in a file that tells when each is shown.
  void SeekToTime(double seconds);

 private:
  InputHandle input_;
  CodecHandle codec_;
  ScalerHandle scaler_;
  FrameHandle frame_ = NewFrame();
  PacketHandle packet_ = NewPacket();
  int stream_ = 0;
  bool drained_ = false;
  std::vector<std::uint8_t> rows_;
};

}  // namespace kinalyx::bench
