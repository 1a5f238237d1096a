#pragma once

#include <condition_variable>
#include <mutex>
#include <string>

#include "platform/graph/IDeviceProvider.h"
#include "platform/graph/ServerLine.h"

namespace kinalyx {

/// The devices of one provider of the library. A provider whose server is not there yet is tried again and again.
class GstProvider final : public IDeviceProvider {
 public:
  /// @param name    of its factory
  /// @param socket  of the server behind it, where its end is to be noticed; may be empty
  explicit GstProvider(std::string name, std::string socket = "");

  ~GstProvider() override;

  std::optional<std::vector<FoundDevice>> Next() override;
  void Wake() override;

 private:
  bool Begin();
  /// A provider is not stopped, nor unmade, while its server is there: where clients of PipeWire come and go at that
  /// moment, its provider damages the memory of the program.
  void LetGo();
  std::vector<FoundDevice> List();

  const std::string name_;
  ServerLine server_;
  GstRef<GstDeviceProvider> provider_;
  std::mutex mutex_;  ///< of the next three, which two threads touch
  std::condition_variable woken_;
  bool wake_ = false;
  GstRef<GstBus> bus_;
  bool begun_ = false;   ///< the provider watches
  bool listed_ = false;  ///< what is there has been told
};

}  // namespace kinalyx
