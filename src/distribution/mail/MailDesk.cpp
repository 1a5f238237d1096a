#include "distribution/mail/MailDesk.h"

#include <fmt/format.h>

#include "distribution/mail/Accounts.h"
#include "platform/files/Folders.h"
#include "platform/files/TextEncoding.h"
#include "platform/files/Tr.h"

namespace kinalyx {
namespace {

/// A text as the body of a page: no letter of it is a mark, and its lines stay.
std::string HtmlOf(const std::string& text) {
  std::string html;
  for (const char letter : text) {
    switch (letter) {
      case '&': html += "&amp;"; break;
      case '<': html += "&lt;"; break;
      case '>': html += "&gt;"; break;
      case '\n': html += "<br>\n"; break;
      default: html += letter;
    }
  }
  return html;
}

std::string WithoutBlanks(const std::string& text) { return std::string(Trimmed(text, " \t\r\n")); }

}  // namespace

MailDesk::MailDesk(IHost& host, const MailSettings& settings, SnapshotQueue& queue, MakeSender makeSender,
                   JobRunner::On on)
    : host_(host), settings_(settings), queue_(queue), makeSender_(std::move(makeSender)), desk_(host, *this, on) {}

Outcome MailDesk::Send(const MailWish& wish) {
  const auto refuse = [](std::string why) { return Outcome(Fault::Refused, std::move(why)); };
  if (Busy()) return refuse(Tr("A mail is being sent already."));
  if (const Outcome ready = ReadyToSend(settings_); !ready) return ready;
  MailMessage message = NewMessage(settings_);
  for (const std::string& typed : wish.to) {
    std::string address = WithoutBlanks(typed);
    if (address.empty() && &typed != &wish.to.front()) continue;
    if (!IsMailAddress(address)) return refuse(Tr("You must add a valid email address to continue."));
    message.to.push_back(std::move(address));
  }
  message.subject = wish.subject;
  message.body = settings_.UseHTML ? HtmlOf(wish.body) : wish.body;
  sent_ = queue_.Pictures();
  if (sent_.empty()) return refuse(Tr("No Pictures to Send."));
  int number = 0;
  for (const std::string& path : sent_)
    message.attachments.push_back({.path = path, .name = Tr("Picture {}.jpg", ++number)});
  closedCleanly_ = std::make_shared<bool>(true);
  part_ = 0;
  desk_.Start(
      [sender = std::shared_ptr(makeSender_()), server = OutgoingServer(settings_), message = std::move(message),
       closed = closedCleanly_](ITransferWatch& watch) { return sender->Send(server, message, watch, *closed); });
  if (events_) events_->MailStatus(Tr("Preparing email"), -1);
  return {};
}

void MailDesk::ServerProgress(double part) {
  part_ = part;
  if (!events_) return;
  if (part < 0) events_->MailStatus(Tr("Connecting to Email Server"), -1);
  else events_->MailStatus(Tr("Sending email now....Please wait"), part);
}

void MailDesk::ServerOver(const Outcome& outcome) {
  if (outcome.Kind() == Fault::Cancelled) {
    if (!events_) return;
    // All was there; nobody has heard whether the server took it.
    if (part_ >= 1)
      events_->MailFailed(Tr("Cancelled. The mail may have gone already. The pictures stay in the queue."));
    else events_->MailCancelled();
    return;
  }
  if (!outcome) {
    // What the server says may name a reader.
    const bool names = outcome.Why().find('@') != std::string::npos;
    host_.Note(MessageKind::Warning, fmt::format("A mail was not sent{}", (names ? "." : ": " + outcome.Why())));
    if (events_) events_->MailFailed(outcome.Why());
    return;
  }
  for (const std::string& path : sent_)
    if (const Outcome gone = queue_.Delete(path); !gone) host_.Note(MessageKind::Warning, gone.Why());
  if (queue_.Count() == 0) (void)queue_.ClearEmailQueue();
  if (events_) events_->MailSent(*closedCleanly_ ? Tr("Send Successful!") : Tr("Send Successful!\n{}", Tr(kNotClosed)));
}

}  // namespace kinalyx
