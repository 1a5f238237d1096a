#pragma once

#include <chrono>
#include <string>

#include "support/TempFolder.h"
#include "support/TestServers.h"
#include "platform/net/ITransferWatch.h"
#include "platform/net/NetLimits.h"

/// Skips a test for which Python's modules are not installed; a server that does not start is a failure.
#define NEEDS(started)                                                   \
  if (!(started)) {                                                      \
    if (!server_->Missing().empty()) GTEST_SKIP() << server_->Missing(); \
    FAIL() << "The server did not start: " << server_->Trouble();        \
  }

namespace kinalyx::test {

/// Waits patiently, and counts.
class CountingWatch : public ITransferWatch {
 public:
  void Progress(std::int64_t bytes, std::int64_t total, double) override {
    last = bytes;
    of = total;
  }
  std::int64_t last = 0, of = 0;
};

/// Cancels at its first sight of a request, or when so many bytes have gone.
class CancellingWatch : public ITransferWatch {
 public:
  explicit CancellingWatch(std::int64_t after) : after_(after) {}
  bool Cancelled() override { return bytes_ >= after_; }
  void Progress(std::int64_t bytes, std::int64_t, double) override { bytes_ = bytes; }

 private:
  std::int64_t after_, bytes_ = 0;
};

/// For servers that never answer.
inline NetLimits ShortLimits() { return {.connectMs = 2000, .silenceMs = 300}; }

/// Bytes that no encoding survives by luck: every value, line ends, dots at the beginnings of lines.
inline std::string WildBytes(std::size_t count, unsigned seed) {
  std::string bytes(count, 0);
  for (std::size_t i = 0; i < count; ++i) {
    seed = seed * 1664525u + 1013904223u;
    bytes[i] = i % 50 == 0 ? '\n' : i % 50 == 1 ? '.' : static_cast<char>(seed >> 24);
  }
  return bytes;
}

}  // namespace kinalyx::test
