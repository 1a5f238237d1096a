#pragma once

#include <functional>
#include <memory>
#include <string>

#include "core/MailSettings.h"
#include "distribution/mail/MailDesk.h"
#include "distribution/mail/ServerDesk.h"
#include "platform/net/IFileServer.h"

namespace kinalyx {

using MakeServer = std::function<std::unique_ptr<IFileServer>(ServerLogin login)>;

enum class ServerTest { Mail, WebSpace };

/// What a test comes to; told on the user-interface thread.
class ITestEvents {
 public:
  virtual ~ITestEvents() = default;
  virtual void TestStatus(ServerTest test, const std::string& words) = 0;
  virtual void TestOver(ServerTest test, const std::string& words, bool good) = 0;
};

/// Tries the accounts of the settings, one after the other, on a worker.
class ServerTests final : private IServerEvents {
 public:
  /// All outlives the tests.
  ServerTests(IHost& host, const MailSettings& settings, ITestEvents& events, MakeSender makeSender,
              MakeServer makeServer, JobRunner::On on = JobRunner::On::Worker);

  /// Sends a mail to the sender's own address.
  void TestSend();
  /// Logs in to the server of the web space.
  void TestConnection();
  bool Busy() const { return desk_.Busy(); }
  void Cancel() { desk_.Cancel(); }

 private:
  // --- IServerEvents
  void ServerProgress(double part) override;
  void ServerOver(const Outcome& outcome) override;

  const MailSettings& settings_;
  ITestEvents& events_;
  MakeSender makeSender_;
  MakeServer makeServer_;
  ServerTest test_ = ServerTest::Mail;
  std::string address_;  ///< to which the mail under way goes
  std::shared_ptr<bool> closedCleanly_;
  ServerDesk desk_;
};

}  // namespace kinalyx
