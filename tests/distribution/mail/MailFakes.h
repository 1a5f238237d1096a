#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "core/MailSettings.h"
#include "distribution/mail/MailDesk.h"
#include "distribution/mail/ServerTests.h"
#include "distribution/mail/SnapshotQueue.h"
#include "platform/paint/Surface.h"
#include "support/TempFolder.h"
#include "support/TestHost.h"

namespace kinalyx::test {

/// What reached the servers, and what they answer.
struct FakeServers {
  std::vector<MailServer> servers;
  std::vector<MailMessage> messages;
  std::vector<std::string> attached;  ///< bytes
  std::vector<ServerLogin> logins;
  Outcome answer;
  bool closedCleanly = true;

  MakeSender Sender() {
    return [this] { return std::make_unique<Mail>(*this); };
  }
  MakeServer Files() {
    return [this](ServerLogin login) {
      logins.push_back(std::move(login));
      return std::make_unique<Space>(*this);
    };
  }

 private:
  struct Mail final : IMailSender {
    explicit Mail(FakeServers& all) : all(all) {}
    Outcome Send(const MailServer& server, const MailMessage& message, ITransferWatch& watch, bool& closed) override {
      watch.Progress(50, 100, 1000);
      all.servers.push_back(server);
      all.messages.push_back(message);
      for (const MailAttachment& file : message.attachments) all.attached.push_back(BytesOf(file.path));
      closed = all.closedCleanly;
      return all.answer;
    }
    FakeServers& all;
  };
  struct Space final : IFileServer {
    explicit Space(FakeServers& all) : all(all) {}
    Outcome Connect(ITransferWatch&) override { return all.answer; }
    Result<std::vector<ServerEntry>> List(const std::string&, ITransferWatch&) override { return Outcome::Failed(""); }
    Outcome Get(const std::string&, const std::string&, ITransferWatch&) override { return {}; }
    Result<std::string> GetText(const std::string&, std::int64_t, ITransferWatch&) override {
      return Outcome::Failed("");
    }
    Outcome Put(const std::string&, const std::string&, ITransferWatch&) override { return {}; }
    Outcome MakeFolder(const std::string&, ITransferWatch&) override { return {}; }
    FakeServers& all;
  };
};

/// A workstation with a mail account and a queue for pictures.
struct MailStage {
  MailStage() {
    mail.LoadMailSettings();
    mail.Set(&MailSettings::SMTPServer, "mail.links.example");
    mail.Set(&MailSettings::SenderName, "Erica");
    mail.Set(&MailSettings::SenderEmail, "erica@links.example");
    mail.Set(&MailSettings::LoginRequired, true);
    mail.Set(&MailSettings::Login, "erica");
    mail.Set(&MailSettings::Password, "top secret");
    mail.Set(&MailSettings::UseSSL, true);
    mail.Set(&MailSettings::SMTPPort, 465);
  }
  /// Pictures that differ.
  void Shoot(int count) {
    for (int i = 0; i < count; ++i) {
      Surface picture(60, 40);
      picture.Clear(Rgb(10 * i, 200, 30));
      ASSERT_TRUE(queue.Add(RowsOf(picture)));
    }
  }
  std::string File(int number) const { return folder.Path("email/email" + std::to_string(number) + ".jpg"); }

  TempFolder folder;
  TestHost host;
  MailSettings mail{folder.Path()};
  SnapshotQueue queue{folder.Path("email")};
  FakeServers net;
};

}  // namespace kinalyx::test
