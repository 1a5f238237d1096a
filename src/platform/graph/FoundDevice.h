#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/graph/GstHandles.h"
#include "platform/graph/IDevices.h"

namespace kinalyx {

/// A device as one of the ways to it has found it. Only for the sources of this room.
struct FoundDevice {
  Device device;      ///< its name is what it calls itself, and may be that of another as well
  std::string key;    ///< tells it from all others found in the same way; the same at the next start where it can be
  std::string twin;   ///< the same where the same device is found in another way
  std::string path;   ///< of the file by which the system knows it; empty for most
  bool echo = false;  ///< a microphone that hears what the machine plays
  std::shared_ptr<GstDevice> local;  ///< what it is for the library, where it is that
  std::uint64_t guid = 0;            ///< of a camera on FireWire
};

/// Makes one list of what was found.
class DeviceRoll {
 public:
  /// No device twice, each name once, cameras before microphones, network cameras after local ones; the Test Camera
  /// when there is no other. A device keeps its name while it is there, whatever comes and goes.
  /// @param found  by each way, the way that is preferred first
  std::vector<FoundDevice> Call(const std::vector<std::vector<FoundDevice>>& found);

 private:
  void Name(std::vector<FoundDevice>& devices);

  std::map<std::string, std::string> names_;  ///< by key, for the whole run
};

}  // namespace kinalyx
