#pragma once

#include <string>

namespace kinalyx {

/// The account for outgoing mail and the instructor's web space, kept in `mail.ini` of the data folder. The file can be
/// read and written by its owner alone: its two passwords are scrambled, which hides them from a glance and no more.
class MailSettings {
 public:
  explicit MailSettings(const std::string& dataPath);

  // --- [General]
  std::string SMTPServer;  ///< kNoServer while nothing is configured
  std::string SenderName;
  std::string SenderEmail;
  std::string Subject;
  bool UseMIME = true;
  int Priority = 2;  ///< 1 highest to 5 lowest
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

  /// Reads the file. A key that is absent gets its default, which is written back.
  void LoadMailSettings();
  /// Writes one key of the section `General`; false when the disk refuses.
  bool WriteMailKey(const std::string& key, const std::string& value);
  /// The same in the section `Web`.
  bool WriteWebKey(const std::string& key, const std::string& value);
  /// Takes name and company of a first run: sender, and subject of new mails. Both are written.
  void TakeSender(const std::string& userName, const std::string& companyName);

  bool MailConfigured() const;
  bool WebConfigured() const { return !FTPAddress.empty(); }
  const std::string& File() const { return file_; }

 private:
  std::string file_;
};

inline constexpr const char* kNoServer = "none_selected";

enum class Scramble { Encode, Decode };
/// Shifts the code of each character by a digit of a fixed key: Encode down, Decode up. The key has 31 digits; a longer
/// text begins it again, so that the first 31 characters stand as they always did. Empty gives empty.
std::string ScramblePassword(Scramble direction, const std::string& text);

}  // namespace kinalyx
