#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>

#include "distribution/web/SendJob.h"
#include "library/JobRunner.h"
#include "platform/files/FileLock.h"
#include "platform/host/Host.h"

namespace kinalyx {

enum class SendPhase { Ready, Running, Cancelling, Failed, Done };

/// What the button `FTPGObtn` says in a phase.
const char* ButtonOf(SendPhase phase);

/// The words of the form, by mode.
struct SendWords {
  std::string title;
  std::array<std::string, 3> steps;
};
SendWords WordsOf(SendOrder::Mode mode);

/// Who shows a send; told on the user-interface thread.
class ISendView {
 public:
  virtual ~ISendView() = default;
  virtual void SendChanged() = 0;
  /// It is over, and has been for a moment: the form may go.
  virtual void SendLeaves() = 0;
};

/// The way of one send from "Create Now" to its end: cancelled, taken up again after a failure, or done. What was made
/// for it goes with the session.
class SendSession {
 public:
  /// All that is passed outlives the session.
  SendSession(IHost& host, ISendView& view, std::shared_ptr<ISendServers> servers,
              JobRunner::On on = JobRunner::On::Worker);
  ~SendSession();
  SendSession(const SendSession&) = delete;
  SendSession& operator=(const SendSession&) = delete;

  /// Takes an order, and refuses one to which something is missing, or while another is under way or another window
  /// sends: in words for the user. Nothing is contacted yet.
  Outcome Take(SendOrder order);
  /// The button: starts, cancels, or starts again. Nothing while it is cancelling; once it is done the view is told to
  /// leave.
  void Press();
  /// Gives up what is under way, and forgets the order.
  void Leave();

  SendPhase Phase() const { return phase_; }
  bool Busy() const { return phase_ == SendPhase::Running || phase_ == SendPhase::Cancelling; }
  const SendOrder& Order() const { return order_; }
  SendNews News() const;
  /// Once Failed.
  const std::string& Fault() const { return fault_; }

 private:
  class Run;
  void Start();
  void Over(IJob* job);

  IHost& host_;
  ISendView& view_;
  std::shared_ptr<ISendServers> servers_;
  JobRunner runner_;
  HostTimer unloadTimer_;
  SendPhase phase_ = SendPhase::Ready;
  SendOrder order_;
  std::shared_ptr<SendBoard> board_ = std::make_shared<SendBoard>();
  std::shared_ptr<SendMemory> memory_ = std::make_shared<SendMemory>();
  std::unique_ptr<FileLock> lock_;  ///< on the work folder
  std::string fault_;
  bool leaving_ = false;
};

}  // namespace kinalyx
