#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>

#include "platform/graph/GraphNews.h"
#include "platform/media/RecordingFile.h"

namespace kinalyx {

/// A picture on its way to a file.
struct PackedPicture {
  RecordingFormat format;
  std::int64_t ns = 0;                     ///< when the camera took it
  std::shared_ptr<const std::byte> bytes;  ///< keeps them
  std::size_t size = 0;
};

/// The way of one camera's pictures to its files: a thread of its own writes, so that neither camera nor window waits
/// for a disk. It takes the pictures of two seconds on credit; a disk that is further behind loses the newest, and the
/// file counts them. A thread that hangs in its disk is left to itself.
class RecordingLane {
 public:
  /// @param label  of the sink, for the news
  RecordingLane(std::string label, GraphNews news);
  /// Closes what is open, without waiting.
  ~RecordingLane();
  RecordingLane(const RecordingLane&) = delete;
  RecordingLane& operator=(const RecordingLane&) = delete;

  /// What comes from now on, and was taken after the end of the file before, goes to a new file of that path.
  void Open(const std::string& path);
  /// The picture of that time is the file's last: it is closed once that is written, or was not seen for a while.
  void Close(std::int64_t lastNs);
  /// What has been pushed is all that the file gets.
  void CloseNow();
  /// Any thread; without an open file it goes nowhere.
  void Push(PackedPicture picture);
  /// Waits until no file is open; false when that takes too long.
  bool WaitClosed(std::chrono::steady_clock::time_point until) const;
  /// Of the file under way, or of the last one.
  RecordingTally Tally() const;

 private:
  struct Desk;
  std::shared_ptr<Desk> desk_;  ///< shared with the thread, which may outlive this
};

}  // namespace kinalyx
