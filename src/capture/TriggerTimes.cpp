#include "capture/TriggerTimes.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>

#include "core/Settings.h"

namespace kinalyx {
namespace {

using std::string_view_literals::operator""sv;

constexpr std::array kEntries{"0.5"sv, "1"sv,  "1.5"sv, "2"sv,  "3"sv,  "4"sv,  "5"sv,  "6"sv, "8"sv,
                              "10"sv,  "12"sv, "15"sv,  "20"sv, "25"sv, "30"sv, "45"sv, "60"sv};
constexpr double kMostSeconds = 60;
// What a first run writes.
constexpr double kBefore = 15;
constexpr double kAfter = 10;
constexpr double kOneClick = 25;
/// Of a click: the pictures of the moment itself.
constexpr double kClickEnd = 0.1;
constexpr double kShortest = 0.1;
constexpr int kMiddle = 50;
/// Between the middle and either end of the input level.
constexpr double kDecibels = 12;

template <typename Number>
std::optional<Number> NumberIn(std::string_view text) {
  Number number{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

}  // namespace

std::span<const std::string_view> TriggerSeconds() { return kEntries; }

double SecondsOf(std::string_view entry, double standard) {
  const double seconds = NumberIn<double>(entry).value_or(standard);
  return std::isfinite(seconds) && seconds >= 0 ? std::min(seconds, kMostSeconds) : standard;
}

TriggerWindow SoundWindow(const Settings& settings) {
  TriggerWindow window{-SecondsOf(settings.TriggerTime[0], kBefore), SecondsOf(settings.TriggerTime[1], kAfter)};
  // Nothing at all is what nobody means.
  window.end = std::max(window.end, window.start + kShortest);
  return window;
}

TriggerWindow OneClickWindow(const Settings& settings) {
  return {-SecondsOf(settings.OneClickTime, kOneClick), kClickEnd};
}

int PercentOf(std::string_view text) { return std::clamp(NumberIn<int>(text).value_or(kMiddle), 0, 100); }

double ThresholdOf(const Settings& settings) { return PercentOf(settings.TriggerLevel) / 100.0; }

double InputDecibels(int percent) { return (percent - kMiddle) * kDecibels / kMiddle; }

double GainOf(const Settings& settings) { return std::pow(10.0, InputDecibels(PercentOf(settings.SoundLevel)) / 20); }

}  // namespace kinalyx
