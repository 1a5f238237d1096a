#include "platform/files/IniFile.h"

#include <algorithm>
#include <cstdint>

#include "platform/files/FileStore.h"
#include "platform/files/Folders.h"
#include "platform/files/TextEncoding.h"

namespace kinalyx {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::string_view Trimmed(std::string_view text) { return kinalyx::Trimmed(text, " \t\r"); }

bool SameName(std::string_view a, std::string_view b) {
  if (a.size() == b.size() && a == b) return true;
  return FoldCase(a) == FoldCase(b);
}

std::string CutCharacters(std::string_view text, int characters) {
  std::size_t end = 0;
  for (int left = std::max(0, characters); left > 0 && end < text.size(); --left) {
    ++end;
    while (end < text.size() && (static_cast<std::uint8_t>(text[end]) & 0xC0) == 0x80) ++end;
  }
  return std::string(text.substr(0, end));
}

/// What one line of a file says; views into the line.
struct Line {
  enum Kind { Other, Section, Key } kind = Other;
  std::string_view name;
  std::string_view value;
};

Line Parse(std::string_view text) {
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  text = Trimmed(text);
  if (text.empty() || text.front() == ';') return {};
  if (text.front() == '[') {
    const std::size_t close = text.find(']');
    return {Line::Section, Trimmed(text.substr(1, close == std::string_view::npos ? close : close - 1)), {}};
  }
  const std::size_t equals = text.find('=');
  if (equals == std::string_view::npos) return {};
  return {Line::Key, Trimmed(text.substr(0, equals)), Trimmed(text.substr(equals + 1))};
}

/// The lines of a text without their line feeds; carriage returns stay, so that they are written back.
std::vector<std::string> SplitLines(const std::string& text) {
  std::vector<std::string> lines;
  for (std::size_t at = 0; at < text.size();) {
    std::size_t end = text.find('\n', at);
    if (end == std::string::npos) end = text.size();
    lines.push_back(text.substr(at, end - at));
    at = end + 1;
  }
  return lines;
}

/// Calls `visit(index, line)` for the keys of a section until it returns true.
template <typename Visit>
void ForEachKey(const std::vector<std::string>& lines, std::string_view section, Visit visit) {
  bool inside = false;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const Line line = Parse(lines[i]);
    if (line.kind == Line::Section) inside = SameName(line.name, section);
    if (inside && line.kind == Line::Key && visit(i, line)) return;
  }
}

std::optional<std::string> Find(const std::vector<std::string>& lines, std::string_view section, std::string_view key) {
  std::optional<std::string> value;
  ForEachKey(lines, section, [&](std::size_t, const Line& line) {
    if (!SameName(line.name, key)) return false;
    value = std::string(line.value);
    return true;
  });
  return value;
}

bool CanBeFoundAgain(std::string_view section, std::string_view key) {
  const bool plainKey = !Trimmed(key).empty() && key.find_first_of("=\r\n") == std::string_view::npos &&
                        Trimmed(key).front() != ';' && Trimmed(key).front() != '[';
  return plainKey && !Trimmed(section).empty() && section.find_first_of("]\r\n") == std::string_view::npos;
}

class Document {
 public:
  /// False when a file is there but cannot be read: it must not be written over.
  bool Load(const std::string& path) {
    const auto text = ReadTextFile(path);
    if (!text) return !FileExists(path);
    lines_ = SplitLines(*text);
    carriage_ = text->find("\r\n") != std::string::npos;
    return true;
  }

  bool Save(const std::string& path) const {
    std::string text;
    for (const auto& line : lines_) text.append(line).append("\n");
    return static_cast<bool>(WriteWholeFile(path, std::string_view(text)));
  }

  void Set(std::string_view section, std::string_view key, std::string_view value) {
    std::string plain(value);
    std::replace_if(
        plain.begin(), plain.end(), [](char c) { return c == '\r' || c == '\n' || c == '\0'; }, ' ');
    const std::string line = std::string(Trimmed(key)) + "=" + plain;
    bool replaced = false;
    ForEachKey(lines_, section, [&](std::size_t i, const Line& found) {
      if (!SameName(found.name, key)) return false;
      lines_[i] = Ended(line);
      return replaced = true;
    });
    if (!replaced) Append(section, line);
  }

  bool Remove(std::string_view section, std::string_view key) {
    std::optional<std::size_t> index;
    ForEachKey(lines_, section, [&](std::size_t i, const Line& line) {
      if (!SameName(line.name, key)) return false;
      index = i;
      return true;
    });
    if (index) lines_.erase(lines_.begin() + static_cast<std::ptrdiff_t>(*index));
    return index.has_value();
  }

 private:
  std::string Ended(std::string line) const { return carriage_ ? line + "\r" : line; }

  void Append(std::string_view section, const std::string& line) {
    std::size_t after = 0;  // behind the last line of the section that is not blank
    bool inside = false;
    for (std::size_t i = 0; i < lines_.size(); ++i) {
      const Line parsed = Parse(lines_[i]);
      if (parsed.kind == Line::Section) {
        if (inside) break;
        inside = SameName(parsed.name, section);
      }
      if (inside && !Trimmed(lines_[i]).empty()) after = i + 1;
    }
    if (!after) {
      if (!lines_.empty() && !Trimmed(lines_.back()).empty()) lines_.push_back(Ended(""));
      lines_.push_back(Ended("[" + std::string(section) + "]"));
      after = lines_.size();
    }
    lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(after), Ended(line));
  }

  std::vector<std::string> lines_;
  bool carriage_ = false;
};

}  // namespace

ProfileReader::ProfileReader(const std::string& path) {
  if (const auto text = ReadTextFile(path)) {
    open_ = true;
    lines_ = SplitLines(*text);
  }
}

std::optional<std::string> ProfileReader::Value(std::string_view section, std::string_view key) const {
  return Find(lines_, section, key);
}

std::string ProfileReader::String(std::string_view section, std::string_view key, std::string_view fallback,
                                  int capacity) const {
  const auto value = Find(lines_, section, key);
  return CutCharacters(value ? std::string_view(*value) : fallback, capacity - 1);
}

std::string GetPrivateProfileString(std::string_view section, std::string_view key, std::string_view fallback,
                                    int capacity, const std::string& path) {
  return ProfileReader(path).String(section, key, fallback, capacity);
}

std::optional<std::string> ReadProfileValue(std::string_view section, std::string_view key, const std::string& path) {
  return ProfileReader(path).Value(section, key);
}

bool WritePrivateProfileString(std::string_view section, std::string_view key, std::string_view value,
                               const std::string& path) {
  return WriteProfileEntries({{std::string(section), std::string(key), std::string(value)}}, path);
}

bool WriteProfileEntries(const std::vector<ProfileEntry>& entries, const std::string& path) {
  Document document;
  if (!document.Load(path)) return false;
  for (const auto& entry : entries) {
    if (!CanBeFoundAgain(entry.section, entry.key)) return false;
    document.Set(entry.section, entry.key, entry.value);
  }
  return document.Save(path);
}

bool DeleteProfileKey(std::string_view section, std::string_view key, const std::string& path) {
  Document document;
  if (!document.Load(path)) return false;
  return !document.Remove(section, key) || document.Save(path);
}

}  // namespace kinalyx
