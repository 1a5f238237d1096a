#include "distribution/mail/ServerTests.h"

#include <utility>

#include "distribution/mail/Accounts.h"
#include "platform/files/Tr.h"

namespace kinalyx {

ServerTests::ServerTests(IHost& host, const MailSettings& settings, ITestEvents& events, MakeSender makeSender,
                         MakeServer makeServer, JobRunner::On on)
    : settings_(settings),
      events_(events),
      makeSender_(std::move(makeSender)),
      makeServer_(std::move(makeServer)),
      desk_(host, *this, on) {}

void ServerTests::TestSend() {
  if (Busy()) return;
  test_ = ServerTest::Mail;
  if (const Outcome ready = ReadyToSend(settings_); !ready) return events_.TestOver(test_, ready.Why(), false);
  address_ = settings_.SenderEmail;
  MailMessage message = NewMessage(settings_);
  message.to = {address_};
  message.subject = Tr("Testing Kinalyx Email");
  message.body = Tr("This is a test of the mail settings of Kinalyx.");
  closedCleanly_ = std::make_shared<bool>(true);
  desk_.Start(
      [sender = std::shared_ptr(makeSender_()), server = OutgoingServer(settings_), message = std::move(message),
       closed = closedCleanly_](ITransferWatch& watch) { return sender->Send(server, message, watch, *closed); });
}

void ServerTests::TestConnection() {
  if (Busy()) return;
  test_ = ServerTest::WebSpace;
  if (!settings_.WebConfigured()) return events_.TestOver(test_, Tr("Type the FTP address first."), false);
  auto login = WebSpace(settings_);
  if (!login) return events_.TestOver(test_, login.Why(), false);
  desk_.Start([server = std::shared_ptr(makeServer_(std::move(*login)))](ITransferWatch& watch) {
    return server->Connect(watch);
  });
}

void ServerTests::ServerProgress(double part) {
  events_.TestStatus(test_, test_ == ServerTest::WebSpace ? Tr("Connecting to ftp server...")
                            : part < 0                    ? Tr("Connecting to Email Server")
                                                          : Tr("Sending email now....Please wait"));
}

void ServerTests::ServerOver(const Outcome& outcome) {
  if (outcome.Kind() == Fault::Cancelled) return events_.TestOver(test_, Tr("The test was cancelled."), false);
  if (test_ == ServerTest::WebSpace) {
    return outcome ? events_.TestOver(test_, Tr("Connection to ftp server successful."), true)
                   : events_.TestOver(test_, Tr("A connection to the ftp server could not be made.\n{}", outcome.Why()),
                                      false);
  }
  if (!outcome) return events_.TestOver(test_, outcome.Why(), false);
  std::string words = Tr("Test Send Successful! A test email has been sent to {}.", address_);
  if (!*closedCleanly_) words += "\n" + Tr(kNotClosed);
  events_.TestOver(test_, words, true);
}

}  // namespace kinalyx
