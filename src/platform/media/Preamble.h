#pragma once

#include <cstdint>
#include <string>

#include "platform/media/AvHandles.h"

namespace kinalyx {

/// What a stream says once, in its first packet, and a decoder needs wherever it begins: which encoder made it,
/// since some made mistakes that have to be made again, and headers that are not repeated.
class Preamble {
 public:
  Preamble() = default;
  Preamble(const AVCodecParameters& codec, const AVPacket& first);

  /// Puts it before the packet with which a decoder begins, unless that says the same itself. Without memory the
  /// packet stays as it is.
  void PutBefore(AVPacket& packet) const;

 private:
  std::string words_;     ///< empty where there is nothing to say
  std::string replaces_;  ///< a packet in which this stands speaks for itself; empty: none does
};

}  // namespace kinalyx
