#include "platform/media/SteadyRate.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <utility>

namespace kinalyx {
namespace {

struct Rate {
  int rate;
  int scale;
  double PerMs() const { return rate / (1000.0 * scale); }
};

constexpr Rate kUsualRates[] = {
    {24000, 1001}, {24, 1},  {25, 1},        {30000, 1001}, {30, 1},  {48, 1},  {50, 1},  {60000, 1001},
    {60, 1},       {100, 1}, {120000, 1001}, {120, 1},      {200, 1}, {240, 1}, {480, 1}, {960, 1},
};
/// Pictures that are nearer to one another, in ms, are a fault of the file's clock.
constexpr double kLeastGapMs = 1;

Rate Every(double ms) { return {std::max(1, static_cast<int>(std::lround(1e6 / std::max(ms, kLeastGapMs)))), 1000}; }

/// Rates that may do, from the lowest up.
std::vector<Rate> RatesFor(double meanMs, double shortestMs) {
  std::vector<Rate> rates(std::begin(kUsualRates), std::end(kUsualRates));
  rates.push_back(Every(meanMs));
  rates.push_back(Every(shortestMs));
  // Far lower ones run behind within the first second.
  std::erase_if(rates, [&](Rate rate) { return rate.PerMs() < 0.9 / meanMs; });
  std::sort(rates.begin(), rates.end(), [](Rate a, Rate b) { return a.PerMs() < b.PerMs(); });
  return rates;
}

/// A place for each picture, within one of its time; nothing where that cannot be.
/// @param follow  one after another, without an empty place
std::optional<std::vector<int>> PlacesAt(Rate rate, std::span<const double> beginsMs, bool follow) {
  std::vector<int> places;
  places.reserve(beginsMs.size());
  int next = 0;
  for (const double begin : beginsMs) {
    const double wanted = (begin - beginsMs.front()) * rate.PerMs();
    const int place = follow ? next : std::max(next, static_cast<int>(std::lround(wanted)));
    if (std::abs(place - wanted) > 1) return std::nullopt;
    places.push_back(place);
    next = place + 1;
  }
  return places;
}

}  // namespace

SteadyRate SteadyRateFor(std::span<const double> timesMs) {
  if (timesMs.size() < 2) return {};
  const std::span<const double> begins = timesMs.first(timesMs.size() - 1);
  const auto pictures = static_cast<int>(begins.size());
  const double lengthMs = timesMs.back() - timesMs.front();
  const double meanMs = pictures > 1 ? (begins.back() - begins.front()) / (pictures - 1) : lengthMs;
  const Rate even = Every(meanMs);
  if (pictures < 2 || meanMs < kLeastGapMs) return {even.rate, even.scale, pictures, {}};

  double shortestMs = meanMs;
  for (std::size_t i = 1; i < begins.size(); ++i) shortestMs = std::min(shortestMs, begins[i] - begins[i - 1]);
  for (const Rate rate : RatesFor(meanMs, shortestMs)) {
    if (PlacesAt(rate, begins, true)) return {rate.rate, rate.scale, pictures, {}};
    if (auto places = PlacesAt(rate, begins, false)) {
      const int end = static_cast<int>(std::lround(lengthMs * rate.PerMs()));
      const int frames = std::max(places->back() + 1, end);
      return {rate.rate, rate.scale, frames, std::move(*places)};
    }
  }
  // Of a clock that says nothing sensible only the order is kept.
  return {even.rate, even.scale, pictures, {}};
}

}  // namespace kinalyx
