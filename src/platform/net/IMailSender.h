#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/files/Result.h"
#include "platform/net/ITransferWatch.h"
#include "platform/net/NetLimits.h"
#include "platform/net/ServerAddress.h"

namespace kinalyx {

/// Where mail goes out.
struct MailServer {
  std::string host;
  int port = 25;
  NetSecurity security = NetSecurity::None;
  bool loginRequired = false;
  std::string login;
  std::string password;
  std::string caFile = {};  ///< whose signatures count; empty: those that the system trusts
};

/// A file that goes with a message.
struct MailAttachment {
  std::string path;
  std::string name;  ///< as the reader sees it; empty: that of the path
};

/// A message. No text in it can become a header or a command of its own, whatever letters and line ends it holds.
struct MailMessage {
  std::string fromName;
  std::string fromAddress;
  std::vector<std::string> to;
  std::string subject;
  std::string body;
  bool html = false;
  int priority = 3;  ///< 1 highest to 5 lowest
  bool readReceipt = false;
  std::vector<MailAttachment> attachments;
};

class IMailSender {
 public:
  virtual ~IMailSender() = default;
  /// Sends one message to all its readers, or to none of them. Fails in words for the user: no server, refused login
  /// (with what an app password is, where the provider wants one), certificate that is not the server's, address
  /// refused, too large, file that is gone. `closedCleanly` is false where the message went and the goodbye failed.
  virtual Outcome Send(const MailServer& server, const MailMessage& message, ITransferWatch& watch,
                       bool& closedCleanly) = 0;
};
std::unique_ptr<IMailSender> MakeMailSender(NetLimits limits = {});

/// Whether a text can be the address of a reader: something, one "@", something with no blank, no line end and no
/// bracket.
bool IsMailAddress(const std::string& text);

}  // namespace kinalyx
