#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace kinalyx {

/// The account for outgoing mail and the instructor's web space, kept in `mail.ini` of the data folder. The file can be
/// read and written by its owner alone: its passwords are scrambled, which hides them from a glance and no more.
class MailSettings {
 public:
  explicit MailSettings(const std::string& dataPath);

  // --- [General]
  std::string SMTPServer;  ///< kNoServer while nothing is configured
  std::string SenderName;
  std::string SenderEmail;  ///< kNoSender while nothing is configured
  std::string Subject;
  bool UseMIME = true;
  int Priority = 2;  ///< 1 high, 2 normal, 3 low
  bool UseHTML = false;
  bool ReadReceipt = false;
  bool LoginRequired = false;
  std::string Login;
  std::string Password;  ///< as typed
  bool UseTLS = false;   ///< begins in the clear and goes on encrypted
  bool UseSSL = false;   ///< encrypted from the first byte; wins over UseTLS
  int SMTPPort = 25;
  int EmailLock = 0;  ///< index of the chosen service

  // --- [Web]
  std::string WebAddress;  ///< where a browser finds what lies on the server of files; empty: not configured
  std::string FTPAddress;  ///< empty: not configured
  std::string WLogin;
  std::string WPassword;  ///< as typed
  int FTPMode = 0;        ///< 0 passive, 1 active; as it was when the program started
  int NextFTPMode = 0;    ///< the same as the file has it: from the next start on

  // --- [Servers]; what is empty is not contacted
  std::string ModelServer;    ///< of model videos
  std::string ModelLogin;     ///< empty: as a guest
  std::string ModelPassword;  ///< as typed
  std::string UpdateServer;
  std::string UpdatePage;    ///< from which a browser fetches a new version
  bool UsageRecord = false;  ///< a line goes to the server of updates with each check

  /// Reads the file. A key that is absent gets its default, which is written back.
  void LoadMailSettings();

  using Text = std::string MailSettings::*;
  using Flag = bool MailSettings::*;
  using Number = int MailSettings::*;
  /// Takes a value and writes its key at once, as `Set(&MailSettings::Login, "anna")`. False when the disk refuses: the
  /// value counts for this run, and is written together with the next one. Control characters are left out.
  bool Set(Text field, std::string_view value);
  bool Set(Flag field, bool value);
  bool Set(Number field, int value);
  /// Takes name and company of a first run: sender, and subject of new mails. Both are written.
  void TakeSender(const std::string& userName, const std::string& companyName);
  /// Something that was set is not in the file, for the disk has refused it.
  bool Unsaved() const { return !unsaved_.empty(); }

  /// Nobody else can read the file; false on a drive that knows no such rights.
  bool OwnersAlone() const { return ownersAlone_; }

  bool MailConfigured() const;
  bool SenderSet() const;
  bool WebConfigured() const { return !FTPAddress.empty(); }
  const std::string& File() const { return file_; }

 private:
  using Field = std::variant<Text, Flag, Number>;
  struct Key;
  static const std::vector<Key>& Keys();
  std::string Stored(const Key& key) const;
  void Read(const Key& key, const std::string& stored);
  bool Write(Field field);

  std::string file_;
  std::vector<Field> unsaved_;
  bool ownersAlone_ = true;
};

inline constexpr const char* kNoServer = "none_selected";
inline constexpr const char* kNoSender = "you@example.com";
inline constexpr const char* kNoMailLogin = "User Name";
inline constexpr const char* kNoWebLogin = "Login";

enum class Scramble { Encode, Decode };
/// Shifts the code of each character in Windows-1252 by a digit of a fixed key: Encode down, Decode up, round the 256
/// codes. Characters that it has no code for stay. The key has 31 digits; a longer text begins it again, so that the
/// first 31 characters stand as they always did. Empty gives empty.
std::string ScramblePassword(Scramble direction, std::string_view text);
/// Mixes each byte with one of the key by exclusive or, beginning with the key's second; doing it twice gives the text
/// again. Without a key it stays as it is.
std::string XOREncryption(std::string_view CodeKey, std::string_view DataIn);

}  // namespace kinalyx
