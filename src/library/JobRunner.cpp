#include "library/JobRunner.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>

namespace kinalyx {

namespace {

/// How often a worker is looked at; a short job is thus hardly longer than the work itself.
constexpr int kPollMs = 15;
constexpr std::int64_t kPatienceMs = 3000;

}  // namespace

/// What the runner and its worker have in common. It outlives a runner that gave up on the worker.
struct JobRunner::Shared {
  std::mutex mutex;
  std::condition_variable changed;
  std::unique_ptr<IJob> job;  ///< the worker's until `over`
  JobProgress progress;
  bool over = false;
  std::atomic<bool> cancel = false;
};

JobRunner::~JobRunner() {
  if (!state_) return;
  timer_.Stop();
  state_->cancel = true;
  if (on_ == On::HostTimer) {
    state_->job->Cancel();
    return;
  }
  std::unique_lock lock(state_->mutex);
  state_->changed.wait_for(lock, std::chrono::milliseconds(kPatienceMs), [&] { return state_->over; });
}

bool JobRunner::Start(std::unique_ptr<IJob> job, std::unique_ptr<IJobEvents> events) {
  if (Busy()) return false;
  state_ = std::make_shared<Shared>();
  state_->job = std::move(job);
  events_ = std::move(events);
  cancelledAt_ = -1;
  if (on_ == On::Worker) std::thread([shared = state_] { Work(shared); }).detach();
  timer_ = HostTimer(host_, on_ == On::Worker ? kPollMs : 0, true, [this] { Poll(); });
  return true;
}

void JobRunner::Work(std::shared_ptr<Shared> shared) {
  IJob& job = *shared->job;
  for (;;) {
    if (shared->cancel) {
      job.Cancel();
      break;
    }
    if (!job.Step()) break;
    JobProgress progress = job.Progress();
    const std::lock_guard lock(shared->mutex);
    shared->progress = std::move(progress);
  }
  JobProgress progress = job.Progress();
  const std::lock_guard lock(shared->mutex);
  shared->progress = std::move(progress);
  shared->over = true;
  shared->changed.notify_all();
}

void JobRunner::Cancel() {
  if (!state_ || state_->cancel) return;
  state_->cancel = true;
  cancelledAt_ = host_.timeGetTime();
}

void JobRunner::Poll() {
  JobProgress progress;
  bool over = false;
  if (on_ == On::HostTimer) {
    IJob& job = *state_->job;
    over = state_->cancel || !job.Step();
    if (state_->cancel) job.Cancel();
    progress = job.Progress();
  } else {
    const std::lock_guard lock(state_->mutex);
    progress = state_->progress;
    over = state_->over;
  }
  events_->Progress(progress);
  if (over) Finish(false);
  else if (cancelledAt_ >= 0 && host_.timeGetTime() - cancelledAt_ > kPatienceMs) Finish(true);
}

void JobRunner::Finish(bool abandoned) {
  timer_.Stop();
  const std::shared_ptr<Shared> shared = std::exchange(state_, nullptr);
  const std::unique_ptr<IJobEvents> events = std::move(events_);
  events->Over(abandoned ? nullptr : shared->job.get());
}

}  // namespace kinalyx
