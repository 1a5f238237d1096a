#include "platform/files/TextSearch.h"

#include <QString>
#include <algorithm>

namespace kinalyx {

namespace {

/// Letters whose stroke is no accent of its own.
QString Plain(char32_t letter) {
  switch (letter) {
    case U'ł': return "l";
    case U'đ':
    case U'ð': return "d";
    case U'ø': return "o";
    case U'ħ': return "h";
    case U'ı': return "i";
    case U'ß': return "ss";
    case U'æ': return "ae";
    case U'œ': return "oe";
    case U'þ': return "th";
    case U'ŧ': return "t";
    default: return {};
  }
}

/// Marks that make another letter of a Japanese syllable.
bool IsVoicing(QChar mark) { return mark == QChar(0x3099) || mark == QChar(0x309A); }

void AppendFolded(std::string& folded, std::string_view text) {
  const QString whole = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()))
                            .toCaseFolded()
                            .normalized(QString::NormalizationForm_KD)
                            .toCaseFolded();
  QString plain;
  plain.reserve(whole.size());
  for (const QChar letter : whole) {
    if (letter.category() == QChar::Mark_NonSpacing && !IsVoicing(letter)) continue;
    if (const QString other = Plain(letter.unicode()); !other.isEmpty()) plain += other;
    else plain += letter;
  }
  folded += plain.toStdString();
}

bool IsBlankByte(char byte) { return byte == ' ' || byte == '\n' || byte == '\r' || byte == '\t'; }

/// The text in pieces of one kind: runs of blanks, runs of ASCII, runs of other letters.
std::size_t PieceEnd(std::string_view text, std::size_t at) {
  const auto kind = [&](std::size_t place) {
    return IsBlankByte(text[place]) ? 0 : static_cast<unsigned char>(text[place]) < 0x80 ? 1 : 2;
  };
  std::size_t end = at + 1;
  while (end < text.size() && kind(end) == kind(at)) ++end;
  return end;
}

void AppendPiece(std::string& folded, std::string_view piece) {
  if (IsBlankByte(piece.front())) folded += ' ';
  else if (static_cast<unsigned char>(piece.front()) >= 0x80) AppendFolded(folded, piece);
  else
    for (const char c : piece) folded += c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

std::size_t LetterEnd(std::string_view text, std::size_t at) {
  ++at;
  while (at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80) ++at;
  return at;
}

}  // namespace

std::string Findable(std::string_view text) {
  std::string folded;
  folded.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = PieceEnd(text, at);
    AppendPiece(folded, text.substr(at, end - at));
    at = end;
  }
  return folded;
}

std::vector<std::string> SearchWords(std::string_view typed) {
  const std::string text = Findable(typed);
  std::vector<std::string> words;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find(' ', at), text.size());
    if (end > at) words.push_back(text.substr(at, end - at));
    at = end + 1;
  }
  return words;
}

FoundText TextAround(std::string_view text, std::string_view word, int around) {
  // Letter by letter, so that each place in the folded text has its place in the text.
  std::string folded;
  std::vector<std::size_t> places;  // of each byte of the folded text: where its letter begins
  std::vector<std::size_t> letters;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = IsBlankByte(text[at]) ? PieceEnd(text, at) : LetterEnd(text, at);
    letters.push_back(at);
    AppendPiece(folded, text.substr(at, end - at));
    places.resize(folded.size(), at);
    at = end;
  }
  const std::size_t found = word.empty() ? std::string::npos : folded.find(word);
  const bool there = found != std::string::npos;
  const std::size_t begin = there ? places[found] : 0;
  const std::size_t last = there ? places[found + word.size() - 1] : 0;
  const auto letterOf = [&](std::size_t place) {
    return static_cast<std::ptrdiff_t>(std::ranges::lower_bound(letters, place) - letters.begin());
  };
  const auto count = std::ssize(letters);
  const std::ptrdiff_t from = std::max<std::ptrdiff_t>(0, letterOf(begin) - around);
  const std::ptrdiff_t to = std::min(count, letterOf(last) + 1 + around);
  FoundText result;
  if (from > 0) result.text = "…";
  for (std::ptrdiff_t letter = from; letter < to; ++letter) {
    const std::size_t at = letters[static_cast<std::size_t>(letter)];
    const std::size_t end = letter + 1 < count ? letters[static_cast<std::size_t>(letter) + 1] : text.size();
    if (there && at == begin) result.at = result.text.size();
    if (IsBlankByte(text[at])) result.text += ' ';
    else result.text += text.substr(at, end - at);
    if (there && at == last) result.length = result.text.size() - result.at;
  }
  if (to < count) result.text += "…";
  return result;
}

}  // namespace kinalyx
