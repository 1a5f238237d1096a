#include "distribution/web/SendSession.h"

#include <utility>

#include "platform/files/Tr.h"

namespace kinalyx {
namespace {

constexpr int kUnloadMs = 5000;
constexpr const char* kBadGoodbye = TrLater("Connection to SMTP server not closed cleanly.");

}  // namespace

const char* ButtonOf(SendPhase phase) {
  switch (phase) {
    case SendPhase::Ready: return TrLater("Create Now");
    case SendPhase::Running: return TrLater("Cancel");
    case SendPhase::Cancelling: return TrLater("Cancelling...");
    case SendPhase::Failed: return TrLater("Try Again");
    case SendPhase::Done: return TrLater("Close");
  }
  return "";
}

SendWords WordsOf(SendOrder::Mode mode) {
  if (mode == SendOrder::Mode::Web)
    return {.title = TrLater("Send Videos to Web Server"),
            .steps = {TrLater("Step 1) Convert videos for the web."), TrLater("Step 2) Upload videos to the web."),
                      TrLater("Step 3) Create and Send email(s).")}};
  return {.title = TrLater("Send Videos to Email Addresses"),
          .steps = {TrLater("Step 1) Convert videos for email."), TrLater("Step 2) Prepare to send."),
                    TrLater("Step 3) Create and Send email(s).")}};
}

/// What becomes of a job, for as long as there is a session.
class SendSession::Run final : public IJobEvents {
 public:
  explicit Run(SendSession& session) : session_(session) {}
  void Progress(const JobProgress&) override { session_.view_.SendChanged(); }
  void Over(IJob* job) override { session_.Over(job); }

 private:
  SendSession& session_;
};

SendSession::SendSession(IHost& host, ISendView& view, std::shared_ptr<ISendServers> servers, JobRunner::On on)
    : host_(host), view_(view), servers_(std::move(servers)), runner_(host, on) {}

SendSession::~SendSession() {
  board_->Stop();
  if (!Busy() && lock_) RemoveWorkFolder(order_.workFolder);
}

Outcome SendSession::Take(SendOrder order) {
  if (runner_.Busy()) return {Fault::Refused, Tr("Videos are still being sent.")};
  if (const auto plan = PlanSend(order); !plan) return plan.Failure();
  Leave();
  (void)MakeFolder(FolderOf(order.workFolder));
  auto lock = std::make_unique<FileLock>(order.workFolder, 0);
  if (lock->Busy()) return {Fault::Refused, Tr("Another window is sending videos. Wait until it has finished.")};
  lock_ = std::move(lock);
  RemoveWorkFolder(order.workFolder);
  order_ = std::move(order);
  view_.SendChanged();
  return {};
}

void SendSession::Press() {
  switch (phase_) {
    case SendPhase::Ready:
    case SendPhase::Failed: return Start();
    case SendPhase::Running:
      phase_ = SendPhase::Cancelling;
      board_->Stop();
      runner_.Cancel();
      return view_.SendChanged();
    case SendPhase::Cancelling: return;
    case SendPhase::Done: return view_.SendLeaves();
  }
}

void SendSession::Start() {
  board_ = std::make_shared<SendBoard>();
  fault_.clear();
  auto job = std::make_unique<SendJob>(
      SendJob::Parts{.order = order_, .board = board_, .memory = memory_, .servers = servers_});
  if (!runner_.Start(std::move(job), std::make_unique<Run>(*this))) return;
  phase_ = SendPhase::Running;
  view_.SendChanged();
}

void SendSession::Over(IJob* job) {
  const auto* send = static_cast<SendJob*>(job);
  if (!send) {
    // It hangs, and still has what it shared with us.
    memory_ = std::make_shared<SendMemory>();
    board_ = std::make_shared<SendBoard>();
  }
  if (leaving_) {
    phase_ = SendPhase::Ready;
    return Leave();
  }
  if (!send || send->How().Kind() == kinalyx::Fault::Cancelled) {
    phase_ = SendPhase::Ready;
    board_->Tell({.step = 0, .words = Tr("Cancelled"), .detail = {}, .part = 0});
  } else if (send->How()) {
    phase_ = SendPhase::Done;
    if (send->ClosedBadly()) {
      SendNews news = board_->News();
      news.detail += "\n" + Tr(kBadGoodbye);
      board_->Tell(news);
    }
    unloadTimer_ = HostTimer(host_, kUnloadMs, false, [this] {
      unloadTimer_.Stop();
      view_.SendLeaves();
    });
  } else {
    phase_ = SendPhase::Failed;
    fault_ = send->How().Why();
    host_.Note(MessageKind::Warning, "Sending videos failed.");
  }
  view_.SendChanged();
}

void SendSession::Leave() {
  unloadTimer_.Stop();
  if (Busy()) {
    leaving_ = true;
    board_->Stop();
    runner_.Cancel();
    return;
  }
  leaving_ = false;
  if (lock_) RemoveWorkFolder(order_.workFolder);
  lock_.reset();
  order_ = {};
  memory_ = std::make_shared<SendMemory>();
  board_ = std::make_shared<SendBoard>();
  fault_.clear();
  phase_ = SendPhase::Ready;
}

SendNews SendSession::News() const { return board_->News(); }

}  // namespace kinalyx
