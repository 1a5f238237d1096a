#include "core/MailSettings.h"

#include <vector>

#include "core/Numbers.h"
#include "platform/files/Folders.h"
#include "platform/files/IniFile.h"

namespace kinalyx {
namespace {

constexpr const char* kGeneral = "General";
constexpr const char* kWeb = "Web";
constexpr const char* kSubjectStart = "Video Analysis from ";
constexpr std::string_view kPasswordKey = "3141592653589793238462643383279";

/// Takes the next character of a UTF-8 text; a byte that begins none counts for itself.
char32_t TakeCharacter(std::string_view& text) {
  const auto first = static_cast<unsigned char>(text.front());
  const int more = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : first >= 0xC0 ? 1 : 0;
  constexpr unsigned char kFirstBits[] = {0x7F, 0x1F, 0x0F, 0x07};
  char32_t code = more ? first & kFirstBits[more] : first;
  text.remove_prefix(1);
  for (int left = more; left > 0 && !text.empty(); --left) {
    code = (code << 6) | (static_cast<unsigned char>(text.front()) & 0x3F);
    text.remove_prefix(1);
  }
  return code;
}

void AppendCharacter(std::string& text, char32_t code) {
  const auto byte = [&](char32_t value) { text += static_cast<char>(value); };
  if (code < 0x80) {
    byte(code);
  } else if (code < 0x800) {
    byte(0xC0 | (code >> 6));
    byte(0x80 | (code & 0x3F));
  } else if (code < 0x10000) {
    byte(0xE0 | (code >> 12));
    byte(0x80 | ((code >> 6) & 0x3F));
    byte(0x80 | (code & 0x3F));
  } else {
    byte(0xF0 | (code >> 18));
    byte(0x80 | ((code >> 12) & 0x3F));
    byte(0x80 | ((code >> 6) & 0x3F));
    byte(0x80 | (code & 0x3F));
  }
}

}  // namespace

std::string ScramblePassword(Scramble direction, const std::string& text) {
  std::string shifted;
  std::string_view rest = text;
  for (std::size_t position = 0; !rest.empty(); ++position) {
    const char32_t digit = kPasswordKey[position % kPasswordKey.size()] - '0';
    const char32_t code = TakeCharacter(rest);
    AppendCharacter(shifted, direction == Scramble::Decode ? code + digit : code > digit ? code - digit : code);
  }
  return shifted;
}

MailSettings::MailSettings(const std::string& dataPath) : file_(JoinPath(dataPath, "mail.ini")) {}

void MailSettings::LoadMailSettings() {
  const ProfileReader reader(file_);
  std::vector<ProfileEntry> missing;
  const auto read = [&](const char* section, const char* key, const std::string& fallback) {
    const auto value = reader.Value(section, key);
    if (!value) missing.push_back({section, key, fallback});
    return value.value_or(fallback);
  };
  const auto flag = [&](const char* key, bool fallback) {
    return ReadBoolean(read(kGeneral, key, fallback ? "True" : "False")).value_or(fallback);
  };
  const auto password = [&](const char* section, const char* key) {
    return ScramblePassword(Scramble::Decode, read(section, key, ""));
  };
  SMTPServer = read(kGeneral, "SMTPServer", kNoServer);
  SenderName = read(kGeneral, "SenderName", "");
  SenderEmail = read(kGeneral, "SenderEmail", "");
  Subject = read(kGeneral, "Subject", kSubjectStart + SenderName);
  UseMIME = flag("UseMIME", true);
  Priority = ReadInt32(read(kGeneral, "Priority", "2"));
  UseHTML = flag("UseHTML", false);
  ReadReceipt = flag("ReadReceipt", false);
  LoginRequired = flag("LoginRequired", false);
  Login = read(kGeneral, "Login", "User Name");
  Password = password(kGeneral, "Password");
  UseTLS = flag("UseTLS", false);
  UseSSL = flag("UseSSL", false);
  SMTPPort = ReadInt32(read(kGeneral, "SMTPPort", "25"));
  EmailLock = ReadInt32(read(kGeneral, "EmailLock", "0"));
  WebAddress = read(kWeb, "WebAddress", "");
  FTPAddress = read(kWeb, "FTPAddress", "");
  WLogin = read(kWeb, "WLogin", "Login");
  WPassword = password(kWeb, "WPassword");
  FTPMode = ReadInt32(read(kWeb, "FTPMode", "0"));
  // A file that cannot be written leaves the defaults for this run; the next one tries again.
  if (!missing.empty()) WriteProfileEntries(missing, file_);
}

bool MailSettings::WriteMailKey(const std::string& key, const std::string& value) {
  return WritePrivateProfileString(kGeneral, key, value, file_);
}

bool MailSettings::WriteWebKey(const std::string& key, const std::string& value) {
  return WritePrivateProfileString(kWeb, key, value, file_);
}

void MailSettings::TakeSender(const std::string& userName, const std::string& companyName) {
  SenderName = userName;
  Subject = kSubjectStart + companyName;
  WriteMailKey("SenderName", SenderName);
  WriteMailKey("Subject", Subject);
}

bool MailSettings::MailConfigured() const { return !SMTPServer.empty() && SMTPServer != kNoServer; }

}  // namespace kinalyx
