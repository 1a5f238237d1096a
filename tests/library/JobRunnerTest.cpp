#include "library/JobRunner.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <thread>

#include "support/TestHost.h"

namespace kinalyx {
namespace {

/// Counts its steps; hangs at the third until it is let go.
class CountingJob final : public IJob {
 public:
  struct Seen {
    std::atomic<int> steps = 0;
    std::atomic<bool> cancelled = false;
    std::atomic<bool> hangs = false;
    std::atomic<bool> gone = false;
  };
  CountingJob(std::shared_ptr<Seen> seen, int last) : seen_(std::move(seen)), last_(last) {}
  ~CountingJob() override { seen_->gone = true; }
  bool Step() override {
    while (seen_->hangs) std::this_thread::yield();
    return ++seen_->steps < last_;
  }
  void Cancel() override { seen_->cancelled = true; }
  JobProgress Progress() const override { return {seen_->steps, last_, 0, {}}; }

 private:
  std::shared_ptr<Seen> seen_;
  int last_;
};

TEST(JobRunnerTest, AWorkerEndsIsCancelledAndIsLeftBehindWhenItHangs) {
  test::TestHost host;
  JobRunner runner(host, JobRunner::On::Worker);
  bool ended = false;
  bool abandoned = false;
  const auto end = [&](IJob* job) {
    ended = true;
    abandoned = job == nullptr;
  };
  const auto wait = [&](const auto& until) {
    while (!until()) {
      host.Advance(1);
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
  };
  auto seen = std::make_shared<CountingJob::Seen>();
  ASSERT_TRUE(runner.Start(std::make_unique<CountingJob>(seen, 5), {}, end));
  EXPECT_FALSE(runner.Start(std::make_unique<CountingJob>(seen, 5), {}, end));
  wait([&] { return ended; });
  EXPECT_EQ(seen->steps, 5);
  EXPECT_FALSE(abandoned || runner.Busy());

  seen = std::make_shared<CountingJob::Seen>();
  ended = false;
  runner.Start(std::make_unique<CountingJob>(seen, 1 << 30), {}, end);
  runner.Cancel();
  // The turns of a worker are not those of the clock: this one is given all the time it needs.
  while (!seen->cancelled) std::this_thread::yield();
  wait([&] { return ended; });
  EXPECT_FALSE(abandoned);

  // A disk that does not answer.
  seen = std::make_shared<CountingJob::Seen>();
  seen->hangs = true;
  ended = false;
  runner.Start(std::make_unique<CountingJob>(seen, 1 << 30), {}, end);
  runner.Cancel();
  host.Advance(5000);
  EXPECT_TRUE(ended && abandoned);
  EXPECT_FALSE(runner.Busy());
  seen->hangs = false;
  while (!seen->gone) std::this_thread::yield();
  EXPECT_TRUE(seen->cancelled);
}

}  // namespace
}  // namespace kinalyx
