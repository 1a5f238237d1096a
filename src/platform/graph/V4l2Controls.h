#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/files/Result.h"
#include "platform/graph/IDevices.h"

namespace kinalyx {

/// The file of a camera, as the system lets one speak to it. A test plays a camera. Only for the sources of this room.
class IControlDevice {
 public:
  virtual ~IControlDevice() = default;
  /// As ioctl does: 0, or the value of errno.
  virtual int Ask(unsigned long request, void* argument) = 0;
};

/// Null when it cannot be opened. This and all below may hang as long as the camera does.
std::unique_ptr<IControlDevice> OpenControlDevice(const std::string& path);

/// The knobs of a camera as they stand, the input of a tuner card first; those that are of no use to a person are left
/// out. A menu that begins above 0, or has holes, has empty texts there.
std::vector<CameraControl> ReadControls(IControlDevice& device);
Outcome WriteControl(IControlDevice& device, std::uint32_t id, int value);
/// What can be plugged into a tuner card; empty where there is no choice.
std::vector<std::string> ReadInputs(IControlDevice& device);

}  // namespace kinalyx
