#include "library/TextMerge.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace kinalyx {

namespace {

using Lines = std::span<const std::string_view>;

/// At most so many pairs of lines are compared. Longer texts that differ from end to end count as replaced.
constexpr std::size_t kMostPairs = 4'000'000;

/// The text without its first line, and that line without its end.
std::string_view TakeLine(std::string_view& text) {
  const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
  const std::string_view line = text.substr(0, end);
  text.remove_prefix(end);
  if (!text.empty()) text.remove_prefix(text.starts_with("\r\n") ? 2 : 1);
  return line;
}

std::vector<std::string_view> LinesOf(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) lines.push_back(TakeLine(text));
  return lines;
}

bool IsEnded(std::string_view text) { return text.ends_with('\n') || text.ends_with('\r'); }

/// How the lines of a text end, as the first one does; empty where none has an end.
std::string_view EndsOf(std::string_view text) {
  const std::size_t end = text.find_first_of("\r\n");
  if (end == std::string_view::npos) return {};
  return text.substr(end, text.substr(end).starts_with("\r\n") ? 2 : 1);
}

struct Step {
  enum Kind { Both, First, Second } kind;
  std::string_view line;
};

/// The shortest edit script from one text to the other, by their longest common subsequence of lines. Equal
/// lines at the beginning and end are taken off first; in a gap the lines of the first come first.
std::vector<Step> Align(Lines first, Lines second) {
  std::vector<Step> way;
  while (!first.empty() && !second.empty() && first.front() == second.front()) {
    way.push_back({Step::Both, first.front()});
    first = first.subspan(1);
    second = second.subspan(1);
  }
  std::size_t tail = 0;
  while (tail < std::min(first.size(), second.size()) &&
         first[first.size() - 1 - tail] == second[second.size() - 1 - tail])
    ++tail;
  const Lines end = first.last(tail);
  first = first.first(first.size() - tail);
  second = second.first(second.size() - tail);

  std::size_t i = 0;
  std::size_t k = 0;
  if (!first.empty() && second.size() <= kMostPairs / first.size()) {
    // common[i][k]: length of the longest common subsequence of the lines from i and from k on.
    const std::size_t width = second.size() + 1;
    std::vector<std::uint32_t> common((first.size() + 1) * width);
    for (std::size_t a = first.size(); a-- > 0;)
      for (std::size_t b = second.size(); b-- > 0;)
        common[a * width + b] = first[a] == second[b]
                                    ? common[(a + 1) * width + b + 1] + 1
                                    : std::max(common[(a + 1) * width + b], common[a * width + b + 1]);
    while (i < first.size() && k < second.size()) {
      if (first[i] == second[k]) {
        way.push_back({Step::Both, first[i++]});
        ++k;
      } else if (common[(i + 1) * width + k] >= common[i * width + k + 1]) {
        way.push_back({Step::First, first[i++]});
      } else {
        way.push_back({Step::Second, second[k++]});
      }
    }
  }
  for (; i < first.size(); ++i) way.push_back({Step::First, first[i]});
  for (; k < second.size(); ++k) way.push_back({Step::Second, second[k]});
  for (const std::string_view line : end) way.push_back({Step::Both, line});
  return way;
}

/// What one side has made of the base, by line of the base.
struct Changes {
  explicit Changes(std::size_t lines) : kept(lines), before(lines + 1), instead(lines + 1) {}

  std::vector<bool> kept;
  std::vector<std::vector<std::string_view>> before;   ///< what was added before the line, or at the end
  std::vector<std::vector<std::string_view>> instead;  ///< what has taken the place of it, and of those that follow
};

Changes ChangesOf(Lines base, Lines after) {
  Changes changes(base.size());
  std::size_t line = 0;
  std::size_t first = 0;  // the first of the removed lines since the last common one
  std::vector<std::string_view> added;
  const auto store = [&] {
    (line > first ? changes.instead : changes.before)[first] = std::move(added);
    added.clear();
  };
  for (const Step& step : Align(base, after)) {
    if (step.kind == Step::Second) added.push_back(step.line);
    if (step.kind == Step::First) ++line;
    if (step.kind != Step::Both) continue;
    store();
    changes.kept[line++] = true;
    first = line;
  }
  store();
  return changes;
}

}  // namespace

std::string MergeTexts(std::string_view base, std::string_view mine, std::string_view theirs) {
  const auto old = LinesOf(base);
  const auto here = LinesOf(mine);
  const auto there = LinesOf(theirs);
  if (here == there || there == old) return std::string(mine);
  if (here == old) return std::string(theirs);

  const Changes ours = ChangesOf(old, here);
  const Changes others = ChangesOf(old, there);
  std::vector<std::string_view> lines;
  for (std::size_t line = 0; line <= old.size(); ++line) {
    for (const Step& step : Align(ours.before[line], others.before[line])) lines.push_back(step.line);
    for (const Step& step : Align(ours.instead[line], others.instead[line])) lines.push_back(step.line);
    if (line < old.size() && ours.kept[line] && others.kept[line]) lines.push_back(old[line]);
  }

  std::string_view end = EndsOf(mine);
  if (end.empty()) end = EndsOf(theirs);
  if (end.empty()) end = "\r\n";
  std::string merged;
  for (const std::string_view line : lines) merged.append(line).append(end);
  if (!lines.empty() && !IsEnded(mine.empty() ? theirs : mine)) merged.resize(merged.size() - end.size());
  return merged;
}

}  // namespace kinalyx
