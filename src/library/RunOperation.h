#pragma once

#include <memory>
#include <utility>

#include "library/LibraryOperations.h"

namespace kinalyx {

// How the sources of the library's operations run their jobs.

inline constexpr const char* kOperationCancelled = "Operation Cancelled";

template <typename Job>
void LibraryOperations::Run(std::unique_ptr<Job> job, std::function<OperationResult(Job&)> end, Done done,
                            std::function<void(const JobProgress&)> watch) {
  const auto watchAll = [this, watch = std::move(watch)](const JobProgress& progress) {
    if (watch) watch(progress);
    if (ShowProgress) ShowProgress(progress);
  };
  runner_.Start(std::move(job), watchAll, [this, end = std::move(end), done = std::move(done)](IJob* over) {
    if (OperationEnded) OperationEnded();
    // A job that was left to itself tells nothing any more.
    if (!over) return done({false, kOperationCancelled, true});
    done(end(static_cast<Job&>(*over)));
  });
}

}  // namespace kinalyx
