#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "capture/CaptureSetup.h"

namespace kinalyx::test {

/// Devices that a test plugs in and out.
class FakeDevices final : public IDevices {
 public:
  std::vector<Device> cameras;
  std::vector<Device> microphones;
  bool known = true;
  std::vector<std::string> network;

  void Plug(Device camera) {
    cameras.push_back(std::move(camera));
    if (events_) events_->DevicesChanged();
  }
  void Pull(const std::string& name) {
    std::erase_if(cameras, [&](const Device& device) { return device.name == name; });
    if (events_) events_->DevicesChanged();
  }

  void SetEvents(IDevicesEvents* events) override { events_ = events; }
  const std::vector<Device>& Cameras() const override { return cameras; }
  const std::vector<Device>& Microphones() const override { return microphones; }
  bool Known() const override { return known; }
  void SetNetworkCameras(const std::vector<std::string>& addresses) override { network = addresses; }
  std::vector<CameraControl> Controls(const std::string&) override { return {}; }
  Outcome SetControl(const std::string&, std::uint32_t, int) override { return {}; }

 private:
  IDevicesEvents* events_ = nullptr;
};

inline Device MakeCamera(std::string name) {
  Device device;
  device.name = std::move(name);
  device.modes = {{640, 480, 30, "YUY2"}, {1280, 720, 30, "MJPG"}, {1280, 720, 10, "YUY2"}, {1920, 1080, 60, "MJPG"},
                  {3840, 2160, 30, "MJPG"}};
  return device;
}

}  // namespace kinalyx::test
