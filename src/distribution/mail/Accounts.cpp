#include "distribution/mail/Accounts.h"

#include "platform/files/TextEncoding.h"
#include "platform/files/Tr.h"

namespace kinalyx {
namespace {

/// As it was meant: what was pasted has blanks around it.
std::string Meant(const std::string& typed) { return std::string(Trimmed(typed, " \t\r\n")); }

/// A login, unless it is what stands in the settings while there is none.
std::string LoginOf(const std::string& typed, const char* none) {
  std::string login = Meant(typed);
  return login == none ? std::string() : login;
}

/// The settings count from 1, high, over 2 to 3, low; mail knows five grades.
int GradeOf(int priority) {
  constexpr int kHighest = 1, kNormal = 3, kLowest = 5, kUsual = 2;
  if (priority == kUsual) return kNormal;
  return priority < kUsual ? kHighest : kLowest;
}

}  // namespace

MailServer OutgoingServer(const MailSettings& settings) {
  MailServer server;
  server.host = Meant(settings.SMTPServer);
  server.port = settings.SMTPPort;
  server.security = settings.UseSSL ? NetSecurity::Tls : settings.UseTLS ? NetSecurity::StartTls : NetSecurity::None;
  server.loginRequired = settings.LoginRequired;
  server.login = LoginOf(settings.Login, kNoMailLogin);
  server.password = settings.Password;
  return server;
}

MailMessage NewMessage(const MailSettings& settings) {
  MailMessage message;
  message.fromName = settings.SenderName;
  message.fromAddress = Meant(settings.SenderEmail);
  message.subject = settings.Subject;
  message.html = settings.UseHTML;
  message.priority = GradeOf(settings.Priority);
  message.readReceipt = settings.ReadReceipt;
  return message;
}

Outcome ReadyToSend(const MailSettings& settings) {
  const auto refuse = [](const std::string& why) { return Outcome(Fault::Refused, why); };
  if (!settings.MailConfigured())
    return refuse(Tr("No mail server is set yet. Choose your mail service in Program Setup, Internet."));
  if (!settings.SenderSet())
    return refuse(Tr("Your own e-mail address is not set yet. Type it in Program Setup, Internet."));
  if (!IsMailAddress(Meant(settings.SenderEmail)))
    return refuse(Tr("Your own e-mail address in Program Setup, Internet, is no address."));
  if (settings.LoginRequired && (LoginOf(settings.Login, kNoMailLogin).empty() || settings.Password.empty()))
    return refuse(Tr("Login or password of your mailbox are not set yet. Type them in Program Setup, Internet."));
  return {};
}

Result<ServerLogin> WebSpace(const MailSettings& settings) {
  const auto address = ReadServerAddress(settings.FTPAddress);
  if (!address) return address.Failure();
  return ServerLogin{.address = *address,
                     .login = LoginOf(settings.WLogin, kNoWebLogin),
                     .password = settings.WPassword,
                     .passive = settings.FTPMode == 0};
}

}  // namespace kinalyx
