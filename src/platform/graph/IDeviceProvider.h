#pragma once

#include <optional>
#include <vector>

#include "platform/graph/FoundDevice.h"

namespace kinalyx {

/// One way to devices: Video4Linux, PipeWire, the sound server, FireWire. Each has a thread of its own, so that one
/// that hangs holds up no other.
class IDeviceProvider {
 public:
  virtual ~IDeviceProvider() = default;
  /// Waits until something may have changed, the first time for nothing, and tells all that is there; nothing when it
  /// was woken. May hang.
  virtual std::optional<std::vector<FoundDevice>> Next() = 0;
  /// Has Next return soon. Any thread.
  virtual void Wake() = 0;
};

}  // namespace kinalyx
