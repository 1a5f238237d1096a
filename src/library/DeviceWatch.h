#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "core/Settings.h"
#include "library/DeviceVideos.h"
#include "platform/host/DriveWatch.h"
#include "platform/host/Host.h"

namespace kinalyx {

/// A device and what was found on it.
struct OfferedDevice {
  DevicePlace place;
  std::vector<DeviceVideo> videos;  ///< newest first

  std::size_t Fresh() const;  ///< videos that the library does not have
};

/// Notices devices with new videos as they are plugged in and pulled out. The list of mounts is looked at every
/// two seconds, which costs nothing; devices are read by workers for which nobody ever waits, so one that hangs
/// is only never offered.
class DeviceWatch {
 public:
  struct Environment {
    std::function<std::vector<DevicePlace>()> devices = DevicesNow;
    DriveWatch::Send send = DriveWatch::SendWorker;
  };

  /// All that is passed outlives it.
  /// @param changed  another device is offered, or none any more
  DeviceWatch(IHost& host, const Settings& settings, std::function<void()> changed, Environment environment);

  void Start();
  void Stop();

  /// The first device with new videos that was not put aside; null when there is none. Good until the next turn
  /// of the event loop.
  const OfferedDevice* Offered() const;
  bool IsThere(const std::string& place) const;
  /// A device is offered no more until it is plugged in anew.
  void PutAside(const std::string& place);
  /// Reads a device once more: the library has other videos now.
  void LookAgain(const std::string& place);

  /// How work gets to a device.
  const DriveWatch::Send& Sender() const { return environment_.send; }

 private:
  struct Known {
    OfferedDevice device;
    bool putAside = false;
    std::shared_ptr<IErrand> errand;  ///< null when nothing is being read
    std::shared_ptr<std::vector<DeviceVideo>> found;
    int looksToReading = 0;  ///< negative: it is not read again by itself
  };

  void Look();
  std::vector<DevicePlace> Places();
  void LookForTelephones(const std::string& folder);
  void Read(Known& known);
  void Take(Known& known);
  Known* Find(const std::string& place);
  void TellIfChanged();

  IHost& host_;
  const Settings& settings_;
  std::function<void()> changed_;
  Environment environment_;
  HostTimer timer_;
  std::vector<Known> known_;
  std::vector<DevicePlace> telephones_;
  std::shared_ptr<IErrand> telephonesErrand_;
  std::shared_ptr<std::vector<DevicePlace>> telephonesFound_;
  std::string told_;  ///< what was offered last, in words
};

}  // namespace kinalyx
