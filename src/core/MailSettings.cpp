#include "core/MailSettings.h"

#include "platform/files/Folders.h"
#include "platform/files/IniFile.h"

namespace kinalyx {

namespace {
constexpr const char* kSubjectStart = "Video Analysis from ";
}

MailSettings::MailSettings(const std::string& dataPath) : file_(JoinPath(dataPath, "mail.ini")) {}

void MailSettings::LoadMailSettings() {
  const ProfileReader reader(file_);
  std::vector<ProfileEntry> missing;
  const auto read = [&](const char* key, const std::string& fallback) {
    const auto value = reader.Value("General", key);
    if (!value) missing.push_back({"General", key, fallback});
    return value.value_or(fallback);
  };
  SenderName = read("SenderName", "");
  Subject = read("Subject", kSubjectStart + SenderName);
  // A file that cannot be written leaves the defaults for this run; the next one tries again.
  if (!missing.empty()) WriteProfileEntries(missing, file_);
}

bool MailSettings::WriteMailKey(const std::string& key, const std::string& value) {
  return WritePrivateProfileString("General", key, value, file_);
}

void MailSettings::TakeSender(const std::string& userName, const std::string& companyName) {
  SenderName = userName;
  Subject = kSubjectStart + companyName;
  WriteMailKey("SenderName", SenderName);
  WriteMailKey("Subject", Subject);
}

}  // namespace kinalyx
