#include "distribution/mail/Accounts.h"

namespace kinalyx {

MailServer OutgoingServer(const MailSettings& settings) {
  MailServer server;
  server.host = settings.SMTPServer;
  server.port = settings.SMTPPort;
  server.security = settings.UseSSL ? NetSecurity::Tls : settings.UseTLS ? NetSecurity::StartTls : NetSecurity::None;
  server.loginRequired = settings.LoginRequired;
  server.login = settings.Login;
  server.password = settings.Password;
  return server;
}

MailMessage NewMessage(const MailSettings& settings) {
  MailMessage message;
  message.fromName = settings.SenderName;
  message.fromAddress = settings.SenderEmail;
  message.subject = settings.Subject;
  message.html = settings.UseHTML;
  message.priority = settings.Priority;
  message.readReceipt = settings.ReadReceipt;
  return message;
}

Outcome ReadyToSend(const MailSettings& settings) {
  const auto refuse = [](const char* why) { return Outcome(Fault::Refused, why); };
  if (!settings.MailConfigured())
    return refuse("No mail server is set yet. Choose your mail service in Program Setup, Internet.");
  if (!settings.SenderSet())
    return refuse("Your own e-mail address is not set yet. Type it in Program Setup, Internet.");
  if (!IsMailAddress(settings.SenderEmail))
    return refuse("Your own e-mail address in Program Setup, Internet, is no address.");
  return {};
}

Result<ServerLogin> WebSpace(const MailSettings& settings) {
  const auto address = ReadServerAddress(settings.FTPAddress);
  if (!address) return address.Failure();
  return ServerLogin{
      .address = *address, .login = settings.WLogin, .password = settings.WPassword, .passive = settings.FTPMode == 0};
}

}  // namespace kinalyx
