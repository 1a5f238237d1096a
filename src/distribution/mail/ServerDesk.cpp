#include "distribution/mail/ServerDesk.h"

#include <utility>

#include "platform/files/Tr.h"

namespace kinalyx {

/// What the worker and the desk tell each other. The last of the two lets it go.
class ServerDesk::Line final : public ITransferWatch {
 public:
  bool Cancelled() override { return cancelled; }
  void Progress(std::int64_t bytes, std::int64_t total, double) override {
    if (bytes > 0) part = total > 0 ? std::min(1.0, static_cast<double>(bytes) / static_cast<double>(total)) : 0.0;
  }

  std::atomic<bool> cancelled = false;
  std::atomic<double> part = -1;
};

class ServerDesk::Job final : public IJob {
 public:
  Job(Errand errand, std::shared_ptr<Line> line) : errand_(std::move(errand)), line_(std::move(line)) {}
  bool Step() override {
    outcome_ = errand_(*line_);
    return false;
  }
  void Cancel() override { outcome_ = kinalyx::Outcome(Fault::Cancelled, Tr("Cancelled.")); }
  JobProgress Progress() const override { return {}; }
  const kinalyx::Outcome& Outcome() const { return outcome_; }

 private:
  Errand errand_;
  std::shared_ptr<Line> line_;
  kinalyx::Outcome outcome_;
};

class ServerDesk::Told final : public IJobEvents {
 public:
  explicit Told(ServerDesk& desk) : desk_(desk) {}
  void Progress(const JobProgress&) override { desk_.events_.ServerProgress(desk_.line_->part); }
  void Over(IJob* job) override {
    desk_.line_ = nullptr;
    // One that hangs is left to itself.
    if (!job) return desk_.events_.ServerOver(Outcome(Fault::Cancelled, Tr("Cancelled.")));
    desk_.events_.ServerOver(static_cast<const Job*>(job)->Outcome());
  }

 private:
  ServerDesk& desk_;
};

bool ServerDesk::Start(Errand errand) {
  if (Busy()) return false;
  line_ = std::make_shared<Line>();
  return runner_.Start(std::make_unique<Job>(std::move(errand), line_), std::make_unique<Told>(*this));
}

void ServerDesk::Cancel() {
  if (line_) line_->cancelled = true;
  runner_.Cancel();
}

}  // namespace kinalyx
