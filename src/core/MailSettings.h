#pragma once

#include <string>

namespace kinalyx {

/// What outgoing mail says of its sender, kept in `mail.ini` of the data folder.
class MailSettings {
 public:
  explicit MailSettings(const std::string& dataPath);

  std::string SenderName;
  std::string Subject;

  /// Reads the file. A key that is absent gets its default, which is written back.
  void LoadMailSettings();
  /// Writes one key of the section `General`; false when the disk refuses.
  bool WriteMailKey(const std::string& key, const std::string& value);
  /// Takes name and company of a first run: sender, and subject of new mails. Both are written.
  void TakeSender(const std::string& userName, const std::string& companyName);

  const std::string& File() const { return file_; }

 private:
  std::string file_;
};

}  // namespace kinalyx
