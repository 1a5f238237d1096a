#pragma once

#include <condition_variable>
#include <mutex>
#include <string>

#include "platform/graph/IDeviceProvider.h"

namespace kinalyx {

/// The devices of one provider of the library. A provider whose server is not there yet is tried again and again.
class GstProvider final : public IDeviceProvider {
 public:
  /// @param name  of its factory
  explicit GstProvider(std::string name);

  std::optional<std::vector<FoundDevice>> Next() override;
  void Wake() override;

 private:
  bool Begin();
  std::vector<FoundDevice> List();

  const std::string name_;
  GstRef<GstDeviceProvider> provider_;
  std::mutex mutex_;  ///< of the next three, which two threads touch
  std::condition_variable woken_;
  bool wake_ = false;
  GstRef<GstBus> bus_;
  bool begun_ = false;   ///< the provider watches
  bool listed_ = false;  ///< what is there has been told
};

}  // namespace kinalyx
