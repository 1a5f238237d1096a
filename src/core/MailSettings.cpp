#include "core/MailSettings.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <type_traits>

#include "core/Numbers.h"
#include "platform/files/FileStore.h"
#include "platform/files/Folders.h"
#include "platform/files/IniFile.h"
#include "platform/files/TextEncoding.h"

namespace kinalyx {

/// One line of the file.
struct MailSettings::Key {
  const char* section;
  const char* name;
  const char* fallback;
  Field field;
  bool scrambled = false;
};

namespace {

constexpr const char* kGeneral = "General";
constexpr const char* kWeb = "Web";
constexpr const char* kServers = "Servers";
constexpr const char* kSubjectStart = "Video Analysis from ";
constexpr std::string_view kPasswordKey = "3141592653589793238462643383279";
constexpr int kMostPort = 65535;
constexpr int kUsualPort = 25;
constexpr int kServices = 4;

/// Takes the next character off a UTF-8 text.
std::string_view TakeCharacter(std::string_view& text) {
  std::size_t bytes = 1;
  while (bytes < text.size() && (static_cast<std::uint8_t>(text[bytes]) & 0xC0) == 0x80) ++bytes;
  const std::string_view character = text.substr(0, bytes);
  text.remove_prefix(bytes);
  return character;
}

/// A value that begins or ends with a blank or a quotation mark goes between quotation marks: an INI file has no other
/// way to keep them, and whoever reads one takes a pair of them off.
std::string Quoted(std::string text) {
  constexpr std::string_view kLost = " \t\r\"'";
  const bool plain = text.empty() || (kLost.find(text.front()) == std::string_view::npos &&
                                      kLost.find(text.back()) == std::string_view::npos);
  return plain ? text : '"' + text + '"';
}

std::string_view Unquoted(std::string_view text) {
  const bool quoted = text.size() >= 2 && text.front() == text.back() && (text.front() == '"' || text.front() == '\'');
  return quoted ? text.substr(1, text.size() - 2) : text;
}

/// No line of the file, no header and no command can hold them.
std::string WithoutControls(std::string_view text) {
  std::string plain(text);
  std::erase_if(plain, [](char letter) { return static_cast<std::uint8_t>(letter) < ' ' || letter == '\x7f'; });
  return plain;
}

}  // namespace

std::string ScramblePassword(Scramble direction, std::string_view text) {
  std::string shifted;
  for (std::size_t position = 0; !text.empty(); ++position) {
    const std::string_view character = TakeCharacter(text);
    const std::string code = ToWindows1252(character);
    if (FromWindows1252(code) != character) {
      shifted += character;
      continue;
    }
    const int digit = kPasswordKey[position % kPasswordKey.size()] - '0';
    const int moved = static_cast<std::uint8_t>(code.front()) + (direction == Scramble::Decode ? digit : -digit);
    shifted += FromWindows1252(std::string(1, static_cast<char>(moved)));
  }
  return shifted;
}

std::string XOREncryption(std::string_view CodeKey, std::string_view DataIn) {
  std::string mixed(DataIn);
  if (CodeKey.empty()) return mixed;
  for (std::size_t i = 0; i < mixed.size(); ++i)
    mixed[i] = static_cast<char>(mixed[i] ^ CodeKey[(i + 1) % CodeKey.size()]);
  return mixed;
}

MailSettings::MailSettings(const std::string& dataPath) : file_(JoinPath(dataPath, "mail.ini")) {}

const std::vector<MailSettings::Key>& MailSettings::Keys() {
  using M = MailSettings;
  static const std::vector<Key> keys = {
      {kGeneral, "SMTPServer", kNoServer, &M::SMTPServer},
      {kGeneral, "SenderName", "", &M::SenderName},
      {kGeneral, "SenderEmail", kNoSender, &M::SenderEmail},
      {kGeneral, "Subject", kSubjectStart, &M::Subject},
      {kGeneral, "UseMIME", "True", &M::UseMIME},
      {kGeneral, "Priority", "2", &M::Priority},
      {kGeneral, "UseHTML", "False", &M::UseHTML},
      {kGeneral, "ReadReceipt", "False", &M::ReadReceipt},
      {kGeneral, "LoginRequired", "False", &M::LoginRequired},
      {kGeneral, "Login", kNoMailLogin, &M::Login},
      {kGeneral, "Password", "", &M::Password, true},
      {kGeneral, "UseTLS", "False", &M::UseTLS},
      {kGeneral, "UseSSL", "False", &M::UseSSL},
      {kGeneral, "SMTPPort", "25", &M::SMTPPort},
      {kGeneral, "EmailLock", "0", &M::EmailLock},
      {kWeb, "WebAddress", "", &M::WebAddress},
      {kWeb, "FTPAddress", "", &M::FTPAddress},
      {kWeb, "WLogin", kNoWebLogin, &M::WLogin},
      {kWeb, "WPassword", "", &M::WPassword, true},
      {kWeb, "FTPMode", "0", &M::NextFTPMode},
      {kServers, "ModelServer", "", &M::ModelServer},
      {kServers, "ModelLogin", "", &M::ModelLogin},
      {kServers, "ModelPassword", "", &M::ModelPassword, true},
      {kServers, "UpdateServer", "", &M::UpdateServer},
      {kServers, "UpdatePage", "", &M::UpdatePage},
      {kServers, "UsageRecord", "False", &M::UsageRecord},
  };
  return keys;
}

std::string MailSettings::Stored(const Key& key) const {
  return std::visit(
      [&](auto field) -> std::string {
        using T = std::remove_cvref_t<decltype(this->*field)>;
        if constexpr (std::is_same_v<T, bool>) return this->*field ? "True" : "False";
        else if constexpr (std::is_same_v<T, int>) return std::to_string(this->*field);
        else return key.scrambled ? Quoted(ScramblePassword(Scramble::Encode, this->*field)) : this->*field;
      },
      key.field);
}

void MailSettings::Read(const Key& key, const std::string& stored) {
  std::visit(
      [&](auto field) {
        using T = std::remove_cvref_t<decltype(this->*field)>;
        if constexpr (std::is_same_v<T, bool>)
          this->*field = ReadBoolean(stored).value_or(ReadBoolean(key.fallback).value_or(false));
        else if constexpr (std::is_same_v<T, int>) this->*field = ReadInt32(stored);
        else this->*field = key.scrambled ? ScramblePassword(Scramble::Decode, Unquoted(stored)) : stored;
      },
      key.field);
}

void MailSettings::LoadMailSettings() {
  // Before its passwords are read: nothing is written that others could read meanwhile.
  if (FileExists(file_)) ownersAlone_ = KeepForOwner(file_);
  // One that is there and cannot be read now keeps what it holds: the defaults count for this run alone.
  const bool readable = !FileExists(file_) || ReadWholeFile(file_);
  const ProfileReader reader(file_);
  unsaved_.clear();
  bool missing = false;
  for (const Key& key : Keys()) {
    const auto value = reader.Value(key.section, key.name);
    Read(key, value.value_or(key.fallback));
    if (value) continue;
    if (key.field == Field(&MailSettings::Subject)) Subject += SenderName;
    if (!readable) continue;
    missing = true;
    unsaved_.push_back(key.field);
  }
  if (SMTPPort < 1 || SMTPPort > kMostPort) SMTPPort = kUsualPort;
  if (EmailLock < 0 || EmailLock >= kServices) EmailLock = 0;
  if (NextFTPMode != 1) NextFTPMode = 0;
  FTPMode = NextFTPMode;
  // A file that cannot be written leaves the defaults for this run; the next one tries again.
  if (missing) Write(unsaved_.front());
}

/// Writes a key, and what the disk has refused before. A file that has gone comes back whole.
bool MailSettings::Write(Field field) {
  if (std::ranges::find(unsaved_, field) == unsaved_.end()) unsaved_.push_back(field);
  if (!FileExists(file_)) {
    unsaved_.clear();
    std::ranges::transform(Keys(), std::back_inserter(unsaved_), &Key::field);
  }
  std::vector<ProfileEntry> entries;
  for (const Key& key : Keys())
    if (std::ranges::find(unsaved_, key.field) != unsaved_.end())
      entries.push_back({key.section, key.name, Stored(key)});
  ownersAlone_ = KeepForOwner(file_);
  if (!WriteProfileEntries(entries, file_)) return false;
  unsaved_.clear();
  return true;
}

bool MailSettings::Set(Text field, std::string_view value) {
  this->*field = WithoutControls(value);
  return Write(field);
}

bool MailSettings::Set(Flag field, bool value) {
  this->*field = value;
  return Write(field);
}

bool MailSettings::Set(Number field, int value) {
  this->*field = value;
  return Write(field);
}

void MailSettings::TakeSender(const std::string& userName, const std::string& companyName) {
  Set(&MailSettings::SenderName, userName);
  Set(&MailSettings::Subject, kSubjectStart + companyName);
}

bool MailSettings::MailConfigured() const { return !SMTPServer.empty() && SMTPServer != kNoServer; }

bool MailSettings::SenderSet() const { return !SenderEmail.empty() && SenderEmail != kNoSender; }

}  // namespace kinalyx
