#pragma once

#include <condition_variable>
#include <mutex>
#include <string>

#include "platform/graph/IDeviceProvider.h"

namespace kinalyx {

/// Camcorders on FireWire, for which the library has no provider: what the system tells of the bus, looked at every
/// other second.
class FireWireProvider final : public IDeviceProvider {
 public:
  /// @param bus  the folder in which the system shows what is on the bus
  explicit FireWireProvider(std::string bus = "/sys/bus/firewire/devices");

  std::optional<std::vector<FoundDevice>> Next() override;
  void Wake() override;

 private:
  std::vector<FoundDevice> List() const;

  const std::string bus_;
  std::mutex mutex_;
  std::condition_variable woken_;
  bool wake_ = false;
  std::optional<std::vector<std::uint64_t>> told_;  ///< by their numbers
};

}  // namespace kinalyx
