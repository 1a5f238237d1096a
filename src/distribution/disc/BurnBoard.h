#pragma once

#include <atomic>
#include <cstdint>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include "platform/disc/IDiscDrive.h"

namespace kinalyx {

/// What a job on a worker tells, and where it is told to stop: shared by the job and the form that shows it.
class BurnBoard {
 public:
  // --- the job's side
  /// A line of the status list.
  void Say(std::string line) {
    const std::lock_guard lock(mutex_);
    lines_.push_back(std::move(line));
  }
  void SetState(DriveState state) { state_ = state; }
  void SetBytes(std::int64_t done, std::int64_t total) {
    done_ = done;
    total_ = total;
  }
  /// What is under way besides, 0 to 1.
  void SetPart(double part) { part_ = part; }
  bool StopWanted() const { return stop_; }

  // --- the form's side
  /// The lines that have come since they were taken last.
  std::vector<std::string> TakeLines() {
    const std::lock_guard lock(mutex_);
    return std::exchange(lines_, {});
  }
  DriveState State() const { return state_; }
  std::int64_t BytesDone() const { return done_; }
  std::int64_t BytesTotal() const { return total_; }
  double Part() const { return part_; }
  /// The job stops as soon as the drive lets it.
  void Stop() { stop_ = true; }

 private:
  std::mutex mutex_;
  std::vector<std::string> lines_;
  std::atomic<DriveState> state_ = DriveState::Preparing;
  std::atomic<std::int64_t> done_ = 0;
  std::atomic<std::int64_t> total_ = 0;
  std::atomic<double> part_ = 0;
  std::atomic<bool> stop_ = false;
};

/// "WRITING": the state as the form shows it.
const char* StateText(DriveState state);
/// "12.34 / 1,700.00MB".
std::string ProgressText(std::int64_t done, std::int64_t total);

}  // namespace kinalyx
