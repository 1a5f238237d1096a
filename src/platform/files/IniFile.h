#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kinalyx {

/// Plain INI files. Sections and keys are found without regard to case; values stand as they are,
/// with blanks around them cut off on reading. Files are written as UTF-8 and read as UTF-8 or, if
/// invalid, as Windows-1252. Comments, unknown lines and their order survive every write. Each write
/// goes to the disk at once, beside the old file and renamed over it.

/// The value of a key cut to `capacity` - 1 characters, or `fallback`, cut likewise, when the file, the
/// section or the key is missing.
std::string GetPrivateProfileString(std::string_view section, std::string_view key, std::string_view fallback,
                                    int capacity, const std::string& path);

/// The whole value; nothing when the file, the section or the key is missing.
std::optional<std::string> ReadProfileValue(std::string_view section, std::string_view key, const std::string& path);

/// Replaces the value in place, or appends the key to its section, or the section to the file; makes
/// the file when it is missing. Line ends inside the value become blanks. False when the disk refuses,
/// or when section or key could not be found again (empty, with a line end, with "=" or a leading ";"
/// or "["): the old file is then untouched.
bool WritePrivateProfileString(std::string_view section, std::string_view key, std::string_view value,
                               const std::string& path);

struct ProfileEntry {
  std::string section;
  std::string key;
  std::string value;
};

/// Writes several values in one go: one read, one write. All or none.
bool WriteProfileEntries(const std::vector<ProfileEntry>& entries, const std::string& path);

/// Removes a key; true when it is gone, also when it never was there.
bool DeleteProfileKey(std::string_view section, std::string_view key, const std::string& path);

/// One look at a file, for reading many keys of it: the disk is asked once.
class ProfileReader {
 public:
  explicit ProfileReader(const std::string& path);

  /// The file could be read.
  bool Open() const { return open_; }
  std::optional<std::string> Value(std::string_view section, std::string_view key) const;
  /// As GetPrivateProfileString.
  std::string String(std::string_view section, std::string_view key, std::string_view fallback, int capacity) const;

 private:
  std::vector<std::string> lines_;
  bool open_ = false;
};

}  // namespace kinalyx
