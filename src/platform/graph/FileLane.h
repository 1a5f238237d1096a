#pragma once

#include <chrono>
#include <cstdint>
#include <string>

#include "platform/graph/PackedPicture.h"
#include "platform/media/RecordingTally.h"

namespace kinalyx {

/// The way from the streaming threads of a graph to its files.
class IFileLane {
 public:
  virtual ~IFileLane() = default;
  /// What comes from now on, and was taken after the end of the file before, goes to a new file of that path.
  virtual void Open(const std::string& path) = 0;
  /// What was taken at that time is the file's last: it is closed once that is written, or was not seen for a while.
  virtual void Close(std::int64_t lastNs) = 0;
  /// What has come so far is all that the file gets.
  virtual void CloseNow() = 0;
  /// Lets the file stand still, and go on as if nothing had been between.
  virtual void Pause(bool /*on*/) {}
  /// Waits until no file is open; false when that takes too long.
  virtual bool WaitClosed(std::chrono::steady_clock::time_point until) const = 0;
  /// Of the file under way, or of the last one.
  virtual RecordingTally Tally() const = 0;
};

/// A lane whose pictures are a camera's own, or JPEG.
class IPictureLane : public IFileLane {
 public:
  /// Any thread; without an open file it goes nowhere.
  virtual void Push(PackedPicture picture) = 0;
};

}  // namespace kinalyx
