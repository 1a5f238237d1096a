#include "distribution/mail/forms/InternetSection.h"

#include <gmock/gmock.h>

#include <QCheckBox>
#include <QComboBox>
#include <QRadioButton>

#include "FormDriver.h"
#include "FormsSupport.h"
#include "distribution/mail/MailFakes.h"
#include "platform/files/IniFile.h"
#include "support/TestDesk.h"

namespace kinalyx::test {
namespace {

struct InternetSectionTest : testing::Test, UsesApplication, TestDesk, FormDriver {
  InternetSectionTest() {
    mail.LoadMailSettings();
    Make();
  }
  void Make() {
    section =
        std::make_unique<InternetSection>(host, settings, mail, net.Sender(), net.Files(), JobRunner::On::HostTimer);
    section->show();
  }
  QWidget& Form() override { return *section; }
  std::string Kept(const char* section_, const char* key) {
    return ReadProfileValue(section_, key, mail.File()).value_or("missing");
  }
  QString Box(const char* name) { return Find<QLineEdit>(name)->text(); }
  bool Ticked(const char* name) { return Find<QAbstractButton>(name)->isChecked(); }
  void TypeAccount() {
    Type("txtEmail0", "mail.links.example");
    Type("txtEmail2", "erica@links.example");
  }

  MailSettings mail{settings.DataPath};
  FakeServers net;
  std::unique_ptr<InternetSection> section;
};

TEST_F(InternetSectionTest, WhatIsTypedIsKeptAtOnce) {
  const std::string before = BytesOf(mail.File());
  Make();
  EXPECT_EQ(BytesOf(mail.File()), before) << "filling the boxes writes nothing";
  EXPECT_EQ(Box("txtEmail0") + Box("txtEmail2") + Box("txtEmail4"), "") << "what stands for nothing is not shown";
  const char* const boxes[] = {"txtEmail0", "txtEmail1", "txtEmail2", "txtEmail3", "txtEmail4"};
  const char* const keys[] = {"SMTPServer", "SenderName", "SenderEmail", "Subject", "Login"};
  for (int i = 0; i < 5; ++i) {
    Type(boxes[i], QString("Łódź %1").arg(i));
    EXPECT_EQ(Kept("General", keys[i]), "Łódź " + std::to_string(i));
  }
  Type("txtEmail5", "secret");
  EXPECT_EQ(Kept("General", "Password"), "pd_q`k");
  Type("txtEmail6", "2525");
  Type("txtEmail6", "");
  EXPECT_EQ(Kept("General", "SMTPPort"), "2525");
  Type("WebIn0", "https://links.example");
  Type("WebIn1", "links");
  Type("WebIn2", "secret");
  Type("WebIn3", "ftps://links.example/web");
  EXPECT_EQ(Kept("Web", "WebAddress") + Kept("Web", "WLogin") + Kept("Web", "WPassword") + Kept("Web", "FTPAddress"),
            "https://links.examplelinkspd_q`kftps://links.example/web");
  Press("ckEmail0");
  Press("ckEmail1");
  EXPECT_EQ(Kept("General", "UseTLS") + Kept("General", "UseSSL"), "FalseTrue") << "one way of encryption";
  EXPECT_FALSE(Ticked("ckEmail0"));
}

TEST_F(InternetSectionTest, PasswordsAreHiddenUntilTheEyeIsPressed) {
  EXPECT_EQ(Find<QLineEdit>("txtEmail5")->echoMode(), QLineEdit::Password);
  EXPECT_FALSE(Find<QLineEdit>("txtEmail5")->isEnabled());
  Press("ckEmail2");
  EXPECT_TRUE(Find<QLineEdit>("txtEmail5")->isEnabled());
  const auto warned = [&] { return Text("MailServiceHint").contains("anybody on the way can read your password"); };
  EXPECT_TRUE(warned());
  Press("ckEmail0");
  EXPECT_FALSE(warned());
  for (const char* box : {"txtEmail5", "WebIn2"}) {
    Press((std::string(box) + "Eye").c_str());
    EXPECT_EQ(Find<QLineEdit>(box)->echoMode(), QLineEdit::Normal);
  }
}

TEST_F(InternetSectionTest, AServiceFillsInWhatItsProviderHasFixed) {
  struct Preset {
    const char* option;
    const char* server;
    const char* port;
    bool ssl;
  };
  for (const Preset& preset : {Preset{"optMailService1", "smtp.mail.yahoo.com", "465", true},
                               Preset{"optMailService2", "smtp.gmail.com", "465", true},
                               Preset{"optMailService3", "smtp-mail.outlook.com", "587", false}}) {
    Press(preset.option);
    EXPECT_EQ(Box("txtEmail0"), preset.server);
    EXPECT_EQ(Kept("General", "SMTPServer"), preset.server);
    EXPECT_EQ(Kept("General", "SMTPPort"), preset.port);
    EXPECT_EQ(Ticked("ckEmail1"), preset.ssl);
    EXPECT_EQ(Ticked("ckEmail0"), !preset.ssl);
    EXPECT_EQ(Kept("General", "UseSSL"), preset.ssl ? "True" : "False");
    EXPECT_EQ(Kept("General", "LoginRequired"), "True");
    EXPECT_FALSE(Find<QLineEdit>("txtEmail0")->isEnabled());
    // Microsoft takes no password at all.
    EXPECT_THAT(Text("MailServiceHint").toStdString(),
                testing::HasSubstr(preset.ssl ? "app password" : "Choose another service"));
  }
  EXPECT_EQ(Kept("General", "EmailLock"), "3");
  Make();
  EXPECT_TRUE(Ticked("optMailService3"));
  Press("optMailService0");
  EXPECT_TRUE(Find<QLineEdit>("txtEmail0")->isEnabled());
  EXPECT_EQ(Box("txtEmail0"), "smtp-mail.outlook.com") << "it is a start for one's own";
}

TEST_F(InternetSectionTest, TheWayOfTransferWaitsForTheNextStart) {
  Find<QComboBox>("FTPCombo")->setCurrentIndex(1);
  EXPECT_EQ(Kept("Web", "FTPMode"), "1");
  EXPECT_EQ(mail.FTPMode, 0);
  EXPECT_EQ(host.messages, std::vector<std::string>{"You must restart Kinalyx for this change to take effect."});
  Make();
  EXPECT_EQ(Find<QComboBox>("FTPCombo")->currentIndex(), 1);
  EXPECT_EQ(host.messages.size(), 1u);
}

TEST_F(InternetSectionTest, ATestMailGoesToItsSender) {
  Press("btnFTPISPSetup2");
  EXPECT_THAT(Text("MailTestStatus").toStdString(), testing::HasSubstr("No mail server is set yet"));
  Type("txtEmail0", "mail.links.example");
  Press("btnFTPISPSetup2");
  EXPECT_THAT(Text("MailTestStatus").toStdString(), testing::HasSubstr("Your own e-mail address is not set"));
  TypeAccount();
  Press("btnFTPISPSetup2");
  EXPECT_FALSE(Find<QWidget>("btnFTPISPSetup0")->isEnabled()) << "one test at a time";
  host.Advance(100);
  ASSERT_EQ(net.messages.size(), 1u);
  EXPECT_EQ(net.messages[0].subject, "Testing Kinalyx Email");
  EXPECT_EQ(net.messages[0].to, std::vector<std::string>{"erica@links.example"});
  EXPECT_EQ(Text("MailTestStatus"), "Test Send Successful! A test email has been sent to erica@links.example.");
  EXPECT_TRUE(Find<QWidget>("btnFTPISPSetup0")->isEnabled());

  net.answer = Outcome::Failed("The server does not accept the password.");
  Press("btnFTPISPSetup2");
  host.Advance(100);
  EXPECT_EQ(Text("MailTestStatus"), "The server does not accept the password.");
}

TEST_F(InternetSectionTest, AConnectionIsTestedAndCanBeCancelled) {
  Press("btnFTPISPSetup0");
  EXPECT_EQ(Text("WebTestStatus"), "Type the FTP address first.");
  Type("WebIn3", "ftp.links.example:2121");
  Type("WebIn1", "links");
  Press("btnFTPISPSetup0");
  host.Advance(100);
  EXPECT_EQ(Text("WebTestStatus"), "Connection to ftp server successful.");
  ASSERT_EQ(net.logins.size(), 1u);
  EXPECT_EQ(net.logins[0].address.port, 2121);
  EXPECT_TRUE(net.logins[0].passive);
  net.answer = Outcome::Failed("Login refused.");
  Press("btnFTPISPSetup0");
  host.Advance(100);
  EXPECT_EQ(Text("WebTestStatus"), "A connection to the ftp server could not be made.\nLogin refused.");
  Press("btnFTPISPSetup0");
  Press("WebTestCancel");
  host.Advance(100);
  EXPECT_EQ(Text("WebTestStatus"), "The test was cancelled.");
  Press("btnFTPISPSetup0");
  section.reset();  // in the middle
  host.Advance(100);
}

TEST_F(InternetSectionTest, ResetAsksAndEmptiesTheWebSpace) {
  Type("WebIn3", "ftp.links.example");
  Type("WebIn2", "secret");
  Type("WebIn1", "links");
  Press("btnFTPISPSetup1");
  EXPECT_EQ(Kept("Web", "FTPAddress"), "ftp.links.example");
  EXPECT_EQ(host.titles.back(), "Reset to Default?");
  host.answers = {true};
  Press("btnFTPISPSetup1");
  EXPECT_EQ(Kept("Web", "FTPAddress") + Kept("Web", "WPassword") + Kept("Web", "WLogin"), "Login");
  EXPECT_EQ(Box("WebIn1") + Box("WebIn2") + Box("WebIn3"), "");
}

TEST_F(InternetSectionTest, ADiskThatRefusesIsTold) {
  EXPECT_FALSE(Find<QWidget>("MailFault")->isVisible());
  std::filesystem::permissions(mail.File(), std::filesystem::perms::owner_read);
  Type("txtEmail1", "Erica");
  EXPECT_FALSE(Find<QWidget>("MailFault")->isHidden());
  std::filesystem::permissions(mail.File(), std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
  Type("txtEmail3", "Hello");
  EXPECT_TRUE(Find<QWidget>("MailFault")->isHidden());
  EXPECT_EQ(Kept("General", "SenderName"), "Erica");
}

}  // namespace
}  // namespace kinalyx::test
