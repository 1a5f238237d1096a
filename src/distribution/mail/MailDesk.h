#pragma once

#include <array>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "core/MailSettings.h"
#include "distribution/mail/ServerDesk.h"
#include "distribution/mail/SnapshotQueue.h"
#include "platform/net/IMailSender.h"

namespace kinalyx {

using MakeSender = std::function<std::unique_ptr<IMailSender>()>;

/// What the user wants to be sent with the pictures.
struct MailWish {
  std::array<std::string, 3> to;  ///< the first must be there
  std::string subject;
  std::string body;
};

/// What becomes of the mail; told on the user-interface thread.
class IMailEvents {
 public:
  virtual ~IMailEvents() = default;
  /// @param part  0 to 1; negative while it is not known
  virtual void MailStatus(const std::string& words, double part) = 0;
  /// The pictures went, and have left the queue.
  virtual void MailSent(const std::string& words) = 0;
  /// The queue is as it was.
  virtual void MailFailed(const std::string& words) = 0;
  virtual void MailCancelled() = 0;
};

/// Mails the queue of pictures, on a worker. Nothing leaves the queue before the server has taken the message.
class MailDesk final : private IServerEvents {
 public:
  /// All outlives the desk.
  MailDesk(IHost& host, const MailSettings& settings, SnapshotQueue& queue, MakeSender makeSender,
           JobRunner::On on = JobRunner::On::Worker);

  /// Who is told; null for nobody.
  void Tell(IMailEvents* events) { events_ = events; }
  SnapshotQueue& Queue() { return queue_; }
  const MailSettings& Settings() const { return settings_; }

  /// Sends all pictures to all addresses. Refused, in words for the user, where an address, an account or a picture
  /// is missing.
  Outcome Send(const MailWish& wish);
  bool Busy() const { return desk_.Busy(); }
  void Cancel() { desk_.Cancel(); }

 private:
  // --- IServerEvents
  void ServerProgress(double part) override;
  void ServerOver(const Outcome& outcome) override;

  IHost& host_;
  const MailSettings& settings_;
  SnapshotQueue& queue_;
  MakeSender makeSender_;
  IMailEvents* events_ = nullptr;
  std::vector<std::string> sent_;  ///< the pictures that are under way
  std::shared_ptr<bool> closedCleanly_;
  double part_ = 0;  ///< of the mail, that has gone; below 0 before
  ServerDesk desk_;
};

}  // namespace kinalyx
