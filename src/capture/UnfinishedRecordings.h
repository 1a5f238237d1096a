#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "library/JobRunner.h"
#include "platform/files/Result.h"
#include "platform/media/RecordingTally.h"

namespace kinalyx {

/// A recording that was neither kept nor thrown away: the program was killed, or the machine went off.
struct UnfinishedRecording {
  std::array<std::string, 2> paths;  ///< of both cameras; the second is empty for one
  std::array<RecordingTally, 2> tallies;
  double seconds = 0;        ///< how long it is
  std::int64_t written = 0;  ///< when it ended, in seconds since 1970
};

/// Looks for such recordings in the folder of the working files, and makes them whole; those that another window is
/// at work on are left alone. On a worker: a recording of an hour takes some seconds.
class FindUnfinished final : public IJob {
 public:
  explicit FindUnfinished(std::string folder) : folder_(std::move(folder)) {}

  bool Step() override;
  void Cancel() override {}
  JobProgress Progress() const override;
  /// The latest first.
  const std::vector<UnfinishedRecording>& Found() const { return found_; }

 private:
  void List();
  void TakeNext();

  std::string folder_;
  bool listed_ = false;
  std::vector<std::string> names_;
  std::size_t next_ = 0;
  std::vector<UnfinishedRecording> found_;
};

/// Removes what was recorded.
Outcome ThrowAway(const UnfinishedRecording& recording);

}  // namespace kinalyx
