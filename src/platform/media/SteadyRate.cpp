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

/// Places of pictures at a rate.
struct Placing {
  Rate rate;
  std::vector<int> places;
  bool follow;   ///< one after another, without an empty place
  double error;  ///< of the picture that is farthest from its time, in places
};

/// A place for each picture, within one of its time; nothing where that cannot be.
std::optional<Placing> PlaceAt(Rate rate, std::span<const double> beginsMs, bool follow) {
  Placing placing{rate, {}, follow, 0};
  placing.places.reserve(beginsMs.size());
  int next = 0;
  for (const double begin : beginsMs) {
    const double wanted = (begin - beginsMs.front()) * rate.PerMs();
    const int place = follow ? next : std::max(next, static_cast<int>(std::lround(wanted)));
    placing.error = std::max(placing.error, std::abs(place - wanted));
    if (placing.error > 1) return std::nullopt;
    placing.places.push_back(place);
    next = place + 1;
  }
  return placing;
}

/// The lowest rate that does, or the best of those that are hardly higher.
std::optional<Placing> BestPlacing(const std::vector<Rate>& rates, std::span<const double> beginsMs) {
  constexpr double kHardlyHigher = 1.005;
  std::optional<Placing> best;
  double highest = 0;
  for (const Rate rate : rates) {
    if (best && rate.PerMs() > highest) break;
    auto placing = PlaceAt(rate, beginsMs, true);
    if (!placing) placing = PlaceAt(rate, beginsMs, false);
    if (!placing || (best && placing->error >= best->error)) continue;
    if (!best) highest = kHardlyHigher * rate.PerMs();
    best = std::move(placing);
  }
  return best;
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
  auto best = BestPlacing(RatesFor(meanMs, shortestMs), begins);
  if (best && best->follow) return {best->rate.rate, best->rate.scale, pictures, {}};
  if (best) {
    const int end = static_cast<int>(std::lround(lengthMs * best->rate.PerMs()));
    const int frames = std::max(best->places.back() + 1, end);
    return {best->rate.rate, best->rate.scale, frames, std::move(best->places)};
  }
  // Of a clock that says nothing sensible only the order is kept.
  return {even.rate, even.scale, pictures, {}};
}

}  // namespace kinalyx
