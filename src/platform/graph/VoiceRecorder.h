#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace kinalyx {

class DeviceSources;

/// Takes what is spoken into a microphone into memory. Lives on the user-interface thread; nothing here waits for a
/// device or a server.
class IVoiceRecorder {
 public:
  static constexpr int kRate = 48000;  ///< samples a second of each of two channels

  virtual ~IVoiceRecorder() = default;
  /// Listens from now on; what was taken before is dropped.
  virtual void Start(const std::string& microphone) = 0;
  virtual void Stop() = 0;
  /// Loudness now, 0 silent to 1 full.
  virtual double Level() const = 0;
  /// Why nothing is heard any more, in words for the user; empty while all is well.
  virtual std::string Why() const = 0;
  /// Left and right in turn; the first sample belongs to the moment of Start. What came late has silence before it.
  virtual std::vector<std::int16_t> Take() = 0;
};

/// Over the microphones of this machine. A device that hangs is left to itself.
/// @param sources  shared with the list of devices
std::unique_ptr<IVoiceRecorder> MakeVoiceRecorder(std::shared_ptr<const DeviceSources> sources);

}  // namespace kinalyx
