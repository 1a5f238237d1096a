#include "core/MailSettings.h"

#include <sys/stat.h>

#include "platform/files/IniFile.h"
#include "platform/files/TextEncoding.h"
#include "support/TempFolder.h"

namespace kinalyx::test {
namespace {

struct MailSettingsTest : ::testing::Test {
  MailSettings Loaded() {
    MailSettings mail(folder.Path());
    mail.LoadMailSettings();
    return mail;
  }
  std::string OnDisk(const char* section, const char* key) {
    return ReadProfileValue(section, key, file).value_or("missing");
  }
  unsigned Mode() const {
    struct stat info {};
    return ::stat(file.c_str(), &info) == 0 ? info.st_mode & 0777 : 0;
  }

  TempFolder folder;
  const std::string file = folder.Path("mail.ini");
};

TEST_F(MailSettingsTest, FirstRunWritesEveryDefault) {
  const MailSettings mail = Loaded();
  EXPECT_FALSE(mail.MailConfigured() || mail.SenderSet() || mail.WebConfigured() || mail.Unsaved());
  EXPECT_EQ(folder.Get("mail.ini"),
            "[General]\nSMTPServer=none_selected\nSenderName=\nSenderEmail=you@example.com\n"
            "Subject=Video Analysis from \nUseMIME=True\nPriority=2\nUseHTML=False\nReadReceipt=False\n"
            "LoginRequired=False\nLogin=User Name\nPassword=\nUseTLS=False\nUseSSL=False\nSMTPPort=25\nEmailLock=0\n"
            "\n[Web]\nWebAddress=\nFTPAddress=\nWLogin=Login\nWPassword=\nFTPMode=0\n"
            "\n[Servers]\nModelServer=\nModelLogin=\nModelPassword=\nUpdateServer=\nUpdatePage=\nUsageRecord=False\n");
  EXPECT_EQ(Mode(), 0600u);
}

TEST_F(MailSettingsTest, MissingAndSenselessKeysGetDefaultsAndTheRestStays) {
  folder.Put("mail.ini",
             "; mine\r\n[general]\r\nsendername=Erica\r\nSMTPPort=99999\r\nEmailLock=7\r\nUseTLS=perhaps\r\n");
  const MailSettings mail = Loaded();
  EXPECT_EQ(mail.Subject, "Video Analysis from Erica");
  EXPECT_EQ(OnDisk("General", "Subject"), "Video Analysis from Erica");
  EXPECT_EQ(mail.SMTPPort, 25);
  EXPECT_EQ(mail.EmailLock, 0);
  EXPECT_FALSE(mail.UseTLS);
  EXPECT_TRUE(folder.Get("mail.ini").starts_with("; mine\r\n[general]\r\nsendername=Erica\r\n"));
  EXPECT_EQ(OnDisk("Web", "WLogin"), "Login");
}

TEST_F(MailSettingsTest, PasswordsOfEveryKindComeBack) {
  std::string all;
  for (int code = ' '; code < 256; ++code)
    if (code != 0x7f) all += FromWindows1252(std::string(1, static_cast<char>(code)));
  const std::string passwords[] = {"",
                                   "secret",
                                   std::string(31, 'x'),
                                   std::string(40, '!'),
                                   "#a-letter-that-becomes-a-blank",  // '#' less 3 is a blank
                                   "%\"quoted\"%",
                                   " \t blanks around ",
                                   "\"",
                                   "''",
                                   "Übung €uro ščęść Ωμέγα 日本語",
                                   all};
  for (const std::string& password : passwords) {
    MailSettings mail = Loaded();
    ASSERT_TRUE(mail.Set(&MailSettings::Password, password));
    ASSERT_TRUE(mail.Set(&MailSettings::WPassword, password));
    const MailSettings again = Loaded();
    EXPECT_EQ(again.Password, mail.Password);
    EXPECT_EQ(again.WPassword, mail.Password);
    std::string typed = password;
    std::erase(typed, '\t');
    EXPECT_EQ(mail.Password, typed) << "only control characters are left out";
  }
  EXPECT_EQ(ScramblePassword(Scramble::Encode, "secret"), "pd_q`k");
  EXPECT_EQ(ScramblePassword(Scramble::Encode, std::string(32, 'z')).back(), 'w') << "the key begins again";
}

TEST_F(MailSettingsTest, OldFilesInWindows1252AreRead) {
  // The euro sign has code 128 there, and "1" is taken from the second character.
  folder.Put("mail.ini", "[General]\nSenderName=J\xfcrgen\nPassword=\x7d\xe3\n");
  const MailSettings mail = Loaded();
  EXPECT_EQ(mail.SenderName, "Jürgen");
  EXPECT_EQ(mail.Password, "€ä");
  EXPECT_EQ(Loaded().Password, "€ä") << "and in the letters in which it was written back";
}

TEST_F(MailSettingsTest, TheFileStaysItsOwnersAlone) {
  folder.Put("mail.ini", "[General]\nPassword=abc\n");
  ASSERT_EQ(::chmod(file.c_str(), 0664), 0);
  MailSettings mail = Loaded();
  EXPECT_EQ(Mode(), 0600u);
  mail.Set(&MailSettings::UseSSL, true);
  EXPECT_EQ(Mode(), 0600u);
  ASSERT_TRUE(WritePrivateProfileString("General", "Login", "by another hand", file));
  EXPECT_EQ(Mode(), 0600u);
  mail.Set(&MailSettings::Login, "anna");
  std::filesystem::remove(file);
  mail.Set(&MailSettings::SMTPPort, 465);
  EXPECT_EQ(Mode(), 0600u);
  EXPECT_EQ(Loaded().Login, "anna") << "a file that has gone comes back whole";
}

TEST_F(MailSettingsTest, WhatTheDiskRefusesIsWrittenWithTheNext) {
  MailSettings mail = Loaded();
  ASSERT_EQ(::chmod(file.c_str(), 0400), 0);
  EXPECT_FALSE(mail.Set(&MailSettings::Login, "anna"));
  EXPECT_TRUE(mail.Unsaved());
  EXPECT_EQ(mail.Login, "anna");
  EXPECT_EQ(OnDisk("General", "Login"), "User Name");
  ASSERT_EQ(::chmod(file.c_str(), 0600), 0);
  EXPECT_TRUE(mail.Set(&MailSettings::UseTLS, true));
  EXPECT_FALSE(mail.Unsaved());
  EXPECT_EQ(OnDisk("General", "Login"), "anna");
}

TEST_F(MailSettingsTest, TheWayOfTransferChangesWithTheNextStart) {
  MailSettings mail = Loaded();
  mail.Set(&MailSettings::NextFTPMode, 1);
  EXPECT_EQ(mail.FTPMode, 0);
  EXPECT_EQ(Loaded().FTPMode, 1);
}

TEST_F(MailSettingsTest, MixingTwiceGivesTheTextAgain) {
  EXPECT_EQ(XOREncryption("ab", "AA"), std::string({'A' ^ 'b', 'A' ^ 'a'})) << "the key's second comes first";
  EXPECT_EQ(XOREncryption("key", XOREncryption("key", "Zażółć")), "Zażółć");
  EXPECT_EQ(XOREncryption("", "x"), "x");
}

}  // namespace
}  // namespace kinalyx::test
