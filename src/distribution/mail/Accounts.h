#pragma once

#include "core/MailSettings.h"
#include "platform/files/Tr.h"
#include "platform/net/IFileServer.h"
#include "platform/net/IMailSender.h"

namespace kinalyx {

/// The server for outgoing mail that the settings name.
MailServer OutgoingServer(const MailSettings& settings);
/// A message as the settings want it: sender, subject, priority, receipt; still without readers, text and files.
MailMessage NewMessage(const MailSettings& settings);
/// Whether the settings are enough for a mail to go out; fails in words for the user.
Outcome ReadyToSend(const MailSettings& settings);
/// What is said of a mail that went, though the server's goodbye failed.
inline constexpr const char* kNotClosed = TrLater("Connection to SMTP server not closed cleanly.");
/// The server of the instructor's web space; fails in words for the user where there is no address, or none that can be
/// read.
Result<ServerLogin> WebSpace(const MailSettings& settings);

}  // namespace kinalyx
