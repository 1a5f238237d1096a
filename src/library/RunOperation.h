#pragma once

#include <memory>
#include <utility>

#include "library/LibraryOperations.h"
#include "platform/files/Tr.h"

namespace kinalyx {

// How the sources of the library's operations run their jobs.

inline constexpr const char* kOperationCancelled = TrLater("Operation Cancelled");

/// A long operation while its job is at work: makes the result of the job, and tells it.
template <typename Job>
class OperationRun final : public IJobEvents {
 public:
  OperationRun(std::function<OperationResult(Job&)> end, LibraryOperations::Events events)
      : end_(std::move(end)), events_(std::move(events)) {}

  void Progress(const JobProgress& progress) override { events_->ShowProgress(progress); }
  void Over(IJob* job) override {
    events_->WorkOver();
    // A job that was left to itself tells nothing any more.
    events_->Ended(job ? end_(static_cast<Job&>(*job)) : OperationResult{Outcome::Failed(kOperationCancelled), true});
  }

 private:
  std::function<OperationResult(Job&)> end_;
  LibraryOperations::Events events_;
};

template <typename Job>
void LibraryOperations::Run(std::unique_ptr<Job> job, std::function<OperationResult(Job&)> end, Events events) {
  runner_.Start(std::move(job), std::make_unique<OperationRun<Job>>(std::move(end), std::move(events)));
}

}  // namespace kinalyx
