#include "platform/net/ListingReader.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>

namespace kinalyx {
namespace {

bool IsDigit(char letter) { return letter >= '0' && letter <= '9'; }
bool IsControl(char letter) { return static_cast<unsigned char>(letter) < ' ' || letter == 0x7f; }
char Small(char letter) { return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter; }

bool SameText(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, [](char x, char y) { return Small(x) == Small(y); });
}

bool AllDigits(std::string_view text) { return !text.empty() && std::ranges::all_of(text, IsDigit); }

/// A whole number from 0 up; nothing for anything else.
std::optional<std::int64_t> Number(std::string_view text) {
  std::int64_t value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size() || value < 0) return std::nullopt;
  return value;
}

/// The next word of a line and where it ends; empty at the end of the line.
std::string_view NextWord(std::string_view line, std::size_t& at) {
  at = std::min(line.find_first_not_of(' ', at), line.size());
  const std::size_t begin = at;
  at = std::min(line.find(' ', at), line.size());
  return line.substr(begin, at - begin);
}

/// "type=dir;size=5;modify=20260101120000; name"
std::optional<ServerEntry> ReadFacts(std::string_view line) {
  const std::size_t blank = line.find(' ');
  if (blank == std::string_view::npos) return std::nullopt;
  ServerEntry entry;
  entry.name = line.substr(blank + 1);
  std::string_view facts = line.substr(0, blank);
  while (!facts.empty()) {
    const std::string_view fact = facts.substr(0, facts.find(';'));
    facts.remove_prefix(std::min(fact.size() + 1, facts.size()));
    const std::size_t equals = fact.find('=');
    if (equals == std::string_view::npos) return std::nullopt;
    const std::string_view key = fact.substr(0, equals), value = fact.substr(equals + 1);
    if (SameText(key, "size")) entry.bytes = Number(value).value_or(-1);
    if (!SameText(key, "type")) continue;
    entry.folder = SameText(value, "dir");
    // The folder itself and the one above it: read, and dropped by their names.
    if (SameText(value, "cdir") || SameText(value, "pdir")) entry.name = ".";
  }
  if (entry.folder) entry.bytes = -1;
  return entry;
}

/// "10:15", "10:15:30" or "2026"
bool IsTimeOrYear(std::string_view word) {
  if (word.size() == 4 && AllDigits(word)) return true;
  const std::size_t colon = word.find(':');
  return colon != std::string_view::npos && AllDigits(word.substr(0, colon)) && colon + 1 < word.size() &&
         std::ranges::all_of(word.substr(colon + 1), [](char c) { return IsDigit(c) || c == ':' || c == '.'; });
}

bool IsDay(std::string_view word) {
  if (word.ends_with('.')) word.remove_suffix(1);  // as some languages write it
  return word.size() <= 2 && AllDigits(word);
}

bool IsMonth(std::string_view word) { return word.size() >= 2 && word.size() <= 12 && !IsDigit(word[0]); }

bool IsIsoDate(std::string_view word) {
  return word.size() == 10 && word[4] == '-' && word[7] == '-' && IsDigit(word[0]);
}

/// "-rw-r--r--  1 anna users  5120 Jan  2 10:15 swing.avi". Owner and group may be missing or hold blanks, months stand
/// in any language: the size is the number before what reads as a moment.
std::optional<ServerEntry> ReadUnixLine(std::string_view line) {
  constexpr std::string_view kKinds = "-dlbcps";
  if (line.size() < 10 || kKinds.find(line[0]) == std::string_view::npos) return std::nullopt;
  if (std::string_view("r-").find(line[1]) == std::string_view::npos) return std::nullopt;
  std::size_t at = 0;
  NextWord(line, at);
  while (at < line.size()) {
    const auto size = Number(NextWord(line, at));
    if (!size) continue;
    std::size_t ahead = at;
    const std::string_view first = NextWord(line, ahead), second = NextWord(line, ahead);
    bool moment = IsIsoDate(first) && IsTimeOrYear(second);
    if (!moment && ((IsMonth(first) && IsDay(second)) || (IsDay(first) && IsMonth(second))))
      moment = IsTimeOrYear(NextWord(line, ahead));
    if (!moment || ahead + 1 >= line.size()) continue;
    ServerEntry entry;
    entry.folder = line[0] == 'd';
    entry.bytes = line[0] == '-' ? *size : -1;
    std::string_view name = line.substr(ahead + 1);
    if (line[0] == 'l') name = name.substr(0, name.find(" -> "));
    entry.name = name;
    return entry;
  }
  return std::nullopt;
}

/// "01-02-26  10:15AM       <DIR>          Drivers" or with a size in its place
std::optional<ServerEntry> ReadDosLine(std::string_view line) {
  std::size_t at = 0;
  const std::string_view date = NextWord(line, at);
  const bool isDate = date.size() >= 6 && date.size() <= 10 &&
                      std::ranges::all_of(date, [](char c) { return IsDigit(c) || c == '-' || c == '/' || c == '.'; });
  const std::string_view time = NextWord(line, at);
  if (!isDate || time.find(':') == std::string_view::npos || !IsDigit(time[0])) return std::nullopt;
  std::string_view what = NextWord(line, at);
  if (SameText(what, "AM") || SameText(what, "PM")) what = NextWord(line, at);
  ServerEntry entry;
  if (SameText(what, "<DIR>")) {
    entry.folder = true;
    at = std::min(line.find_first_not_of(' ', at), line.size());
  } else {
    std::string digits(what);
    std::erase(digits, ',');
    const auto size = Number(digits);
    if (!size) return std::nullopt;
    entry.bytes = *size;
    at = std::min(at + 1, line.size());
  }
  entry.name = line.substr(at);
  return entry;
}

std::optional<ServerEntry> ReadLine(ListingForm form, std::string_view line) {
  if (form == ListingForm::Facts) return ReadFacts(line);
  if (form == ListingForm::Names) return ServerEntry{.name = std::string(line)};
  if (auto entry = ReadUnixLine(line)) return entry;
  return ReadDosLine(line);
}

}  // namespace

bool IsServerName(std::string_view name) {
  return !name.empty() && name != "." && name != ".." && name.find('/') == std::string_view::npos &&
         std::ranges::none_of(name, IsControl);
}

Listing ReadListing(ListingForm form, std::string_view text) {
  Listing listing;
  bool anyLine = false, anyRead = false;
  while (!text.empty() && listing.entries.size() < kMostEntries) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (line.empty() || (form == ListingForm::Long && line.starts_with("total "))) continue;
    anyLine = true;
    auto entry = ReadLine(form, line);
    if (!entry) continue;
    anyRead = true;
    if (IsServerName(entry->name)) listing.entries.push_back(std::move(*entry));
  }
  listing.understood = anyRead || !anyLine;
  return listing;
}

}  // namespace kinalyx
