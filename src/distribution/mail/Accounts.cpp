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

Result<ServerLogin> WebSpace(const MailSettings& settings) {
  const auto address = ReadServerAddress(settings.FTPAddress);
  if (!address) return address.Failure();
  return ServerLogin{
      .address = *address, .login = settings.WLogin, .password = settings.WPassword, .passive = settings.FTPMode == 0};
}

}  // namespace kinalyx
