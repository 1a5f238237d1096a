#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/graph/IDevices.h"
#include "platform/host/Host.h"

namespace kinalyx {

class DeviceSources;
class IControlDevice;
class IDeviceProvider;
class IPost;

/// The devices of this machine, watched by threads of its own from the moment it is made. A way to devices that hangs
/// is left to itself, so neither the window nor the end of the program waits for it. A program has one at a time.
class DeviceList final : public IDevices {
 public:
  DeviceList(IHost& host, std::shared_ptr<IPost> post);
  /// With other ways to devices, to the files of cameras and to the sound server; for tests.
  using Open = std::function<std::unique_ptr<IControlDevice>(const std::string& path)>;
  using SetLine = std::function<Outcome(const std::string& microphone, const std::string& line)>;
  DeviceList(IHost& host, std::shared_ptr<IPost> post, std::vector<std::unique_ptr<IDeviceProvider>> providers,
             Open open, SetLine setLine);
  ~DeviceList() override;
  DeviceList(const DeviceList&) = delete;
  DeviceList& operator=(const DeviceList&) = delete;

  void SetEvents(IDevicesEvents* events) override;
  const std::vector<Device>& Cameras() const override;
  const std::vector<Device>& Microphones() const override;
  bool Known() const override;
  void SetNetworkCameras(const std::vector<std::string>& addresses) override;
  std::vector<CameraControl> Controls(const std::string& camera) override;
  Outcome SetControl(const std::string& camera, std::uint32_t id, int value) override;
  Outcome ChooseLine(const std::string& microphone, const std::string& line) override;

  /// What graphs make their sources by.
  std::shared_ptr<DeviceSources> Sources() const;

 private:
  struct Table;
  struct Watch;

  std::shared_ptr<Table> table_;  ///< news from the threads look whether it is still there
  std::vector<std::shared_ptr<Watch>> watches_;
  SetLine setLine_;
  HostTimer patience_;
};

}  // namespace kinalyx
