#include "platform/net/MailText.h"

#include <fmt/format.h>

#include <QByteArray>
#include <QString>
#include <QUrl>
#include <algorithm>
#include <array>
#include <cstddef>
#include <ctime>
#include <random>
#include <utility>

#include "platform/files/TextEncoding.h"
#include "platform/files/Tr.h"
#include "platform/net/IMailSender.h"

namespace kinalyx {
namespace {

/// Bytes of one encoded word or piece: short enough for the longest name of a header before it.
constexpr std::size_t kWordBytes = 36;
constexpr std::size_t kPlainLength = 60;

bool IsControl(char letter) { return static_cast<unsigned char>(letter) < ' ' || letter == 0x7f; }
bool IsAscii(std::string_view text) {
  return std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

/// Valid UTF-8 on one line.
std::string OneLine(std::string_view text) {
  std::string line = AsUtf8(text);
  std::ranges::replace_if(line, IsControl, ' ');
  return line;
}

std::string EncodedWords(std::string_view text) {
  std::string words;
  while (!text.empty()) {
    const std::string_view piece = CutUtf8(text, kWordBytes);
    text.remove_prefix(piece.size());
    const QByteArray bytes(piece.data(), static_cast<qsizetype>(piece.size()));
    if (!words.empty()) words += "\r\n ";
    words += "=?UTF-8?B?" + bytes.toBase64().toStdString() + "?=";
  }
  return words;
}

/// In quotes where it is plain.
std::string QuotedOrEncoded(std::string_view text) {
  const std::string line = OneLine(text);
  if (!IsAscii(line) || line.size() > kPlainLength || line.find("=?") != std::string::npos) return EncodedWords(line);
  std::string quoted = "\"";
  for (const char letter : line) {
    if (letter == '"' || letter == '\\') quoted += '\\';
    quoted += letter;
  }
  return quoted + '"';
}

}  // namespace

std::string EncodedText(std::string_view text) {
  std::string line = OneLine(text);
  const bool plain = IsAscii(line) && line.size() <= kPlainLength && line.find("=?") == std::string::npos;
  return plain ? line : EncodedWords(line);
}

std::string EncodedMailbox(std::string_view name, const std::string& address) {
  const std::string line = OneLine(name);
  if (Trimmed(line, " ").empty()) return address;
  return QuotedOrEncoded(Trimmed(line, " ")) + "\r\n <" + address + '>';
}

std::string EncodedParameter(std::string_view name, std::string_view value) {
  const std::string line = OneLine(value);
  const bool plain = IsAscii(line) && line.size() <= kPlainLength && line.find_first_of("\"\\") == std::string::npos;
  if (plain) return fmt::format(";\r\n {}=\"{}\"", name, line);
  const auto encode = [](std::string_view piece) {
    return QByteArray(piece.data(), static_cast<qsizetype>(piece.size())).toPercentEncoding().toStdString();
  };
  constexpr std::size_t kPiece = kWordBytes / 2;  // one byte becomes three letters
  std::string_view rest = line;
  if (rest.size() <= kPiece) return fmt::format(";\r\n {}*=UTF-8''{}", name, encode(rest));
  std::string pieces;
  for (int number = 0; !rest.empty(); ++number) {
    const std::string_view piece = CutUtf8(rest, kPiece);
    rest.remove_prefix(piece.size());
    pieces += fmt::format(";\r\n {}*{}*={}{}", name, number, number == 0 ? "UTF-8''" : "", encode(piece));
  }
  return pieces;
}

bool IsMailAddress(const std::string& text) {
  const std::size_t at = text.find('@');
  return at != std::string::npos && at > 0 && at + 1 < text.size() && text.find('@', at + 1) == std::string::npos &&
         text.find_first_of(" <>()[],;:\"\\") == std::string::npos && std::ranges::none_of(text, IsControl) &&
         IsValidUtf8(text);
}

Result<std::string> PlainAddress(const std::string& address) {
  if (!IsMailAddress(address)) return Outcome::Failed(Tr("\"{}\" is no e-mail address.", OneLine(address)));
  const std::size_t at = address.find('@');
  const std::string reader = address.substr(0, at), server = address.substr(at + 1);
  if (!IsAscii(reader))
    return Outcome::Failed(Tr("\"{}\" holds a letter before the \"@\" that mail servers do not know.", address));
  if (IsAscii(server)) return address;
  const std::string plain = QUrl::toAce(QString::fromStdString(server)).toStdString();
  if (plain.empty()) return Outcome::Failed(Tr("\"{}\" is no e-mail address.", address));
  return reader + '@' + plain;
}

std::string MailDate(std::int64_t time) {
  constexpr std::array kDays{"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
  constexpr std::array kMonths{"Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
  const auto seconds = static_cast<std::time_t>(time);
  std::tm local{};
  ::localtime_r(&seconds, &local);
  const long minutes = local.tm_gmtoff / 60;
  return fmt::format("{}, {} {} {} {:02}:{:02}:{:02} {}{:02}{:02}", kDays[static_cast<std::size_t>(local.tm_wday)],
                     local.tm_mday, kMonths[static_cast<std::size_t>(local.tm_mon)], local.tm_year + 1900,
                     local.tm_hour, local.tm_min, local.tm_sec, minutes < 0 ? '-' : '+', std::abs(minutes) / 60,
                     std::abs(minutes) % 60);
}

std::string NewMessageId(const std::string& address) {
  std::random_device dice;
  return fmt::format("<{:08x}{:08x}{:08x}@{}>", dice(), dice(), dice(), address.substr(address.find('@') + 1));
}

std::string_view ContentTypeOf(std::string_view name) {
  constexpr std::pair<std::string_view, std::string_view> kTypes[] = {
      {".jpg", "image/jpeg"},       {".jpeg", "image/jpeg"},     {".png", "image/png"},  {".gif", "image/gif"},
      {".avi", "video/x-msvideo"},  {".wmv", "video/x-ms-wmv"},  {".mp4", "video/mp4"},  {".mov", "video/quicktime"},
      {".mkv", "video/x-matroska"}, {".pdf", "application/pdf"}, {".html", "text/html"}, {".txt", "text/plain"},
  };
  const std::string folded = FoldCase(name);
  for (const auto& [ending, type] : kTypes) {
    if (folded.ends_with(ending)) return type;
  }
  return "application/octet-stream";
}

std::string MailLines(std::string_view text) {
  const std::string clean = AsUtf8(text);
  std::string lines;
  lines.reserve(clean.size() + clean.size() / 16);
  for (std::size_t i = 0; i < clean.size(); ++i) {
    const char letter = clean[i];
    if (letter == '\r' || letter == '\n') {
      if (letter == '\r' && i + 1 < clean.size() && clean[i + 1] == '\n') ++i;
      lines += "\r\n";
    } else if (letter == '\t' || !IsControl(letter)) {
      lines += letter;
    }
  }
  return lines;
}

}  // namespace kinalyx
