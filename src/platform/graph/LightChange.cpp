#include "platform/graph/LightChange.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace kinalyx {
namespace {

constexpr int kAcross = 32;  // pixels that are read
constexpr int kDown = 24;
constexpr float kClipped = 250;   // from here on a pixel does not tell how bright it is
constexpr float kAlike = 6;       // levels that noise makes
constexpr float kExplained = 10;  // and that a change leaves over
constexpr double kMostAlike = 0.8;
constexpr double kMostExplained = 0.6;

using Pair = std::pair<float, float>;  // then, now

float MedianOf(std::vector<float>& values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::ranges::nth_element(values, middle);
  return *middle;
}

Pair MedianOf(std::span<const Pair> pairs) {
  std::vector<float> then, now;
  for (const auto& [a, b] : pairs) {
    then.push_back(a);
    now.push_back(b);
  }
  return {MedianOf(then), MedianOf(now)};
}

double LeftOver(const Pair& pair, const LightChange& change) {
  return std::abs(change.gain * pair.first + change.offset - pair.second);
}

/// The straight line through the middles of the dark third and of the bright third.
LightChange ResistantLine(std::vector<Pair>& pairs) {
  std::ranges::sort(pairs);
  const std::size_t third = pairs.size() / 3;
  const Pair dark = MedianOf(std::span(pairs).first(third));
  const Pair bright = MedianOf(std::span(pairs).last(third));
  LightChange line;
  // A picture of one brightness tells an offset alone.
  constexpr float kApart = 16;
  if (bright.first - dark.first > kApart) line.gain = (bright.second - dark.second) / (bright.first - dark.first);
  std::vector<float> offsets;
  for (const auto& [then, now] : pairs) offsets.push_back(static_cast<float>(now - line.gain * then));
  line.offset = MedianOf(offsets);
  return line;
}

/// The best line for what a line explains already.
LightChange Refined(std::span<const Pair> pairs, const LightChange& line) {
  double n = 0, x = 0, y = 0, xx = 0, xy = 0;
  for (const Pair& pair : pairs) {
    if (LeftOver(pair, line) > kExplained) continue;
    n += 1;
    x += pair.first;
    y += pair.second;
    xx += static_cast<double>(pair.first) * pair.first;
    xy += static_cast<double>(pair.first) * pair.second;
  }
  const double spread = n * xx - x * x;
  if (n < 2 || spread < 1) return line;
  const double gain = (n * xy - x * y) / spread;
  return {gain, (y - gain * x) / n};
}

}  // namespace

LightChange FitLight(std::span<const float> then, std::span<const float> now) {
  const std::size_t count = std::min(then.size(), now.size());
  std::vector<Pair> pairs;
  pairs.reserve(count);
  std::size_t alike = 0;
  for (std::size_t i = 0; i < count; ++i) {
    if (std::abs(then[i] - now[i]) <= kAlike) ++alike;
    if (then[i] < kClipped && now[i] < kClipped) pairs.emplace_back(then[i], now[i]);
  }
  constexpr std::size_t kFewest = 30;
  if (static_cast<double>(alike) >= kMostAlike * static_cast<double>(count) || pairs.size() < kFewest) return {};
  LightChange line = ResistantLine(pairs);
  for (int i = 0; i < 2; ++i) line = Refined(pairs, line);
  const auto explained =
      std::ranges::count_if(pairs, [&](const Pair& pair) { return LeftOver(pair, line) <= kExplained; });
  constexpr double kMostGain = 4;
  const bool sane = line.gain > 1 / kMostGain && line.gain < kMostGain;
  if (!sane || static_cast<double>(explained) < kMostExplained * static_cast<double>(pairs.size())) return {};
  return line;
}

void LightMeter::Look(const LumaPicture& picture, double learning) {
  std::swap(last_, now_);
  now_.clear();
  for (int row = 0; row < kDown; ++row) {
    const std::uint8_t* bytes =
        picture.bytes + static_cast<std::ptrdiff_t>((2 * row + 1) * picture.height / (2 * kDown)) * picture.stride;
    for (int column = 0; column < kAcross; ++column) {
      const int x = std::min((2 * column + 1) * picture.width / (2 * kAcross), picture.width - 2);
      now_.push_back((static_cast<float>(bytes[std::max(0, x)]) + static_cast<float>(bytes[x + 1])) / 2);
    }
  }
  if (last_.size() != now_.size()) {
    mean_ = now_;
    sinceLast_ = sinceMean_ = {};
    return;
  }
  sinceLast_ = FitLight(last_, now_);
  sinceMean_ = FitLight(mean_, now_);
  for (std::size_t i = 0; i < now_.size(); ++i) {
    const double was = sinceMean_.gain * mean_[i] + sinceMean_.offset;
    mean_[i] = static_cast<float>(was + learning * (now_[i] - was));
  }
}

}  // namespace kinalyx
