#pragma once

#include <gst/gst.h>

#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "platform/graph/FoundDevice.h"

namespace kinalyx {

/// The way from a device's name to what gives its pictures or its sound. The list of devices keeps it up to date and
/// shares it with the graphs; any thread may ask. Only for the sources of this room.
class DeviceSources {
 public:
  virtual ~DeviceSources() = default;

  void Replace(std::vector<FoundDevice> devices);

  /// An element with one source pad, floating, to be put into a pipeline; null when no camera has that name. It is
  /// live, and gives what the mode nearest to `wanted` promises: raw pictures, or image/jpeg and the like as the
  /// camera has compressed them. A camera on the network gives what it likes.
  /// @param wanted  size, rate (0: the highest) and format (empty: the best); null for what suits most
  virtual GstElement* MakeCameraSource(const std::string& name, const PictureMode* wanted) const;
  /// The same for a microphone: raw sound.
  virtual GstElement* MakeMicrophoneSource(const std::string& name) const;

  /// Nothing when none has that name.
  std::optional<FoundDevice> Find(const std::string& name, Device::Kind kind) const;
  /// The file of a camera by which the system knows it; empty where there is none.
  std::string PathOf(const std::string& camera) const;

 private:
  mutable std::mutex mutex_;
  std::vector<FoundDevice> devices_;
};

}  // namespace kinalyx
