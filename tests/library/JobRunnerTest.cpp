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

struct JobRunnerTest : ::testing::Test {
  /// Starts a job on a worker and gives what can be seen of it.
  std::shared_ptr<CountingJob::Seen> Start(int steps, bool hangs = false) {
    auto seen = std::make_shared<CountingJob::Seen>();
    seen->hangs = hangs;
    ended = false;
    EXPECT_TRUE(runner.Start(std::make_unique<CountingJob>(seen, steps), {}, [this](IJob* job) {
      ended = true;
      abandoned = job == nullptr;
    }));
    return seen;
  }
  void WaitForEnd() {
    while (!ended) {
      host.Advance(1);
      std::this_thread::sleep_for(std::chrono::milliseconds(1));  // the hand-turned clock must not outrun the worker
    }
  }

  static constexpr int kForEver = 1 << 30;
  test::TestHost host;
  JobRunner runner{host, JobRunner::On::Worker};
  bool ended = false;
  bool abandoned = false;
};

TEST_F(JobRunnerTest, AWorkerEndsOrIsCancelled) {
  const auto whole = Start(5);
  EXPECT_FALSE(runner.Start(std::make_unique<CountingJob>(whole, 5), {}, {})) << "one at a time";
  WaitForEnd();
  EXPECT_EQ(whole->steps, 5);
  EXPECT_FALSE(abandoned || runner.Busy());

  const auto cancelled = Start(kForEver);
  runner.Cancel();
  while (!cancelled->cancelled) std::this_thread::yield();
  WaitForEnd();
  EXPECT_FALSE(abandoned);
}

TEST_F(JobRunnerTest, AWorkerOnADiskThatDoesNotAnswerIsLeftBehind) {
  const auto seen = Start(kForEver, true);
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
