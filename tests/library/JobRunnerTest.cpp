#include "library/JobRunner.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <thread>

#include "support/TestHost.h"

namespace kinalyx {
namespace {

/// Counts its steps; hangs until it is let go.
class CountingJob final : public IJob {
 public:
  struct Seen {
    std::atomic<bool> begun = false;
    std::atomic<int> steps = 0;
    std::atomic<bool> cancelled = false;
    std::atomic<bool> hangs = false;
    std::atomic<bool> gone = false;
  };
  CountingJob(std::shared_ptr<Seen> seen, int last) : seen_(std::move(seen)), last_(last) {}
  ~CountingJob() override { seen_->gone = true; }
  bool Step() override {
    seen_->begun = true;
    while (seen_->hangs) std::this_thread::yield();
    return ++seen_->steps < last_;
  }
  void Cancel() override { seen_->cancelled = true; }
  JobProgress Progress() const override { return {seen_->steps, last_, 0, {}}; }

 private:
  std::shared_ptr<Seen> seen_;
  int last_;
};

/// Keeps how the last job ended.
struct Ended {
  bool ended = false;
  bool abandoned = false;
};
class HeardJob final : public IJobEvents {
 public:
  explicit HeardJob(Ended& heard) : heard_(heard) {}
  void Progress(const JobProgress&) override {}
  void Over(IJob* job) override { heard_ = {true, job == nullptr}; }

 private:
  Ended& heard_;
};

TEST(JobRunner, AWorkerEndsAndIsLeftBehindWhenItsDiskDoesNotAnswer) {
  test::TestHost host;
  JobRunner runner(host, JobRunner::On::Worker);
  Ended heard;
  const auto start = [&](const std::shared_ptr<CountingJob::Seen>& seen, int steps) {
    return runner.Start(std::make_unique<CountingJob>(seen, steps), std::make_unique<HeardJob>(heard));
  };
  const auto whole = std::make_shared<CountingJob::Seen>();
  ASSERT_TRUE(start(whole, 5));
  EXPECT_FALSE(start(whole, 5)) << "one at a time";
  while (!heard.ended) {
    host.Advance(1);
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  EXPECT_EQ(whole->steps, 5);
  EXPECT_FALSE(heard.abandoned || runner.Busy());

  heard = {};
  const auto hanging = std::make_shared<CountingJob::Seen>();
  hanging->hangs = true;
  ASSERT_TRUE(start(hanging, 1 << 30));
  while (!hanging->begun) std::this_thread::yield();
  runner.Cancel();
  host.Advance(5000);
  EXPECT_TRUE(heard.ended && heard.abandoned);
  EXPECT_FALSE(runner.Busy());
  hanging->hangs = false;
  while (!hanging->gone) std::this_thread::yield();
  EXPECT_TRUE(hanging->cancelled) << "it cleans up when the disk is back";
}

}  // namespace
}  // namespace kinalyx
