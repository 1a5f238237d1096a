#include "library/TextMerge.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <vector>

namespace kinalyx {
namespace {

using Lines = std::vector<std::string_view>;

Lines LinesOf(std::string_view text) {
  Lines lines;
  if (text.empty()) return lines;
  for (;;) {
    const std::size_t end = text.find('\n');
    std::string_view line = text.substr(0, end);
    if (end != std::string_view::npos && line.ends_with('\r')) line.remove_suffix(1);
    lines.push_back(line);
    if (end == std::string_view::npos) return lines;
    text.remove_prefix(end + 1);
  }
}

/// Longer differences than this are taken as one: the table of the comparison grows with their product.
constexpr std::size_t kMostLines = 4000;

/// For each line of `base` its partner in `other` along their longest common subsequence, or -1.
std::vector<int> PartnersOf(const Lines& base, const Lines& other) {
  std::vector<int> partners(base.size(), -1);
  std::size_t from = 0;
  while (from < base.size() && from < other.size() && base[from] == other[from]) {
    partners[from] = static_cast<int>(from);
    ++from;
  }
  std::size_t baseEnd = base.size();
  std::size_t otherEnd = other.size();
  while (baseEnd > from && otherEnd > from && base[baseEnd - 1] == other[otherEnd - 1])
    partners[--baseEnd] = static_cast<int>(--otherEnd);

  const std::size_t rows = baseEnd - from;
  const std::size_t columns = otherEnd - from;
  if (rows == 0 || columns == 0 || rows > kMostLines || columns > kMostLines) return partners;
  // longest[r][c]: of what begins at row r and column c.
  std::vector<int> longest((rows + 1) * (columns + 1), 0);
  const auto at = [&](std::size_t r, std::size_t c) -> int& { return longest[r * (columns + 1) + c]; };
  for (std::size_t r = rows; r-- > 0;) {
    for (std::size_t c = columns; c-- > 0;)
      at(r, c) = base[from + r] == other[from + c] ? at(r + 1, c + 1) + 1 : std::max(at(r + 1, c), at(r, c + 1));
  }
  for (std::size_t r = 0, c = 0; r < rows && c < columns;) {
    if (base[from + r] == other[from + c]) {
      partners[from + r] = static_cast<int>(from + c);
      ++r;
      ++c;
    } else if (at(r + 1, c) >= at(r, c + 1)) {
      ++r;
    } else {
      ++c;
    }
  }
  return partners;
}

/// What both have made of a stretch of the base in which they do not agree with it.
void AddStretch(Lines& merged, std::span<const std::string_view> base, std::span<const std::string_view> mine,
                std::span<const std::string_view> theirs) {
  const auto has = [](std::span<const std::string_view> lines, std::string_view line) {
    return std::ranges::find(lines, line) != lines.end();
  };
  const bool mineStands = std::ranges::equal(theirs, base) || std::ranges::equal(mine, theirs);
  if (mineStands || std::ranges::equal(mine, base)) {
    const auto lines = mineStands ? mine : theirs;
    merged.insert(merged.end(), lines.begin(), lines.end());
    return;
  }
  for (const std::string_view line : mine) {
    if (!has(base, line) || has(theirs, line)) merged.push_back(line);
  }
  for (const std::string_view line : theirs) {
    if (!has(base, line) && !has(mine, line)) merged.push_back(line);
  }
}

}  // namespace

std::string MergeTexts(std::string_view base, std::string_view mine, std::string_view theirs) {
  if (mine == theirs || theirs == base) return std::string(mine);
  if (mine == base) return std::string(theirs);

  const Lines baseLines = LinesOf(base);
  const Lines myLines = LinesOf(mine);
  const Lines theirLines = LinesOf(theirs);
  const std::vector<int> inMine = PartnersOf(baseLines, myLines);
  const std::vector<int> inTheirs = PartnersOf(baseLines, theirLines);

  Lines merged;
  std::size_t b = 0;
  std::size_t m = 0;
  std::size_t t = 0;
  for (std::size_t line = 0; line <= baseLines.size(); ++line) {
    // A line that all three have ends the stretch before it; so does the end of all.
    const bool end = line == baseLines.size();
    if (!end && (inMine[line] < 0 || inTheirs[line] < 0)) continue;
    const std::size_t toMine = end ? myLines.size() : static_cast<std::size_t>(inMine[line]);
    const std::size_t toTheirs = end ? theirLines.size() : static_cast<std::size_t>(inTheirs[line]);
    AddStretch(merged, std::span(baseLines).subspan(b, line - b), std::span(myLines).subspan(m, toMine - m),
               std::span(theirLines).subspan(t, toTheirs - t));
    if (end) break;
    merged.push_back(baseLines[line]);
    b = line + 1;
    m = toMine + 1;
    t = toTheirs + 1;
  }

  const std::string_view model = mine.find('\n') != std::string_view::npos ? mine : theirs;
  const std::string_view lineEnd = model.find("\r\n") != std::string_view::npos ? "\r\n" : "\n";
  std::string text;
  for (std::size_t i = 0; i < merged.size(); ++i) {
    if (i > 0) text += lineEnd;
    text += merged[i];
  }
  return text;
}

}  // namespace kinalyx
