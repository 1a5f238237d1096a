#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>

#include "platform/graph/FileLane.h"
#include "platform/graph/GraphNews.h"

namespace kinalyx {

/// The way of one camera's pictures to its files: a thread of its own writes, so that neither camera nor window waits
/// for a disk. It takes the pictures of two seconds on credit; a disk that is further behind loses the newest, and the
/// file counts them. A thread that hangs in its disk is left to itself.
class RecordingLane final : public IPictureLane {
 public:
  /// @param label  of the sink, for the news
  RecordingLane(std::string label, GraphNews news);
  /// Closes what is open, without waiting.
  ~RecordingLane() override;
  RecordingLane(const RecordingLane&) = delete;
  RecordingLane& operator=(const RecordingLane&) = delete;

  void Open(const std::string& path) override;
  void Close(std::int64_t lastNs) override;
  void CloseNow() override;
  bool WaitClosed(std::chrono::steady_clock::time_point until) const override;
  RecordingTally Tally() const override;
  void Push(PackedPicture picture) override;

 private:
  struct Desk;
  std::shared_ptr<Desk> desk_;  ///< shared with the thread, which may outlive this
};

}  // namespace kinalyx
