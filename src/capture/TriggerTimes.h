#pragma once

#include <span>
#include <string>
#include <string_view>

namespace kinalyx {

class Settings;

/// How many seconds the lists `BlockTimeList` offer, as their entries stand in the settings: "0.5", "1", "15".
std::span<const std::string_view> TriggerSeconds();
/// The seconds of an entry, 0 to 60. A text that is none, in an old or a damaged file, is `standard`.
double SecondsOf(std::string_view entry, double standard);

/// The window around a trigger, in seconds from it, as the settings ask for it.
struct TriggerWindow {
  double start = 0;  ///< negative: before it
  double end = 0;
};
TriggerWindow SoundWindow(const Settings& settings);
/// A click marks the end of a swing.
TriggerWindow OneClickWindow(const Settings& settings);

/// What the keys `TriggerLevel` and `SoundLevel` keep, 0 to 100; 50 where they keep no number.
int PercentOf(std::string_view text);
/// The threshold of the trigger, 0 to 1 as its meter counts.
double ThresholdOf(const Settings& settings);
/// What an input level of 0 to 100 asks of the microphone, in decibels.
double InputDecibels(int percent);
/// How many times the microphone is taken: once at 50, up to four times at 100, a quarter at 0.
double GainOf(const Settings& settings);

}  // namespace kinalyx
