#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <ctime>
#include <memory>
#include <utility>
#include <vector>

#include "platform/files/TextEncoding.h"
#include "platform/files/Tr.h"
#include "platform/net/AttachedFile.h"
#include "platform/net/CurlSession.h"
#include "platform/net/IMailSender.h"
#include "platform/net/MailText.h"
#include "platform/net/NetWords.h"

namespace kinalyx {
namespace {

struct FreeMime {
  void operator()(curl_mime* mime) const { curl_mime_free(mime); }
};
using Mime = std::unique_ptr<curl_mime, FreeMime>;

bool Holds(std::string_view text, std::initializer_list<std::string_view> words) {
  const std::string folded = FoldCase(text);
  return std::ranges::any_of(words, [&](std::string_view word) { return folded.find(word) != std::string::npos; });
}

/// Providers that take no plain password from a program, by their names or by what they say.
bool WantsAppPassword(const std::string& host, const std::string& words) {
  return Holds(host, {"gmail.", "googlemail.", "google.", "yahoo.", "ymail.", "aol.", "icloud.", "mail.me.com",
                      "office365.", "zoho.", "fastmail.", "yandex."}) ||
         Holds(words, {"application-specific", "app password", "app-password", "5.7.9"});
}

/// Providers that let no program log in with any password.
bool TakesNoPassword(const std::string& host) { return Holds(host, {"outlook.", "hotmail.", "live.com"}); }

constexpr const char* kNoPassword = TrLater(
    " Microsoft lets no other program send from this mailbox with a password any more. Use a mailbox of another "
    "provider, or that of your club.");
constexpr const char* kAppPassword = TrLater(
    " Providers such as this one want an \"app password\": a long one that you have made for this program alone on the "
    "page of your account, under security. The password with which you log in yourself does not work here.");

bool IsTooLarge(const CurlEnd& end) {
  return end.reply == 552 || end.reply == 523 || Holds(end.words, {"too large", "too big", "size limit", "5.3.4"});
}

class MailSender final : public IMailSender {
 public:
  explicit MailSender(NetLimits limits) : limits_(std::move(limits)) {}

  Outcome Send(const MailServer& server, const MailMessage& message, ITransferWatch& watch,
               bool& closedCleanly) override {
    closedCleanly = false;
    if (auto fit = Check(server); !fit) return fit;
    const auto from = PlainAddress(message.fromAddress);
    if (!from) return from.Failure();
    if (message.to.empty()) return Outcome::Failed(Tr("The message has no reader."));
    std::vector<std::string> to;
    for (const std::string& address : message.to) {
      const auto plain = PlainAddress(address);
      if (!plain) return plain.Failure();
      if (std::ranges::find(to, *plain) == to.end()) to.push_back(*plain);
    }
    std::vector<std::unique_ptr<AttachedFile>> files;
    for (const MailAttachment& attachment : message.attachments) {
      files.push_back(std::make_unique<AttachedFile>(attachment));
      if (auto opened = files.back()->Open(); !opened) return opened;
    }

    CurlSession session(limits_);
    CURL* handle = session.Begin("smtp,smtps", server.security, server.caFile);
    SetServer(handle, server);
    CurlList readers, headers;
    for (const std::string& address : to) readers.Add('<' + address + '>');
    AddHeaders(headers, message, *from, to);
    curl_easy_setopt(handle, CURLOPT_MAIL_FROM, ('<' + *from + '>').c_str());
    curl_easy_setopt(handle, CURLOPT_MAIL_RCPT, readers.Get());
    curl_easy_setopt(handle, CURLOPT_HTTPHEADER, headers.Get());

    const Mime mime(curl_mime_init(handle));
    curl_mimepart* text = curl_mime_addpart(mime.get());
    const std::string body = MailLines(message.body);
    curl_mime_data(text, body.data(), body.size());
    curl_mime_type(text, message.html ? "text/html; charset=utf-8" : "text/plain; charset=utf-8");
    curl_mime_encoder(text, "quoted-printable");
    std::int64_t total = 0;
    for (const auto& file : files) {
      file->Join(mime.get());
      total += file->EncodedSize();
    }
    curl_easy_setopt(handle, CURLOPT_MIMEPOST, mime.get());

    const CurlEnd end = session.Perform(watch, total);
    closedCleanly = session.SaidGoodbye();
    if (end) return {};
    for (const auto& file : files) {
      if (file->Changed())
        return Outcome::Failed(
            Tr("The file \"{}\" changed or went while it was being sent, so nothing was sent.", file->Name()));
    }
    return Explain(end, server);
  }

 private:
  static Outcome Check(const MailServer& server) {
    if (server.host.empty()) return Outcome::Failed(Tr("No mail server is set."));
    if (!IsHostName(server.host))
      return Outcome::Failed(Tr("The name of the mail server holds a letter that is in no name."));
    if (server.port < 1 || server.port > 65535) return Outcome::Failed(Tr("The port of the mail server is no port."));
    if (server.loginRequired && (HasControls(server.login) || HasControls(server.password)))
      return Outcome::Failed(Tr("Login or password hold a line end or another control character."));
    return {};
  }

  static void SetServer(CURL* handle, const MailServer& server) {
    // The name that this computer gives itself is nobody's business; an address is taken everywhere.
    constexpr const char* kMyself = "%5B127.0.0.1%5D";
    const char* scheme = server.security == NetSecurity::Tls ? "smtps" : "smtp";
    const std::string url = fmt::format("{}://{}:{}/{}", scheme, server.host, server.port, kMyself);
    curl_easy_setopt(handle, CURLOPT_URL, url.c_str());
    curl_easy_setopt(handle, CURLOPT_FORBID_REUSE, 1L);  // the goodbye belongs to the request
    if (!server.loginRequired) return;
    curl_easy_setopt(handle, CURLOPT_USERNAME, server.login.c_str());
    curl_easy_setopt(handle, CURLOPT_PASSWORD, server.password.c_str());
    curl_easy_setopt(handle, CURLOPT_LOGIN_OPTIONS, "AUTH=PLAIN;AUTH=LOGIN");
  }

  static void AddHeaders(CurlList& headers, const MailMessage& message, const std::string& from,
                         const std::vector<std::string>& to) {
    headers.Add("Date: " + MailDate(std::time(nullptr)));
    headers.Add("From: " + EncodedMailbox(message.fromName, from));
    std::string readers;
    for (const std::string& address : to) readers += (readers.empty() ? "" : ",\r\n ") + address;
    headers.Add("To: " + readers);
    // A header without a text would be left out.
    const bool blank = Trimmed(message.subject, " ").empty();
    headers.Add("Subject: " + EncodedText(blank ? Tr("(no subject)") : message.subject));
    headers.Add("Message-ID: " + NewMessageId(from));
    constexpr int kNormal = 3;
    const int priority = std::clamp(message.priority, 1, 5);
    if (priority != kNormal) {
      headers.Add(fmt::format("X-Priority: {}", priority));
      headers.Add(priority < kNormal ? "Importance: high" : "Importance: low");
    }
    if (message.readReceipt) headers.Add("Disposition-Notification-To: <" + from + '>');
  }

  static Outcome Explain(const CurlEnd& end, const MailServer& server) {
    const NetParty party{
        .host = server.host, .kind = Tr("mail server"), .password = server.password, .security = server.security};
    const std::string said = SaidBy(end, party);
    if (end.how == CurlEnd::How::Answered && end.code == CURLE_LOGIN_DENIED) {
      const Outcome plain = ExplainEnd(end, party);
      const char* advice = TakesNoPassword(server.host)               ? kNoPassword
                           : WantsAppPassword(server.host, end.words) ? kAppPassword
                                                                      : "";
      return {Fault::Refused, plain.Why() + Tr(advice)};
    }
    const bool refused = end.how == CurlEnd::How::Answered && end.reply >= 400 && end.reply != 421;
    if (!refused) return ExplainEnd(end, party);
    if (IsTooLarge(end)) return Outcome::Failed(Tr("The message is larger than the mail server takes.{}", said));
    if (end.command.starts_with("RCPT"))
      return {Fault::Refused, Tr("The mail server refuses the address {}, so nothing was sent to anybody.{}",
                                 CleanWords(end.command.substr(end.command.find(':') + 1), {}), said)};
    if (end.command == "MAIL" && (end.reply == 530 || end.reply == 535)) {
      const bool hidden = server.loginRequired && server.security == NetSecurity::None;
      return {Fault::Refused, (hidden ? Tr("The mail server takes a login only with encryption. Choose TLS or SSL.")
                                      : Tr("The mail server wants a login.")) +
                                  said};
    }
    if (end.command == "MAIL") return {Fault::Refused, Tr("The mail server does not let this sender send.{}", said)};
    if (end.command == "DATA") return Outcome::Failed(Tr("The mail server did not take the message.{}", said));
    return ExplainEnd(end, party);
  }

  NetLimits limits_;
};

}  // namespace

std::unique_ptr<IMailSender> MakeMailSender(NetLimits limits) {
  return std::make_unique<MailSender>(std::move(limits));
}

}  // namespace kinalyx
