#include "distribution/mail/MailDesk.h"

#include <gmock/gmock.h>

#include "MailFakes.h"
#include "distribution/mail/MailReader.h"
#include "platform/files/IniFile.h"
#include "support/TestDesk.h"

namespace kinalyx::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

struct MailDeskTest : testing::Test, MailStage, IMailEvents {
  MailDeskTest() { desk.Tell(this); }
  void MailStatus(const std::string& words, double) override {
    if (told.empty() || told.back() != words) told.push_back(words);
  }
  void MailSent(const std::string& words) override { told.push_back(words); }
  void MailFailed(const std::string& words) override { told.push_back("failed: " + words); }
  void MailCancelled() override { told.push_back("cancelled"); }
  Outcome Send(std::string first, std::string second = "", std::string third = "") {
    return desk.Send({.to = {std::move(first), std::move(second), std::move(third)},
                      .subject = "Your swing",
                      .body = "Head <still> & down.\nErica"});
  }

  MailDesk desk{host, mail, queue, net.Sender(), JobRunner::On::HostTimer};
  std::vector<std::string> told;
};

TEST_F(MailDeskTest, PicturesGoToUpToThreeReaders) {
  Shoot(3);
  const std::vector<std::string> bytes = {BytesOf(File(1)), BytesOf(File(2)), BytesOf(File(3))};
  ASSERT_TRUE(Send(" clara@example.org ", "", "mother@example.org"));
  EXPECT_TRUE(desk.Busy());
  EXPECT_FALSE(Send("clara@example.org")) << "one at a time";
  host.Advance(100);
  ASSERT_EQ(net.messages.size(), 1u);
  const MailMessage& message = net.messages[0];
  EXPECT_THAT(message.to, ElementsAre("clara@example.org", "mother@example.org"));
  EXPECT_EQ(message.subject + "|" + message.body, "Your swing|Head <still> & down.\nErica");
  EXPECT_EQ(message.fromName + " " + message.fromAddress, "Erica erica@links.example");
  EXPECT_EQ(message.attachments[2].name, "Picture 3.jpg");
  EXPECT_EQ(net.attached, bytes);
  EXPECT_EQ(net.servers[0].security, NetSecurity::Tls);
  EXPECT_EQ(net.servers[0].port, 465);
  EXPECT_EQ(net.servers[0].password, "top secret");
  EXPECT_THAT(told, ElementsAre("Preparing email", "Sending email now....Please wait", "Send Successful!"));
  EXPECT_EQ(queue.Count(), 0);
  EXPECT_FALSE(std::filesystem::exists(File(1)));
}

TEST_F(MailDeskTest, AGoodbyeThatFailsIsNoFailure) {
  Shoot(1);
  net.closedCleanly = false;
  mail.Set(&MailSettings::UseHTML, true);
  ASSERT_TRUE(Send("clara@example.org"));
  host.Advance(100);
  EXPECT_EQ(told.back(), "Send Successful!\nConnection to SMTP server not closed cleanly.");
  EXPECT_EQ(queue.Count(), 0);
  EXPECT_EQ(net.messages[0].body, "Head &lt;still&gt; &amp; down.<br>\nErica");
}

TEST_F(MailDeskTest, NothingIsLostWhenItFails) {
  Shoot(2);
  net.answer = Outcome::Failed("The server refuses clara@example.org.");
  ASSERT_TRUE(Send("clara@example.org"));
  host.Advance(100);
  EXPECT_EQ(told.back(), "failed: The server refuses clara@example.org.");
  EXPECT_EQ(queue.Count(), 2);
  EXPECT_THAT(host.notes, ElementsAre("A mail was not sent.")) << "the log names nobody";

  ASSERT_TRUE(Send("clara@example.org"));
  desk.Cancel();
  host.Advance(100);
  EXPECT_EQ(told.back(), "cancelled");
  EXPECT_EQ(queue.Count(), 2);

  net.answer = {};
  ASSERT_TRUE(Send("clara@example.org"));
  Shoot(1);  // while it is under way
  host.Advance(100);
  EXPECT_EQ(told.back(), "Send Successful!");
  EXPECT_THAT(queue.Pictures(), ElementsAre(File(3))) << "what did not go stays";
}

TEST_F(MailDeskTest, WhatIsMissingIsSaidBefore) {
  const auto why = [&](const std::string& to) { return Send(to).Why(); };
  EXPECT_EQ(why("clara@example.org"), "No Pictures to Send.");
  Shoot(1);
  EXPECT_EQ(why(""), "You must add a valid email address to continue.");
  EXPECT_EQ(why("clara"), "You must add a valid email address to continue.");
  EXPECT_EQ(Send("clara@example.org", "a@b\r\nBcc: x@y").Why(), "You must add a valid email address to continue.");
  mail.Set(&MailSettings::SenderEmail, kNoSender);
  EXPECT_THAT(why("clara@example.org"), HasSubstr("Your own e-mail address is not set"));
  mail.Set(&MailSettings::SMTPServer, kNoServer);
  EXPECT_THAT(why("clara@example.org"), HasSubstr("No mail server is set"));
  EXPECT_FALSE(desk.Busy());
  EXPECT_TRUE(told.empty() && net.messages.empty());
}

struct MailReaderTest : testing::Test, TestDesk {
  MailReaderTest() {
    fields.EnsureFile();
    fields.SetupFields();
    for (const char* name : {"Anna/Clara", "Anna/Zoë"})
      std::filesystem::create_directories(settings.LibraryPath + "/" + name + "/Lessons");
    const std::string profile = settings.LibraryPath + "/Anna/Clara/profile.prf";
    WritePrivateProfileString("Profile", "E-Mail Address", "clara@example.org; c.weiss@club.example", profile);
    WritePrivateProfileString("Profile", fields.Caption(2), "call <mother@example.org>, or clara@example.org", profile);
  }
  MailReader Of(const std::string& video, const LastStudentInfo& remembered = {}) {
    return ReaderOf(host, settings, fields, video.empty() ? "" : settings.LibraryPath + "/" + video, remembered);
  }
  ProfileFields fields{folder.Path("data/fields.ini")};
};

TEST_F(MailReaderTest, PicturesAreForWhoseVideoItIs) {
  const MailReader clara = Of("Anna/Clara/Driver.avi", {"Anna", "Zoë", ""});
  EXPECT_EQ(clara.student, "Clara");
  EXPECT_THAT(clara.addresses, ElementsAre("clara@example.org", "c.weiss@club.example", "mother@example.org"));
  EXPECT_EQ(Of("Anna/Clara/Lessons/Lesson 1.mp4").student, "Clara");
  EXPECT_EQ(Of("elsewhere.avi", {"Anna", "Zoë", ""}).student, "Zoë") << "else who is selected";
  EXPECT_TRUE(Of("Anna/Zoë/a.avi").addresses.empty());
  EXPECT_EQ(Of("").student, "");
  host.drivesHang = true;
  EXPECT_TRUE(Of("Anna/Clara/Driver.avi").addresses.empty());
}

}  // namespace
}  // namespace kinalyx::test
