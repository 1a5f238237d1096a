#pragma once

#include <cstdint>

namespace kinalyx {

/// Who waits for a transfer. Called on the thread that made the call, several times a second, also while the server is
/// silent.
class ITransferWatch {
 public:
  virtual ~ITransferWatch() = default;
  /// True: the call gives up as soon as it can, and fails with Fault::Cancelled.
  virtual bool Cancelled() { return false; }
  /// @param bytes  of this call so far
  /// @param total  0 where it is not known
  virtual void Progress(std::int64_t /*bytes*/, std::int64_t /*total*/, double /*bytesPerSecond*/) {}
};

}  // namespace kinalyx
